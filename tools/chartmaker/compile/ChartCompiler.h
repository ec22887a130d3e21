#pragma once

#include "chartmaker/compile/IElementSink.h"
#include "chartmaker/compile/PlaceGrid.h"
#include "chartmaker/compile/PointIndex.h"
#include "chartmaker/region/Region.h"
#include "chartmaker/report/CompileReport.h"

#include <deque>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace skyvane {

class IProgressSink;

/// Gathers the elements of a chart set from many sources, makes one of those that are the same object, and writes the
/// set.
///
///     ChartCompiler compiler(region, report);
///     for (each source file) kind.read(path, {compiler, compiler.getRegion(), compiler.getPoints(), progress});
///     if (!compiler.write(folder, progress)) ...
///
/// What is read first stays: later records of the same object (both ways of IChartElement::equals are asked) are merged
/// into it; only an airport without ident gives way to one that has it. Lines and areas are one when their records are
/// the same, byte for byte. Keeps all elements in memory.
class ChartCompiler : public IElementSink {
public:
    /// The report outlives the compiler.
    ChartCompiler(Region region, CompileReport& report) : region_(std::move(region)), report_(report) {}

    using IElementSink::add;
    void add(std::unique_ptr<IChartElement> element, const SourceLine& line, const ElementOrigin& origin) override;
    void refuse(const SourceLine& line, const std::string& reason) override { report_.refuse(line, reason); }
    void warn(const SourceLine& line, const std::string& words) override { report_.warn(line, words); }

    const Region& getRegion() const { return region_; }
    PointIndex& getPoints() { return points_; }
    size_t getElementCount() const { return entries_.size(); }
    const IChartElement& getElement(size_t number) const { return *entries_[number].element; }

    /// Writes the files of the set into a folder, which must exist: neighbours on the earth are neighbours in the file.
    /// False when that fails, or when there are more elements than a set can hold.
    bool write(const std::string& folder, IProgressSink& progress);

private:
    struct Entry {
        std::unique_ptr<IChartElement> element;
        SourceLine line; ///< Its file is one of files_.
    };

    /// The number of the element that is the same object, PlaceGrid::None without one.
    size_t findSame(const IChartElement& element) const;
    void mergeInto(size_t number, std::unique_ptr<IChartElement> element, const SourceLine& line);
    /// Whether a line or area has a record that stands there already; notes it otherwise, under the next number.
    bool isRepeated(const IChartElement& element);
    std::string_view keepFileName(std::string_view file);
    void applyAirwayUse();
    std::vector<size_t> orderByPlace() const;

    Region region_;
    CompileReport& report_;
    PointIndex points_;
    PlaceGrid places_;
    std::vector<Entry> entries_;
    std::unordered_multimap<size_t, size_t> records_; ///< Hashes of the records of lines and areas.
    std::deque<std::string> files_;                   ///< Names that don't move.
};

} // namespace skyvane
