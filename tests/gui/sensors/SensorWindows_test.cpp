#include "core/Factories.h"
#include "core/ini/IniFile.h"
#include "gui/menu/ForwarderWindow.h"
#include "gui/sensors/BluetoothChoice.h"
#include "gui/sensors/SensorDialogs.h"
#include "gui/sensors/WifiControl.h"
#include "gui/windows/DialogFixture.h"
#include "sensors/SensorManager.h"
#include "sensors/log/LogFileForwarder.h"
#include "sensors/log/LogFileSensorFactory.h"
#include "sensors/udp/UDPSensorFactory.h"

#include <fstream>

namespace skyvane {
namespace {

class SensorWindows : public DialogFixture {
protected:
    void write(const std::string& path, const std::string& text) const {
        std::filesystem::create_directories(std::filesystem::path(context->getPath(path)).parent_path());
        std::ofstream(context->getPath(path)) << text;
    }
};

/// Without an adapter, as nearly everywhere that tests run; with one only the end differs.
TEST_P(SensorWindows, ABluetoothDeviceIsSearchedForKindly) {
    write("data/extSensorConfig.ini", "btAddress = 00:11:22:33:44:55\nbtDevice = Holux\\ M-1000\n");
    BluetoothChoice choice(context.get());
    script->then([&] {
        picture("bluetooth");
        for (const wchar_t* button : {L"Start Discovery", L"Ok", L"Cancel"})
            expectTouchable(findText(root, button));
        click(L"Start Discovery");
    });
    for (int i = 0; i < 4; ++i) // the search has a thread of its own
        script->then([] {});
    script->then([&] {
        picture("bluetooth-told");
        EXPECT_TRUE(told().find(L"Bluetooth") == std::wstring::npos || told().substr(0, 5) == L"Error") << told();
        key(irr::KEY_RETURN);
    });
    script->then([&] { click(L"Cancel"); });
    EXPECT_FALSE(choice.run());
}

TEST_P(SensorWindows, AHotspotNeedsALongKey) {
    write("data/hotspot.ini", "SSID = Cockpit\nKey = short\n");
    script->then([&] {
        picture("network");
        click(L"Create a hotspot");
    });
    script->then([&] {
        picture("hotspot");
        click(L"Ok");
    });
    script->then([&] {
        picture("hotspot-key");
        EXPECT_NE(told().find(L"Error: Key length too short. (Minimum: 8 characters)"), std::wstring::npos);
        key(irr::KEY_RETURN);
    });
    script->then([&] { click(L"Cancel"); });
    context->getWifiControl()->setup(context.get());
    EXPECT_TRUE(script->isDone());
    EXPECT_EQ(IniFile(context->getPath("data/hotspot.ini")).get("", "Key"), "short");
}

TEST_P(SensorWindows, LogsAndNetworksAreSetUp) {
    write("Logs/Pyrenees.dat", "a log");
    write("Logs/Alps.DAT", "a log");
    SensorManager& sensors = *context->getSensorManager();
    LogFileSensorFactory logs(&sensors, context->getSensorDialogs(), context->getPath("Logs/"));
    IniFile document;
    script->then([&] {
        picture("log-sensor");
        EXPECT_TRUE(isShown(L"Alps.DAT"));
        click(L"Ok");
    });
    EXPECT_TRUE(logs.setup(&document, "S1"));
    EXPECT_EQ(document.get("S1", "fileName"), "Alps.DAT");
    EXPECT_EQ(document.get("S1", "level"), "WRONG") << "nothing that is replayed is believed unless asked for";

    UDPSensorFactory network(&sensors, context->getSensorDialogs());
    if (!context->getWifiControl()->isWifiConnected()) // it offers one
        script->then([&] { click(L"Cancel"); });
    script->then([&] {
        picture("udp-sensor");
        EXPECT_TRUE(isShown(L"1991"));
        click(L"Ok");
    });
    EXPECT_TRUE(network.setup(&document, "S2"));
    EXPECT_EQ(document.get("S2", "bindPort"), "1991");
    EXPECT_EQ(document.get("S2", "timeOut"), "500");
}

TEST_P(SensorWindows, LongNamesOfLogsKeepTheirEnds) {
    registerSensorFactories(*context, *context->getSensorManager());
    const std::string name = "Sunday-flight-to-the-coast-and-back-with-two-friends-and-a-dog";
    write("Logs/x", "");
    context->getSensorManager()->addSensorForwarder(
        0, std::make_unique<LogFileForwarder>(context->getPath("Logs/" + name + ".dat"),
                                              std::map<ISensorData::Type, ISensor*>()));
    ForwarderWindow window(context.get());
    script->then([&] { picture("forwarders"); });
    ModalLoop(*script).run([&] { return !script->isDone(); });
    const auto* list = [&]() -> irr::gui::IGUIListBox* {
        for (irr::gui::IGUIElement* child : window.getWindow()->getChildren())
            if (child->getType() == irr::gui::EGUIET_LIST_BOX)
                if (auto* box = static_cast<irr::gui::IGUIListBox*>(child);
                    box->getItemCount() == 1 && std::wstring(box->getListItem(0)).find(L".dat") != std::wstring::npos)
                    return box;
        return nullptr;
    }();
    ASSERT_TRUE(list);
    const std::wstring shown = list->getListItem(0);
    EXPECT_EQ(shown.substr(0, 21), L"LogFileForwarder: ...");
    EXPECT_EQ(shown.substr(shown.size() - 9), L"a-dog.dat");
}

INSTANTIATE_TEST_SUITE_P(Screens, SensorWindows, allScreens());

} // namespace
} // namespace skyvane
