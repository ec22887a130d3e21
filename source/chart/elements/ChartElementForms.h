#pragma once

#include "chart/elements/ChartElement.h"
#include "chart/elements/ElementKinds.h"
#include "chart/elements/IniForms.h"
#include "chart/elements/RecordForms.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace skyvane {

template <class Kind, IChartElement::Type kindType>
void ChartElement<Kind, kindType>::write(std::ostream& out) const {
    RecordWriter form;
    form.template number<int32_t>(kindType);
    Kind::record(self(), form);
    out.write(form.bytes().data(), static_cast<std::streamsize>(form.bytes().size()));
}

template <class Kind, IChartElement::Type kindType>
bool ChartElement<Kind, kindType>::readFromBuffer(const char* bytes, unsigned& position, unsigned length) {
    const unsigned begin = std::min(position, length);
    RecordReader form(bytes + begin, length - begin);
    Kind read;
    Kind::record(read, form);
    if (form.fail()) {
        setDefaults();
        return false;
    }
    self() = std::move(read);
    self().derive();
    position += static_cast<unsigned>(form.size());
    return true;
}

template <class Kind, IChartElement::Type kindType>
void ChartElement<Kind, kindType>::setFromIni(IniFile* ini) {
    setDefaults();
    IniReader form(*ini);
    Kind::document(self(), form);
    self().derive();
}

template <class Kind, IChartElement::Type kindType>
void ChartElement<Kind, kindType>::writeToIni(IniFile* ini) const {
    IniWriter form(*ini);
    form.text("Type", elementKinds[kindType].descriptor);
    Kind::document(self(), form);
}

template <class Kind, IChartElement::Type kindType>
void ChartElement<Kind, kindType>::setDefaults() {
    self() = Kind();
}

} // namespace skyvane
