#pragma once

#include "chart/elements/ChartElement.h"

namespace skyvane {

/// A mast, tower or group of them.
class ObstructionElement : public ChartElement<ObstructionElement, IChartElement::OBSTRUCTION> {
public:
    ChartPosition getPosition() const override { return position; }
    const std::string& getRemarks() const override { return remarks; }
    std::string getIndicatedLabel(bool full, bool metric) const override;
    int getTrieInsertionNameCount() const override { return 0; }
    std::string getTrieInsertionName(int) const override { return {}; }
    std::string createHTI(bool metric) const override;
    /// Bytes 1 and 2 are encode16BitAltitude of the top, little-endian.
    void writeStaticData(char* out) const override;

    ChartPosition position;
    bool isGroup = false;
    int32_t heightAglFeet = 0;
    int32_t altitudeMslFeet = 0;
    bool hasKnownLighting = false;
    bool hasAccuratePosition = false;
    std::string remarks;

private:
    friend ChartElement;
    template <class Self, class Form>
    static void record(Self& self, Form& form);
    template <class Self, class Form>
    static void document(Self& self, Form& form);
};

} // namespace skyvane
