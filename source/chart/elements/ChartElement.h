#pragma once

#include "chart/elements/IChartElement.h"

namespace skyvane {

/// What all kinds share: both stored forms, from the lists of fields that the kind gives as
///
///     template <class Self, class Form> static void record(Self& self, Form& form);      // binary
///     template <class Self, class Form> static void document(Self& self, Form& form);    // INI
///     void derive();                                                                     // after both were read
///
/// The definitions stand in ChartElementForms.h, which a kind's source includes to instantiate them.
template <class Kind, IChartElement::Type kindType>
class ChartElement : public IChartElement {
public:
    void write(std::ostream& out) const override;
    bool readFromBuffer(const char* bytes, unsigned& position, unsigned length) override;
    void setFromIni(IniFile* ini) override;
    void writeToIni(IniFile* ini) const override;
    void setDefaults() override;
    Type getType() const override { return kindType; }

protected:
    /// The other as this kind, null when it is another.
    static const Kind* sameKind(const IChartElement* other) {
        return other && other->getType() == kindType ? static_cast<const Kind*>(other) : nullptr;
    }
    void derive() {}

private:
    Kind& self() { return static_cast<Kind&>(*this); }
    const Kind& self() const { return static_cast<const Kind&>(*this); }
};

} // namespace skyvane
