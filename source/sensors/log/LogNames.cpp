#include "sensors/log/LogNames.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>

namespace skyvane {
namespace {

constexpr size_t LongestName = 100;

bool isNameCharacter(unsigned char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' || c == '_';
}

bool isListable(const std::string& name) {
    std::string ending = name.size() > 4 ? name.substr(name.size() - 4) : "";
    for (char& c : ending)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    const auto isOdd = [](unsigned char c) { return c == ';' || c < ' '; };
    return ending == ".DAT" && std::none_of(name.begin(), name.end(), isOdd);
}

} // namespace

bool isLogName(const std::string& name) {
    return !name.empty() && name.size() <= LongestName && std::all_of(name.begin(), name.end(), isNameCharacter);
}

std::vector<std::string> listLogs(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder.empty() ? "." : folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code typeError;
        const std::string name = entry->path().filename().string();
        if (isListable(name) && entry->is_regular_file(typeError))
            names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string logPath(const std::string& folder, const std::string& fileName) {
    const bool leaves = fileName.empty() || fileName == "." || fileName == ".." ||
                        fileName.find('/') != std::string::npos || fileName.find('\0') != std::string::npos;
    return leaves ? std::string() : folder + fileName;
}

} // namespace skyvane
