#include "chart/elements/ObstructionElement.h"

#include "chart/elements/AltitudeCodes.h"
#include "chart/elements/ChartElementForms.h"
#include "chart/elements/HypertextPage.h"
#include "chart/geodesy/EarthConstants.h"
#include "core/text/Numbers.h"

namespace skyvane {

template <class Self, class Form>
void ObstructionElement::record(Self& self, Form& form) {
    form.latitudeFirst(self.position);
    form.flag(self.isGroup);
    form.number(self.heightAglFeet);
    form.number(self.altitudeMslFeet);
    form.flag(self.hasKnownLighting);
    form.flag(self.hasAccuratePosition);
    form.text(self.remarks);
}

template <class Self, class Form>
void ObstructionElement::document(Self& self, Form& form) {
    form.position(self.position);
    form.flag("Group", self.isGroup);
    form.number("AGL", self.heightAglFeet);
    form.number("MSL", self.altitudeMslFeet);
    form.flag("knownLighting", self.hasKnownLighting);
    form.flag("accuratePosition", self.hasAccuratePosition);
    form.text("Rem", self.remarks);
}

template class ChartElement<ObstructionElement, IChartElement::OBSTRUCTION>;

std::string ObstructionElement::getIndicatedLabel(bool full, bool metric) const {
    const std::string altitude = toText(displayedAltitude(altitudeMslFeet, metric));
    return full ? altitude + " MSL - Obstruction" : altitude;
}

std::string ObstructionElement::createHTI(bool metric) const {
    HypertextPage page;
    const std::string unit = metric ? " m" : " feet";
    page.line(std::string(hasKnownLighting ? "Lights available" : "No lights available") +
              (hasAccuratePosition ? "" : ", position may be inaccurate"));
    page.heading("Altitude MSL: " + toText(displayedAltitude(altitudeMslFeet, metric)) + unit);
    page.heading("Altitude AGL: " + toText(displayedAltitude(heightAglFeet, metric)) + unit);
    page.remarks("Remarks:", remarks);
    return page.text();
}

void ObstructionElement::writeStaticData(char* out) const {
    const uint16_t code = encode16BitAltitude(altitudeMslFeet * MetresPerFoot);
    out[0] = OBSTRUCTION;
    out[1] = static_cast<char>(code & 0xff);
    out[2] = static_cast<char>(code >> 8);
}

} // namespace skyvane
