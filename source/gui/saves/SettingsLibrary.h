#pragma once

#include <functional>
#include <string>
#include <vector>

namespace skyvane {

class IniFile;

/// Settings that the pilot saved under names, in folders, all in one document: an entry is a section
/// "Alps/Home to Zell", and a folder is called "Alps/"; a section of that name keeps it when it is empty.
///
///     SettingsLibrary library(&document, path);
///     library.save("Alps/Home to Zell", [&](IniFile& ini, const std::string& section) { ini.set(section, ...); });
///
/// Each change is made to a copy, which replaces the file in one step and then the document: what can't be written
/// changes nothing. Sections whose names are no paths of good names, and the unnamed one, aren't shown and stay. An
/// existing entry is only replaced by save(): ask isTaken() first. Main thread only.
class SettingsLibrary {
public:
    struct Item {
        std::string name; ///< In its folder, without slashes. UTF-8.
        bool isFolder = false;
    };
    /// What became of a change; Missing: there is nothing to change or to take over.
    enum class Outcome { Done, BadName, Exists, Missing, NotWritten };
    /// What to do with an entry of the other document that is here already, with another content.
    enum class Conflict { Keep, Replace };

    /// The document outlives the library; `path` is its file.
    SettingsLibrary(IniFile* document, std::string path);

    /// What lies in a folder ("" for the outermost): folders first, then entries, each in the order of their bytes.
    std::vector<Item> list(const std::string& folder) const;
    bool isEntry(const std::string& path) const;
    /// Whether an entry or a folder has the name.
    bool isTaken(const std::string& folder, const std::string& name) const;
    /// How many entries lie in a folder and in its folders.
    int count(const std::string& folder) const;

    /// `fill` writes the entry into a section that is empty before.
    using Fill = std::function<bool(IniFile& document, const std::string& section)>;
    /// Missing when `fill` refuses or writes nothing; Exists when a folder has the name.
    Outcome save(const std::string& folder, const std::string& name, const Fill& fill);
    Outcome makeFolder(const std::string& folder, const std::string& name);
    /// An entry, or a folder with all that is in it; it stays in its folder.
    Outcome rename(const std::string& folder, const Item& item, const std::string& newName);
    Outcome remove(const std::string& folder, const Item& item);
    /// All in a folder, which stays.
    Outcome removeAll(const std::string& folder);

    /// Entries of both with different contents, of which one gives way at an import or export.
    int countConflicts(const std::string& otherPath) const;
    /// Takes over the entries of another document; Missing when there is none in it.
    Outcome importFrom(const std::string& otherPath, Conflict conflict);
    /// Adds all entries to another document, which keeps what else it has.
    Outcome exportTo(const std::string& otherPath, Conflict conflict) const;

    /// The errno of the last NotWritten.
    int getWriteError() const { return writeError_; }

private:
    Outcome replaceBy(const IniFile& changed);
    Outcome write(const IniFile& changed, const std::string& path) const;

    IniFile* document_;
    std::string path_;
    mutable int writeError_ = 0;
};

/// A name that an entry or a folder can have: 1 to 100 bytes without slashes, control characters and blanks at its
/// ends, and neither "." nor "..".
bool isGoodEntryName(const std::string& name);
/// Good names joined by single slashes, with a slash at the end for a folder; at most 1000 bytes.
bool isGoodEntryPath(const std::string& path);

} // namespace skyvane
