#pragma once

#include "chart/areas/AreaTree.h"
#include "chart/names/Trie.h"
#include "chart/store/CustomElementFiles.h"
#include "chart/store/IChartElementSource.h"
#include "chart/store/LRUCache.h"
#include "chart/store/SubChart.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class IProgressCallback;
class IProgressSink;

/// The installed chart sets of one vendor and the user's own elements as one address space of ids, with the area tree
/// and the name index over all of them. Needs no window:
///
///     const ElementFactories factories = makeElementFactories();
///     ChartStore charts(factories, {"/data/ChartData/", "/home/customElements/"}, 100000);
///     charts.loadSets("Vendor");
///     charts.buildIndex(nullptr, nullptr);
///     for (int id : charts.getMatchingChartElements("EDD", 100))
///         if (IChartElement* element = charts.getChartElement(id)) ...
///
/// Elements are read when they are asked for, and kept in the order of use up to a limit. Pointers to elements hold
/// until the next call, areas until the next buildIndex. Main thread only.
class ChartStore final : public IChartElementSource {
public:
    struct Folders { ///< Each with a slash at its end.
        std::string chartData;
        std::string customElements;
    };
    using Sets = std::vector<std::unique_ptr<SubChart>>;

    /// The factories outlive it.
    ChartStore(const ElementFactories& factories, Folders folders, size_t elementLimit);
    ~ChartStore() override;

    /// Opens the sets of all vendors and chooses this one, or the first by name. Without any there is no vendor.
    void loadSets(const std::string& vendor);
    /// Also a vendor without sets is one: for whoever has other data of it.
    void addVendor(const std::string& name);
    /// False, and nothing happens, for a name that is none. buildIndex has to follow.
    bool selectVendor(const std::string& name);
    std::vector<std::string> getVendorNames() const;
    std::string getCurrentVendorName() const;
    /// A set of any vendor that is of another format.
    bool isFormatUpdateRequired() const;
    /// The first set that the program must not go on with, null without one.
    const SubChart* findUnusableSet() const;

    /// Tree, names and custom elements, for the current vendor. Acceleration data that a set lacks is made, and `sink`
    /// told; both may be null.
    void buildIndex(IProgressCallback* steps, IProgressSink* sink);

    IChartElement* getChartElement(int id) override;
    IArea* getArea(int index) override { return index >= 0 && index < AreaCount ? table()[index] : nullptr; }
    /// For AreaCount areas, until the next buildIndex.
    IArea* const* getAreaTable() { return table(); }
    std::list<int> getMatchingChartElements(const std::string& text, int limit) const;
    /// The current vendor's.
    const Sets& getSets() const;
    int getStaticElementCount() const;
    int getCustomElementCount() const { return customCount_; }

    // See IChart.
    int addCustomChartElement(std::unique_ptr<IChartElement> element);
    int addCustomChartElementFromIni(IniFile& document);
    bool setCustomChartElementFromIni(IniFile& document, int id);
    bool deleteCustomChartElement(int id);

    void clearCache() { cache_.clear(); }
    /// Clears it and keeps fewer elements from now on (see lowerCacheLimit).
    void shrinkCache();
    size_t getCacheLimit() const { return cache_.getLimit(); }
    unsigned long getCacheMissCount() const { return cache_.getMissCount(); }

private:
    class CustomCallback;

    /// Made when it is first asked for: without charts a start needs no tree.
    IArea** table() {
        if (!areas_)
            makeAreas();
        return table_.data();
    }
    void makeAreas();
    void buildNames(IProgressCallback* steps);
    void loadCustoms();
    void mergeAreas(IProgressCallback* steps, IProgressSink* sink, bool force);
    void enter(const IChartElement& element, int id);
    void takeOut(int id);
    bool isCustom(int id) const { return id < 0 && id >= -customCount_; }
    std::unique_ptr<IChartElement> load(int id);
    std::unique_ptr<IChartElement> createFromIni(IniFile& document);

    FactoriesByType factories_;
    Folders folders_;
    CustomElementFiles customFiles_;
    std::unique_ptr<CustomCallback> customCallback_;
    std::map<std::string, Sets> vendors_;
    std::map<std::string, Sets>::iterator current_; ///< The end when there is none.
    std::vector<IArea*> table_;
    std::unique_ptr<AreaArena> areas_;
    Trie names_;
    LRUCache<int, std::unique_ptr<IChartElement>> cache_;
    size_t lowestLimit_;
    int customCount_ = 0;
};

/// What a cache may hold after memory ran short: 0.9 of what it might, not below the lowest limit.
size_t lowerCacheLimit(size_t limit, size_t lowest);
/// That is 0.4 of its first limit.
size_t lowestCacheLimit(size_t first);

} // namespace skyvane
