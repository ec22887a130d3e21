#include "core/ini/IniFile.h"
#include "core/log/Logger.h"
#include "sensors/ISensorHost.h"
#include "sensors/SensorConfig.h"
#include "sensors/SensorManager.h"

namespace skyvane {
namespace {

constexpr int saveTroubleMs = 10000;

void save(const IniFile& document, ISensorHost& host) {
    if (document.Save(host.getConfigPath()))
        return;
    logText("The changed forwarders could not be saved to " + host.getConfigPath() + "\n");
    host.setMessage(&host, "The change could not be saved and ends with this flight.", MESSAGE_YELLOW, saveTroubleMs);
}

} // namespace

ISensorForwarder* SensorManager::getSensorForwarder(int index) {
    return index >= 0 && index < getSensorForwarderCount() ? forwarders_[static_cast<size_t>(index)].forwarder.get()
                                                           : nullptr;
}

int SensorManager::getSensorForwarderCount() const {
    return static_cast<int>(forwarders_.size());
}

ISensorForwarderFactory* SensorManager::getForwarderFactory(int index) {
    return index >= 0 && index < getForwarderFactoryCount() ? forwarderFactories_[static_cast<size_t>(index)].get()
                                                            : nullptr;
}

int SensorManager::getForwarderFactoryCount() const {
    return static_cast<int>(forwarderFactories_.size());
}

void SensorManager::addSensorForwarder(int factoryIndex, std::unique_ptr<ISensorForwarder> forwarder) {
    ISensorForwarderFactory* factory = getForwarderFactory(factoryIndex);
    if (!forwarder || !factory)
        return;
    IniFile document(host_->getConfigPath());
    const int configIndex = appendForwarderSection(document, factoryIndex, *factory);
    save(document, *host_);
    forwarders_.push_back({std::move(forwarder), configIndex});
}

void SensorManager::deleteSensorForwarder(int index) {
    if (!getSensorForwarder(index))
        return;
    const int configIndex = forwarders_[static_cast<size_t>(index)].configIndex;
    forwarders_.erase(forwarders_.begin() + index);
    for (LoadedForwarder& later : forwarders_)
        if (later.configIndex > configIndex)
            --later.configIndex;
    IniFile document(host_->getConfigPath());
    removeForwarderSection(document, configIndex);
    save(document, *host_);
}

void SensorManager::setAllForwarderPause(bool paused) {
    for (const LoadedForwarder& loaded : forwarders_)
        loaded.forwarder->setPause(paused);
}

} // namespace skyvane
