#pragma once

#include "chart/elements/ChartElement.h"
#include "chart/elements/PointBounds.h"

#include <vector>

namespace skyvane {

/// An airspace: a polygon with a floor and a ceiling.
class AirspaceElement : public ChartElement<AirspaceElement, IChartElement::AIRSPACE> {
public:
    /// Stands for an unlimited top, and for a bottom on the surface.
    static constexpr int32_t Unlimited = -999999;
    /// The class of a traffic pattern altitude: no ordinary airspace, its top is the altitude of the pattern.
    static constexpr const char* TrafficPatternClass = "TP";
    /// The classes that the static bytes tell apart; 0 stands for all others.
    static constexpr size_t StaticClassCount = 15;
    static const char* const staticAirspaceClassNames[StaticClassCount];
    /// The index of the class in static bytes.
    static int readStaticAirspaceClass(const char* bytes);
    /// What the class means; empty for a code that isn't in the table.
    static std::string getClassDescription(const std::string& code);

    /// The first vertex, or 0, 0.
    ChartPosition getPosition() const override;
    const std::string& getRemarks() const override { return remarks; }
    std::string getIndicatedLabel(bool full, bool metric) const override;
    int getTrieInsertionNameCount() const override { return 0; }
    std::string getTrieInsertionName(int) const override { return {}; }
    int getAreaDefiningPointCount() const override { return static_cast<int>(vertices.size()); }
    ChartPosition getAreaDefiningPoint(int index) const override;
    std::string createHTI(bool metric) const override;
    /// Bytes 1 and 2, little-endian: the low 12 bits are encode12BitAltitude of the bottom, the high 4 the class.
    void writeStaticData(char* out) const override;

    /// Call it after a change of the vertices; both stored forms do when they are read.
    void recalculateBoundingBox() { bounds_ = PointBounds(vertices); }
    const PointBounds& getBounds() const { return bounds_; }

    bool excludes = false; ///< Cut out of the airspace that it lies in.
    bool isTopMsl = true;  ///< Else above ground; so the bottom.
    bool isBottomMsl = true;
    int32_t topFeet = 0;
    int32_t bottomFeet = 0;
    std::string airspaceClass;
    std::string name;
    std::string remarks;
    std::vector<ChartPosition> vertices; ///< Without a closing one.

private:
    friend ChartElement;
    template <class Self, class Form>
    static void record(Self& self, Form& form);
    template <class Self, class Form>
    static void document(Self& self, Form& form);
    void derive() { recalculateBoundingBox(); }

    PointBounds bounds_;
};

} // namespace skyvane
