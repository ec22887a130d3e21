#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <string>
#include <vector>

namespace skyvane {

class IniFile;

// The primitives of element documents: a kind lists its keys once, in a function that takes either form.
//
//     form.position(self.position);         // "Long" and "Lat"
//     form.number("Freq", self.frequency);
//     form.text("Ident", self.ident);

/// Fills fields from a section of a document. A key that isn't there, or whose text says nothing of its kind, leaves
/// the field as it was.
class IniReader {
public:
    explicit IniReader(IniFile& ini, std::string section = {}) : ini_(ini), section_(std::move(section)) {}

    template <class T>
    void number(const std::string& key, T& value);
    void flag(const std::string& key, bool& value);
    void text(const std::string& key, std::string& value);
    void position(ChartPosition& position);
    /// A value that may be unknown: an empty text, none, or one that is no number says so.
    template <class T>
    void optional(const std::string& key, T& value, bool& isKnown);
    void optionalPosition(const std::string& index, ChartPosition& position, bool& isKnown);
    /// The text that stands for the value in the table; the fallback for any other text.
    template <class T>
    void choice(const std::string& key, T& value, const std::vector<std::string>& table, T fallback);
    /// The count under `countKey`, and vertices in the sections `prefix` with 0, 1, ...
    void vertices(const std::string& countKey, const std::string& prefix, std::vector<ChartPosition>& positions);

    /// How many objects to read: the value of the count's key, but no further than the first that isn't there.
    template <class IsThere>
    size_t count(const std::string& key, IsThere isThere) {
        unsigned claimed = 0;
        number(key, claimed);
        size_t found = 0;
        while (found < claimed && isThere(found))
            ++found;
        return found;
    }

    bool has(const std::string& key) const;
    bool hasSection(const std::string& section) const;
    IniReader in(const std::string& section) { return IniReader(ini_, section); }

    static constexpr bool Reads = true;

private:
    std::string get(const std::string& key) const;

    IniFile& ini_;
    std::string section_;
};

/// Stores fields in a section of a document.
class IniWriter {
public:
    explicit IniWriter(IniFile& ini, std::string section = {}) : ini_(ini), section_(std::move(section)) {}

    template <class T>
    void number(const std::string& key, T value);
    void flag(const std::string& key, bool value);
    void text(const std::string& key, const std::string& value);
    void position(const ChartPosition& position);
    template <class T>
    void optional(const std::string& key, T value, bool isKnown);
    void optionalPosition(const std::string& index, const ChartPosition& position, bool isKnown);
    template <class T>
    void choice(const std::string& key, T value, const std::vector<std::string>& table, T fallback);
    void vertices(const std::string& countKey, const std::string& prefix, const std::vector<ChartPosition>& positions);

    /// Removes the sections `prefix` with 0, 1, ... up to the first that isn't there.
    void removeSections(const std::string& prefix);
    IniWriter in(const std::string& section) { return IniWriter(ini_, section); }

    static constexpr bool Reads = false;

private:
    IniFile& ini_;
    std::string section_;
};

} // namespace skyvane
