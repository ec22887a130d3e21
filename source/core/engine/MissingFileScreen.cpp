#include "core/engine/MissingFileScreen.h"

#include "core/engine/ShowState.h"
#include "core/time/Time.h"

namespace skyvane {
namespace {

constexpr int FrameMilliseconds = 36;

/// Notes that the user wants to go on.
class AnyKey : public irr::IEventReceiver {
public:
    bool OnEvent(const irr::SEvent& event) override {
        const bool isKey = event.EventType == irr::EET_KEY_INPUT_EVENT && !event.KeyInput.PressedDown;
        const bool isClick =
            event.EventType == irr::EET_MOUSE_INPUT_EVENT && event.MouseInput.Event == irr::EMIE_LMOUSE_LEFT_UP;
        seen = seen || isKey || isClick;
        return true;
    }
    bool seen = false;
};

} // namespace

void showMissingFileScreen(irr::IrrlichtDevice* device, const std::wstring& text) {
    AnyKey key;
    device->setEventReceiver(&key);
    while (!key.seen && device->run()) {
        drawStateScreen(device, text.c_str());
        Delay(FrameMilliseconds);
    }
    device->setEventReceiver(nullptr);
    device->closeDevice();
    while (device->run())
        Delay(1);
}

} // namespace skyvane
