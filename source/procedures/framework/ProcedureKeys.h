#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <string>

namespace skyvane {

class IniFile;

/// The keys of one procedure in a section of a document of flight plans: "proc[3].loctype" and so on.
///
/// Nothing that is read is believed: a value that is missing, no number, or out of its range gives the fallback.
/// Reading adds nothing to the document. Numbers are written as the shortest text that reads back as the same.
class ProcedureKeys {
public:
    /// The document outlives it.
    ProcedureKeys(IniFile& document, std::string section, unsigned index);

    std::string text(const char* name, const std::string& fallback = {}) const;
    double number(const char* name, double fallback, double least, double most) const;
    bool flag(const char* name, bool fallback) const;
    /// From ".longitude" and ".latitude" of the name; false, and nothing changed, unless they are a place on the earth.
    bool position(const char* name, ChartPosition& position) const;

    void setText(const char* name, const std::string& value);
    void setNumber(const char* name, double value);
    void setFlag(const char* name, bool value);
    void setPosition(const char* name, const ChartPosition& position);

private:
    std::string key(const std::string& name) const { return prefix_ + name; }

    IniFile& document_;
    std::string section_;
    std::string prefix_;
};

} // namespace skyvane
