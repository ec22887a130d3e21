#include "displays/map/elements/AirportRenderer.h"

#include "chart/elements/AirportElement.h"
#include "core/Context.h"
#include "displays/map/elements/RendererParts.h"
#include "gui/font/FlexibleFont.h"

#include <cstring>

namespace skyvane {

namespace {

/// Tells apart what sketches show: FNV-1a over it.
class Key {
public:
    template <class Number>
    void add(const Number& number) {
        unsigned char bytes[sizeof(Number)];
        std::memcpy(bytes, &number, sizeof bytes);
        for (const unsigned char byte : bytes)
            key_ = (key_ ^ byte) * 1099511628211ull;
    }
    void add(const std::string& text) {
        for (const char letter : text)
            add(letter);
        add(text.size());
    }
    uint64_t get() const { return key_; }

private:
    uint64_t key_ = 14695981039346656037ull;
};

void addPosition(Key& key, const ChartPosition& position) {
    key.add(position.longitude);
    key.add(position.latitude);
}

uint64_t keyOf(const AirportElement& airport, const SketchFrame& frame, const void* font, const void* charts) {
    Key key;
    key.add(font);
    key.add(charts);
    key.add(frame.size.Width);
    key.add(frame.size.Height);
    key.add(frame.metric);
    key.add(airport.isHeliport);
    addPosition(key, airport.position);
    for (const Runway& runway : airport.runways) {
        for (const uint32_t number : {runway.surface, runway.lengthFeet, runway.widthFeet, runway.directionDegrees})
            key.add(number);
        for (const RunwayEnd& end : runway.ends) {
            key.add(end.name);
            key.add(end.isThresholdKnown);
            addPosition(key, end.threshold);
        }
    }
    return key.get();
}

/// The chart's own element goes when others are fetched for what lies around.
AirportElement copyForSketch(const AirportElement& airport) {
    AirportElement copy;
    copy.position = airport.position;
    copy.runways = airport.runways;
    copy.isHeliport = airport.isHeliport;
    return copy;
}

} // namespace

void AirportRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& airport = static_cast<const AirportElement&>(*element);
    const SketchFrame frame = parts_.painter.frameFor(rect);
    IChartElementSource* charts = parts_.context->getCharts();
    const uint64_t key = keyOf(airport, frame, parts_.context->getFlexibleFont(), charts);
    if (key != last_.key) {
        const AirportElement copy = copyForSketch(airport);
        last_.plan = planAirportSketch(copy, charts ? findAirportGround(*charts, copy) : AirportGround(), frame);
        last_.key = key;
    }
    parts_.painter.draw(last_.plan, rect);
}

} // namespace skyvane
