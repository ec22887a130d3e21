#include "displays/map/Map2DFactory.h"

#include "core/ini/IniFile.h"
#include "displays/map/Map2D.h"
#include "displays/map/MapDocuments.h"

#include <algorithm>

namespace skyvane {
namespace {

/// What of the preview's picture matters most, as shares of its side.
constexpr double middleAcross = 0.62, middleDown = 0.68;

} // namespace

Map2DFactory::Map2DFactory(Context* context)
    : DialFactory(context, "2D-Map", "media/map_preview.png", map2DOptions, "Map2DOptions.hti") {}

irr::core::rect<int> Map2DFactory::previewRect(const irr::core::rect<int>& rect) const {
    const int side = std::max(rect.getWidth(), rect.getHeight());
    const auto start = [side](int from, int to, double share) {
        return std::clamp((from + to) / 2 - static_cast<int>(share * side), to - side, from);
    };
    const irr::core::vector2d<int> corner(start(rect.UpperLeftCorner.X, rect.LowerRightCorner.X, middleAcross),
                                          start(rect.UpperLeftCorner.Y, rect.LowerRightCorner.Y, middleDown));
    return {corner.X, corner.Y, corner.X + side, corner.Y + side};
}

void Map2DFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    settings_ = MapSettings::read(*ini, section);
    section_ = std::move(section);
}

std::unique_ptr<IPanel> Map2DFactory::Create() {
    auto panel = std::make_unique<Map2D>(context(), settings_, section_, writers_);
    panel->setFactory(this);
    return panel;
}

} // namespace skyvane
