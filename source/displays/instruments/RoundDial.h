#pragma once

#include "displays/IPanel.h"
#include "displays/gauges/DialFlag.h"
#include "displays/gauges/DialFrame.h"
#include "displays/gauges/SensorReading.h"
#include "displays/instruments/DialFlagView.h"
#include "displays/instruments/PanelTexture.h"
#include "sensors/records/ISensorData.h"

#include <irrlicht.h>

namespace skyvane {

class Drawer2D;
class SensorManager;

/// The frame of every round dial: squares its rectangle, asks for the value of this frame, draws the layers, the bezel
/// and the flag that tells how far to believe it.
///
/// A dial reads, decides by readValue() what the evidence is, and draws; it keeps nothing but what the user set on it.
/// When one of its images is missing, its cross stands in the place of the dial.
class RoundDial : public IPanel {
public:
    void OnPageChange() override {}
    void render(irr::core::rect<int> rect) override;
    bool processEvent(irr::SEvent) override { return true; }

protected:
    explicit RoundDial(Context* context);

    /// Reads the records of this frame. A value that is shown must have its evidence in the result.
    virtual DialEvidence readValue() = 0;
    /// Before the dial's viewport is set: the place to draw into targets.
    virtual void prepare(const DialFrame&) {}
    /// The layers under the bezel. A failed value must not be drawn, nor anything that looks like one.
    virtual void drawLayers(const DialFrame& frame, DialFlag flag) = 0;
    virtual void drawAboveBezel(const DialFrame&, DialFlag) {}
    /// In screen coordinates, after the dial; only while the value is shown.
    virtual void drawTexts(const irr::core::rect<int>&) {}
    virtual const wchar_t* failureName() const = 0;

    /// A path below the program's home, such as media/alt_bg.png. A missing file is logged and fails the dial.
    PanelTexture loadImage(const char* path);

    /// An image that a dial can do without.
    PanelTexture loadOrnament(const char* path) const;

    /// The record and the trust in it, or null; its numbers are still to be looked at.
    template <class Record>
    Record* read(ISensorData::Type type, DialEvidence& evidence) {
        return readDefault<Record>(*sensors_, type, evidence);
    }

    /// At the size of the face, turned about its centre.
    void drawFace(const PanelTexture& image, const DialFrame& frame, double rotationDegrees) const;
    /// The same for an image that holds only a part of the face, given as fractions of its edge: saves filling the
    /// rest.
    void drawFacePart(const PanelTexture& image, const irr::core::rect<float>& part, const DialFrame& frame,
                      double rotationDegrees) const;
    /// A hand that points up: its image is the middle eighth of the face's width.
    void drawHand(const PanelTexture& image, const DialFrame& frame, double rotationDegrees) const;
    /// Over the whole square.
    void drawSquare(const PanelTexture& image, const DialFrame& frame) const;
    /// The dark ground of a dial whose picture went with its value.
    void drawDarkGround(const DialFrame& frame) const;
    /// Where a part of a face lies, as fractions of the face's edge.
    static irr::core::rect<int> facePart(const irr::core::rect<float>& part, const DialFrame& frame);
    /// A part of the dial has failed.
    void drawCross(const irr::core::rect<int>& rect) { flagView_.drawCross(rect); }
    /// For faces and their fixed scale: yellow when in doubt, dark when failed, white otherwise.
    static irr::video::SColor scaleColor(DialFlag flag);

    Drawer2D* drawer_;
    SensorManager* sensors_;

private:
    bool complete_ = true;
    PanelTexture bezel_;
    DialFlagView flagView_;
};

} // namespace skyvane
