#include "demo/region/GroundFile.h"

#include "demo/region/Text.h"

namespace skyvane::demo {

namespace {

std::string coordinates(const GroundFeature& feature) {
    std::string text;
    const auto append = [&](Spot spot) {
        const ChartPosition position = RegionPlane::toPosition(spot);
        text += (text.empty() ? "[" : ",[") + fixed(position.longitude, 6) + "," + fixed(position.latitude, 6) + "]";
    };
    for (const Spot spot : feature.points)
        append(spot);
    if (feature.isPolygon)
        append(feature.points.front());
    return feature.isPolygon ? "[[" + text + "]]" : "[" + text + "]";
}

std::string property(const std::string& key, const std::string& value) {
    return "\"" + key + "\":\"" + value + "\"";
}

} // namespace

std::string writeGround(const std::vector<GroundFeature>& features) {
    std::string text = "{\"type\":\"FeatureCollection\",\n"
                       "\"description\":\"The Skyvane Islands: fictional, not for navigation\",\n\"features\":[\n";
    bool isFirst = true;
    for (const GroundFeature& feature : features) {
        std::string properties = property(feature.key, feature.value);
        if (!feature.name.empty())
            properties += "," + property("name", feature.name);
        if (feature.widthMetres > 0.0)
            properties += "," + property("width", fixed(feature.widthMetres, 0));
        if (feature.isLit)
            properties += "," + property("lit", "yes");
        text += isFirst ? "" : ",\n";
        text += "{\"type\":\"Feature\",\"properties\":{" + properties + "},\"geometry\":{\"type\":\"" +
                (feature.isPolygon ? "Polygon" : "LineString") + "\",\"coordinates\":" + coordinates(feature) + "}}";
        isFirst = false;
    }
    return text + "\n]}\n";
}

} // namespace skyvane::demo
