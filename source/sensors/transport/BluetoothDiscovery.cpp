#include "sensors/transport/BluetoothDiscovery.h"

#include <bluetooth/bluetooth.h>
#include <bluetooth/hci.h>
#include <bluetooth/hci_lib.h>

#include <cstdlib>
#include <memory>

namespace skyvane {
namespace {

/// In units of 1.28 seconds.
constexpr int InquiryLength = 8;
constexpr int MostResponses = 255;
constexpr int NameBytes = 248;
constexpr int NameTimeoutMs = 5000;
constexpr size_t AddressTextBytes = 18;

/// The adapter's handle, which ends with it.
class Adapter {
public:
    explicit Adapter(int device) : handle_(hci_open_dev(device)) {}
    ~Adapter() {
        if (handle_ >= 0)
            hci_close_dev(handle_);
    }
    Adapter(const Adapter&) = delete;
    Adapter& operator=(const Adapter&) = delete;

    bool isGood() const { return handle_ >= 0; }
    std::string nameOf(const bdaddr_t& address) const {
        char name[NameBytes + 1] = {};
        return hci_read_remote_name(handle_, &address, NameBytes, name, NameTimeoutMs) < 0 ? "[unknown]" : name;
    }

private:
    int handle_;
};

} // namespace

int BluetoothDiscovery(std::vector<BluetoothDevice>* devices) {
    const int device = hci_get_route(nullptr);
    if (device < 0)
        return BLUETOOTH_NO_ADAPTER;
    const Adapter adapter(device);
    if (!adapter.isGood())
        return BLUETOOTH_NO_ADAPTER;
    inquiry_info* found = nullptr;
    const int count = hci_inquiry(device, InquiryLength, MostResponses, nullptr, &found, IREQ_CACHE_FLUSH);
    const std::unique_ptr<inquiry_info, decltype(&std::free)> owner(found, &std::free);
    if (count < 0)
        return BLUETOOTH_SEARCH_FAILED;
    for (int i = 0; i < count; ++i) {
        char text[AddressTextBytes + 1] = {};
        ba2str(&found[i].bdaddr, text);
        devices->emplace_back(text, adapter.nameOf(found[i].bdaddr));
    }
    return BLUETOOTH_FOUND;
}

} // namespace skyvane
