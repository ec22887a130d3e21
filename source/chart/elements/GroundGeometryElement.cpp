#include "chart/elements/GroundGeometryElement.h"

#include "chart/elements/AltitudeCodes.h"
#include "chart/elements/ChartElementForms.h"
#include "chart/elements/HypertextPage.h"
#include "core/text/Numbers.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double smallestAreaSquareMetres = 15258.0;
constexpr double logOfStep = 0.0434915877998397; // ln(65535) / 255
constexpr double smallBoundsSquareMetres = 200000.0;

constexpr const char* featureLabels[GroundGeometryElement::FeatureCount] = {
    "Taxiway (lighted)",
    "Taxiway",
    "Taxiway (closed)",
    "Apron (lighted)",
    "Apron",
    "Apron (closed)",
    "Terminal",
    "Helipad",
    "Hangar",
    "Highway",
    "Railway",
    "River",
    "Coastline",
    "Lake",
    "Country Border",
    "Country Border/Highway",
    "Country Border/Railway",
    "Country Border/River",
    "Country Border/Coastline",
    "Runway",
    "",
};

} // namespace

int ggeAreaToByte(double area) {
    if (!(area >= 1e-8))
        return 0;
    return std::clamp(roundHalfAway(std::log(area / smallestAreaSquareMetres) / logOfStep), 0, 255);
}

double ggeByteToArea(int byte) {
    return std::exp(byte * logOfStep) * smallestAreaSquareMetres;
}

template <class Self, class Form>
void GroundGeometryElement::record(Self& self, Form& form) {
    form.number(self.feature);
    form.number(self.geoType);
    form.number(self.altitudeFeet);
    form.number(self.additionalData);
    form.number(self.maxWeight);
    form.number(self.maxWeightPerTire);
    form.vertices(self.vertices);
    form.text(self.name);
    form.text(self.description);
}

template <class Self, class Form>
void GroundGeometryElement::document(Self& self, Form& form) {
    form.number("type", self.feature);
    form.number("geotype", self.geoType);
    form.number("altitude", self.altitudeFeet);
    form.number("additionalData", self.additionalData);
    form.number("maxWeight", self.maxWeight);
    form.number("maxWeightPerTire", self.maxWeightPerTire);
    form.vertices("posCount", "p", self.vertices);
    form.text("name", self.name);
    form.text("description", self.description);
}

template class ChartElement<GroundGeometryElement, IChartElement::GROUNDGEOMETRY>;

const char* GroundGeometryElement::defaultLabel(uint8_t feature) {
    return featureLabels[std::min(feature, OtherFeature)];
}

ChartPosition GroundGeometryElement::getPosition() const {
    return getAreaDefiningPoint(0);
}

ChartPosition GroundGeometryElement::getAreaDefiningPoint(int index) const {
    const bool isThere = index >= 0 && static_cast<size_t>(index) < vertices.size();
    return isThere ? vertices[static_cast<size_t>(index)] : ChartPosition();
}

std::string GroundGeometryElement::getIndicatedLabel(bool, bool) const {
    const std::string label = defaultLabel(feature);
    return label.empty() || name.empty() ? label + name : label + ": " + name;
}

std::string GroundGeometryElement::createHTI(bool metric) const {
    std::string text = getIndicatedLabel(true, metric);
    if (!description.empty())
        text += "\n\nRemarks: " + description;
    if (altitudeFeet != UnknownAltitude)
        text += "\n\nElevation: " + toText(displayedAltitude(altitudeFeet, metric)) + (metric ? " m" : " feet");
    if (maxWeight != 0)
        text += "\n\nMax. weight: " + toText(maxWeight * 100) + " kg";
    if (maxWeightPerTire != 0)
        text += "\n\nMax. weight per tire: " + toText(maxWeightPerTire * 100) + " kg";
    return HypertextPage::run(text);
}

void GroundGeometryElement::writeStaticData(char* out) const {
    const bool isPolygon = geoType == Polygon;
    const bool isSmall = bounds_.areaSquareMetres < smallBoundsSquareMetres;
    const int width = isPolygon ? 0 : ggeAreaToByte(getWidthSteps() * smallestAreaSquareMetres);
    out[0] = GROUNDGEOMETRY;
    out[1] = static_cast<char>(width);
    out[2] = static_cast<char>(std::min(feature, OtherFeature) | (getWidthSteps() == 0 ? 0x20 : 0) |
                               (isPolygon ? 0x40 : 0) | (isSmall ? 0x80 : 0));
}

} // namespace skyvane
