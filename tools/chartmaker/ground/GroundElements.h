#pragma once

#include "chartmaker/compile/SourceKind.h"
#include "chartmaker/ground/GroundRules.h"
#include "chartmaker/ground/GroundShapes.h"

#include <map>
#include <tuple>

namespace skyvane {

/// Makes the elements of one ground source from its shapes. Areas go to the sink at once, lines by finish(), when all
/// of them are there to be joined.
class GroundElements {
public:
    /// Both outlive it.
    GroundElements(const std::string& path, const SourceContext& context);

    void addArea(const GroundKind& kind, const std::string& name, const GroundPolygon& polygon);
    void addLine(const GroundKind& kind, const std::string& name, GroundLine line);
    /// The edge of an area as a line: only what no line of the feature and no other edge has drawn already, as
    /// countries share their borders.
    void addEdge(const GroundKind& kind, GroundLine ring);
    void finish();
    /// Lines and areas so far.
    long getCount() const { return count_; }

private:
    using LineKind = std::tuple<uint8_t, uint16_t, std::string>; ///< Feature, width, name.

    void addNewEdges();
    double toleranceOf(uint8_t feature) const;
    void tellLoss(const char* what, const std::string& name, const GroundLine& where);
    void addElement(const GroundKind& kind, const std::string& name, GroundLine vertices);

    std::string path_;
    const SourceContext& context_;
    std::vector<GroundBox> boxes_;
    std::map<LineKind, std::vector<GroundLine>> lines_;
    std::map<uint8_t, std::vector<GroundLine>> edges_; ///< By feature.
    long count_ = 0;
};

} // namespace skyvane
