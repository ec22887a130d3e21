#include "chart/ExtendedChart.h"

#include "chart/BackgroundPictures.h"
#include "chart/DialogProgress.h"
#include "core/Context.h"
#include "core/engine/MissingFileScreen.h"
#include "core/engine/ShowState.h"
#include "core/ini/IniFile.h"
#include "core/log/Logger.h"
#include "core/system/SystemManager.h"
#include "core/text/Utf8.h"
#include "procedures/ProcedureManager.h"
#include "terrain/TerrainManager.h"
#include "terrain/files/BackgroundList.h"

#include <algorithm>
#include <cstdlib>

namespace skyvane {

ExtendedChart::ExtendedChart(Context* context, bool checkDirty, IProgressCallback* steps, int elementCacheSize,
                             int textureCacheSize)
    : context_(context),
      store_(context->getChartElementFactories(), {context->getPath("ChartData/"), context->getPath("customElements/")},
             static_cast<size_t>(std::max(elementCacheSize, 0))),
      backgrounds_(context->getDrawer(), static_cast<size_t>(std::max(textureCacheSize, 0))),
      mipMapDirtyChecked_(!checkDirty) {
    loadData(steps);
    logText("dirtyCheckAndSync\n");
    dirtyCheckAndSync(false);
    logText("new TerrainManager\n");
    terrain_ = std::make_unique<TerrainManager>(context_, context_->getPath("Terrain/"), checkDirty,
                                                TerrainManager::TREE_WORLD, TerrainStore::DefaultCacheSize);
}

ExtendedChart::~ExtendedChart() = default;

void ExtendedChart::loadData(IProgressCallback* steps) {
    const std::string dataIni = context_->getPath("data/data.ini");
    // A home that couldn't be written has none; the pilot was told so when the program started.
    if (context_->getSystemManager()->getStartTrouble().empty())
        context_->assertExistance(dataIni);
    const std::string vendor = IniFile(dataIni).get("", "Vendor");
    logText("loadSCIs\n");
    store_.loadSets(vendor);
    checkSets();
    logText("loadBackgrounds\n");
    backgrounds_.load(context_->getPath("Images/"), steps);
    joinVendors(vendor);
    buildIndex(steps);
}

void ExtendedChart::checkSets() {
    if (const SubChart* set = store_.findUnusableSet())
        endBecauseOf(*set);
    if (store_.isFormatUpdateRequired())
        context_->showMessageBox("Error: Chart data and/or Skyvane Update required.\n");
}

/// A vendor may have backgrounds alone, or charts alone.
void ExtendedChart::joinVendors(const std::string& wanted) {
    const bool hasCharts = !store_.getVendorNames().empty();
    for (const std::string& name : backgrounds_.getVendorNames())
        store_.addVendor(name);
    vendorNames_ = store_.getVendorNames();
    if (!hasCharts && !vendorNames_.empty() && !store_.selectVendor(wanted))
        store_.selectVendor(vendorNames_.front());
    backgrounds_.selectVendor(store_.getCurrentVendorName());
}

void ExtendedChart::buildIndex(IProgressCallback* steps) {
    DialogProgress progress(context_, DialogProgress::Kind::Necessary);
    store_.buildIndex(steps, &progress);
}

void ExtendedChart::endBecauseOf(const SubChart& set) {
    const std::string text = "The charts \"" + set.getAreaName() + "\"\nof \"" + set.getVendor() +
                             "\" are damaged.\n\nFile:\n" + set.getLocation() + "/\n" + ElementOffsetsFileName +
                             "\n\nInstall these charts again,\nor delete that file to fly without them.\n\n"
                             "Press any key to end.";
    logText(text + "\n");
    showMissingFileScreen(context_->getIrrlichtDevice(), decodeUtf8(text));
    std::exit(EXIT_FAILURE);
}

void ExtendedChart::loadBackgrounds(const std::string& vendor) {
    backgrounds_.load(context_->getPath("Images/"), nullptr);
    backgrounds_.selectVendor(vendor);
}

IChartElementFactory* ExtendedChart::getChartElementFactory(IChartElement::Type type) {
    const auto index = static_cast<size_t>(type);
    const FactoriesByType factories = sortByType(context_->getChartElementFactories());
    return index < factories.size() ? factories[index] : nullptr;
}

std::list<int> ExtendedChart::getMatchingChartElements(const std::string& text, int limit) {
    return store_.getMatchingChartElements(text, limit);
}

int ExtendedChart::addCustomChartElement(std::unique_ptr<IChartElement> element) {
    return store_.addCustomChartElement(std::move(element));
}

int ExtendedChart::addCustomChartElementFromIni(IniFile* document) {
    return store_.addCustomChartElementFromIni(*document);
}

bool ExtendedChart::setCustomChartElementFromIni(IniFile* document, int id) {
    return store_.setCustomChartElementFromIni(*document, id);
}

std::string ExtendedChart::getVendorName(int index) {
    return index >= 0 && index < getVendorCount() ? vendorNames_[static_cast<size_t>(index)] : std::string();
}

int ExtendedChart::getCurrentVendor() {
    const auto found = std::find(vendorNames_.begin(), vendorNames_.end(), getCurrentVendorName());
    return found == vendorNames_.end() ? -1 : static_cast<int>(found - vendorNames_.begin());
}

void ExtendedChart::setCurrentVendor(int index) {
    if (index < 0 || index >= getVendorCount() || index == getCurrentVendor())
        return;
    context_->getProcedureManager()->deleteAllProcedures();
    store_.selectVendor(getVendorName(index));
    backgrounds_.selectVendor(getVendorName(index));
    buildIndex(nullptr);
}

void ExtendedChart::dirtyCheckAndSync(bool force) {
    if (mipMapDirtyChecked_ && !force)
        return;
    mipMapDirtyChecked_ = true;
    const std::string images = context_->getPath("Images/");
    bool changed = false;
    for (const std::string& vendor : backgrounds_.getVendorNames()) {
        const std::string folder = getBgFolder(images, vendor);
        if (!isFolderDirty(folder))
            continue;
        logText("Dirty flag found...\n");
        changed = true; // what was computed before goes also when the pilot cancels
        DialogProgress progress(context_, DialogProgress::Kind::Long);
        if (!syncVendor(vendor, progress)) {
            logText(progress.isCancelled() ? "Cancelled\n" : "The background tiles can't be written: " + folder + "\n");
            break;
        }
        if (!setFolderDirty(folder, false))
            logText("The folder of backgrounds can't be written: " + folder + "\n");
    }
    if (changed)
        loadBackgrounds(getCurrentVendorName());
}

bool ExtendedChart::syncVendor(const std::string& vendor, ITerrainProgress& progress) {
    const std::string images = context_->getPath("Images/");
    for (const IArea::BgType type : {IArea::VFR, IArea::IFR_LOW, IArea::IFR_HIGH}) {
        BackgroundPictures pictures(context_->getIrrlichtDevice()->getVideoDriver(), getBgFolder(images, vendor), type);
        if (!syncBackgrounds(images, vendor, type, store_.getAreaTable(), pictures, progress))
            return false;
    }
    return true;
}

void ExtendedChart::OnMustFreeMemory() {
    const bool wasPaused = terrain_ && terrain_->isThreadPaused(); // by a job behind a dialog
    if (terrain_)
        terrain_->setPauseThreadRequest(true);
    showState(context_->getIrrlichtDevice(), L"Please wait: Device has low memory. Clearing caches...");
    store_.shrinkCache();
    backgrounds_.shrink();
    if (!terrain_)
        return;
    terrain_->pauseThread(true);
    terrain_->OnMustFreeMemory();
    if (!wasPaused)
        terrain_->pauseThread(false);
}

} // namespace skyvane
