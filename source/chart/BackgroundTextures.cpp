#include "chart/BackgroundTextures.h"

#include "chart/store/ChartStore.h"
#include "core/IProgressCallback.h"
#include "core/engine/MipmappedTexture.h"
#include "core/files/FilesOfFolder.h"
#include "core/log/Logger.h"
#include "displays/drawing/Drawer2D.h"
#include "terrain/files/BackgroundList.h"

namespace skyvane {

BackgroundTextures::BackgroundTextures(Drawer2D* drawer, size_t limit)
    : drawer_(drawer), driver_(drawer->getDevice()->getVideoDriver()), pictures_{Pictures(limit), Pictures(limit),
                                                                                 Pictures(limit), Pictures(limit)},
      lowestLimit_(lowestCacheLimit(limit)) {}

BackgroundTextures::~BackgroundTextures() {
    clearPictures();
}

void BackgroundTextures::load(const std::string& imagesFolder, IProgressCallback* steps) {
    clear();
    for (const std::string& name : filesOfFolder(imagesFolder, BackgroundListEnding)) {
        auto list = std::make_unique<VendorBackgrounds>(imagesFolder + name, imagesFolder);
        if (list->isGood())
            vendors_[list->getVendor()].push_back(std::move(list));
        else
            logText(name + " is left out: it names no vendor.\n");
        if (steps)
            steps->nextStep();
    }
}

void BackgroundTextures::clear() {
    clearPictures();
    current_ = nullptr;
    vendors_.clear();
}

std::vector<std::string> BackgroundTextures::getVendorNames() const {
    std::vector<std::string> names;
    for (const auto& vendor : vendors_)
        names.push_back(vendor.first);
    return names;
}

void BackgroundTextures::selectVendor(const std::string& name) {
    clearPictures();
    const auto found = vendors_.find(name);
    current_ = found == vendors_.end() ? nullptr : &found->second;
}

irr::video::ITexture* BackgroundTextures::get(IArea::BgType type, int area) {
    const auto index = static_cast<size_t>(type);
    if (index >= pictures_.size())
        return nullptr;
    if (const Picture* picture = pictures_[index].find(area))
        return picture->get();
    drawer_->flush(); // what has been gathered may be drawn with the picture that goes
    const Picture* picture = pictures_[index].insert(area, Picture(loadTile(type, area), driver_));
    return picture ? picture->get() : nullptr;
}

irr::video::ITexture* BackgroundTextures::loadTile(IArea::BgType type, int area) const {
    if (!current_)
        return nullptr;
    for (const auto& list : *current_)
        if (list->isBackgroundTextureLoadable(type, area))
            return loadMipmappedTexture(driver_, list->getTilePath(area));
    return nullptr;
}

void BackgroundTextures::clearPictures() {
    drawer_->flush();
    for (Pictures& pictures : pictures_)
        pictures.clear();
}

void BackgroundTextures::shrink() {
    clearPictures();
    for (Pictures& pictures : pictures_)
        pictures.setLimit(lowerCacheLimit(pictures.getLimit(), lowestLimit_));
}

} // namespace skyvane
