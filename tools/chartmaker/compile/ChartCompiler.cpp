#include "chartmaker/compile/ChartCompiler.h"

#include "chart/areas/AreaGrid.h"
#include "chart/elements/AirportElement.h"
#include "chart/elements/NDBElement.h"
#include "chart/elements/VORElement.h"
#include "chart/elements/WaypointElement.h"
#include "chart/geodesy/Angles.h"
#include "chart/store/ChartSetWriter.h"
#include "chartmaker/text/SourceText.h"
#include "core/IProgressSink.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <sstream>

namespace skyvane {
namespace {

/// Names in the grid that no ident has: under which all airports stand, and those without ident.
const std::string anyAirport("\0a", 2);
const std::string namelessAirport("\0n", 2);

/// The kinds whose records of two sources can be the same object; null for the others.
const std::string* identOf(const IChartElement& element) {
    switch (element.getType()) {
    case IChartElement::AIRPORT:
        return &static_cast<const AirportElement&>(element).ident;
    case IChartElement::NDB:
        return &static_cast<const NDBElement&>(element).ident;
    case IChartElement::VOR:
        return &static_cast<const VORElement&>(element).ident;
    case IChartElement::WAYPOINT:
        return &static_cast<const WaypointElement&>(element).ident;
    default:
        return nullptr;
    }
}

AirwayUse* airwayUseOf(IChartElement& element) {
    switch (element.getType()) {
    case IChartElement::NDB:
        return &static_cast<NDBElement&>(element).use;
    case IChartElement::VOR:
        return &static_cast<VORElement&>(element).use;
    case IChartElement::WAYPOINT:
        return &static_cast<WaypointElement&>(element).use;
    default:
        return nullptr;
    }
}

bool isTacan(const IChartElement& element) {
    return element.getType() == IChartElement::VOR &&
           static_cast<const VORElement&>(element).vorType == VORElement::Tacan;
}

/// Whether the later record of an object is the better one to start from: the one with an ident, and the VOR of a pair
/// of VOR and TACAN, since a TACAN's frequency is nothing to tune.
bool givesWay(const IChartElement& first, const IChartElement& second) {
    return (identOf(first)->empty() && !identOf(second)->empty()) || (isTacan(first) && !isTacan(second));
}

/// A merge keeps one channel: the other one goes to the remarks.
void noteTacan(IChartElement& kept, const IChartElement& other) {
    if (!isTacan(other))
        return;
    auto& vor = static_cast<VORElement&>(kept);
    const std::string& channel = static_cast<const VORElement&>(other).tacanChannel;
    if (!channel.empty() && channel != vor.tacanChannel)
        addRemark(vor.remarks, "TACAN channel " + channel);
}

std::string recordOf(const IChartElement& element) {
    std::ostringstream out;
    element.write(out);
    return out.str();
}

int leafOf(const ChartPosition& position) {
    const int column = static_cast<int>(Angle0to360(position.longitude) * 2.0);
    const int row = static_cast<int>((90.0 - Latitudinize(position.latitude)) * 2.0);
    return getLeafIndex(std::min(column, AreaGridColumns - 1), std::clamp(row, 0, AreaGridRows - 1));
}

} // namespace

void ChartCompiler::add(std::unique_ptr<IChartElement> element, const SourceLine& line, const ElementOrigin& origin) {
    const IChartElement::Type type = element->getType();
    const std::string* ident = identOf(*element);
    const bool belongs = ident ? region_.takes(origin.country, element->getPosition()) : region_.touches(*element);
    const size_t same = belongs && ident ? findSame(*element) : PlaceGrid::None;
    if (same != PlaceGrid::None)
        return mergeInto(same, std::move(element), line);
    if (ident)
        points_.add(*ident, {type, element->getPosition(), origin.icaoRegion,
                             belongs ? entries_.size() : PointIndex::None, AirwayUse()});
    if (!belongs)
        return report_.leaveOutside(type);
    if (!ident && isRepeated(*element))
        return report_.repeat(type);
    if (ident)
        places_.add(element->getPosition(), *ident, entries_.size());
    if (type == IChartElement::AIRPORT)
        places_.add(element->getPosition(), anyAirport, entries_.size());
    if (type == IChartElement::AIRPORT && ident->empty())
        places_.add(element->getPosition(), namelessAirport, entries_.size());
    report_.take(type);
    entries_.push_back({std::move(element), {keepFileName(line.file), line.number}});
}

size_t ChartCompiler::findSame(const IChartElement& element) const {
    const auto isSame = [&](size_t number) {
        const IChartElement& other = *entries_[number].element;
        return other.equals(&element) || element.equals(&other);
    };
    const std::string& ident = *identOf(element);
    const bool isAirport = element.getType() == IChartElement::AIRPORT;
    const size_t same =
        places_.findNear(element.getPosition(), isAirport && ident.empty() ? anyAirport : ident, isSame);
    if (same != PlaceGrid::None || !isAirport)
        return same;
    return places_.findNear(element.getPosition(), namelessAirport, isSame);
}

void ChartCompiler::mergeInto(size_t number, std::unique_ptr<IChartElement> element, const SourceLine& line) {
    Entry& entry = entries_[number];
    report_.merge(element->getType(), line, element->getIndicatedLabel(true, false), entry.line);
    if (givesWay(*entry.element, *element)) {
        std::swap(entry.element, element);
        places_.add(entry.element->getPosition(), *identOf(*entry.element), number);
    }
    noteTacan(*entry.element, *element);
    entry.element->merge(element.get());
}

bool ChartCompiler::isRepeated(const IChartElement& element) {
    const std::string record = recordOf(element);
    const size_t hash = std::hash<std::string>()(record);
    const auto [begin, end] = records_.equal_range(hash);
    for (auto it = begin; it != end; ++it)
        if (recordOf(*entries_[it->second].element) == record)
            return true;
    records_.emplace(hash, entries_.size());
    return false;
}

std::string_view ChartCompiler::keepFileName(std::string_view file) {
    if (files_.empty() || files_.back() != file)
        files_.emplace_back(file);
    return files_.back();
}

void ChartCompiler::applyAirwayUse() {
    for (size_t i = 0; i < points_.size(); ++i)
        if (points_[i].element != PointIndex::None)
            if (AirwayUse* use = airwayUseOf(*entries_[points_[i].element].element))
                use->add(points_[i].use);
}

std::vector<size_t> ChartCompiler::orderByPlace() const {
    std::vector<int> leafs;
    for (const Entry& entry : entries_)
        leafs.push_back(leafOf(entry.element->getPosition()));
    std::vector<size_t> order(entries_.size());
    std::iota(order.begin(), order.end(), size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](size_t a, size_t b) { return leafs[a] < leafs[b]; });
    return order;
}

bool ChartCompiler::write(const std::string& folder, IProgressSink& progress) {
    constexpr size_t elementsPerStep = 4096;
    applyAirwayUse();
    ChartSetWriter writer(folder);
    size_t done = 0;
    for (const size_t number : orderByPlace()) {
        if (writer.add(*entries_[number].element) < 0)
            return false;
        if (++done % elementsPerStep == 0)
            progress.setProgress(static_cast<double>(done) / static_cast<double>(entries_.size()));
    }
    return writer.finish();
}

} // namespace skyvane
