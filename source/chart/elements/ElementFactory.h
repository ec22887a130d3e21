#pragma once

#include "chart/elements/IChartElementFactory.h"

#include <array>

namespace skyvane {

/// The part of a factory that needs no screen: it makes elements; its edit() does nothing.
class ElementFactory : public IChartElementFactory {
public:
    explicit ElementFactory(IChartElement::Type type) : type_(type) {}

    std::unique_ptr<IChartElement> Create(IIndexCorrectionCallback* callback) const override;
    void edit(IChart*, bool, int, ChartPosition*) override {}
    std::string getName() const override;
    std::string getStringDescriptor() const override;

private:
    IChartElement::Type type_;
};

using ElementFactories = std::array<std::unique_ptr<IChartElementFactory>, IChartElement::TypeCount>;

/// One of each kind, by type value.
ElementFactories makeElementFactories();

/// Their factories by type value, whatever their order; null for a kind that has none. Made from the descriptors, and
/// good as long as the factories live.
using FactoriesByType = std::array<IChartElementFactory*, IChartElement::TypeCount>;
FactoriesByType sortByType(const ElementFactories& factories);

/// A new element of a kind, null for a number that is none.
std::unique_ptr<IChartElement> createChartElement(int32_t type);

} // namespace skyvane
