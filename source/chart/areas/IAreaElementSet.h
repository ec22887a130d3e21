#pragma once

#include <memory>
#include <string>

namespace skyvane {

class IChartElement;

/// What the acceleration data of the area tree needs of a chart set.
class IAreaElementSet {
public:
    /// The set's folder, without a slash at its end.
    virtual std::string getLocation() const = 0;
    virtual std::string getAreaName() const = 0;
    /// Reads an element of the set from disk, past any cache; null when there is none that can be read.
    virtual std::unique_ptr<IChartElement> loadChartElement(int index) = 0;
    virtual ~IAreaElementSet() = default;
};

} // namespace skyvane
