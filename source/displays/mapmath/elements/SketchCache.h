#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "displays/mapmath/elements/AirportSketchPlan.h"

#include <cstring>

namespace skyvane {

/// Tells apart what sketches show: FNV-1a over all that goes into one.
class SketchKey {
public:
    explicit SketchKey(const SketchFrame& frame) {
        add(frame.size.Width);
        add(frame.size.Height);
        add(frame.metric);
    }

    template <class Number>
    void add(const Number& number) {
        unsigned char bytes[sizeof(Number)];
        std::memcpy(bytes, &number, sizeof bytes);
        for (const unsigned char byte : bytes)
            key_ = (key_ ^ byte) * 1099511628211ull;
    }
    void add(const std::string& text) {
        for (const char letter : text)
            add(letter);
        add(text.size());
    }
    void add(const ChartPosition& position) {
        add(position.longitude);
        add(position.latitude);
    }
    void add(const std::vector<ChartPosition>& vertices) {
        for (const ChartPosition& vertex : vertices)
            add(vertex);
        add(vertices.size());
    }
    uint64_t get() const { return key_; }

private:
    uint64_t key_ = 14695981039346656037ull;
};

/// The last sketch that was drawn: displays draw the same one again and again.
class SketchCache {
public:
    /// The plan of that key, made anew by make() when it is another than before.
    template <class Make>
    const SketchPlan& get(const SketchKey& key, Make make) {
        if (!isFilled_ || key.get() != key_)
            plan_ = make();
        isFilled_ = true;
        key_ = key.get();
        return plan_;
    }

private:
    bool isFilled_ = false;
    uint64_t key_ = 0;
    SketchPlan plan_;
};

} // namespace skyvane
