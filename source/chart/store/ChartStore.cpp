#include "chart/store/ChartStore.h"

#include "chart/areas/AreaFile.h"
#include "chart/areas/AreaLeafes.h"
#include "chart/areas/AreaStaticData.h"
#include "chart/areas/AreaUpdates.h"
#include "chart/elements/IChartElement.h"
#include "chart/store/ElementId.h"
#include "core/IProgressCallback.h"
#include "core/files/FilesOfFolder.h"
#include "core/ini/IniFile.h"
#include "core/log/Logger.h"

#include <algorithm>

namespace skyvane {
namespace {

void advance(IProgressCallback* steps) {
    if (steps)
        steps->nextStep();
}

} // namespace

void ChartStore::loadSets(const std::string& vendor) {
    cache_.clear();
    vendors_.clear();
    current_ = vendors_.end();
    const std::vector<std::string> names = filesOfFolder(folders_.chartData, ".sci");
    logText(names.empty() ? "No charts are installed.\n" : "building SubCharts\n");
    for (const std::string& name : names) {
        SetDescription description = SetDescription::load(folders_.chartData + name);
        if (description.vendor.empty()) {
            logText(name + " is left out: it names no vendor.\n");
            continue;
        }
        Sets& sets = vendors_[description.vendor];
        if (sets.size() >= static_cast<size_t>(MaxSubCharts)) {
            logText(name + " is left out: " + description.vendor + " has too many sets.\n");
            continue;
        }
        std::string folder = description.getFolder(folders_.chartData);
        sets.push_back(std::make_unique<SubChart>(std::move(description), std::move(folder),
                                                  static_cast<int>(sets.size()), factories_, *this));
    }
    if (!selectVendor(vendor))
        current_ = vendors_.begin();
}

void ChartStore::addVendor(const std::string& name) {
    vendors_[name];
}

bool ChartStore::selectVendor(const std::string& name) {
    const auto found = vendors_.find(name);
    if (found == vendors_.end())
        return false;
    current_ = found;
    cache_.clear();
    return true;
}

std::vector<std::string> ChartStore::getVendorNames() const {
    std::vector<std::string> names;
    for (const auto& vendor : vendors_)
        names.push_back(vendor.first);
    return names;
}

std::string ChartStore::getCurrentVendorName() const {
    return current_ == vendors_.end() ? std::string() : current_->first;
}

bool ChartStore::isFormatUpdateRequired() const {
    for (const auto& [name, sets] : vendors_)
        if (std::any_of(sets.begin(), sets.end(), [](const auto& set) { return set->isFormatUpdateRequired(); }))
            return true;
    return false;
}

const SubChart* ChartStore::findUnusableSet() const {
    for (const auto& [name, sets] : vendors_)
        for (const auto& set : sets)
            if (set->isUnusable())
                return set.get();
    return nullptr;
}

const ChartStore::Sets& ChartStore::getSets() const {
    static const Sets none;
    return current_ == vendors_.end() ? none : current_->second;
}

int ChartStore::getStaticElementCount() const {
    int count = 0;
    for (const auto& set : getSets())
        count += set->getElementCount();
    return count;
}

void ChartStore::buildIndex(IProgressCallback* steps, IProgressSink* sink) {
    cache_.clear();
    // A second time, from the elements, when the acceleration data don't fit.
    for (const bool force : {false, true}) {
        areas_.reset();
        logText("building Trie\n");
        buildNames(steps);
        loadCustoms();
        mergeAreas(steps, sink, force);
        if (!areas_ || checkStaticDataSanity(table(), 0))
            return;
    }
}

void ChartStore::makeAreas() {
    logText("building AreaTree\n");
    table_.resize(AreaCount);
    areas_ = createWorldWideAreaTree(false, table_.data());
}

void ChartStore::buildNames(IProgressCallback* steps) {
    names_ = Trie();
    for (const auto& set : getSets()) {
        names_.mergeLoad(set->getLocation() + "/" + NamesFileName, set.get());
        advance(steps);
    }
}

void ChartStore::mergeAreas(IProgressCallback* steps, IProgressSink* sink, bool force) {
    for (const auto& set : getSets()) {
        mergeAreaLeafes(set->getLocation() + "/" + AreaLeafesFileName, set->getIndex(), table());
        advance(steps);
        mergeAreaStaticData(set.get(), set->getIndex(), table(), sink, force);
    }
}

std::list<int> ChartStore::getMatchingChartElements(const std::string& text, int limit) const {
    return names_.getMatching(text, limit);
}

IChartElement* ChartStore::getChartElement(int id) {
    if (const std::unique_ptr<IChartElement>* element = cache_.find(id))
        return element->get();
    std::unique_ptr<IChartElement> element = load(id);
    const std::unique_ptr<IChartElement>* kept = element ? cache_.insert(id, std::move(element)) : nullptr;
    return kept ? kept->get() : nullptr;
}

std::unique_ptr<IChartElement> ChartStore::load(int id) {
    if (isCustomElement(id)) {
        const std::unique_ptr<IniFile> document = isCustom(id) ? customFiles_.load(id) : nullptr;
        return document ? createFromIni(*document) : nullptr;
    }
    const Sets& sets = getSets();
    const auto index = static_cast<size_t>(getSubChartIndex(id));
    return index < sets.size() ? sets[index]->loadChartElement(getElementIndex(id)) : nullptr;
}

void ChartStore::shrinkCache() {
    cache_.clear();
    cache_.setLimit(lowerCacheLimit(cache_.getLimit(), lowestLimit_));
}

size_t lowerCacheLimit(size_t limit, size_t lowest) {
    return std::max(limit * 9 / 10, lowest);
}

size_t lowestCacheLimit(size_t first) {
    return first * 2 / 5;
}

} // namespace skyvane
