#pragma once

#include "core/system/IFileOperator.h"

namespace skyvane {

/// Adds the size of each entry, and counts it.
class FileSizeCounter : public IFileOperator {
public:
    void OnFileRead(const irr::core::stringc&, const irr::core::stringc&, unsigned size, bool) override {
        size_ += size;
        ++count_;
    }
    unsigned long getSize() const { return size_; }
    unsigned long getCount() const { return count_; }

private:
    unsigned long size_ = 0;
    unsigned long count_ = 0;
};

} // namespace skyvane
