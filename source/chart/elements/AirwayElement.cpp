#include "chart/elements/AirwayElement.h"

#include "chart/elements/AltitudeCodes.h"
#include "chart/elements/ChartElementForms.h"
#include "chart/elements/HypertextPage.h"
#include "core/text/Numbers.h"

namespace skyvane {

template <class Self, class Form>
void AirwayElement::record(Self& self, Form& form) {
    form.longitudeFirst(self.start);
    form.longitudeFirst(self.end);
    form.flag(self.isOneDirection);
    form.text(self.name);
    form.text(self.remarks);
    for (auto* altitude : {&self.minimumEnroute, &self.minimumObstructionClearance, &self.maximumAuthorised}) {
        form.number(altitude->feet);
        form.flag(altitude->isAvailable);
    }
    form.flag(self.isHighAltitude);
    form.flag(self.isLowAltitude);
}

template <class Self, class Form>
void AirwayElement::document(Self& self, Form& form) {
    form.number("startLong", self.start.longitude);
    form.number("startLat", self.start.latitude);
    form.number("endLong", self.end.longitude);
    form.number("endLat", self.end.latitude);
    form.flag("SD", self.isOneDirection);
    form.text("Name", self.name);
    form.text("Rem", self.remarks);
    form.number("mea", self.minimumEnroute.feet);
    form.flag("meaAvail", self.minimumEnroute.isAvailable);
    form.number("moca", self.minimumObstructionClearance.feet);
    form.flag("mocaAvail", self.minimumObstructionClearance.isAvailable);
    form.number("maa", self.maximumAuthorised.feet);
    form.flag("maaAvail", self.maximumAuthorised.isAvailable);
    form.flag("highAltUsage", self.isHighAltitude);
    form.flag("lowAltUsage", self.isLowAltitude);
}

template class ChartElement<AirwayElement, IChartElement::AIRWAY>;

ChartPosition AirwayElement::getPosition() const {
    return {(start.longitude + end.longitude) / 2.0, (start.latitude + end.latitude) / 2.0};
}

ChartPosition AirwayElement::getAreaDefiningPoint(int index) const {
    return index == 0 ? start : index == 1 ? end : ChartPosition();
}

std::string AirwayElement::getIndicatedLabel(bool full, bool) const {
    return full ? name + " - Airway" : name;
}

std::string AirwayElement::createHTI(bool metric) const {
    HypertextPage page;
    const auto add = [&](const char* label, const Altitude& altitude) {
        if (altitude.isAvailable)
            page.line(label + toText(displayedAltitude(altitude.feet, metric)) + " msl");
    };
    add("MEA (min. enroute altitude): ", minimumEnroute);
    add("MOCA (min. obstruction clearence altitude): ", minimumObstructionClearance);
    add("MAA (max. authorized altitude): ", maximumAuthorised);
    if (isHighAltitude || isLowAltitude)
        page.line(std::string("Airway is used for ") + (isHighAltitude ? "high" : "") +
                  (isHighAltitude && isLowAltitude ? " and " : "") + (isLowAltitude ? "low" : "") + " altitudes.");
    page.remarks("Remarks:", remarks);
    return page.text();
}

void AirwayElement::writeStaticData(char* out) const {
    out[0] = AIRWAY;
    out[1] = static_cast<char>((isHighAltitude ? 1 : 0) | (isLowAltitude ? 2 : 0));
    out[2] = 0;
}

} // namespace skyvane
