#pragma once

#include "chart/elements/Navaid.h"

namespace skyvane {

/// A VHF omnidirectional range, with or without distance measuring, or a TACAN.
class VORElement : public ChartElement<VORElement, IChartElement::VOR> {
public:
    /// Stored. Any other value counts as a plain VOR.
    enum VorType : int32_t { PlainVor = 0, Vortac = 1, VorDme = 2, Tacan = 3 };

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

    ChartPosition position;
    Frequency frequency; ///< 113.70 is 113 and 700; both 0 is unknown.
    std::string ident = "0000";
    std::string name = "unnamed";
    std::string flightServiceStation;
    std::string remarks;
    int32_t vorType = PlainVor;
    std::string tacanChannel;
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
