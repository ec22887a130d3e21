#include "chart/elements/ElementFactory.h"
#include "core/ini/IniFile.h"

#include <cstdlib>
#include <cstring>
#include <sstream>

using namespace skyvane;

namespace {

std::string recordOf(const IChartElement& element) {
    std::ostringstream out;
    element.write(out);
    return out.str();
}

void useAll(const IChartElement& element) {
    char bytes[IChartElement::StaticDataSize];
    element.writeStaticData(bytes);
    for (const bool metric : {false, true}) {
        element.createHTI(metric);
        element.getIndicatedLabel(metric, metric);
    }
    for (int i = -1; i <= element.getTrieInsertionNameCount(); ++i)
        element.getTrieInsertionName(i);
    element.getAreaDefiningPoint(element.getAreaDefiningPointCount());
    element.getComFrequencies();
    element.getNavFrequencies();
}

} // namespace

/// Any bytes as a record behind its type value: it is absent, or survives all its forms.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto element = size == 0 ? nullptr : createChartElement(data[0]);
    if (!element)
        return 0;
    unsigned position = 1;
    if (!element->readFromBuffer(reinterpret_cast<const char*>(data), position, static_cast<unsigned>(size))) {
        // As a document instead.
        IniFile document;
        document.setFromString(std::string(reinterpret_cast<const char*>(data + 1), size - 1).c_str());
        element->setFromIni(&document);
    }
    useAll(*element);
    const std::string record = recordOf(*element);
    const auto again = createChartElement(data[0]);
    position = 4;
    if (!again->readFromBuffer(record.data(), position, static_cast<unsigned>(record.size())) ||
        position != record.size() || recordOf(*again) != record)
        std::abort();
    again->merge(element.get());
    again->equals(element.get());
    useAll(*again);
    return 0;
}
