#pragma once

#include <map>
#include <memory>
#include <string>

namespace skyvane {

class IniIterator;

/// The program's document type: sections of key-value pairs, sorted bytewise; the unnamed section is first.
///
/// Any bytes give some document; there is no parse error. Values have no type. One document belongs to one thread at a
/// time, and nothing is saved unless Save() is called.
class IniFile {
public:
    using Section = std::map<std::string, std::string>;
    using Sections = std::map<std::string, Section>;

    IniFile() = default;
    /// Reads a file; one that can't be opened gives an empty document.
    explicit IniFile(const std::string& path);

    /// Adds the text's records to what is there, later ones winning. Stops at the first NUL.
    void setFromString(const char* text);

    /// The value; a missing section or key is created, empty. Use isAvailable() first where that must not happen.
    std::string& get(const std::string& section, const std::string& key);
    void set(const std::string& section, const std::string& key, const std::string& value);

    bool isSectionAvailable(const std::string& section) const;
    bool isAvailable(const std::string& section, const std::string& key) const;
    void removeSection(const std::string& section);
    void removeValue(const std::string& section, const std::string& key);
    /// The whole of `from` replaces `to`, and `from` goes. Nothing happens when there is no `from`.
    void moveSection(const std::string& from, const std::string& to);

    std::string toString() const;
    void Print() const;
    /// Replaces the file by the text form, in one step (saveFileSafely). False when it can't; the former file stands
    /// then.
    bool Save(const std::string& path) const;

    /// Walks this document, which must outlive the iterator and stay unchanged meanwhile.
    /// The caller includes core/ini/IniIterator.h.
    std::unique_ptr<IniIterator> newIterator() const;

private:
    Sections sections_;
};

} // namespace skyvane
