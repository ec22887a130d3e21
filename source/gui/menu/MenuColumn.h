#pragma once

#include "core/engine/EngineRef.h"
#include "gui/menu/MenuRow.h"

#include <irrlicht.h>
#include <memory>
#include <utility>
#include <vector>

namespace skyvane {

class AggregateGUIElement;
class Context;
class PlaybackRows;

/// The opened menu: a column of rows above the bar, at the left edge, that a finger scrolls where the screen has no
/// room for all. Stands while it lives; what is shown is decided when it is made. Main thread only.
class MenuColumn {
public:
    MenuColumn(Context* context, bool useColoredButtons);
    ~MenuColumn();
    MenuColumn(const MenuColumn&) = delete;
    MenuColumn& operator=(const MenuColumn&) = delete;

    /// The row whose button the event clicks; null for none.
    const MenuRow* clickedBy(const irr::SEvent& event) const;
    /// True when the event was one of the playback rows'.
    bool processPlayback(const irr::SEvent& event);
    /// Once a frame.
    void update();
    irr::core::rect<int> getRect() const { return pane_->getAbsolutePosition(); }
    void setEnabled(bool enabled);

private:
    void addRows(AggregateGUIElement& list, bool useColoredButtons, float share);
    void addScrollBar(AggregateGUIElement& list, int width);

    Context* context_;
    irr::gui::IGUIEnvironment* environment_;
    EngineRef<irr::gui::IGUIElement> pane_;
    std::unique_ptr<PlaybackRows> playback_; ///< Null without a sensor that plays back.
    std::vector<std::pair<irr::gui::IGUIButton*, const MenuRow*>> rows_;
};

} // namespace skyvane
