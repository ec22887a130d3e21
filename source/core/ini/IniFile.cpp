#include "core/ini/IniFile.h"

#include "core/files/SafeFile.h"
#include "core/ini/IniEscapes.h"
#include "core/ini/IniIterator.h"
#include "core/ini/IniParser.h"

#include <cstdio>
#include <cstring>
#include <fstream>
#include <utility>

namespace skyvane {

namespace {

// Puts each record of a text, unescaped, into the document.
class RecordReader {
public:
    explicit RecordReader(IniFile& document) : document_(document) {}

    void read(const char* bytes, size_t count) {
        for (size_t i = 0; i < count; ++i)
            feed(bytes[i]);
    }
    /// A last line counts without its line end too.
    void finish() { feed('\n'); }

private:
    void feed(char byte) {
        if (parser_.feed(byte))
            document_.set(unescapeIniStrings(parser_.section()), unescapeIniStrings(parser_.key()),
                          unescapeIniStrings(parser_.value()));
    }

    IniFile& document_;
    IniParser parser_;
};

} // namespace

IniFile::IniFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    RecordReader reader(*this);
    char chunk[4096];
    while (in.read(chunk, sizeof chunk) || in.gcount() > 0)
        reader.read(chunk, static_cast<size_t>(in.gcount()));
    reader.finish();
}

void IniFile::setFromString(const char* text) {
    RecordReader reader(*this);
    reader.read(text, std::strlen(text));
    reader.finish();
}

std::string& IniFile::get(const std::string& section, const std::string& key) {
    return sections_[section][key];
}

void IniFile::set(const std::string& section, const std::string& key, const std::string& value) {
    sections_[section][key] = value;
}

bool IniFile::isSectionAvailable(const std::string& section) const {
    return sections_.count(section) != 0;
}

bool IniFile::isAvailable(const std::string& section, const std::string& key) const {
    const auto found = sections_.find(section);
    return found != sections_.end() && found->second.count(key) != 0;
}

void IniFile::removeSection(const std::string& section) {
    sections_.erase(section);
}

void IniFile::removeValue(const std::string& section, const std::string& key) {
    const auto found = sections_.find(section);
    if (found != sections_.end())
        found->second.erase(key);
}

void IniFile::moveSection(const std::string& from, const std::string& to) {
    const auto found = sections_.find(from);
    if (found == sections_.end() || from == to)
        return;
    Section content = std::move(found->second);
    sections_.erase(found);
    sections_[to] = std::move(content);
}

std::string IniFile::toString() const {
    std::string text;
    for (const auto& [name, section] : sections_) {
        if (!name.empty())
            text += "[" + escapeIniStrings(name) + "]\n";
        for (const auto& [key, value] : section)
            text += escapeIniStrings(key) + " = " + escapeIniStrings(value) + "\n";
        text += "\n";
    }
    return text;
}

void IniFile::Print() const {
    const std::string text = toString();
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
}

bool IniFile::Save(const std::string& path) const {
    return saveFileSafely(path, toString()) == 0;
}

std::unique_ptr<IniIterator> IniFile::newIterator() const {
    return std::make_unique<IniIterator>(sections_);
}

} // namespace skyvane
