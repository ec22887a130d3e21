#pragma once

#include <string>
#include <utility>

namespace skyvane {

/// Which device a byte stream leads to.
class IDeviceDescriptor {
public:
    enum Type { Bluetooth = 0, RS232 = 1 };

    virtual int getType() = 0;
    virtual ~IDeviceDescriptor() = default;
};

/// A serial port.
class RS232Device : public IDeviceDescriptor {
public:
    RS232Device(std::string devicePath, int rate) : path(std::move(devicePath)), baudRate(rate) {}
    int getType() override { return RS232; }

    std::string path;
    int baudRate;
};

/// A Bluetooth device with its address as "00:11:22:33:44:55".
class BluetoothDevice : public IDeviceDescriptor {
public:
    BluetoothDevice(std::string deviceAddress, std::string deviceName)
        : address(std::move(deviceAddress)), name(std::move(deviceName)) {}
    int getType() override { return Bluetooth; }

    std::string address;
    std::string name;
};

} // namespace skyvane
