#pragma once

#include "core/engine/EngineRef.h"
#include "gui/elements/IScrollable.h"

#include <irrlicht.h>

namespace skyvane {

class AggregateGUIElement;
class Context;
class IAggregatableGUIElement;
class ISeekableSensor;
class ScrollBar;

/// The rows of the menu that play back a recorded flight: loop, stop, play or pause, the speed and the place in the
/// flight. They drive the sensor manager's playback and its primary seekable sensor. Main thread only.
class PlaybackRows : public IScrollable {
public:
    /// Heights of a menu row.
    static constexpr int rowCount = 3;

    explicit PlaybackRows(Context* context);
    ~PlaybackRows() override;

    /// `share`: the weight of one row.
    void addTo(AggregateGUIElement& list, float share);
    /// True when the event was of these rows.
    bool processEvent(const irr::SEvent& event);
    /// Once a frame: shows what the playback does.
    void update();

    // IScrollable: the finger on the bar of the place.
    void setScrollShare(float share) override;
    void setScrollBar(ScrollBar* bar) override { bar_ = bar; }

private:
    IAggregatableGUIElement* buttonRow(float share);
    IAggregatableGUIElement* placeRow(float share);
    irr::gui::IGUIButton* addButton(const wchar_t* label);
    void takeSpeed();

    Context* context_;
    irr::gui::IGUIEnvironment* environment_;
    EngineRef<irr::gui::IGUIButton> loop_;
    EngineRef<irr::gui::IGUIButton> stop_;
    EngineRef<irr::gui::IGUIButton> play_;
    EngineRef<irr::gui::IGUIEditBox> speed_;
    ScrollBar* bar_ = nullptr; ///< Of the column; unlinks itself.
};

} // namespace skyvane
