#include "gui/hypertext/pages/PageHistory.h"

namespace skyvane {
namespace {

std::string exchange(std::vector<std::string>& from, std::vector<std::string>& to, const std::string& current) {
    if (from.empty())
        return {};
    std::string page = std::move(from.back());
    from.pop_back();
    to.push_back(current);
    return page;
}

} // namespace

void PageHistory::leave(const std::string& current) {
    forward_.clear();
    if (current.empty())
        return;
    backward_.push_back(current);
    if (backward_.size() > longest)
        backward_.erase(backward_.begin());
}

std::string PageHistory::goBackwards(const std::string& current) {
    return exchange(backward_, forward_, current);
}

std::string PageHistory::goForwards(const std::string& current) {
    return exchange(forward_, backward_, current);
}

void PageHistory::clear() {
    backward_.clear();
    forward_.clear();
}

bool isNameWithinFolder(const std::string& name) {
    if (name.empty() || name.front() == '/')
        return false;
    for (const char c : name)
        if (static_cast<unsigned char>(c) < ' ' || c == '\\' || c == ':')
            return false;
    const std::string padded = "/" + name + "/";
    return padded.find("/../") == std::string::npos && padded.find("/./") == std::string::npos;
}

} // namespace skyvane
