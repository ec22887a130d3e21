#include "core/ini/IniIterator.h"

namespace skyvane {

namespace {
const std::string nothing;
}

IniIterator::IniIterator(const IniFile::Sections& sections) : sections_(sections), section_(sections.begin()) {
    enterSection();
}

void IniIterator::enterSection() {
    if (isSectionAvail())
        value_ = section_->second.begin();
}

bool IniIterator::isSectionAvail() const {
    return section_ != sections_.end();
}

void IniIterator::nextSection() {
    if (!isSectionAvail())
        return;
    ++section_;
    enterSection();
}

const std::string& IniIterator::currentSection() const {
    return isSectionAvail() ? section_->first : nothing;
}

bool IniIterator::isValueAvail() const {
    return isSectionAvail() && value_ != section_->second.end();
}

void IniIterator::nextValue() {
    if (isValueAvail())
        ++value_;
}

const std::string& IniIterator::currentKey() const {
    return isValueAvail() ? value_->first : nothing;
}

const std::string& IniIterator::currentValue() const {
    return isValueAvail() ? value_->second : nothing;
}

} // namespace skyvane
