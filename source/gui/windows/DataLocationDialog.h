#pragma once

#include "core/files/DataPaths.h"
#include "core/files/MountPoint.h"
#include "gui/windows/GUI.h"

#include <memory>
#include <optional>
#include <vector>

namespace skyvane {

class IFrameRunner;

/// Asks at the first start where logs, terrain, image charts and chart data shall lie. Hidden until run(). Main thread
/// only.
class DataLocationDialog {
public:
    /// The environment outlives the dialog.
    explicit DataLocationDialog(irr::gui::IGUIEnvironment* environment);
    ~DataLocationDialog();
    DataLocationDialog(const DataLocationDialog&) = delete;
    DataLocationDialog& operator=(const DataLocationDialog&) = delete;

    /// Offers the folders, the first one chosen, until "Ok"; each root with a trailing slash. Nothing when the window
    /// was closed meanwhile.
    std::optional<DataPaths> run(IFrameRunner& frames, const std::list<MountPoint>& folders);

private:
    struct Choice {
        irr::gui::IGUIComboBox* box;
        irr::gui::IGUIElement* freeText;
    };

    Choice choice(const char* box, const char* freeText) const;
    void updateUsableDirs(const std::list<MountPoint>& folders);
    void showFreeSpace(const Choice& choice);
    void onEvent(const irr::SEvent& event);
    std::string rootOf(const Choice& choice) const;
    void accept();
    void tell(const std::wstring& text);

    irr::gui::IGUIEnvironment* environment_;
    irr::gui::IGUIWindow* window_;
    std::unique_ptr<GUI> gui_;
    std::vector<Choice> choices_; ///< Logs, terrain, images, charts.
    std::vector<MountPoint> folders_;
    bool open_ = false;
};

} // namespace skyvane
