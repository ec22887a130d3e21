#include "chart/elements/WaypointElement.h"

#include "chart/elements/ChartElementForms.h"
#include "chart/elements/HypertextPage.h"
#include "chart/geodesy/GreatCircle.h"

namespace skyvane {

template <class Self, class Form>
void WaypointElement::record(Self& self, Form& form) {
    form.latitudeFirst(self.position);
    form.text(self.ident);
    form.text(self.remarks);
    AirwayUse::record(self.use, form);
    form.flag(self.isPublic);
    form.flag(self.isReportingPoint);
}

template <class Self, class Form>
void WaypointElement::document(Self& self, Form& form) {
    form.position(self.position);
    form.text("Ident", self.ident);
    form.text("Rem", self.remarks);
    AirwayUse::document(self.use, form);
    form.flag("pub", self.isPublic);
    form.flag("rp", self.isReportingPoint);
}

template class ChartElement<WaypointElement, IChartElement::WAYPOINT>;

void WaypointElement::merge(const IChartElement* other) {
    const WaypointElement* fix = sameKind(other);
    if (!fix)
        return;
    appendRemarks(remarks, fix->remarks);
    use.add(fix->use);
    isPublic = isPublic || fix->isPublic;
    isReportingPoint = isReportingPoint || fix->isReportingPoint;
}

bool WaypointElement::equals(const IChartElement* other) const {
    const WaypointElement* fix = sameKind(other);
    return fix && ident == fix->ident && calcDistance2(position, fix->position) < SameNavaidMetres;
}

std::string WaypointElement::getIndicatedLabel(bool full, bool) const {
    if (!full)
        return ident;
    return isPublic ? ident + " - Waypoint" : "Waypoint (non public)";
}

std::string WaypointElement::getTrieInsertionName(int index) const {
    return index == 0 && isPublic ? ident : std::string();
}

std::string WaypointElement::createHTI(bool) const {
    HypertextPage page;
    page.remarks("Remarks:", remarks);
    return page.text();
}

void WaypointElement::writeStaticData(char* out) const {
    out[0] = WAYPOINT;
    out[1] = static_cast<char>(use.bits() | (isPublic ? 8 : 0) | (isReportingPoint ? 16 : 0));
    out[2] = 0;
}

} // namespace skyvane
