#pragma once

#include "displays/instruments/DialFlagView.h"
#include "displays/instruments/DialText.h"
#include "displays/instruments/PanelTexture.h"
#include "displays/vision/bars/BarWords.h"
#include "displays/visionmath/bars/BarCanvas.h"

#include <array>
#include <vector>

namespace skyvane {

class Context;
class Drawer2D;

/// Brings a canvas of bars onto the glass, in a handful of draws. Main thread only.
class BarPainter {
public:
    explicit BarPainter(Context* context);
    void paint(const BarCanvas& canvas);

private:
    void paintPictures(const std::vector<BarPicture>& pictures);
    void paintPanes(const std::vector<BarPane>& panes);
    void paintCross(const BarCanvas::Cross& cross, DialText& name);

    Context* context_;
    Drawer2D* drawer_;
    std::array<PanelTexture, BarPicture::kinds> images_;
    DialFlagView flagView_;
    BarWords words_;
    std::array<DialText, 5> names_; ///< Of the crosses of a frame.
};

} // namespace skyvane
