#pragma once

#include <irrlicht.h>

namespace skyvane {

/// What a widget family keeps with the skin: found again by its slot, and dropped with the skin.
class ISkinExtension : public irr::IReferenceCounted {};

} // namespace skyvane
