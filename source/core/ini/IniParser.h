#pragma once

#include <string>

namespace skyvane {

/// The grammar of a document's text, one byte at a time. Every byte sequence is valid.
///
///     for (char byte : text)
///         if (parser.feed(byte)) use(parser.section(), parser.key(), parser.value());
///     if (parser.feed('\n')) ...   // a last line without its end
///
/// The strings are as they stand in the text: escaped. A key goes on over line ends until its "=" comes.
class IniParser {
public:
    /// True when this byte completes a record; the three strings stand until the next call.
    bool feed(char byte);

    const std::string& section() const { return section_; }
    const std::string& key() const { return key_; }
    const std::string& value() const { return value_; }

private:
    enum class State { LineStart, SkipLine, Section, Key, BeforeValue, Value };

    State afterLineStart(char byte);
    State afterSection(char byte);
    State afterKey(char byte);
    State afterBeforeValue(char byte);
    State afterValue(char byte);

    State state_ = State::LineStart;
    std::string section_;
    std::string key_;
    std::string value_;
};

} // namespace skyvane
