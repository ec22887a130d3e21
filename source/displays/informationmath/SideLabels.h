#pragma once

#include "displays/informationmath/LabelSpace.h"
#include "displays/informationmath/SideDrawing.h"

namespace skyvane {

/// The labels of a side view: course points first, then airspaces, those that the course enters before others. None
/// lies over another or over the aircraft, and over the course only where there is no other room; an airspace for whose
/// name there is none keeps its limits, or goes without a label. Keeps its memory.
class SideLabels {
public:
    void add(SideTools& tools, const SideScene& scene);

private:
    static constexpr size_t mostLines = 3;
    struct Label {
        std::array<ShortText, mostLines> lines;
        size_t count = 0;
        uint32_t ink = SideColor::ink;
        uint32_t ground = SideColor::box;
        uint32_t frame = SideColor::dim;
        double frameWidth = 1.5;

        void line(const ShortText& text) { lines[count++] = text; }
    };

    void prepare(const SideScene& scene);
    void avoidCourse(const SideScene& scene);
    void addStop(SideTools& tools, const SideScene& scene, size_t index);
    void addAirspaces(SideTools& tools, const SideScene& scene, bool crossed);
    void addAirspace(SideTools& tools, const SideScene& scene, const SideAirspace& airspace);
    bool placeInBand(SideTools& tools, const SideScene& scene, const Label& label, bool mayOverhang, bool mayHide);
    bool place(SideTools& tools, const SideScene& scene, const Label& label, bool mayHide);
    bool isOverGround(const SideScene& scene, const ShapeRect& place) const;
    void draw(SideTools& tools, const SideScene& scene, const Label& label, const ShapeRect& place);
    ShapePoint sizeOf(SideTools& tools, const SideScene& scene, const Label& label) const;

    LabelSpace space_;
    std::vector<ShapePoint> middles_; ///< Where a label may go, the best place first.
    ShapeRect placed_;
    ShapePath upper_, lower_;
    ShapeRect band_; ///< Around what can be seen of an airspace.
};

} // namespace skyvane
