#pragma once

#include "core/ini/IniFile.h"
#include "core/time/Time.h"
#include "sensors/ISensorHost.h"
#include "sensors/NoSetupGUISensorFactory.h"
#include "sensors/SensorManager.h"
#include "sensors/StandardDataFactories.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

/// Notes down what the sensors' side asks of the program.
class FakeHost : public ISensorHost {
public:
    struct Message {
        std::string text;
        MESSAGECOLOR level;
        int timeout;
    };
    void pumpWindow() override { ++pumps; }
    void showMessageBox(const std::string& text) override { boxes.push_back(text); }
    void setMessage(void* owner, const std::string& text, MESSAGECOLOR level, int timeout) override {
        messages[owner] = {text, level, timeout};
    }
    void removeMessage(void* owner) override { messages.erase(owner); }
    std::string getConfigPath() override { return configPath; }
    void chooseProfile(IniFile& document, const std::vector<std::unique_ptr<IConfigOverride>>& profiles) override {
        if (onChoose)
            onChoose(document, profiles);
    }

    /// The texts that stand, sorted.
    std::vector<std::string> texts() const {
        std::vector<std::string> all;
        for (const auto& entry : messages)
            all.push_back(entry.second.text);
        std::sort(all.begin(), all.end());
        return all;
    }

    int pumps = 0;
    std::vector<std::string> boxes;
    std::map<void*, Message> messages;
    std::string configPath;
    std::function<void(IniFile&, const std::vector<std::unique_ptr<IConfigOverride>>&)> onChoose;
};

/// A sensor whose records and levels a test writes.
class FakeSensor : public ISeekableSensor {
public:
    std::string getName() override { return "FakeSensor"; }
    bool Update() override {
        ++updates;
        return hasNews;
    }
    bool lastTimeUpdated(ISensorData::Type) override { return hasNews; }
    ISensorData* getData(ISensorData::Type type) override {
        const auto found = records.find(type);
        return found != records.end() ? found->second.get() : nullptr;
    }
    bool isDataTypeSupported(ISensorData::Type type) override { return records.count(type) != 0; }
    std::vector<ISensorData::Type> getSupportedDataTypes() override {
        std::vector<ISensorData::Type> types;
        for (const auto& entry : records)
            types.push_back(entry.first);
        return types;
    }
    WarningLevel getWarning(ISensorData::Type) override { return level; }
    bool OnCalibrate() override {
        ++calibrations;
        return true;
    }
    float getPlayPosition() override { return 0.0f; }
    void setPlayPosition(float) override {}

    template <class Record, class... Values>
    Record* put(ISensorData::Type type, Values... values) {
        auto record = std::make_unique<Record>(values...);
        Record* raw = record.get();
        records[type] = std::move(record);
        return raw;
    }

    std::map<ISensorData::Type, std::unique_ptr<ISensorData>> records;
    bool hasNews = false;
    WarningLevel level = GOOD;
    int updates = 0;
    int calibrations = 0;
};

class FakeSensorFactory : public NoSetupGUISensorFactory {
public:
    FakeSensorFactory() : NoSetupGUISensorFactory("Fake", {ISensorData::Position, ISensorData::Altitude}) {}
    std::unique_ptr<ISensor> Create() override { return std::make_unique<FakeSensor>(); }
};

class FakeForwarder : public ISensorForwarder {
public:
    explicit FakeForwarder(std::vector<ISensor*>* log) : forwarded(log) {}
    void forward(ISensor* sensor) override { forwarded->push_back(sensor); }
    void setForwardPeriod(int) override {}
    std::string getName() override { return "FakeForwarder"; }
    void setPause(bool on) override { paused = on; }

    std::vector<ISensor*>* forwarded;
    bool paused = false;
};

class FakeForwarderFactory : public ISensorForwarderFactory {
public:
    FakeForwarderFactory(std::vector<ISensor*>* log, bool restores) : log_(log), restores_(restores) {}
    bool setup() override { return true; }
    bool loadSetupFromIni(IniFile*, std::string) override { return restores_; }
    void saveSetupToIni(IniFile* ini, std::string section) override { ini->set(section, "target", "here"); }
    std::unique_ptr<ISensorForwarder> Create() override { return std::make_unique<FakeForwarder>(log_); }
    std::string getName() override { return "Fake"; }

private:
    std::vector<ISensor*>* log_;
    bool restores_;
};

/// A manager with a fake at factory place 0, nothing at place 1, restored forwarders at 0 and others at 1.
struct ManagerRig {
    ManagerRig() : manager(&host) {
        setClock(&clock);
        manager.setBatteryFolder("/nowhere");
        addStandardDataFactories(manager);
        manager.addSensorFactory(std::make_unique<FakeSensorFactory>());
        manager.addSensorFactory(nullptr);
        manager.addSensorForwarderFactory(std::make_unique<FakeForwarderFactory>(&forwarded, true));
        manager.addSensorForwarderFactory(std::make_unique<FakeForwarderFactory>(&forwarded, false));
    }
    ~ManagerRig() { setClock(nullptr); }

    void load(const std::string& config) {
        IniFile ini;
        ini.setFromString(config.c_str());
        manager.loadSensorSettingsFromIni(&ini, false);
    }
    FakeSensor* sensor(int index) { return dynamic_cast<FakeSensor*>(manager.getSensorInterface(index)); }

    ManualClock clock;
    FakeHost host;
    std::vector<ISensor*> forwarded;
    SensorManager manager;
};

} // namespace skyvane
