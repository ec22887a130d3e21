// What a side view costs when the picture that stands still is made anew, as in a climb in which its range follows.
#include "Bench.h"
#include "displays/informationmath/SideLabels.h"
#include "displays/mapmath/elements/AirspaceStyles.h"
#include "procedures/plan/RouteProfile.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr size_t points = 1024;

class WideWords : public IWordMeasure {
public:
    double measure(const ShortText& text, double height) override {
        return 0.6 * height * static_cast<double>(text.view().size());
    }
};

/// A long course over mountains, with ten course points and thirty airspaces.
class Picture {
public:
    Picture() : profile_(nullptr, std::vector<ChartPosition>(points), 1.0) {
        profile_.pathAltitudes.assign(points, 2500.0f);
        for (size_t i = 0; i < points; ++i)
            profile_.heights[i] = 1500.0f + 900.0f * std::sin(static_cast<float>(i) * 0.11f);
        profile_.minimum = 600.0f;
        profile_.maximum = 2400.0f;
        for (size_t i = 0; i < 10; ++i)
            stops_.push_back({100.0 * static_cast<double>(i + 1), 2500.0, L"POINT", L"8200 ft"});
        for (size_t i = 0; i < 30; ++i) {
            SideAirspace airspace;
            airspace.first = i * 31;
            airspace.last = airspace.first + 120;
            airspace.floor = {true, i % 3 == 0, 300.0 + 60.0 * static_cast<double>(i)};
            airspace.ceiling = {true, false, 2900.0 + 40.0 * static_cast<double>(i)};
            airspace.style = &airspaceStyle("D");
            airspace.name = L"D  Somewhere Control Zone";
            airspace.limits = L"1500 - 9500";
            airspaces_.push_back(airspace);
        }
        scene_.axes = {{0.0, 0.0, 1280.0, 673.0}, points, 0.0, points * 1.0, 150.0, 600.0, 3500.0};
        scene_.profile = &profile_;
        scene_.stops = &stops_;
        scene_.airspaces = &airspaces_;
        scene_.textHeight = 15.0;
        scene_.scaleWidth = 80.0;
        scene_.scaleHeight = 28.0;
    }

    double drawSeconds() {
        return secondsOf([this] {
            canvas_.clear();
            addSideGround(tools_, scene_);
            addSideCourse(tools_, scene_);
            addAltitudeScale(tools_, scene_);
            labels_.add(tools_, scene_);
        });
    }
    /// The baseline: the line of the ground alone.
    double groundSeconds() {
        return secondsOf([this] {
            canvas_.clear();
            addSideGround(tools_, scene_);
        });
    }

private:
    RouteProfile profile_;
    std::vector<SideStop> stops_;
    std::vector<SideAirspace> airspaces_;
    SideScene scene_;
    WideWords words_;
    BarCanvas canvas_;
    SideTools tools_{canvas_, words_};
    SideLabels labels_;
};

double rebuild(bool smoke) {
    Picture picture;
    return ratioOfMedians(
        smoke ? 1 : 31, [&] { return picture.drawSeconds(); }, [&] { return picture.groundSeconds(); });
}

} // namespace

std::vector<Bench> sideViewBenches() {
    return {{"sideview.rebuild-to-ground", Bench::Bound::AtMost, 15.0, rebuild}};
}

} // namespace skyvane
