#pragma once

#include <irrlicht.h>

namespace skyvane {

/// Kinds of event that the engine lacks. They travel its road (postEventFromUser to the receivers) with the bytes of
/// the joystick member as payload; the engine's GUI and scene ignore them.
constexpr irr::EEVENT_TYPE TouchInputEvent = static_cast<irr::EEVENT_TYPE>(irr::EET_USER_EVENT + 1);
constexpr irr::EEVENT_TYPE ApplicationInputEvent = static_cast<irr::EEVENT_TYPE>(irr::EET_USER_EVENT + 2);

} // namespace skyvane
