#include "terrain/files/VendorBackgrounds.h"

#include "terrain/files/BackgroundList.h"

#include <cstdio>

namespace skyvane {

VendorBackgrounds::VendorBackgrounds(const std::string& path, const std::string& imagesFolder) : path_(path) {
    const std::list<int> areas = parseBgFile(path, &vendor_, nullptr, &type_, &common_, nullptr);
    folder_ = getBgFolder(imagesFolder, vendor_);
    if (!isGood())
        return;
    for (const int area : areas) {
        const std::string name = std::to_string(area);
        if (!tiles_.isElement(name))
            tiles_.insert(name, area);
    }
}

bool VendorBackgrounds::isBackgroundTextureLoadable(IArea::BgType type, int area) const {
    return type == type_ && tiles_.isElement(std::to_string(area));
}

std::string VendorBackgrounds::getTilePath(int area) const {
    return folder_ + getBgPrefix(type_) + std::to_string(area) + BackgroundTileEnding;
}

void VendorBackgrounds::deleteFromStorage() const {
    for (const int area : calculateLeafList())
        std::remove(getTilePath(area).c_str());
    std::remove(path_.c_str());
}

} // namespace skyvane
