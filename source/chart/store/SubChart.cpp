#include "chart/store/SubChart.h"

#include "chart/store/ElementId.h"
#include "chart/store/IChartElementSource.h"
#include "core/bytes/ByteReader.h"
#include "core/log/Logger.h"

namespace skyvane {
namespace {

constexpr unsigned TypeBytes = 4;

} // namespace

SubChart::SubChart(SetDescription description, std::string folder, int index, const FactoriesByType& factories,
                   IChartElementSource& chart)
    : description_(std::move(description)), folder_(std::move(folder)), index_(index), factories_(factories),
      chart_(chart), files_(folder_) {
    using State = ElementFilesReader::State;
    if (files_.getState() == State::Missing)
        logText("Chart set " + folder_ + " has no elements: a file is missing.\n");
    else if (files_.getState() == State::OtherVersion)
        logText("Chart set " + folder_ + " is of another format: its elements are not used.\n");
    else if (files_.getState() == State::DecreasingOffsets)
        logText("Monotony in offsets broken! Bad data!\n");
    else if (files_.isCut())
        logText(folder_ + "/" + ElementOffsetsFileName + " is damaged: it ends before its elements do.\n");
}

SubChart::~SubChart() {
    if (absent_ > static_cast<unsigned long>(MostNamed))
        logText("Chart set " + folder_ + " could not give elements " + std::to_string(absent_) + " times in all.\n");
}

std::unique_ptr<IChartElement> SubChart::loadChartElement(int index) {
    if (index < 0 || index >= files_.getCount())
        return nullptr;
    if (!files_.read(index, record_) || record_.size() < TypeBytes) {
        noteAbsent(index, "it can't be read");
        return nullptr;
    }
    const uint32_t type = ByteReader(record_.data(), TypeBytes).little<uint32_t>();
    IChartElementFactory* factory = type < factories_.size() ? factories_[type] : nullptr;
    if (!factory) {
        noteAbsent(index, "its kind is unknown");
        return nullptr;
    }
    std::unique_ptr<IChartElement> element = factory->Create(this);
    unsigned position = 0;
    const auto length = static_cast<unsigned>(record_.size() - TypeBytes);
    if (element && element->readFromBuffer(record_.data() + TypeBytes, position, length))
        return element;
    noteAbsent(index, "its record is damaged");
    return nullptr;
}

void SubChart::noteAbsent(int index, const char* why) {
    if (++absent_ <= static_cast<unsigned long>(MostNamed))
        logText("Element " + std::to_string(index) + " of chart set " + folder_ + " is absent: " + why + ".\n");
}

void SubChart::OnIndexCorrect(int& out, int stored) {
    out = isCustomElement(stored) ? stored : makeElementId(index_, stored);
}

IChartElement* SubChart::getChartElementWhileLoading(int id) {
    return chart_.getChartElement(id);
}

} // namespace skyvane
