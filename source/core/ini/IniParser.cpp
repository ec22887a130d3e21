#include "core/ini/IniParser.h"

namespace skyvane {

bool IniParser::feed(char byte) {
    const State before = state_;
    switch (before) {
    case State::LineStart:
        state_ = afterLineStart(byte);
        break;
    case State::SkipLine:
        state_ = byte == '\n' ? State::LineStart : State::SkipLine;
        break;
    case State::Section:
        state_ = afterSection(byte);
        break;
    case State::Key:
        state_ = afterKey(byte);
        break;
    case State::BeforeValue:
        state_ = afterBeforeValue(byte);
        break;
    case State::Value:
        state_ = afterValue(byte);
        break;
    }
    return state_ == State::LineStart && (before == State::BeforeValue || before == State::Value);
}

IniParser::State IniParser::afterLineStart(char byte) {
    key_.clear();
    value_.clear();
    switch (byte) {
    case ';':
    case '#':
        return State::SkipLine;
    case '[':
        section_.clear();
        return State::Section;
    case '\t':
    case '\n':
    case ' ':
        return State::LineStart;
    default:
        key_ = byte;
        return State::Key;
    }
}

IniParser::State IniParser::afterSection(char byte) {
    if (byte == ']')
        return State::SkipLine;
    section_ += byte;
    return State::Section;
}

IniParser::State IniParser::afterKey(char byte) {
    if (byte != '=') {
        key_ += byte;
        return State::Key;
    }
    key_.erase(key_.find_last_not_of(" \t") + 1);
    return State::BeforeValue;
}

IniParser::State IniParser::afterBeforeValue(char byte) {
    if (byte == ' ' || byte == '\t')
        return State::BeforeValue;
    return afterValue(byte);
}

IniParser::State IniParser::afterValue(char byte) {
    if (byte == '\n')
        return State::LineStart;
    value_ += byte;
    return State::Value;
}

} // namespace skyvane
