#pragma once

#include "chart/areas/IAreaElementSet.h"
#include "chart/elements/ElementFactory.h"
#include "chart/elements/IIndexCorrectionCallback.h"
#include "chart/store/ElementFiles.h"
#include "chart/store/SetDescription.h"

namespace skyvane {

class IChartElementSource;

/// One installed chart set: reads its elements from disk, each by one read. It keeps none of them; Elements.dat stays
/// open. Main thread only.
///
/// What can't be read is absent. The log names the first MostNamed of a set and only counts the rest.
class SubChart final : public IAreaElementSet, public IIndexCorrectionCallback {
public:
    static constexpr int MostNamed = 20;

    /// `folder` is that of the set, without a slash at its end; `index` is its place among the sets of its vendor. The
    /// chart and the factories outlive it.
    SubChart(SetDescription description, std::string folder, int index, const FactoriesByType& factories,
             IChartElementSource& chart);
    ~SubChart() override;

    int getIndex() const { return index_; }
    int getVersion() const { return description_.chartVersion; }
    const std::string& getVendor() const { return description_.vendor; }
    /// Its files are of another version of the program.
    bool isFormatUpdateRequired() const { return files_.getState() == ElementFilesReader::State::OtherVersion; }
    /// Nobody knows which of its elements is which: the program must not go on with it.
    bool isUnusable() const { return files_.getState() == ElementFilesReader::State::DecreasingOffsets; }
    int getElementCount() const { return files_.getCount(); }
    /// Reads from disk so far.
    unsigned long getReadCount() const { return files_.getReadCount(); }

    std::string getLocation() const override { return folder_; }
    std::string getAreaName() const override { return description_.areaName; }
    std::unique_ptr<IChartElement> loadChartElement(int index) override;

    /// The id of this set's element; negative ones stay.
    void OnIndexCorrect(int& out, int stored) override;
    IChartElement* getChartElementWhileLoading(int id) override;

private:
    void noteAbsent(int index, const char* why);

    SetDescription description_;
    std::string folder_;
    int index_;
    const FactoriesByType& factories_;
    IChartElementSource& chart_;
    ElementFilesReader files_;
    std::vector<char> record_; ///< For all reads: they allocate nothing of their own.
    unsigned long absent_ = 0;
};

} // namespace skyvane
