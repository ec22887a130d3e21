#pragma once

#include "sensors/transport/IDeviceDescriptor.h"

#include <vector>

namespace skyvane {

class Context;
class IniFile;

/// What the user sees of Bluetooth: a search, and a try whether a device answers. Both take their time on a thread of
/// their own while the frames go on; the back key ends the wait. Main thread only.

/// Searches and replaces the devices by those found. False, with a word to the user, when there are none, when the
/// search failed or was ended.
bool runBluetoothDiscovery(Context* context, std::vector<BluetoothDevice>& devices);

/// Connects to the device once. False, with a word to the user, when that fails; null is no device selected.
bool runBTConnectionCheck(Context* context, const BluetoothDevice* device);

/// The device of a document like data/extSensorConfig.ini (keys btDevice and btAddress): none or one.
std::vector<BluetoothDevice> initFromExtConfig(IniFile& document);
void storeExtConfig(IniFile& document, const BluetoothDevice& device);

/// "name | address".
std::wstring bluetoothLabel(const BluetoothDevice& device);

} // namespace skyvane
