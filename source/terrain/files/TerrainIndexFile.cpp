#include "terrain/files/TerrainIndexFile.h"

#include "core/files/SafeFile.h"
#include "core/log/Logger.h"
#include "terrain/files/ListText.h"
#include "terrain/tree/TerrainTreeShape.h"

#include <ostream>

namespace skyvane {
namespace {

constexpr const char* FormatLine = "0";

} // namespace

std::list<int> parseTIFile(const std::string& path, std::string* name, std::string* closing) {
    std::list<int> ids;
    const std::string text = readListText(path);
    if (text.empty())
        return ids;
    std::string_view rest = text, line;
    if (!takeListLine(rest, line) || line != FormatLine) {
        Logger::logStringConsole("Error: Wrong format.");
        return ids;
    }
    if (takeListLine(rest, line) && name)
        *name = line;
    while (takeListLine(rest, line)) {
        const std::optional<int> id = parseListNumber(line);
        if (id && *id < TerrainNodeCount)
            ids.push_back(*id);
    }
    if (closing)
        *closing = rest;
    return ids;
}

bool writeTIFile(const std::string& path, const std::string& name, const std::list<int>& ids,
                 const std::string& closing) {
    std::string text = std::string(FormatLine) + "\n" + name + "\n";
    for (const int id : ids)
        text += std::to_string(id) + "\n";
    return saveFileSafely(path, text + closing) == 0;
}

} // namespace skyvane
