#pragma once

namespace skyvane {

/// Whose box it is. Only Talos makes a difference to what is done with the messages.
enum class GDL90Flavor { Generic, Talos, Levil, UAvionix };

} // namespace skyvane
