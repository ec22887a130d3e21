#pragma once

#include "procedures/dialogs/PreviewPainter.h"
#include "procedures/framework/IndicatedProcedure.h"

#include <optional>
#include <vector>

namespace skyvane {

/// The picture of a path: what it leads along, the path with its direction, its fixes, and the aircraft. Laid out anew
/// only when it changes. Main thread only.
class CoursePreview {
public:
    /// A line of the country: a runway, an airway.
    struct Guide {
        ChartPosition from;
        ChartPosition to;
        int width; ///< pixels
        irr::video::SColor color;
        bool isOverPath = false;
    };
    struct Scene {
        CourseList course;
        std::vector<ChartPosition> fixes;
        std::vector<Guide> guides;       ///< Drawn as far as they lie on the picture.
        std::vector<ChartPosition> seen; ///< Shall be on the picture, beside the path and the fixes.
    };

    explicit CoursePreview(Context& context) : painter_(context) {}

    void show(Scene scene);
    /// What is shown is of another line than this one, or a second old where its content follows the aircraft.
    bool isDue(const IndicatedProcedure& line, bool followsAircraft);
    void paint(const irr::core::rect<int>& rect);

private:
    void layOut(const irr::core::rect<int>& rect);
    void drawGuides(bool overPath);

    PreviewPainter painter_;
    Scene scene_;
    std::optional<PreviewFrame> frame_; ///< Nothing until the scene is laid out.
    CoursePicture picture_;
    int dueIndex_ = 0;
    unsigned dueMilliseconds_ = 0;
    bool isShown_ = false;
};

} // namespace skyvane
