#include "core/engine/ApplicationEvents.h"

namespace skyvane {

irr::SEvent packApplicationEvent(ApplicationEvent kind) {
    irr::SEvent event{};
    event.EventType = ApplicationInputEvent;
    event.JoystickEvent.ButtonStates = static_cast<irr::u32>(kind);
    return event;
}

ApplicationEvent unpackApplicationEvent(const irr::SEvent& event) {
    const bool isWarning = event.EventType == ApplicationInputEvent &&
                           event.JoystickEvent.ButtonStates == static_cast<irr::u32>(ApplicationEvent::MemoryWarning);
    return isWarning ? ApplicationEvent::MemoryWarning : ApplicationEvent::Unknown;
}

} // namespace skyvane
