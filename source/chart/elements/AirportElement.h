#pragma once

#include "chart/elements/AirportSketch.h"
#include "chart/elements/ChartElement.h"
#include "chart/elements/Runway.h"

#include <memory>

namespace skyvane {

/// An airport or heliport with its runways, approaches and frequencies.
class AirportElement : public ChartElement<AirportElement, IChartElement::AIRPORT> {
public:
    static constexpr int32_t UnknownElevation = -6000;

    int getAccuracy() const override { return accuracy; }
    void merge(const IChartElement* other) override;
    bool equals(const IChartElement* other) const override;
    ChartPosition getPosition() const override { return position; }
    const std::string& getRemarks() const override { return remarks; }
    std::string getIndicatedLabel(bool full, bool metric) const override;
    int getTrieInsertionNameCount() const override;
    std::string getTrieInsertionName(int index) const override;
    FrequencyMap getComFrequencies() const override { return frequencies; }
    /// One entry for each approach of each runway end.
    FrequencyMap getNavFrequencies() const override;
    std::string createHTI(bool metric) const override;
    /// Bits of byte 1: 0 closed, 1 heliport, 2 private, 3 glider, 4 towered, 5 military, 6 without runways.
    void writeStaticData(char* out) const override;

    /// Makes the names of the index anew: the ident, the name, and the words of both, each once. Happens by itself when
    /// ident and name have changed.
    void recalculateInsertionNames() const;
    /// The plan of the runways as they were read; null in an element that wasn't read from either form.
    const AirportSketch* getSketch() const { return sketch_.get(); }

    ChartPosition position; ///< The reference point.
    std::string remarks;
    std::vector<Runway> runways;
    int32_t elevationFeet = UnknownElevation;
    std::string ident = "0000"; ///< May be empty.
    std::string name = "unnamed";
    std::string fuel;
    FrequencyMap frequencies;
    bool isClosed = false;
    bool isHeliport = false;
    bool isPrivate = false;
    bool hasGliders = false; ///< Or ultralights.
    bool isTowered = false;
    bool isMilitary = false;
    int32_t trafficPatternFeet = -1; ///< Altitude, negative when unknown.
    uint8_t accuracy = 0;

private:
    friend ChartElement;
    template <class Self, class Form>
    static void record(Self& self, Form& form);
    template <class Self, class Form>
    static void document(Self& self, Form& form);
    void derive();

    const std::vector<std::string>& insertionNames() const;

    mutable std::vector<std::string> insertionNames_; ///< Of namedIdent_ and namedName_.
    mutable std::string namedIdent_;
    mutable std::string namedName_;
    std::unique_ptr<AirportSketch> sketch_;
};

} // namespace skyvane
