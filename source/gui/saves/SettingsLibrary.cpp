#include "gui/saves/SettingsLibrary.h"

#include "core/files/Paths.h"
#include "core/files/SafeFile.h"
#include "core/ini/IniFile.h"
#include "core/ini/IniIterator.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <set>

namespace skyvane {
namespace {

using Outcome = SettingsLibrary::Outcome;

constexpr std::size_t mostNameBytes = 100;
constexpr std::size_t mostPathBytes = 1000;
/// A library has some kilobytes; a file beyond this is none.
constexpr std::size_t mostFileBytes = 16u << 20;

bool startsWith(const std::string& text, const std::string& beginning) {
    return text.compare(0, beginning.size(), beginning) == 0;
}

bool isFolderPath(const std::string& path) {
    return path.empty() || path.back() == '/';
}

/// The names of the sections that are entries or folders.
std::vector<std::string> sectionsOf(const IniFile& document) {
    std::vector<std::string> sections;
    for (auto it = document.newIterator(); it->isSectionAvail(); it->nextSection())
        if (isGoodEntryPath(it->currentSection()))
            sections.push_back(it->currentSection());
    return sections;
}

/// Whether the section is the entry, or the folder or in it.
bool belongsTo(const std::string& section, const std::string& path) {
    return isFolderPath(path) ? startsWith(section, path) : section == path;
}

std::string pathOf(const std::string& folder, const SettingsLibrary::Item& item) {
    return folder + item.name + (item.isFolder ? "/" : "");
}

IniFile::Section contentOf(const IniFile& document, const std::string& section) {
    IniFile::Section content;
    for (auto it = document.newIterator(); it->isSectionAvail(); it->nextSection())
        for (; it->currentSection() == section && it->isValueAvail(); it->nextValue())
            content[it->currentKey()] = it->currentValue();
    return content;
}

void copySection(const IniFile& from, IniFile& to, const std::string& section) {
    to.removeSection(section);
    for (const auto& [key, value] : contentOf(from, section))
        to.set(section, key, value);
}

/// A folder that may be empty has a section of its own, and a section has a key.
void keepFolder(IniFile& document, const std::string& path) {
    document.set(path, "folder", "1");
}

bool conflicts(const IniFile& a, const IniFile& b, const std::string& section) {
    return a.isSectionAvailable(section) && b.isSectionAvailable(section) &&
           contentOf(a, section) != contentOf(b, section);
}

/// Entries and folders of `from` go into `to`.
void merge(const IniFile& from, IniFile& to, SettingsLibrary::Conflict conflict) {
    for (const std::string& section : sectionsOf(from))
        if (!to.isSectionAvailable(section) || conflict == SettingsLibrary::Conflict::Replace)
            copySection(from, to, section);
}

/// Empty when there is no such file; nothing when there is one that is no document.
std::optional<IniFile> readLibrary(const std::string& path) {
    IniFile document;
    if (!fileExist(path))
        return document;
    const std::optional<std::string> text = readWholeFile(path, mostFileBytes);
    if (!text || text->find('\0') != std::string::npos)
        return std::nullopt;
    document.setFromString(text->c_str());
    return document;
}

} // namespace

bool isGoodEntryName(const std::string& name) {
    const auto isBad = [](char c) {
        return c == '/' || c == '\\' || static_cast<unsigned char>(c) < 0x20 || c == 0x7f;
    };
    return !name.empty() && name.size() <= mostNameBytes && name != "." && name != ".." && name.front() != ' ' &&
           name.back() != ' ' && std::none_of(name.begin(), name.end(), isBad);
}

bool isGoodEntryPath(const std::string& path) {
    if (path.empty() || path.size() > mostPathBytes)
        return false;
    std::size_t from = 0;
    while (from < path.size()) {
        const std::size_t to = std::min(path.find('/', from), path.size());
        if (!isGoodEntryName(path.substr(from, to - from)))
            return false;
        from = to + 1;
    }
    return true;
}

SettingsLibrary::SettingsLibrary(IniFile* document, std::string path) : document_(document), path_(std::move(path)) {}

std::vector<SettingsLibrary::Item> SettingsLibrary::list(const std::string& folder) const {
    std::set<std::string> folders, entries;
    for (const std::string& section : sectionsOf(*document_)) {
        if (!belongsTo(section, folder) || section == folder)
            continue;
        const std::string rest = section.substr(folder.size());
        const std::size_t slash = rest.find('/');
        (slash == std::string::npos ? entries : folders).insert(rest.substr(0, slash));
    }
    std::vector<Item> items;
    for (const std::string& name : folders)
        items.push_back({name, true});
    for (const std::string& name : entries)
        items.push_back({name, false});
    return items;
}

bool SettingsLibrary::isEntry(const std::string& path) const {
    return isGoodEntryPath(path) && !isFolderPath(path) && document_->isSectionAvailable(path);
}

bool SettingsLibrary::isTaken(const std::string& folder, const std::string& name) const {
    const std::vector<Item> items = list(folder);
    return std::any_of(items.begin(), items.end(), [&name](const Item& item) { return item.name == name; });
}

int SettingsLibrary::count(const std::string& folder) const {
    const std::vector<std::string> sections = sectionsOf(*document_);
    return static_cast<int>(std::count_if(sections.begin(), sections.end(), [&folder](const std::string& section) {
        return !isFolderPath(section) && belongsTo(section, folder);
    }));
}

Outcome SettingsLibrary::save(const std::string& folder, const std::string& name, const Fill& fill) {
    const std::string path = folder + name;
    if (!isGoodEntryName(name) || !isGoodEntryPath(path))
        return Outcome::BadName;
    if (isTaken(folder, name) && !isEntry(path))
        return Outcome::Exists;
    IniFile changed = *document_;
    changed.removeSection(path);
    if (!fill(changed, path) || !changed.isSectionAvailable(path))
        return Outcome::Missing;
    return replaceBy(changed);
}

Outcome SettingsLibrary::makeFolder(const std::string& folder, const std::string& name) {
    const std::string path = folder + name + "/";
    if (!isGoodEntryName(name) || !isGoodEntryPath(path))
        return Outcome::BadName;
    if (isTaken(folder, name))
        return Outcome::Exists;
    IniFile changed = *document_;
    keepFolder(changed, path);
    return replaceBy(changed);
}

Outcome SettingsLibrary::rename(const std::string& folder, const Item& item, const std::string& newName) {
    const std::string from = pathOf(folder, item);
    const std::string to = pathOf(folder, {newName, item.isFolder});
    if (!isGoodEntryName(newName))
        return Outcome::BadName;
    if (from == to)
        return Outcome::Done;
    if (isTaken(folder, newName))
        return Outcome::Exists;
    IniFile changed = *document_;
    int moved = 0;
    for (const std::string& section : sectionsOf(*document_)) {
        if (!belongsTo(section, from))
            continue;
        const std::string target = to + section.substr(from.size());
        if (!isGoodEntryPath(target))
            return Outcome::BadName;
        changed.moveSection(section, target);
        ++moved;
    }
    return moved > 0 ? replaceBy(changed) : Outcome::Missing;
}

Outcome SettingsLibrary::remove(const std::string& folder, const Item& item) {
    IniFile changed = *document_;
    for (const std::string& section : sectionsOf(*document_))
        if (belongsTo(section, pathOf(folder, item)))
            changed.removeSection(section);
    return replaceBy(changed);
}

Outcome SettingsLibrary::removeAll(const std::string& folder) {
    IniFile changed = *document_;
    for (const std::string& section : sectionsOf(*document_))
        if (belongsTo(section, folder))
            changed.removeSection(section);
    if (!folder.empty())
        keepFolder(changed, folder);
    return replaceBy(changed);
}

int SettingsLibrary::countConflicts(const std::string& otherPath) const {
    const std::optional<IniFile> other = readLibrary(otherPath);
    if (!other)
        return 0;
    const std::vector<std::string> sections = sectionsOf(*document_);
    return static_cast<int>(std::count_if(sections.begin(), sections.end(), [&](const std::string& section) {
        return conflicts(*document_, *other, section);
    }));
}

Outcome SettingsLibrary::importFrom(const std::string& otherPath, Conflict conflict) {
    const std::optional<IniFile> other = readLibrary(otherPath);
    if (!other || sectionsOf(*other).empty())
        return Outcome::Missing;
    IniFile changed = *document_;
    merge(*other, changed, conflict);
    return replaceBy(changed);
}

Outcome SettingsLibrary::exportTo(const std::string& otherPath, Conflict conflict) const {
    std::optional<IniFile> other = readLibrary(otherPath);
    if (!other) {
        writeError_ = EIO;
        return Outcome::NotWritten;
    }
    merge(*document_, *other, conflict);
    return write(*other, otherPath);
}

Outcome SettingsLibrary::write(const IniFile& changed, const std::string& path) const {
    writeError_ = saveFileSafely(path, changed.toString());
    return writeError_ == 0 ? Outcome::Done : Outcome::NotWritten;
}

Outcome SettingsLibrary::replaceBy(const IniFile& changed) {
    const Outcome outcome = write(changed, path_);
    if (outcome == Outcome::Done)
        *document_ = changed;
    return outcome;
}

} // namespace skyvane
