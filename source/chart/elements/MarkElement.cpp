#include "chart/elements/MarkElement.h"

#include "chart/elements/ChartElementForms.h"
#include "chart/elements/HypertextPage.h"

namespace skyvane {

template <class Self, class Form>
void MarkElement::record(Self& self, Form& form) {
    form.latitudeFirst(self.position);
    form.text(self.name);
    form.text(self.remarks);
}

template <class Self, class Form>
void MarkElement::document(Self& self, Form& form) {
    form.position(self.position);
    form.text("Name", self.name);
    form.text("Rem", self.remarks);
}

template class ChartElement<MarkElement, IChartElement::MARK>;

std::string MarkElement::getIndicatedLabel(bool full, bool) const {
    return full ? name + " - Mark" : name;
}

std::string MarkElement::createHTI(bool) const {
    HypertextPage page;
    page.remarks("Remarks:", remarks);
    return page.text();
}

void MarkElement::writeStaticData(char* out) const {
    out[0] = MARK;
    out[1] = 0;
    out[2] = 0;
}

} // namespace skyvane
