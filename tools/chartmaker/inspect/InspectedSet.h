#pragma once

#include "chart/elements/IChartElement.h"
#include "chart/store/ElementFiles.h"
#include "chart/store/SetDescription.h"

#include <memory>
#include <string>
#include <vector>

namespace skyvane {

/// A chart set as it lies on the disk, for people who look into it: good or broken.
class InspectedSet {
public:
    /// `path` is the set's description (.sci), or its folder alone.
    explicit InspectedSet(const std::string& path);

    const SetDescription& getDescription() const { return description_; }
    const std::string& getFolder() const { return folder_; }
    /// What is wrong with the set as a whole, in words; empty when nothing is.
    std::string getTrouble() const;
    int getCount() const { return files_.getCount(); }
    /// Null for an element that can't be read.
    std::unique_ptr<IChartElement> load(int index) const;

private:
    bool isDescribed_;
    SetDescription description_;
    std::string folder_;
    ElementFilesReader files_;
    mutable std::vector<char> record_;
};

} // namespace skyvane
