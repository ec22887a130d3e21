#pragma once

#include "chart/areas/IArea.h"
#include "chart/elements/IChartElement.h"
#include "chart/store/IChartElementSource.h"

#include <memory>
#include <string>

namespace irr::video {
class ITexture;
}

namespace skyvane {

class IChartElementFactory;
class IniFile;
class TerrainManager;

/// The charts as the whole program sees them: those of the chosen vendor and the user's own elements. Main thread only.
///
/// Pointers to elements and textures hold until the next call, areas until the vendor changes.
class IChart : public IChartElementSource {
public:
    /// Gives up what can be loaded again, and keeps less of it from now on.
    virtual void OnMustFreeMemory() = 0;
    /// The chart's.
    virtual TerrainManager* getTerrainManager() = 0;
    /// Removes one of the user's elements. The last one moves to its id: no other changes its own. False for an id that
    /// is none of theirs, and when the disk refuses.
    virtual bool deleteCustomChartElement(int id) = 0;
    /// Null for a number that is no type.
    virtual IChartElementFactory* getChartElementFactory(IChartElement::Type type) = 0;
    /// Elements of all sets of the vendor.
    virtual int getStaticElementCount() = 0;
    virtual int getCustomElementCount() = 0;
    /// See Trie::getMatching.
    virtual std::list<int> getMatchingChartElements(const std::string& text, int limit) = 0;
    virtual std::string getName() = 0;
    /// The tile of a background map; null without one. The chart's.
    virtual irr::video::ITexture* getTexture(IArea::BgType type, int area) = 0;
    /// Drops the elements in memory: they are read anew.
    virtual void deleteCache() = 0;
    /// A new element of the user's, saved. Its id; 0 for null and when it can't be saved.
    virtual int addCustomChartElement(std::unique_ptr<IChartElement> element) = 0;
    /// The same from its document; 0 also when its kind isn't known.
    virtual int addCustomChartElementFromIni(IniFile* document) = 0;
    /// Replaces one of the user's elements, or adds one under the id that comes next. False, and nothing happens, for
    /// another id, an unknown kind, and when it can't be saved.
    virtual bool setCustomChartElementFromIni(IniFile* document, int id) = 0;
    virtual bool Sync() = 0;
    virtual bool doesAreaTreeContainCustomElements() = 0;
    virtual int getVendorCount() = 0;
    /// Empty outside the count.
    virtual std::string getVendorName(int index) = 0;
    /// Nothing happens for the current one, or outside the count.
    virtual void setCurrentVendor(int index) = 0;
    /// -1 without a vendor.
    virtual int getCurrentVendor() = 0;
    virtual std::string getCurrentVendorName() = 0;
    /// Computes the coarser background tiles, behind a dialog, of vendors whose tiles have changed: once, or again when
    /// forced. A pilot who gives it up is asked again at the next start.
    virtual void dirtyCheckAndSync(bool force) = 0;
    /// Reads which background tiles there are, of all vendors, and shows those of this one.
    virtual void loadBackgrounds(const std::string& vendor) = 0;
    virtual void deleteBackgrounds() = 0;
    virtual unsigned long getElementCacheMissCount() = 0;
};

} // namespace skyvane
