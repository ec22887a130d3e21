#pragma once

#include "chart/elements/ChartElement.h"
#include "chart/elements/PointBounds.h"

#include <vector>

namespace skyvane {

/// Areas as one byte, in equal ratios: 255 steps for the 16-bit range times 15258 square metres.
int ggeAreaToByte(double area);
double ggeByteToArea(int byte);

/// A polygon or line of the ground: taxiways, aprons, roads, rivers, coastlines, borders.
class GroundGeometryElement : public ChartElement<GroundGeometryElement, IChartElement::GROUNDGEOMETRY> {
public:
    static constexpr uint8_t FeatureCount = 21;
    static constexpr uint8_t OtherFeature = 20;
    /// Stored. Any other value counts as a line.
    enum GeoType : uint8_t { Polygon = 0, Line = 1 };
    static constexpr int16_t UnknownAltitude = 32767;

    /// "Taxiway", "River" and so on; empty for OtherFeature and numbers beyond.
    static const char* defaultLabel(uint8_t feature);

    /// The first vertex, or 0, 0.
    ChartPosition getPosition() const override;
    const std::string& getRemarks() const override { return description; }
    std::string getIndicatedLabel(bool full, bool metric) const override;
    int getTrieInsertionNameCount() const override { return 0; }
    std::string getTrieInsertionName(int) const override { return {}; }
    int getAreaDefiningPointCount() const override { return static_cast<int>(vertices.size()); }
    ChartPosition getAreaDefiningPoint(int index) const override;
    bool isLowAltitudeRelevant() const override { return false; }
    bool isHighAltitudeRelevant() const override { return false; }
    std::string createHTI(bool metric) const override;
    /// Byte 1: a line's width class. Byte 2: the feature in bits 0 to 4, bit 5 no width, bit 6 polygon, bit 7 small.
    void writeStaticData(char* out) const override;

    /// A line's width in steps of 0.5 m; 0 is none given.
    uint16_t getWidthSteps() const { return static_cast<uint16_t>(additionalData & 0xffff); }
    /// Call it after a change of the vertices; both stored forms do when they are read.
    void recalculateBoundingBox() { bounds_ = PointBounds(vertices); }
    const PointBounds& getBounds() const { return bounds_; }

    uint8_t feature = OtherFeature;
    uint8_t geoType = Polygon;
    int16_t altitudeFeet = UnknownAltitude;
    uint64_t additionalData = 0;
    uint16_t maxWeight = 0; ///< In 100 kg, as the next; 0 is none given.
    uint16_t maxWeightPerTire = 0;
    std::vector<ChartPosition> vertices;
    std::string name;
    std::string description;

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
