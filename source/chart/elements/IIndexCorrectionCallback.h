#pragma once

namespace skyvane {

class IChartElement;

/// What a chart set does for its files' readers: turns the ids stored in them, which count the set's own elements,
/// into those of the merged chart.
class IIndexCorrectionCallback {
public:
    virtual void OnIndexCorrect(int& out, int stored) = 0;
    /// The element of a merged id, null without one; owned by the chart's cache and valid until its next use.
    virtual IChartElement* getChartElementWhileLoading(int id) = 0;

protected:
    ~IIndexCorrectionCallback() = default;
};

} // namespace skyvane
