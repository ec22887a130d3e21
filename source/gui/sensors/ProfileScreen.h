#pragma once

#include "core/engine/EngineRef.h"
#include "sensors/profiles/IConfigOverride.h"

#include <irrlicht.h>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class AggregateGUIElement;
class Context;
class IAggregatableGUIElement;
class IniFile;

/// The screen of the start on which the pilot chooses a sensor profile, or keeps the settings of the last time.
///
///     ProfileScreen(context, document, profiles).run();
///
/// Main thread only.
class ProfileScreen {
public:
    using Profiles = std::vector<std::unique_ptr<IConfigOverride>>;

    /// All outlive the screen; the context runs frames already.
    ProfileScreen(Context* context, IniFile& document, const Profiles& profiles);
    ~ProfileScreen();
    ProfileScreen(const ProfileScreen&) = delete;
    ProfileScreen& operator=(const ProfileScreen&) = delete;

    /// Waits for the pilot. A profile that was chosen has changed the document, which is saved as data/config.ini;
    /// where that fails, the log tells, and the document in memory holds the choice.
    void run();

private:
    struct Row {
        IConfigOverride* profile;
        irr::gui::IGUIButton* choose;
        irr::gui::IGUIButton* details;
    };

    void addHead(const irr::core::rect<irr::s32>& place);
    void addRows(const irr::core::rect<irr::s32>& place);
    void addRow(AggregateGUIElement& list, IConfigOverride& profile, float share);
    IAggregatableGUIElement* nameCell(const Row& row) const;
    std::wstring nameOf(IConfigOverride& profile) const;
    bool hasWordsBelow(IConfigOverride& profile) const;
    irr::gui::IGUIButton* addButton(const std::wstring& label, const char* style) const;
    void onEvent(const irr::SEvent& event);
    void choose(IConfigOverride& profile);
    void showDetails(IConfigOverride& profile) const;
    void keepBackButton() const;

    Context* context_;
    irr::gui::IGUIEnvironment* environment_;
    IniFile& document_;
    const Profiles& profiles_;
    EngineRef<irr::gui::IGUIWindow> window_;
    irr::gui::IGUIButton* useLast_ = nullptr;
    irr::gui::IGUIButton* help_ = nullptr;
    std::vector<Row> rows_;
    bool open_ = true;
};

} // namespace skyvane
