#include "chartmaker/inspect/DrawCommand.h"

#include "chartmaker/inspect/ElementPainter.h"
#include "chartmaker/inspect/InspectedSet.h"
#include "chartmaker/region/Region.h"
#include "core/text/StrictNumber.h"

#include <cmath>
#include <iostream>
#include <optional>

namespace skyvane {
namespace {

struct DrawOptions {
    std::string set;
    std::string out;
    std::optional<Region> box;
    int width = 1400;
};

bool takeValue(DrawOptions& options, const std::string& name, const std::string& value, std::string& error) {
    if (name == "--out") {
        options.out = value;
    } else if (name == "--box") {
        options.box = Region::parse(value, error);
        if (options.box && !options.box->isBox())
            error = "--box: \"" + value + "\" is no box";
    } else if (name == "--width") {
        constexpr double narrowest = 50.0, widest = 8000.0;
        double width = 0.0;
        if (!parseStrictNumber(value, width) || width < narrowest || width > widest)
            error = "--width: \"" + value + "\" is none of 50 to 8000 pixels";
        else
            options.width = static_cast<int>(width);
    } else {
        error = "\"" + name + "\" is unknown";
    }
    return error.empty();
}

bool parse(const Arguments& arguments, DrawOptions& options, std::string& error) {
    for (size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i].rfind("--", 0) != 0 && options.set.empty()) {
            options.set = arguments[i];
            continue;
        }
        if (i + 1 >= arguments.size()) {
            error = "\"" + arguments[i] + "\" needs a value, or is one too many";
            return false;
        }
        if (!takeValue(options, arguments[i], arguments[i + 1], error))
            return false;
        ++i;
    }
    if (options.set.empty())
        error = "no set is named";
    else if (!options.box)
        error = "--box is missing";
    else if (options.out.empty())
        error = "--out is missing";
    return error.empty();
}

ElementPainter::Elements loadElements(const InspectedSet& set, const Region& box) {
    ElementPainter::Elements elements;
    int absent = 0;
    for (int index = 0; index < set.getCount(); ++index) {
        std::unique_ptr<IChartElement> element = set.load(index);
        if (!element)
            ++absent;
        else if (box.touches(*element))
            elements.push_back(std::move(element));
    }
    if (absent > 0)
        complain(std::to_string(absent) + " elements can't be read");
    return elements;
}

/// Whose picture it is, and a bar of a round length, on strips of their own.
void drawLegend(MapPicture& picture, const InspectedSet& set) {
    constexpr double strip = 26.0, margin = 10.0;
    constexpr uint32_t paper = 0xe8ffffff, ink = 0xff202020;
    constexpr double metresPerMile = 1852.0;
    const double pixelsPerMile = metresPerMile / picture.getMetresPerPixel();
    double miles = 0.1;
    for (const double length : {0.2, 0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 50.0, 100.0, 200.0, 500.0})
        if (length * pixelsPerMile < 0.2 * picture.getWidth())
            miles = length;
    const MapPicture::LabelStyle style{ink, 13.0, false, false, true};
    picture.rectangle({0.0, 0.0}, picture.getWidth(), strip, paper);
    const SetDescription& description = set.getDescription();
    picture.label({0.0, 0.5 * strip}, description.vendor + ": " + description.areaName + " - not for navigation",
                  style);

    const double top = picture.getHeight() - strip;
    picture.rectangle({0.0, top}, miles * pixelsPerMile + 8.0 * margin, strip, paper);
    picture.rectangle({margin, top + 0.5 * strip - 2.0}, miles * pixelsPerMile, 4.0, ink);
    std::string text = std::to_string(miles);
    text.erase(text.find('.') + (miles < 1.0 ? 2 : 0));
    picture.label({margin + miles * pixelsPerMile, top + 0.5 * strip}, text + " NM", style);
}

} // namespace

int runDraw(const Arguments& arguments) {
    DrawOptions options;
    std::string error;
    if (!parse(arguments, options, error)) {
        complain("draw: " + error + "; --help tells more");
        return 2;
    }
    const InspectedSet set(options.set);
    const std::string trouble = set.getTrouble();
    if (!trouble.empty())
        complain(options.set + ": " + trouble);
    const ElementPainter::Elements elements = loadElements(set, *options.box);
    const ChartPosition northWest = options.box->getNorthWest(), southEast = options.box->getSouthEast();
    MapPicture picture({northWest.longitude, southEast.latitude, southEast.longitude, northWest.latitude},
                       options.width, ElementPainter::chooseBackground(elements));
    ElementPainter(picture).paint(elements);
    drawLegend(picture, set);
    if (!picture.save(options.out)) {
        complain("can't write " + options.out);
        return 1;
    }
    std::cout << options.out << ": " << elements.size() << " elements\n";
    return trouble.empty() ? 0 : 1;
}

} // namespace skyvane
