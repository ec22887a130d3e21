#pragma once

namespace skyvane {

/// A line in the log, with what to do, when no network but this computer's own is there: for who begins to listen to
/// another device. A cable or a Wi-Fi that comes later is heard all the same.
void tellMissingNetwork();

} // namespace skyvane
