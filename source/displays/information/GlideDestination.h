#pragma once

#include "displays/gauges/ShortText.h"

#include <string>

namespace skyvane {

class Context;
struct GlideSources;

/// What a glide computer must know of the place that the current procedure leads to. The charts are asked only when
/// that is another one, or after forget(). Main thread only.
class GlideDestination {
public:
    explicit GlideDestination(Context& context) : context_(context) {}

    /// Procedures or charts have changed.
    void forget() { index_ = unread; }
    /// Fills in sensors, distance and elevation; the glide ratio is the aircraft's.
    GlideSources read();
    /// Of the airport; empty for another place.
    const ShortText& getName() const { return name_; }

private:
    static constexpr long long unread = 1LL << 40, noElement = unread + 1; ///< No index of an element.

    void readElement(int chartIndex);

    Context& context_;
    long long index_ = unread;
    ShortText name_;
    bool hasElevation_ = false;
    double elevationFeet_ = 0.0;
};

} // namespace skyvane
