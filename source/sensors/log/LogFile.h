#pragma once

#include "sensors/log/FileWindow.h"
#include "sensors/log/LogIndex.h"
#include "sensors/log/LogLayout.h"

#include <string>
#include <vector>

namespace skyvane {

/// A log opened for reading; no recording replaces it meanwhile. One without an index gets one first.
class LogFile {
public:
    struct Record {
        ISensorData::Type type;
        const uint8_t* form; ///< Until the next read.
        uint32_t length;
    };

    /// A missing file, one of a later version, and one whose index isn't usable have no samples.
    explicit LogFile(const std::string& path);

    const LogIndex& index() const { return index_; }
    const std::vector<ISensorData::Type>& types() const { return types_; }
    /// False for a sample whose record isn't whole or has no known type.
    bool read(size_t sample, Record& record);

private:
    LogIndex index_; ///< Before the file, which is opened with it.
    FileWindow file_;
    std::vector<ISensorData::Type> types_;
};

} // namespace skyvane
