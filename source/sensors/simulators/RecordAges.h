#pragma once

#include "sensors/records/ISensorData.h"

#include <array>

namespace skyvane {

/// When the records of a simulator's sensor were last renewed. Times are of MilliSecs().
class RecordAges {
public:
    /// Data is too old when more than this has passed.
    static constexpr unsigned FreshMilliseconds = 999;

    /// A new update begins: no record has been renewed by it yet.
    void beginUpdate() { updated_.fill(false); }
    void markDatagram(unsigned nowMs) { datagram_ = {true, nowMs}; }
    void markRecord(ISensorData::Type type, unsigned nowMs);

    bool wasUpdated(ISensorData::Type type) const;
    /// False as well for what never came.
    bool isFresh(ISensorData::Type type, unsigned nowMs) const;
    bool isDatagramFresh(unsigned nowMs) const { return datagram_.isFresh(nowMs); }

private:
    struct Arrival {
        bool came = false;
        unsigned timeMs = 0;
        bool isFresh(unsigned nowMs) const;
    };

    Arrival datagram_;
    std::array<Arrival, ISensorData::TypeCount> records_{};
    std::array<bool, ISensorData::TypeCount> updated_{};
};

} // namespace skyvane
