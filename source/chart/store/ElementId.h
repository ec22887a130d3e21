#pragma once

namespace skyvane {

// The id by which a chart names an element everywhere: a signed number of 32 bits.
//
//   negative       a custom element: -1, -2, ... down to minus their number
//   bits 30 to 23  index of the chart set within the current vendor
//   bits 22 to 0   index of the element in that set

constexpr int ElementIndexMask = 0x7fffff;
constexpr int SubChartShift = 23;
constexpr int SubChartMask = 0x7f800000;
/// So many sets of a vendor, and elements of a set, have an id.
constexpr int MaxSubCharts = 256;
constexpr int MaxElementsOfSubChart = ElementIndexMask + 1;

/// The id of an element of a set; bits beyond both ranges are cut off.
constexpr int makeElementId(int subChartIndex, int elementIndex) {
    return (elementIndex & ElementIndexMask) |
           static_cast<int>((static_cast<unsigned>(subChartIndex) << SubChartShift) & unsigned(SubChartMask));
}

constexpr bool isCustomElement(int id) {
    return id < 0;
}

/// Of an id that isn't negative.
constexpr int getSubChartIndex(int id) {
    return (id & SubChartMask) >> SubChartShift;
}
constexpr int getElementIndex(int id) {
    return id & ElementIndexMask;
}

/// The id of the custom element that comes next when there are `count` of them.
constexpr int nextCustomElementId(int count) {
    return ~count;
}

} // namespace skyvane
