#pragma once

#include "chart/elements/ChartElement.h"

namespace skyvane {

/// A place that the user marked.
class MarkElement : public ChartElement<MarkElement, IChartElement::MARK> {
public:
    ChartPosition getPosition() const override { return position; }
    const std::string& getRemarks() const override { return remarks; }
    std::string getIndicatedLabel(bool full, bool metric) const override;
    int getTrieInsertionNameCount() const override { return 1; }
    std::string getTrieInsertionName(int index) const override { return index == 0 ? name : std::string(); }
    std::string createHTI(bool metric) const override;
    void writeStaticData(char* out) const override;

    ChartPosition position;
    std::string name = "unnamed";
    std::string remarks;

private:
    friend ChartElement;
    template <class Self, class Form>
    static void record(Self& self, Form& form);
    template <class Self, class Form>
    static void document(Self& self, Form& form);
};

} // namespace skyvane
