#include "chart/elements/NDBElement.h"

#include "chart/elements/ChartElementForms.h"
#include "chart/elements/HypertextPage.h"
#include "chart/geodesy/GreatCircle.h"
#include "core/text/Numbers.h"

namespace skyvane {

template <class Self, class Form>
void NDBElement::record(Self& self, Form& form) {
    form.latitudeFirst(self.position);
    form.number(self.frequencyKilohertz);
    form.text(self.ident);
    form.text(self.name);
    form.text(self.remarks);
    AirwayUse::record(self.use, form);
    form.number(self.magneticVariationDegrees);
}

template <class Self, class Form>
void NDBElement::document(Self& self, Form& form) {
    form.position(self.position);
    form.number("Freq", self.frequencyKilohertz);
    form.text("Ident", self.ident);
    form.text("Name", self.name);
    form.text("Rem", self.remarks);
    AirwayUse::document(self.use, form);
    form.number("magneticVariation", self.magneticVariationDegrees);
}

template class ChartElement<NDBElement, IChartElement::NDB>;

void NDBElement::merge(const IChartElement* other) {
    const NDBElement* ndb = sameKind(other);
    if (!ndb)
        return;
    if (frequencyKilohertz == 0)
        frequencyKilohertz = ndb->frequencyKilohertz;
    appendRemarks(remarks, ndb->remarks);
    if (name.empty())
        name = ndb->name;
    use.add(ndb->use);
    if (magneticVariationDegrees < UnknownVariationBelow)
        magneticVariationDegrees = ndb->magneticVariationDegrees;
}

bool NDBElement::equals(const IChartElement* other) const {
    const NDBElement* ndb = sameKind(other);
    return ndb && ident == ndb->ident && calcDistance2(position, ndb->position) < SameNavaidMetres;
}

std::string NDBElement::getIndicatedLabel(bool full, bool) const {
    return full ? ident + " - " + name + " - NDB" : ident;
}

std::string NDBElement::getTrieInsertionName(int index) const {
    return index == 0 ? ident : index == 1 ? name : std::string();
}

FrequencyMap NDBElement::getNavFrequencies() const {
    return {{"NDB: " + toText(frequencyKilohertz) + " khz", {}}};
}

std::string NDBElement::createHTI(bool) const {
    HypertextPage page;
    page.remarks("Remarks:", remarks);
    return page.text();
}

void NDBElement::writeStaticData(char* out) const {
    out[0] = NDB;
    out[1] = static_cast<char>(use.bits());
    out[2] = 0;
}

std::string NDBElement::getFormattedFrequency() const {
    const char* zeros = frequencyKilohertz < 11 ? "00" : frequencyKilohertz < 101 ? "0" : "";
    return zeros + toText(frequencyKilohertz);
}

} // namespace skyvane
