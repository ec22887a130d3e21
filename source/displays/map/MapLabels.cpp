#include "displays/map/MapLabels.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "core/Context.h"
#include "core/text/Utf8.h"
#include "core/time/Time.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/Map2D.h"
#include "gui/font/FlexibleFont.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace skyvane {
namespace {

using Pair = RectangleGradientDescent::Pair;

constexpr unsigned solverRounds = 400;
constexpr double solverStep = 0.017453292519943295;
constexpr double solverThreshold = 0.01;
constexpr double turnDegrees = 5.0;
/// The solver searches so many screens in each direction.
constexpr double spaceScreens = 3.0;
constexpr double glidePerSecond = 9.0;
constexpr double sameScale = 0.01;

constexpr float cornerOfLabel = 0.35f, cornerOfScreen = 0.012f;
constexpr float paddingAcross = 0.32f, paddingDown = 0.1f; // of the text's height
constexpr float fatnessShare = 0.98f, fatnessLess = 0.05f;
constexpr float borderSize = 0.08f;

RectangleGradientDescent::Rect spaceOf(const ScreenMetrics& metrics) {
    const double x = spaceScreens * metrics.width, y = spaceScreens * metrics.height;
    return {-x, -y, x, y};
}

RectangleGradientDescent::Rectangle rectangleOf(const RGDContent& content, const Pair& anchor) {
    RectangleGradientDescent::Rectangle rectangle;
    rectangle.position = anchor;
    rectangle.size = Pair(static_cast<double>(content.width), static_cast<double>(content.height));
    rectangle.anchorSize = Pair(static_cast<double>(content.symbolWidth), static_cast<double>(content.symbolHeight));
    rectangle.angle = content.angleDegrees / DegreesPerRadian;
    return rectangle;
}

} // namespace

MapLabels::MapLabels(Map2D& map, const MapView& view)
    : map_(map), view_(view), font_(map.getContext()->getFlexibleFont()),
      ground_(map.getDrawer()->getDevice()->getVideoDriver(), map.getDrawer(),
              map.getContext()->getPath("media/label.png"), cornerOfLabel, cornerOfScreen),
      solver_(spaceOf(map.getContext()->getScreenMetrics())) {}

MapLabels::~MapLabels() = default;

void MapLabels::clear() {
    solver_.abort();
    solver_.getRectangleGradientDescent().clear();
    isSolving_ = isStartWanted_ = false;
    gathered_.clear();
    shown_.clear();
}

void MapLabels::beginSet() {
    gathered_.clear();
}

void MapLabels::add(RGDContent content) {
    gathered_.push_back(std::move(content));
}

RGDContent MapLabels::makeText(const std::string& text, irr::video::SColor color, float scale,
                               irr::video::SColor background) const {
    RGDContent content;
    content.text = text;
    content.scale = scale;
    content.background = background;
    if (!font_)
        return content;
    const std::wstring wide = decodeUtf8(text);
    content.letters = EngineRef<irr::scene::SMeshBuffer>::adopt(new irr::scene::SMeshBuffer);
    font_->fillMeshBuffer(*content.letters, wide.c_str(), color, true);
    const irr::core::vector2d<float> own = font_->getDefaultScale();
    const auto size = font_->getDimensionWithTabs(wide.c_str(), font_->getDefaultTabSize(), own * scale);
    const auto height = static_cast<float>(size.Height);
    content.width = static_cast<float>(size.Width) + 2.0f * paddingAcross * height;
    content.height = height * (1.0f + 2.0f * paddingDown);
    return content;
}

void MapLabels::finishSet() {
    show(gathered_);
}

void MapLabels::finishFrame() {
    const bool isSame =
        gathered_.size() == shown_.size() &&
        std::equal(gathered_.begin(), gathered_.end(), shown_.begin(), [](const RGDContent& a, const RGDContent& b) {
            return a.id == b.id && a.text == b.text && a.callback == b.callback;
        });
    const bool isSameScale = std::fabs(view_.getMetresPerPixel() / shownMetresPerPixel_ - 1.0) < sameScale;
    if (isSame && isSameScale)
        gathered_.clear();
    else
        show(gathered_);
}

/// Each new label that stood on the map before goes on from there.
void MapLabels::show(Contents& contents) {
    solver_.abort();
    solver_.getRectangleGradientDescent().clear();
    isSolving_ = false;
    std::map<std::pair<long, std::string>, const RGDContent*> known;
    for (const RGDContent& content : shown_)
        known[{content.id, content.text}] = &content;
    for (RGDContent& content : contents) {
        const auto before = known.find({content.id, content.text});
        if (before != known.end() && before->second->isPlaced)
            keepPlace(content, *before->second);
    }
    std::swap(shown_, contents);
    contents.clear();
    shownMetresPerPixel_ = view_.getMetresPerPixel();
    isStartWanted_ = true;
}

void MapLabels::keepPlace(RGDContent& content, const RGDContent& before) const {
    const Pair offset = offsetInView(before.anchor, before.goal);
    if (offset.X != 0.0 || offset.Y != 0.0)
        content.angleDegrees = std::atan2(-offset.Y, offset.X) * DegreesPerRadian;
    const bool isSameScale = std::fabs(view_.getMetresPerPixel() / shownMetresPerPixel_ - 1.0) < sameScale;
    if (!isSameScale)
        return;
    content.place = before.place;
    content.goal = before.goal;
    content.isPlaced = true;
}

MapLabels::Pair MapLabels::offsetInView(const ChartPosition& symbol, const ChartPosition& place) const {
    const Pair flat(Angle180(place.longitude - symbol.longitude) / view_.getLongitudePerPixel(),
                    (symbol.latitude - place.latitude) / view_.getLatitudePerPixel());
    return turnToTop(flat, view_.getTopTrack());
}

void MapLabels::update() {
    if (isSolving_ && !solver_.isRunning())
        takeSolved();
    if (std::fabs(AngleDiff(view_.getTopTrack(), solvedHeading_)) > turnDegrees && !shown_.empty())
        isStartWanted_ = true;
    if (isStartWanted_)
        startSolver();
    glide();
}

void MapLabels::startSolver() {
    solver_.abort();
    RectangleGradientDescent& solver = solver_.getRectangleGradientDescent();
    solver.clear();
    solvedHeading_ = view_.getTopTrack();
    solvedPerPixel_ = Pair(view_.getLongitudePerPixel(), view_.getLatitudePerPixel());
    const ChartPosition origin = view_.getBox().getCentre();
    for (RGDContent& content : shown_) {
        if (content.isPlaced) {
            const Pair offset = offsetInView(content.anchor, content.goal);
            content.angleDegrees = std::atan2(-offset.Y, offset.X) * DegreesPerRadian;
        }
        solver.addRectangle(rectangleOf(content, offsetInView(origin, content.anchor)));
    }
    isSolving_ = solver_.start(solverRounds, solverStep, solverThreshold, false);
    isStartWanted_ = !isSolving_; // the pool may have a thread for it later
}

void MapLabels::takeSolved() {
    isSolving_ = false;
    const RectangleGradientDescent& solver = solver_.getRectangleGradientDescent();
    for (unsigned i = 0; i < solver.getRectangleCount() && i < shown_.size(); ++i) {
        RGDContent& content = shown_[i];
        const RectangleGradientDescent::Entry& entry = solver.getRectangle(i);
        const Pair offset = turnFromTop(entry.second.getCenter() - entry.first.position, solvedHeading_);
        content.goal = ChartPosition(Angle180(content.anchor.longitude + offset.X * solvedPerPixel_.X),
                                     content.anchor.latitude - offset.Y * solvedPerPixel_.Y);
        if (!content.isPlaced)
            content.place = content.goal;
        content.isPlaced = true;
    }
}

void MapLabels::glide() {
    const double now = Secs();
    const double left = std::exp(-glidePerSecond * std::fmax(0.0, now - lastGlide_));
    lastGlide_ = now;
    for (RGDContent& content : shown_) {
        if (!content.isPlaced)
            continue;
        const double longitude = Angle180(content.place.longitude - content.goal.longitude);
        const double latitude = content.place.latitude - content.goal.latitude;
        content.place =
            ChartPosition(content.goal.longitude + left * longitude, content.goal.latitude + left * latitude);
    }
}

irr::core::rect<int> MapLabels::calcRect(const RGDContent& content) const {
    const Pair size(static_cast<double>(content.width), static_cast<double>(content.height));
    Pair corner;
    if (content.isPlaced) {
        corner = view_.toPanel(content.place) - size * 0.5;
    } else {
        const auto rectangle = rectangleOf(content, view_.toPanel(content.anchor));
        corner = RectangleGradientDescent::convertToRect(rectangle, rectangle.angle).UpperLeftCorner;
    }
    const irr::core::vector2d<int> pixel = toPixel(corner);
    return {pixel.X, pixel.Y, pixel.X + static_cast<int>(std::lround(size.X)),
            pixel.Y + static_cast<int>(std::lround(size.Y))};
}

void MapLabels::draw(const irr::core::rect<int>& panel, const std::vector<irr::core::rect<int>>& plates) {
    const irr::core::rect<int> inside(0, 0, panel.getWidth(), panel.getHeight());
    drawn_.clear();
    for (size_t i = 0; i < shown_.size(); ++i) {
        const irr::core::rect<int> rect = calcRect(shown_[i]);
        const auto hides = [&rect](const irr::core::rect<int>& plate) { return plate.isRectCollided(rect); };
        if (!hides(inside) || std::any_of(plates.begin(), plates.end(), hides))
            continue;
        drawn_.push_back(i);
        if (shown_[i].letters)
            ground_.drawTinted(rect, nullptr, shown_[i].background);
    }
    map_.getDrawer()->flush();
    drawTexts(panel);
    map_.getDrawer()->setViewPort(panel);
    for (const size_t i : drawn_)
        if (shown_[i].callback)
            shown_[i].callback->render(shown_[i], &map_, nullptr);
}

void MapLabels::drawTexts(const irr::core::rect<int>& panel) {
    if (!font_)
        return;
    FlexibleFont::DrawStyle style = font_->getDefaultStyle();
    style.fatness = style.fatness * fatnessShare - fatnessLess;
    style.borderSize = borderSize;
    style.borderColor = irr::video::SColor(0xff000000);
    style.shadow = nullptr;
    for (const size_t i : drawn_) {
        const RGDContent& content = shown_[i];
        if (!content.letters)
            continue;
        const irr::core::rect<int> rect = calcRect(content);
        const float padding = (content.height / (1.0f + 2.0f * paddingDown));
        FlexibleFont::Placement placement;
        placement.scale = font_->getDefaultScale() * content.scale;
        placement.translation.set(static_cast<float>(rect.UpperLeftCorner.X) + std::round(padding * paddingAcross),
                                  static_cast<float>(rect.UpperLeftCorner.Y) + std::round(padding * paddingDown));
        font_->drawFontMeshBuffer(content.letters.get(), panel, style, placement);
    }
}

} // namespace skyvane
