#pragma once

#include "chart/elements/Frequency.h"
#include "chart/geodesy/ChartPosition.h"

#include <cstdint>
#include <iosfwd>
#include <string>

namespace skyvane {

class IniFile;

/// One aeronautical object: an airport, a navaid, an airspace, a road.
///
/// Each kind has three forms that say the same: a binary record (write, readFromBuffer), a document (writeToIni,
/// setFromIni) and a description for people (createHTI). Bytes and documents are never trusted: what a record lacks
/// makes it absent, what a document lacks keeps its default. Not thread safe.
class IChartElement {
public:
    /// Stored in records and static bytes.
    enum Type : int32_t {
        AIRSPACE = 0,
        AIRWAY = 1,
        OBSTRUCTION = 2,
        WAYPOINT = 3,
        MARK = 4,
        NDB = 5,
        VOR = 6,
        AIRPORT = 7,
        GROUNDGEOMETRY = 8,
        TypeCount = 9
    };
    /// What writeStaticData writes, in bytes. The low six bits of the first are the type.
    static constexpr unsigned StaticDataSize = 3;

    /// 0 unknown, 1 low, 2 medium, 3 or more good.
    virtual int getAccuracy() const { return 0; }
    /// Takes over what a record of the same object (see equals) knows in addition. Another type changes nothing.
    virtual void merge(const IChartElement*) {}
    /// Whether the other is a record of the same object, perhaps from another source.
    virtual bool equals(const IChartElement*) const { return false; }
    /// The binary record, its 32-bit type value first.
    virtual void write(std::ostream& out) const = 0;
    /// Fills the element from the bytes behind a record's type value, from `position` on, and moves that behind them.
    /// The record ends at `length`, counted as position is. False when it ends before its fields do: the element has
    /// its defaults then, `position` is unchanged, and the caller counts the element as absent.
    virtual bool readFromBuffer(const char* bytes, unsigned& position, unsigned length) = 0;
    /// Fills the element from the document; a key that isn't there gives its default. Adds nothing to the document.
    virtual void setFromIni(IniFile* ini) = 0;
    /// Stores the element into the document, its descriptor as "Type". What else stands there stays.
    virtual void writeToIni(IniFile* ini) const = 0;
    /// Back to the values of a new element.
    virtual void setDefaults() = 0;
    virtual ChartPosition getPosition() const = 0;
    virtual const std::string& getRemarks() const = 0;
    virtual Type getType() const = 0;
    /// The document form as text.
    virtual std::string createDescriptionString() const;
    /// The label on the map, or the full one of lists. Altitudes in metres when `metric`, else in feet.
    virtual std::string getIndicatedLabel(bool full, bool metric) const = 0;
    /// How many names lead to the element in the name index. They come in upper and lower case.
    virtual int getTrieInsertionNameCount() const = 0;
    /// The i-th name, empty outside the count.
    virtual std::string getTrieInsertionName(int index) const = 0;
    /// The points that place the element in the area tree: one, a line's two ends, or a polygon's vertices.
    virtual int getAreaDefiningPointCount() const { return 1; }
    /// The i-th of them, any longitude range; 0, 0 outside the count.
    virtual ChartPosition getAreaDefiningPoint(int index) const;
    virtual bool isLowAltitudeRelevant() const { return true; }
    virtual bool isHighAltitudeRelevant() const { return true; }
    virtual FrequencyMap getComFrequencies() const { return {}; }
    virtual FrequencyMap getNavFrequencies() const { return {}; }
    /// The description as a hypertext page.
    virtual std::string createHTI(bool metric) const;
    virtual ~IChartElement() = default;
    /// Writes StaticDataSize bytes, from which a display can reject the element without loading it.
    virtual void writeStaticData(char* out) const = 0;
};

} // namespace skyvane
