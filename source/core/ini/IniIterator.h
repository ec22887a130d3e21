#pragma once

#include "core/ini/IniFile.h"

namespace skyvane {

/// Walks the sections of a document and the values of each, in their order.
///
///     for (auto it = document.newIterator(); it->isSectionAvail(); it->nextSection())
///         for (; it->isValueAvail(); it->nextValue())
///             use(it->currentSection(), it->currentKey(), it->currentValue());
///
/// Starts on the first section and its first value. The document outlives it and stays unchanged meanwhile. The
/// current...() operations answer the empty string where nothing is available.
class IniIterator {
public:
    explicit IniIterator(const IniFile::Sections& sections);

    bool isSectionAvail() const;
    /// On to the next section and its first value; stays at the end.
    void nextSection();
    const std::string& currentSection() const;

    bool isValueAvail() const;
    void nextValue();
    const std::string& currentKey() const;
    const std::string& currentValue() const;

private:
    void enterSection();

    const IniFile::Sections& sections_;
    IniFile::Sections::const_iterator section_;
    IniFile::Section::const_iterator value_;
};

} // namespace skyvane
