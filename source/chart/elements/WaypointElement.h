#pragma once

#include "chart/elements/Navaid.h"

namespace skyvane {

/// A fix. One that isn't public stands on the map but can't be found by its name.
class WaypointElement : public ChartElement<WaypointElement, IChartElement::WAYPOINT> {
public:
    void merge(const IChartElement* other) override;
    bool equals(const IChartElement* other) const override;
    ChartPosition getPosition() const override { return position; }
    const std::string& getRemarks() const override { return remarks; }
    std::string getIndicatedLabel(bool full, bool metric) const override;
    int getTrieInsertionNameCount() const override { return isPublic ? 1 : 0; }
    std::string getTrieInsertionName(int index) const override;
    std::string createHTI(bool metric) const override;
    void writeStaticData(char* out) const override;

    ChartPosition position;
    std::string ident = "0000";
    std::string remarks;
    AirwayUse use;
    bool isPublic = true;
    bool isReportingPoint = false;

private:
    friend ChartElement;
    template <class Self, class Form>
    static void record(Self& self, Form& form);
    template <class Self, class Form>
    static void document(Self& self, Form& form);
};

} // namespace skyvane
