#pragma once

#include "chart/elements/IChartElement.h"
#include "chartmaker/compile/SourceLine.h"

#include <memory>
#include <string>

namespace skyvane {

/// What a source says about the place of an element beyond its coordinates; empty where it says nothing.
struct ElementOrigin {
    std::string country;    ///< ISO code.
    std::string icaoRegion; ///< The two letters before the names of airports, which tell fixes of one ident apart.
};

/// Where a reader of source files puts what it finds, line by line.
class IElementSink {
public:
    /// An element that the line describes. What lies outside the region is left out, and a record of the same object
    /// (see IChartElement::equals) becomes part of the one that is there.
    virtual void add(std::unique_ptr<IChartElement> element, const SourceLine& line, const ElementOrigin& origin) = 0;
    void add(std::unique_ptr<IChartElement> element, const SourceLine& line) { add(std::move(element), line, {}); }
    /// The line gives no element; `reason` tells a person why.
    virtual void refuse(const SourceLine& line, const std::string& reason) = 0;
    /// The line is used, but not all as it stands.
    virtual void warn(const SourceLine& line, const std::string& words) = 0;
    virtual ~IElementSink() = default;
};

} // namespace skyvane
