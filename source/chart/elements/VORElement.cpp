#include "chart/elements/VORElement.h"

#include "chart/elements/ChartElementForms.h"
#include "chart/elements/HypertextPage.h"
#include "chart/geodesy/GreatCircle.h"

namespace skyvane {

namespace {

const std::vector<std::string> vorTypeNames = {"VOR", "VORTAC", "VORDME", "TACAN"};

} // namespace

template <class Self, class Form>
void VORElement::record(Self& self, Form& form) {
    form.latitudeFirst(self.position);
    form.number(self.frequency.megahertz);
    form.number(self.frequency.kilohertz);
    form.text(self.ident);
    form.text(self.name);
    form.text(self.flightServiceStation);
    form.text(self.remarks);
    form.number(self.vorType);
    form.text(self.tacanChannel);
    AirwayUse::record(self.use, form);
    form.number(self.magneticVariationDegrees);
}

template <class Self, class Form>
void VORElement::document(Self& self, Form& form) {
    form.position(self.position);
    form.number("MHZ", self.frequency.megahertz);
    form.number("KHZ", self.frequency.kilohertz);
    form.text("Ident", self.ident);
    form.text("Name", self.name);
    form.text("FSS", self.flightServiceStation);
    form.text("Rem", self.remarks);
    form.choice("VORType", self.vorType, vorTypeNames, static_cast<int32_t>(PlainVor));
    form.text("Tacan", self.tacanChannel);
    AirwayUse::document(self.use, form);
    form.number("magneticVariation", self.magneticVariationDegrees);
}

template class ChartElement<VORElement, IChartElement::VOR>;

void VORElement::merge(const IChartElement* other) {
    const VORElement* vor = sameKind(other);
    if (!vor)
        return;
    if (frequency == Frequency())
        frequency = vor->frequency;
    appendRemarks(remarks, vor->remarks);
    if (name.empty())
        name = vor->name;
    use.add(vor->use);
    if (magneticVariationDegrees < UnknownVariationBelow)
        magneticVariationDegrees = vor->magneticVariationDegrees;
}

bool VORElement::equals(const IChartElement* other) const {
    const VORElement* vor = sameKind(other);
    return vor && ident == vor->ident && calcDistance2(position, vor->position) < SameNavaidMetres;
}

std::string VORElement::getIndicatedLabel(bool full, bool) const {
    if (!full)
        return ident;
    const size_t known = vorType >= PlainVor && vorType <= Tacan ? static_cast<size_t>(vorType) : 0;
    return ident + " - " + name + " - " + vorTypeNames[known];
}

std::string VORElement::getTrieInsertionName(int index) const {
    return index == 0 ? ident : index == 1 ? name : std::string();
}

FrequencyMap VORElement::getNavFrequencies() const {
    FrequencyMap map;
    if (vorType != Tacan)
        map["VOR"] = {frequency};
    if (vorType == Vortac || vorType == Tacan)
        map["TACAN: " + tacanChannel] = {};
    return map;
}

std::string VORElement::createHTI(bool) const {
    HypertextPage page;
    if (!tacanChannel.empty())
        page.line("Tacan channel: " + tacanChannel);
    if (!flightServiceStation.empty()) {
        page.heading("FSS:");
        page.line(flightServiceStation);
    }
    page.remarks("Remarks:", remarks);
    return page.text();
}

void VORElement::writeStaticData(char* out) const {
    out[0] = VOR;
    out[1] = static_cast<char>(use.bits());
    out[2] = 0;
}

} // namespace skyvane
