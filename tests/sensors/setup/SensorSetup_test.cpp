#include "sensors/setup/SensorSetup.h"

#include "core/ini/IniFile.h"
#include "gui/windows/DialogFixture.h"
#include "gui/windows/IniEditor.h"
#include "sensors/SensorFakes.h"
#include "sensors/setup/SetUpSensors.h"

namespace skyvane {
namespace {

/// A sensor that counts who enters the screen.
class WatchingSensor : public FakeSensor {
public:
    explicit WatchingSensor(int* inSetup) : inSetup_(inSetup) {}
    void OnSetup() override { ++*inSetup_; }
    void OnSetupExit() override { --*inSetup_; }
    std::string getSensorDetails() override { return "Listens on port 4000"; }

private:
    int* inSetup_;
};

/// A kind whose setup is an editor of settings.
class ReceiverFactory : public NoSetupGUISensorFactory {
public:
    ReceiverFactory(Context* context, int* inSetup)
        : NoSetupGUISensorFactory("Receiver", {ISensorData::Position, ISensorData::Altitude, ISensorData::Traffic}),
          context_(context), inSetup_(inSetup) {}
    bool setup(IniFile* ini, std::string section) override {
        IniEditor editor(context_, "Receiver", L"port,Port:,4000,INT;", nullptr);
        IniFile values;
        if (!editor.run(&values))
            return false;
        ini->set(section, "port", values.get("", "port"));
        return true;
    }
    std::unique_ptr<ISensor> Create() override { return std::make_unique<WatchingSensor>(inSetup_); }

private:
    Context* context_;
    int* inSetup_;
};

class SensorSetupTest : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        if (!context)
            return;
        SensorManager& sensors = *context->getSensorManager();
        addStandardDataFactories(sensors);
        sensors.addSensorFactory(nullptr);
        sensors.addSensorFactory(std::make_unique<ReceiverFactory>(context.get(), &inSetup));
        sensors.addSensorFactory(std::make_unique<FakeSensorFactory>());
        IniFile config(context->getConfigPath());
        config.set("", "SensorCount", "2");
        config.set("", "D4", "1");
        config.set("", "D5", "1");
        config.set("S1", "FactoryIndex", "1");
        ASSERT_TRUE(config.Save(context->getConfigPath()));
        sensors.loadSensorSettingsFromIni(&config, false);
    }
    std::string value(const char* section, const char* key) const {
        IniFile config(context->getConfigPath());
        return config.isAvailable(section, key) ? config.get(section, key) : "-";
    }
    irr::gui::IGUIElement* ofType(irr::gui::EGUI_ELEMENT_TYPE type, int which) {
        std::vector<irr::gui::IGUIElement*> found;
        collect(root, type, found);
        return found.at(static_cast<std::size_t>(which));
    }
    static void collect(irr::gui::IGUIElement* in, irr::gui::EGUI_ELEMENT_TYPE type,
                        std::vector<irr::gui::IGUIElement*>& found) {
        if (!in->isVisible())
            return;
        if (in->getType() == type)
            found.push_back(in);
        for (irr::gui::IGUIElement* child : in->getChildren())
            collect(child, type, found);
    }
    /// A row of a list that shows its first ones.
    void clickRow(int list, int row) {
        const irr::core::recti place = ofType(irr::gui::EGUIET_LIST_BOX, list)->getAbsolutePosition();
        const int height = context->getRecommendedButtonHeight();
        clickAt({place.UpperLeftCorner.X + height, place.UpperLeftCorner.Y + height / 2 + row * height});
    }

    int inSetup = 0;
};

} // namespace

TEST_P(SensorSetupTest, TheSimpleFormUsesOneSensor) {
    script->then([&] {
        picture("sensors-simple");
        EXPECT_EQ(1, inSetup);
        EXPECT_TRUE(isShown(L"Sensor in use: Receiver\n\nListens on port 4000"));
        for (const wchar_t* button : {L"Use", L"Edit", L"Advanced", L"Cancel", L"Help", L"Ok", L"Calib."})
            expectTouchable(findText(root, button));
        clickRow(0, 1);
    });
    script->then([&] { click(L"Use"); });
    script->then([&] {
        EXPECT_TRUE(isShown(L"Sensor in use: Fake"));
        EXPECT_EQ("1", value("S1", "FactoryIndex"));
        click(L"Ok");
    });
    setUpSensors(*context);
    EXPECT_TRUE(script->isDone());
    EXPECT_EQ("2", value("S1", "FactoryIndex"));
    EXPECT_EQ("Fake", value("S1", "FactoryName"));
    EXPECT_EQ("1", value("", "D4"));
    EXPECT_EQ("0", value("", "D15"));
    ASSERT_EQ(2, context->getSensorManager()->getSensorInterfaceCount());
    EXPECT_NE(nullptr, dynamic_cast<FakeSensor*>(context->getSensorManager()->getSensorInterface(1)));
    EXPECT_FALSE(isShown(L"Advanced"));
}

TEST_P(SensorSetupTest, TheAdvancedFormKeepsAListAndADefaultForEachType) {
    script->then([&] { click(L"Advanced"); });
    script->then([&] {
        picture("sensors-advanced");
        EXPECT_FALSE(isShown(L"Use"));
        for (const wchar_t* button : {L"Add", L"Edit", L"Remove", L"Use for all Data", L"Cancel", L"Ok"})
            expectTouchable(findText(root, button));
        click(L"Add");
    });
    script->then([&] {
        findText(root, L"4000")->setText(L"4100");
        click(L"Ok");
    });
    script->then([&] { clickRow(1, 1); });
    script->then([&] {
        picture("sensors-two");
        click(L"Use for all Data");
    });
    // Acceleration is a type that no sensor here has.
    script->then([&] { clickRow(2, 3); });
    script->then([&] { click(ofType(irr::gui::EGUIET_COMBO_BOX, 0)); });
    script->then([&] {
        picture("sensors-choice");
        const irr::core::recti list = ofType(irr::gui::EGUIET_LIST_BOX, 3)->getAbsolutePosition();
        clickAt({list.getCenter().X, list.UpperLeftCorner.Y + context->getRecommendedButtonHeight() * 3 / 2});
    });
    script->then([&] {
        EXPECT_EQ(L"Data Type not supported by selected sensor.", told());
        picture("sensors-refused");
        key(irr::KEY_RETURN);
        key(irr::KEY_SPACE);
    });
    script->then([&] { click(L"Ok"); });
    setUpSensors(*context);
    EXPECT_TRUE(script->isDone());
    EXPECT_EQ("3", value("", "SensorCount"));
    EXPECT_EQ("4100", value("S2", "port"));
    EXPECT_EQ("Receiver", value("S2", "FactoryName"));
    EXPECT_EQ("2", value("", "D4"));
    EXPECT_EQ("2", value("", "D15"));
    EXPECT_EQ("0", value("", "D3"));
    EXPECT_EQ(3, context->getSensorManager()->getSensorInterfaceCount());
}

TEST_P(SensorSetupTest, CancelAndClosingLeaveAllAsItWas) {
    const std::string before = IniFile(context->getConfigPath()).toString();
    const ISensor* running = context->getSensorManager()->getSensorInterface(1);
    script->then([&] { click(L"Advanced"); }).then([&] { click(L"Remove"); });
    script->then([&] {
        EXPECT_FALSE(findText(root, L"Remove")->isEnabled());
        key(0xA6);
    });
    setUpSensors(*context);
    setUpSensors(*context); // no step follows: the window is closed
    EXPECT_EQ(before, IniFile(context->getConfigPath()).toString());
    EXPECT_EQ(running, context->getSensorManager()->getSensorInterface(1));
    EXPECT_EQ(0, inSetup);
    EXPECT_FALSE(isShown(L"Cancel"));
}

TEST_P(SensorSetupTest, ADocumentThatCantBeWrittenKeepsTheSensors) {
    std::filesystem::create_directory(context->getConfigPath() + ".new");
    const ISensor* running = context->getSensorManager()->getSensorInterface(1);
    script->then([&] { clickRow(0, 1); }).then([&] { click(L"Use"); }).then([&] { click(L"Ok"); });
    setUpSensors(*context);
    EXPECT_EQ(L"The sensors could not be saved. It is not allowed to write there.", told());
    EXPECT_EQ(running, context->getSensorManager()->getSensorInterface(1));
    EXPECT_EQ("1", value("S1", "FactoryIndex"));
}

INSTANTIATE_TEST_SUITE_P(Screens, SensorSetupTest, allScreens());

} // namespace skyvane
