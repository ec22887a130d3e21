#include "displays/map/MapProcedures.h"

#include "core/Context.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/Map2D.h"
#include "displays/map/MapImages.h"
#include "procedures/ProcedureManager.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

using PointF = Map2D::PointF;

const irr::video::SColor courseColor(0xffff00ff);
const irr::video::SColor entryColor(0xff0080ff);
const irr::video::SColor succeedingColor(0xffffffff);
const irr::video::SColor casing(0xa0000000);

constexpr float lineShare = 0.0045f; // of the screen's unit
constexpr float casingShare = 0.0075f;
constexpr float arrowShare = 0.030f;
constexpr float arrowSpacing = 0.16f;

/// Draws the arrows of a path at even distances, wherever its legs end.
class ArrowWalk {
public:
    explicit ArrowWalk(float spacing) : spacing_(std::max(spacing, 8.0f)), next_(0.5f * spacing_) {}

    template <class Draw>
    void leg(const PointF& from, const PointF& to, Draw draw) {
        const float length = from.getDistanceFrom(to);
        // A path that lies mostly outside of what is drawn isn't walked arrow by arrow.
        constexpr float longest = 20000.0f;
        if (!(length < longest)) {
            next_ = 0.5f * spacing_;
            return;
        }
        for (; next_ < length; next_ += spacing_)
            draw(from + (to - from) * (next_ / length));
        next_ -= length;
    }

private:
    float spacing_;
    float next_;
};

float directionDegrees(const PointF& from, const PointF& to) {
    return static_cast<float>(std::atan2(from.Y - to.Y, to.X - from.X) * irr::core::RADTODEG64);
}

} // namespace

void MapProcedures::drawProcedure(IProcedure& procedure, bool intoRTT, bool succeeding) {
    const CourseList& course = procedure.getCourseList();
    if (course.size() < 2)
        return;
    const float unit = map_.getScreenUnit();
    const float width = std::max(2.0f, lineShare * unit);
    const float arrow = arrowShare * unit;
    std::vector<std::pair<irr::core::line2d<float>, bool>> legs;
    legs.reserve(course.size());
    for (auto from = course.begin(), to = std::next(from); to != course.end(); ++from, ++to) {
        const PointF a = map_.calcScreenCoordinatesf32(from->position.longitude, from->position.latitude, intoRTT);
        const PointF b = map_.calcScreenCoordinatesf32(to->position.longitude, to->position.latitude, intoRTT);
        legs.emplace_back(irr::core::line2d<float>(a, b), from->transition && to->transition);
    }
    for (const auto& leg : legs)
        map_.drawLine(leg.first, nullptr, casing, casingShare * unit, intoRTT);
    for (const auto& leg : legs) {
        const irr::video::SColor color = succeeding ? succeedingColor : leg.second ? entryColor : courseColor;
        irr::video::ITexture* texture = succeeding   ? images_.proceeding.get()
                                        : leg.second ? images_.entry.get()
                                                     : images_.course.get();
        map_.drawLine(leg.first, texture, color, width, intoRTT);
    }
    ArrowWalk walk(arrowSpacing * unit);
    const irr::core::rect<float> seen(-arrow, -arrow, static_cast<float>(map_.getDrawnSize(intoRTT).Width) + arrow,
                                      static_cast<float>(map_.getDrawnSize(intoRTT).Height) + arrow);
    for (const auto& leg : legs) {
        const float turned = directionDegrees(leg.first.start, leg.first.end);
        map_.getDrawer()->setColor(succeeding ? succeedingColor : leg.second ? entryColor : courseColor);
        walk.leg(leg.first.start, leg.first.end, [&](const PointF& place) {
            if (!seen.isPointInside(place))
                return;
            const auto edge = static_cast<int>(std::lround(arrow));
            map_.getDrawer()->Draw(images_.oneDirection.get(),
                                   {static_cast<int>(std::lround(place.X)), static_cast<int>(std::lround(place.Y))},
                                   {edge, edge}, turned, {0.5f, 0.5f});
        });
    }
    map_.getDrawer()->setColor(irr::video::SColor(0xffffffff));
}

void MapProcedures::drawAllProcedures(bool intoRTT, int count) {
    ProcedureManager* manager = map_.getContext()->getProcedureManager();
    const FlightPlan::Procedures& procedures = manager->getProcedures();
    if (procedures.empty())
        return;
    const auto current = static_cast<size_t>(manager->getCurrentProcedureIndex());
    if (map_.getSwitches().succeedingProcedures) {
        size_t end = procedures.size();
        if (count > 0)
            end = std::min(end, current + 1 + static_cast<size_t>(count));
        for (size_t i = end; i-- > current + 1;)
            drawProcedure(*procedures[i], intoRTT, true);
    }
    if (current < procedures.size())
        drawProcedure(*procedures[current], intoRTT, false);
}

} // namespace skyvane
