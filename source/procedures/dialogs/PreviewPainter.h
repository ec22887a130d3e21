#pragma once

#include "displays/instruments/PanelTexture.h"
#include "procedures/preview/CoursePicture.h"
#include "procedures/preview/RunwayArrow.h"

#include <irrlicht.h>

namespace skyvane {

class Context;

/// Draws what previews of procedures consist of, in pixels of the screen. Its pictures are loaded with the first use.
/// Main thread only.
class PreviewPainter {
public:
    using Rect = irr::core::rect<int>;
    /// The side of symbols as a share of a picture's.
    static constexpr double LargeShare = 0.2, SmallShare = 0.13;

    explicit PreviewPainter(Context& context) : context_(context) {}

    /// The element of the charts with that id, as its renderer sketches it, in the middle of the picture.
    void drawElement(int id, const Rect& rect);
    /// The place where the aircraft is, if anybody knows it; on the edge of the picture when it is beyond.
    void drawAircraft(const PreviewFrame& frame, double share = LargeShare);
    void drawArrow(const RunwayArrow& arrow, const Rect& rect);
    void drawCourse(const CoursePicture& course);
    void drawLine(PreviewFrame::Point from, PreviewFrame::Point to, int width, irr::video::SColor color);
    /// The fix of a procedure.
    void drawFix(PreviewFrame::Point place);

private:
    void load();

    Context& context_;
    PanelTexture aircraft_;
    PanelTexture arrow_;
    PanelTexture line_;
    bool loaded_ = false;
};

} // namespace skyvane
