#pragma once

#include "core/engine/OwnEvents.h"

namespace skyvane {

/// What the system tells the program as a whole.
enum class ApplicationEvent : irr::u32 { Unknown = 0, MemoryWarning = 1 };

irr::SEvent packApplicationEvent(ApplicationEvent kind);
/// Unknown for any other event.
ApplicationEvent unpackApplicationEvent(const irr::SEvent& event);

} // namespace skyvane
