#include "chart/elements/FrequencyRows.h"

#include "core/text/Numbers.h"

namespace skyvane {
namespace {

/// Channels of the airband end at thousandths; navigation aids are told in hundredths.
std::string megahertz(const Frequency& frequency) {
    const int decimals = frequency.kilohertz % 10 == 0 ? 2 : 3;
    return toFixedText(frequency.megahertz + frequency.kilohertz / 1000.0, decimals);
}

} // namespace

std::vector<std::string> frequencyRows(const FrequencyMap& frequencies) {
    std::vector<std::string> rows;
    for (const auto& service : frequencies) {
        if (service.second.empty())
            rows.push_back(service.first);
        for (const Frequency& frequency : service.second)
            rows.push_back((service.first.empty() ? "" : service.first + "  ") + megahertz(frequency));
    }
    return rows;
}

} // namespace skyvane
