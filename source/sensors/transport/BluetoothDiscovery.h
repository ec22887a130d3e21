#pragma once

#include "sensors/transport/IDeviceDescriptor.h"

#include <vector>

namespace skyvane {

/// What a search for Bluetooth devices came to.
enum BluetoothSearchResult { BLUETOOTH_FOUND = 0, BLUETOOTH_NO_ADAPTER = 1, BLUETOOTH_SEARCH_FAILED = 2 };

/// Looks for the Bluetooth devices around, which blocks for about ten seconds. A device that doesn't tell its name is
/// called "[unknown]". The result is a BluetoothSearchResult; without an adapter that is switched on, at once.
int BluetoothDiscovery(std::vector<BluetoothDevice>* devices);

} // namespace skyvane
