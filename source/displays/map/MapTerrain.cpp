#include "displays/map/MapTerrain.h"

#include "core/Context.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/PlainQuad.h"
#include "displays/materials/MaterialManager.h"
#include "displays/materials/OGLTerrain2DCB.h"
#include "terrain/TerrainManager.h"

#include <algorithm>
#include <atomic>
#include <cmath>

namespace skyvane {
namespace {

/// A picture reaches beyond the view, so that flying on doesn't need a new one at once.
constexpr double reserve = 0.3;
/// Pixels of the screen that share one of the picture.
constexpr double coarseness = 2.0;
constexpr int smallestSide = 16, largestSide = 1024;
/// Finer pixels than that would show the whole metres of the heights as terraces; the shader smooths between them.
constexpr double finestMetres = 60.0;
/// A picture of another scale than the view's serves as long as the two differ no more.
constexpr double tolerableScale = 1.6;
constexpr float overlayAlpha = 0.0f, warningAlpha = 0.75f;

std::string uniqueName() {
    static std::atomic<unsigned> counter{0};
    return "skyvane:terrain:" + std::to_string(counter++);
}

/// A picture of ground that nobody knows, shared by all maps.
irr::video::ITexture* unknownGround(irr::video::IVideoDriver& driver) {
    const char* name = "skyvane:terrain:unknown";
    if (irr::video::ITexture* made = driver.findTexture(name))
        return made;
    const irr::core::dimension2du size(1, 1);
    const auto image = EngineRef<irr::video::IImage>::adopt(driver.createImage(irr::video::ECF_A8R8G8B8, size));
    if (image)
        image->fill(irr::video::SColor(0x80800000));
    return image ? driver.addTexture(name, image.get()) : nullptr;
}

EngineRef<irr::scene::SMeshBuffer> makeQuad(irr::video::E_MATERIAL_TYPE type, irr::video::ITexture* gradient) {
    EngineRef<irr::scene::SMeshBuffer> quad = makePlainQuad();
    quad->Material.MaterialType = type;
    // Heights are packed into two channels: the shader filters them.
    quad->Material.TextureLayer[0].BilinearFilter = false;
    quad->Material.setTexture(1, gradient);
    return quad;
}

} // namespace

MapTerrain::MapTerrain(Context* context, IPanel* panel, irr::video::ITexture* gradient)
    : context_(context), panels_(context->getPanelManager()), drawer_(context->getDrawer()), panel_(panel),
      quad_(makeQuad(context->getMaterialManager()->getMaterialType("Terrain2D"), gradient)),
      unknownQuad_(makeQuad(context->getMaterialManager()->getMaterialType("Terrain2D"), gradient)) {
    unknownQuad_->Material.setTexture(0, unknownGround(*drawer_->getDevice()->getVideoDriver()));
}

MapTerrain::~MapTerrain() {
    if (TerrainManager* terrain = panels_->getTerrainManager())
        terrain->deleteTerrainImageRequestsFromCaller(panel_);
    removeTexture();
}

MapBox MapTerrain::wantedBox(const MapView& view) const {
    const MapView::Panel& panel = view.getPanel();
    return view.getReach(reserve * 0.5 * (panel.width + panel.height));
}

bool MapTerrain::doesCoverScreen(const MapView& view) const {
    return texture_ && box_.covers(view.getReach(0.0));
}

void MapTerrain::requestIfNeeded(const MapView& view) {
    if (isAsked_ && askedBox_.covers(view.getReach(0.0)) && !isWanted_)
        return;
    const double scale = metresPerPixel_ > 0.0 ? view.getMetresPerPixel() / metresPerPixel_ : 0.0;
    const bool fits = scale > 1.0 / tolerableScale && scale < tolerableScale;
    if (isWanted_ || !doesCoverScreen(view) || !fits)
        request(view);
}

void MapTerrain::request(const MapView& view) {
    TerrainManager* terrain = panels_->getTerrainManager();
    if (!terrain)
        return;
    isWanted_ = false;
    askedBox_ = wantedBox(view);
    const double screenPixels = std::max(coarseness, finestMetres / view.getMetresPerPixel());
    const auto side = [screenPixels](double degrees, double degreesPerPixel) {
        const double pixels = degrees / degreesPerPixel / screenPixels;
        return static_cast<irr::u32>(std::clamp(pixels, double(smallestSide), double(largestSide)));
    };
    const irr::core::dimension2d<irr::u32> size(side(askedBox_.getWidth(), view.getLongitudePerPixel()),
                                                side(askedBox_.getHeight(), view.getLatitudePerPixel()));
    irr::video::IVideoDriver* driver = drawer_->getDevice()->getVideoDriver();
    image_ = EngineRef<irr::video::IImage>::adopt(driver->createImage(irr::video::ECF_A8R8G8B8, size));
    if (!image_)
        return;
    isAsked_ = true;
    askedMetresPerPixel_ = view.getMetresPerPixel();
    terrain->requestTerrainImage(panel_, askedBox_.getNW(), askedBox_.getSE(), image_.get());
}

void MapTerrain::onResult(const ChartPosition&, const ChartPosition&, irr::video::IImage* image, bool undefined,
                          float minimum, float average, float maximum) {
    if (!image || image != image_.get())
        return; // of a request that was replaced
    isAsked_ = false;
    box_ = askedBox_;
    metresPerPixel_ = askedMetresPerPixel_;
    undefined_ = undefined;
    minimum_ = minimum;
    average_ = average;
    maximum_ = std::max(maximum, minimum + 1.0f);
    setTexture(*image);
    image_.reset();
}

void MapTerrain::setTexture(irr::video::IImage& image) {
    removeTexture();
    irr::video::IVideoDriver* driver = drawer_->getDevice()->getVideoDriver();
    const bool mipMaps = driver->getTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS);
    const bool anySize = driver->getTextureCreationFlag(irr::video::ETCF_ALLOW_NON_POWER_2);
    driver->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, false);
    driver->setTextureCreationFlag(irr::video::ETCF_ALLOW_NON_POWER_2, true);
    texture_ = driver->addTexture(uniqueName().c_str(), &image);
    driver->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, mipMaps);
    driver->setTextureCreationFlag(irr::video::ETCF_ALLOW_NON_POWER_2, anySize);
    quad_->Material.setTexture(0, texture_);
}

void MapTerrain::removeTexture() {
    quad_->Material.setTexture(0, nullptr);
    if (texture_)
        drawer_->getDevice()->getVideoDriver()->removeTexture(texture_);
    texture_ = nullptr;
}

/// Those of the ground around the aircraft, as the synthetic view has them; of the picture where nobody knows them.
void MapTerrain::setHeightLimits(double altitudeMetres) {
    float lowest = minimum_, middle = average_, highest = maximum_;
    TerrainManager* terrain = panels_->getTerrainManager();
    if (terrain && !terrain->isWholeMeshUndefined()) {
        lowest = terrain->getMinTerrainElevationInVicinity();
        middle = terrain->getAverageTerrainElevationInVicinity();
        highest = terrain->getMaxTerrainElevationInVicinity();
        if (!terrain->isWholeWideMeshUndefined()) {
            lowest = std::min(lowest, terrain->getMinWideTerrainElevation());
            highest = std::max(highest, terrain->getMaxWideTerrainElevation());
        }
    }
    context_->getMaterialManager()->getTerrain2DCallback()->setHeightLimits(
        lowest, middle, std::max(highest, lowest + 1.0f), static_cast<float>(altitudeMetres));
}

bool MapTerrain::isGroundKnownElsewhere() const {
    TerrainManager* terrain = panels_->getTerrainManager();
    return terrain && terrain->hasTiles();
}

void MapTerrain::draw(const MapView& view, double altitudeMetres, bool isOpaque) {
    OGLTerrain2DCB* shader = context_->getMaterialManager()->getTerrain2DCallback();
    shader->setAlpha(isOpaque ? 1.0f : overlayAlpha, isOpaque ? 1.0f : warningAlpha);
    if (isOpaque && !doesCoverScreen(view) && isGroundKnownElsewhere())
        drawUnknown(view);
    if (!isDrawable())
        return;
    setHeightLimits(altitudeMetres);
    shader->moveLight();
    drawPicture(view);
}

/// Before the first picture, and beyond its edges until the next one is there.
void MapTerrain::drawUnknown(const MapView& view) {
    const double width = view.getPanel().width, height = view.getPanel().height;
    const MapView::Point corners[4] = {{0.0, 0.0}, {width, 0.0}, {0.0, height}, {width, height}};
    context_->getMaterialManager()->getTerrain2DCallback()->setImageSize({1, 1});
    placeQuad(*unknownQuad_, corners, irr::video::SColor(0xffffffff));
    drawer_->draw2DMeshBuffer(unknownQuad_.get());
}

void MapTerrain::drawPicture(const MapView& view) {
    context_->getMaterialManager()->getTerrain2DCallback()->setImageSize(texture_->getSize());
    // From the middle, so that a wide picture's corners don't take the shorter way round.
    const MapView::Point middle = view.toPanel(box_.getCentre());
    const double halfWidth = 0.5 * box_.getWidth() / view.getLongitudePerPixel();
    const double halfHeight = 0.5 * box_.getHeight() / view.getLatitudePerPixel();
    MapView::Point corners[4];
    for (int i = 0; i < 4; ++i) {
        const MapView::Point offset((i & 1) ? halfWidth : -halfWidth, (i >> 1) ? halfHeight : -halfHeight);
        corners[i] = middle + turnToTop(offset, view.getTopTrack());
    }
    placeQuad(*quad_, corners, irr::video::SColor(0xffffffff));
    drawer_->draw2DMeshBuffer(quad_.get());
}

} // namespace skyvane
