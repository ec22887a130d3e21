#pragma once

#include "chart/elements/IChartElement.h"

#include <memory>

namespace skyvane {

struct ChartPosition;
class IChart;
class IIndexCorrectionCallback;

/// Makes the elements of one kind, and edits the user's own.
class IChartElementFactory {
public:
    /// A new element with its defaults. A kind that stores ids of other elements turns them by the callback when it is
    /// read; none of today's does, so that null will do.
    virtual std::unique_ptr<IChartElement> Create(IIndexCorrectionCallback* callback) const = 0;
    /// Lets the user edit a custom element, or make one at the position; returns when he is done.
    virtual void edit(IChart*, bool isNew, int id, ChartPosition* position) = 0;
    /// For people.
    virtual std::string getName() const = 0;
    /// What documents hold under "Type".
    virtual std::string getStringDescriptor() const = 0;
    virtual ~IChartElementFactory() = default;
};

} // namespace skyvane
