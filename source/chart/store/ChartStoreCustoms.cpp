#include "chart/areas/AreaUpdates.h"
#include "chart/elements/IChartElement.h"
#include "chart/store/ChartStore.h"
#include "chart/store/ElementId.h"
#include "chart/store/NameEntries.h"
#include "core/ini/IniFile.h"
#include "core/log/Logger.h"

namespace skyvane {

/// Custom elements have the ids of the merged chart.
class ChartStore::CustomCallback final : public IIndexCorrectionCallback {
public:
    explicit CustomCallback(IChartElementSource& chart) : chart_(chart) {}
    void OnIndexCorrect(int& out, int stored) override { out = stored; }
    IChartElement* getChartElementWhileLoading(int id) override { return chart_.getChartElement(id); }

private:
    IChartElementSource& chart_;
};

ChartStore::ChartStore(const ElementFactories& factories, Folders folders, size_t elementLimit)
    : factories_(sortByType(factories)), folders_(std::move(folders)), customFiles_(folders_.customElements),
      customCallback_(std::make_unique<CustomCallback>(*this)), current_(vendors_.end()), cache_(elementLimit),
      lowestLimit_(lowestCacheLimit(elementLimit)) {}

ChartStore::~ChartStore() = default;

std::unique_ptr<IChartElement> ChartStore::createFromIni(IniFile& document) {
    if (!document.isAvailable("", "Type"))
        return nullptr;
    for (IChartElementFactory* factory : factories_) {
        if (!factory || document.get("", "Type") != factory->getStringDescriptor())
            continue;
        std::unique_ptr<IChartElement> element = factory->Create(customCallback_.get());
        if (element)
            element->setFromIni(&document);
        return element;
    }
    return nullptr;
}

void ChartStore::loadCustoms() {
    customCount_ = 0;
    for (int id = nextCustomElementId(0);; id = nextCustomElementId(customCount_)) {
        const std::unique_ptr<IniFile> document = customFiles_.load(id);
        std::unique_ptr<IChartElement> element = document ? createFromIni(*document) : nullptr;
        if (document && !element)
            logText("Custom element " + std::to_string(id) + " is of an unknown kind: it ends those that are used.\n");
        if (!element)
            return;
        enter(*element, id);
        cache_.insert(id, std::move(element));
        ++customCount_;
    }
}

/// Into names and tree.
void ChartStore::enter(const IChartElement& element, int id) {
    insertInTrie(names_, element, id);
    updateAreaTree(table()[0], &element, id, table());
}

void ChartStore::takeOut(int id) {
    names_.removeElement(id);
    if (areas_)
        deleteElementFromAreaTree(id, table());
}

int ChartStore::addCustomChartElement(std::unique_ptr<IChartElement> element) {
    if (!element)
        return 0;
    const int id = nextCustomElementId(customCount_);
    IniFile document;
    element->writeToIni(&document);
    if (!customFiles_.add(document, id))
        return 0;
    ++customCount_;
    enter(*element, id);
    cache_.insert(id, std::move(element));
    return id;
}

int ChartStore::addCustomChartElementFromIni(IniFile& document) {
    const int id = nextCustomElementId(customCount_);
    return setCustomChartElementFromIni(document, id) ? id : 0;
}

bool ChartStore::setCustomChartElementFromIni(IniFile& document, int id) {
    const bool isNew = id == nextCustomElementId(customCount_);
    const std::unique_ptr<IChartElement> element = isNew || isCustom(id) ? createFromIni(document) : nullptr;
    if (!element || !(isNew ? customFiles_.add(document, id) : customFiles_.replace(document, id)))
        return false;
    if (isNew) {
        ++customCount_;
    } else {
        cache_.clear();
        takeOut(id);
    }
    enter(*element, id);
    return true;
}

bool ChartStore::deleteCustomChartElement(int id) {
    const int lastId = -customCount_;
    if (!isCustom(id) || !customFiles_.remove(id, lastId))
        return false;
    cache_.clear();
    takeOut(id);
    --customCount_;
    if (id == lastId)
        return true;
    takeOut(lastId);
    if (const IChartElement* moved = getChartElement(id))
        enter(*moved, id);
    return true;
}

} // namespace skyvane
