#include "gui/sensors/BluetoothDialogs.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/engine/EngineRef.h"
#include "core/ini/IniFile.h"
#include "core/ini/ReadValue.h"
#include "core/text/Utf8.h"
#include "core/threads/AParallelFunction.h"
#include "gui/windows/CMBox.h"
#include "gui/windows/Questions.h"
#include "gui/windows/WindowTools.h"
#include "sensors/transport/BluetoothDiscovery.h"
#include "sensors/transport/RFCommSocket.h"

namespace skyvane {
namespace {

struct SearchResult : IValue {
    int result = BLUETOOTH_SEARCH_FAILED;
    std::vector<BluetoothDevice> devices;
};

class Search : public AParallelFunction {
public:
    Search() : AParallelFunction(0.0) {}
    ~Search() override { endWork(); }

protected:
    std::unique_ptr<IValue> actualFunction(IValue*) override {
        auto found = std::make_unique<SearchResult>();
        found->result = BluetoothDiscovery(&found->devices);
        return found;
    }
};

struct AddressValue : IValue {
    explicit AddressValue(std::string text) : address(std::move(text)) {}
    std::string address;
};

struct ConnectResult : IValue {
    bool connected = false;
};

class Connect : public AParallelFunction {
public:
    Connect() : AParallelFunction(0.0) {}
    ~Connect() override { endWork(); }

protected:
    std::unique_ptr<IValue> actualFunction(IValue* input) override {
        RFCommSocket socket;
        auto result = std::make_unique<ConnectResult>();
        result->connected = socket.connectSocket(static_cast<AddressValue*>(input)->address);
        return result;
    }
};

/// Shows the text until the work has finished. Null when the user or the end of the program was quicker, or when it
/// couldn't be started.
template <class Result>
Result* waitForWork(Context& context, AParallelFunction& work, std::unique_ptr<IValue> input, const wchar_t* text) {
    if (!work.execute(nullptr, std::move(input)))
        return nullptr;
    const auto box =
        EngineRef<CMBox>::adopt(new CMBox(context.getIrrlichtDevice()->getGUIEnvironment(), nullptr, text, L"", L""));
    ModalLoop loop(*context.getFrames());
    // A box that was answered has left the GUI.
    loop.run([&] { return box->getParent() && !work.isFinished(); });
    if (box->getParent())
        removeWindow(box.get());
    return static_cast<Result*>(work.getResult());
}

} // namespace

bool runBluetoothDiscovery(Context* context, std::vector<BluetoothDevice>& devices) {
    Search search;
    const auto* found =
        waitForWork<SearchResult>(*context, search, nullptr, L"Searching for Bluetooth\u00ae devices. Please wait...");
    if (!found)
        return false;
    if (found->result == BLUETOOTH_NO_ADAPTER)
        tellInBox(*context, L"Error: Bluetooth\u00ae not available or switched off.");
    else if (found->result != BLUETOOTH_FOUND)
        tellInBox(*context, L"Error while searching for devices.");
    else if (found->devices.empty())
        tellInBox(*context, L"No compatible Bluetooth\u00ae devices found.");
    else
        devices = found->devices;
    return found->result == BLUETOOTH_FOUND && !found->devices.empty();
}

bool runBTConnectionCheck(Context* context, const BluetoothDevice* device) {
    if (!device) {
        tellInBox(*context, L"Error: No Bluetooth\u00ae device selected.");
        return false;
    }
    Connect connect;
    const std::wstring label = bluetoothLabel(*device);
    const auto* result = waitForWork<ConnectResult>(*context, connect, std::make_unique<AddressValue>(device->address),
                                                    (L"Connecting to " + label + L". Please wait...").c_str());
    if (result && !result->connected)
        tellInBox(*context, L"Error: Unable to connect to: " + label);
    return result && result->connected;
}

std::vector<BluetoothDevice> initFromExtConfig(IniFile& document) {
    const std::string address = readValue(document, "", "btAddress");
    if (address.empty())
        return {};
    const std::string name = readValue(document, "", "btDevice", "[unknown]");
    return {BluetoothDevice(address, name)};
}

void storeExtConfig(IniFile& document, const BluetoothDevice& device) {
    document.set("", "btDevice", device.name);
    document.set("", "btAddress", device.address);
}

std::wstring bluetoothLabel(const BluetoothDevice& device) {
    return decodeUtf8(device.name + " | " + device.address);
}

} // namespace skyvane
