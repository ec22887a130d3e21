#pragma once

#include "gui/windows/GUI.h"
#include "sensors/transport/IDeviceDescriptor.h"

#include <irrlicht.h>
#include <memory>
#include <vector>

namespace skyvane {

class Context;

/// The window in which the pilot chooses a Bluetooth receiver: the one of the last time, or one that a search finds.
/// Main thread only.
class BluetoothChoice {
public:
    /// The context outlives it, and runs frames already.
    explicit BluetoothChoice(Context* context);
    ~BluetoothChoice();
    BluetoothChoice(const BluetoothChoice&) = delete;
    BluetoothChoice& operator=(const BluetoothChoice&) = delete;

    /// Waits for the pilot. True when he chose a device that answers; it stands in data/extSensorConfig.ini then.
    bool run();

private:
    void onEvent(const irr::SEvent& event);
    void discover();
    void accept();
    void list();
    irr::gui::IGUIListBox* listBox() const { return gui_->get<irr::gui::IGUIListBox>("lbtList"); }

    Context* context_;
    irr::gui::IGUIWindow* window_ = nullptr;
    std::unique_ptr<GUI> gui_;
    std::vector<BluetoothDevice> devices_;
    bool open_ = true;
    bool accepted_ = false;
};

} // namespace skyvane
