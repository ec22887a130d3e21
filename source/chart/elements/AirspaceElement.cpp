#include "chart/elements/AirspaceElement.h"

#include "chart/elements/AltitudeCodes.h"
#include "chart/elements/ChartElementForms.h"
#include "chart/geodesy/EarthConstants.h"

#include <algorithm>

namespace skyvane {

const char* const AirspaceElement::staticAirspaceClassNames[StaticClassCount] = {
    "", "AMA", "PROTECT", "FIR", "O", "DO", "OTHER", "UIR", "E", "G", "CTA", "TP", "RAS", "TRA", "TSA"};

template <class Self, class Form>
void AirspaceElement::record(Self& self, Form& form) {
    form.flag(self.excludes);
    form.flag(self.isTopMsl);
    form.flag(self.isBottomMsl);
    form.number(self.topFeet);
    form.number(self.bottomFeet);
    form.text(self.airspaceClass);
    form.text(self.name);
    form.text(self.remarks);
    form.vertices(self.vertices);
}

template <class Self, class Form>
void AirspaceElement::document(Self& self, Form& form) {
    form.flag("excludes", self.excludes);
    form.flag("mslReferenceTop", self.isTopMsl);
    form.flag("mslReferenceBottom", self.isBottomMsl);
    form.number("Top", self.topFeet);
    form.number("Bot", self.bottomFeet);
    form.text("Class", self.airspaceClass);
    form.text("name", self.name);
    form.text("Rem", self.remarks);
    form.vertices("VCount", "", self.vertices);
}

template class ChartElement<AirspaceElement, IChartElement::AIRSPACE>;

ChartPosition AirspaceElement::getPosition() const {
    return getAreaDefiningPoint(0);
}

ChartPosition AirspaceElement::getAreaDefiningPoint(int index) const {
    const bool isThere = index >= 0 && static_cast<size_t>(index) < vertices.size();
    return isThere ? vertices[static_cast<size_t>(index)] : ChartPosition();
}

void AirspaceElement::writeStaticData(char* out) const {
    const auto* names = staticAirspaceClassNames;
    const auto* found = std::find(names, names + StaticClassCount, airspaceClass);
    const unsigned index = found == names + StaticClassCount ? 0 : static_cast<unsigned>(found - names);
    const unsigned code = encode12BitAltitude(bottomFeet * MetresPerFoot) | index << 12;
    out[0] = AIRSPACE;
    out[1] = static_cast<char>(code & 0xff);
    out[2] = static_cast<char>(code >> 8);
}

int AirspaceElement::readStaticAirspaceClass(const char* bytes) {
    const unsigned index = static_cast<unsigned char>(bytes[2]) >> 4;
    return index < StaticClassCount ? static_cast<int>(index) : 0;
}

} // namespace skyvane
