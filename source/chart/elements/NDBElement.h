#pragma once

#include "chart/elements/Navaid.h"

namespace skyvane {

/// A non-directional beacon.
class NDBElement : public ChartElement<NDBElement, IChartElement::NDB> {
public:
    void merge(const IChartElement* other) override;
    bool equals(const IChartElement* other) const override;
    ChartPosition getPosition() const override { return position; }
    const std::string& getRemarks() const override { return remarks; }
    std::string getIndicatedLabel(bool full, bool metric) const override;
    int getTrieInsertionNameCount() const override { return 2; }
    std::string getTrieInsertionName(int index) const override;
    FrequencyMap getNavFrequencies() const override;
    std::string createHTI(bool metric) const override;
    void writeStaticData(char* out) const override;

    /// The frequency in kHz, with two zeros in front below 11 and one below 101.
    std::string getFormattedFrequency() const;

    ChartPosition position;
    int32_t frequencyKilohertz = 0; ///< 0 is unknown.
    std::string ident = "0000";
    std::string name = "unnamed";
    std::string remarks;
    AirwayUse use;
    float magneticVariationDegrees = UnknownVariation;

private:
    friend ChartElement;
    template <class Self, class Form>
    static void record(Self& self, Form& form);
    template <class Self, class Form>
    static void document(Self& self, Form& form);
};

} // namespace skyvane
