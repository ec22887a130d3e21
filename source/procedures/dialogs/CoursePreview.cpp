#include "procedures/dialogs/CoursePreview.h"

#include "core/geometry/LineClipping.h"
#include "core/time/Time.h"

namespace skyvane {
namespace {

constexpr double usedShare = 0.72;
constexpr int arrowSpacing = 70;
constexpr unsigned renewalMilliseconds = 1000;

} // namespace

void CoursePreview::show(Scene scene) {
    scene_ = std::move(scene);
    frame_.reset();
}

bool CoursePreview::isDue(const IndicatedProcedure& line, bool followsAircraft) {
    const unsigned now = MilliSecs();
    const bool isOld = followsAircraft && TimeDiff(now, dueMilliseconds_) >= renewalMilliseconds;
    if (isShown_ && dueIndex_ == line.chartIndex && !isOld)
        return false;
    isShown_ = true;
    dueIndex_ = line.chartIndex;
    dueMilliseconds_ = now;
    return true;
}

void CoursePreview::layOut(const irr::core::rect<int>& rect) {
    std::vector<ChartPosition> places = placesOf(scene_.course);
    for (const auto* more : {&scene_.fixes, &scene_.seen})
        places.insert(places.end(), more->begin(), more->end());
    if (places.empty())
        return;
    frame_ = PreviewFrame::fit(places, rect, usedShare);
    picture_ = pictureOf(scene_.course, *frame_, arrowSpacing);
}

void CoursePreview::drawGuides(bool overPath) {
    for (const Guide& guide : scene_.guides) {
        PreviewFrame::Point from = frame_->toPixels(guide.from), to = frame_->toPixels(guide.to);
        if (guide.isOverPath == overPath && clipline(from.X, from.Y, to.X, to.Y, frame_->getPicture()))
            painter_.drawLine(from, to, guide.width, guide.color);
    }
}

void CoursePreview::paint(const irr::core::rect<int>& rect) {
    if (!frame_ || frame_->getPicture() != rect)
        layOut(rect);
    if (!frame_)
        return;
    drawGuides(false);
    painter_.drawCourse(picture_);
    drawGuides(true);
    for (const ChartPosition& fix : scene_.fixes)
        painter_.drawFix(frame_->toPixels(fix));
    painter_.drawAircraft(*frame_, PreviewPainter::SmallShare);
}

} // namespace skyvane
