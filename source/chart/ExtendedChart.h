#pragma once

#include "chart/BackgroundTextures.h"
#include "chart/store/ChartStore.h"
#include "chart/store/IChart.h"

namespace skyvane {

class Context;
class ITerrainProgress;

/// The chart of the running program: the ChartStore, and what of charts needs a screen: background tiles, dialogs while
/// it loads, words for the user about damage; and the terrain under them. Main thread only.
///
/// A set whose offsets decrease ends the program, once the user has been told which one it is.
class ExtendedChart final : public IChart {
public:
    /// Loads everything, for the vendor that data/data.ini names; `steps` may be null. With `checkDirty` false the
    /// dirty checks of backgrounds and terrain count as done. The sizes are those of the caches of elements and, for
    /// each type, of background tiles. The context outlives it and has its panels and sensors.
    ExtendedChart(Context* context, bool checkDirty, IProgressCallback* steps, int elementCacheSize,
                  int textureCacheSize);
    ~ExtendedChart() override;

    IChartElement* getChartElement(int id) override { return store_.getChartElement(id); }
    IArea* getArea(int index) override { return store_.getArea(index); }

    /// Also the terrain's tiles, once its thread has paused.
    void OnMustFreeMemory() override;
    TerrainManager* getTerrainManager() override { return terrain_.get(); }
    bool deleteCustomChartElement(int id) override { return store_.deleteCustomChartElement(id); }
    IChartElementFactory* getChartElementFactory(IChartElement::Type type) override;
    int getStaticElementCount() override { return store_.getStaticElementCount(); }
    int getCustomElementCount() override { return store_.getCustomElementCount(); }
    std::list<int> getMatchingChartElements(const std::string& text, int limit) override;
    std::string getName() override { return "Extended Chart"; }
    irr::video::ITexture* getTexture(IArea::BgType type, int area) override { return backgrounds_.get(type, area); }
    void deleteCache() override { store_.clearCache(); }
    int addCustomChartElement(std::unique_ptr<IChartElement> element) override;
    int addCustomChartElementFromIni(IniFile* document) override;
    bool setCustomChartElementFromIni(IniFile* document, int id) override;
    bool Sync() override { return false; }
    bool doesAreaTreeContainCustomElements() override { return true; }
    int getVendorCount() override { return static_cast<int>(vendorNames_.size()); }
    std::string getVendorName(int index) override;
    void setCurrentVendor(int index) override;
    int getCurrentVendor() override;
    std::string getCurrentVendorName() override { return store_.getCurrentVendorName(); }
    void dirtyCheckAndSync(bool force) override;
    void loadBackgrounds(const std::string& vendor) override;
    void deleteBackgrounds() override { backgrounds_.clear(); }
    unsigned long getElementCacheMissCount() override { return store_.getCacheMissCount(); }

private:
    void loadData(IProgressCallback* steps);
    void joinVendors(const std::string& wanted);
    void checkSets();
    void buildIndex(IProgressCallback* steps);
    bool syncVendor(const std::string& vendor, ITerrainProgress& progress);
    [[noreturn]] void endBecauseOf(const SubChart& set);

    Context* context_;
    ChartStore store_;
    BackgroundTextures backgrounds_;
    std::unique_ptr<TerrainManager> terrain_; ///< Null while the rest loads.
    std::vector<std::string> vendorNames_;    ///< Of charts and of backgrounds.
    bool mipMapDirtyChecked_;
};

} // namespace skyvane
