#pragma once

#include "chart/elements/ChartElement.h"

namespace skyvane {

/// A segment of an airway, a straight piece between two points.
class AirwayElement : public ChartElement<AirwayElement, IChartElement::AIRWAY> {
public:
    struct Altitude {
        int32_t feet = 0;
        bool isAvailable = false;
    };

    /// The middle of the two ends' coordinates.
    ChartPosition getPosition() const override;
    const std::string& getRemarks() const override { return remarks; }
    std::string getIndicatedLabel(bool full, bool metric) const override;
    int getTrieInsertionNameCount() const override { return 0; }
    std::string getTrieInsertionName(int) const override { return {}; }
    int getAreaDefiningPointCount() const override { return 2; }
    ChartPosition getAreaDefiningPoint(int index) const override;
    std::string createHTI(bool metric) const override;
    /// Byte 1: bit 0 high altitude use, bit 1 low altitude use.
    void writeStaticData(char* out) const override;

    ChartPosition start;
    ChartPosition end;
    bool isOneDirection = false; ///< From start to end only.
    std::string name = "unnamed";
    std::string remarks;
    Altitude minimumEnroute;
    Altitude minimumObstructionClearance;
    Altitude maximumAuthorised;
    bool isHighAltitude = false;
    bool isLowAltitude = false;

private:
    friend ChartElement;
    template <class Self, class Form>
    static void record(Self& self, Form& form);
    template <class Self, class Form>
    static void document(Self& self, Form& form);
};

} // namespace skyvane
