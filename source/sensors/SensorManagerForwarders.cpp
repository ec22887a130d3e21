#include "core/ini/IniFile.h"
#include "core/log/Logger.h"
#include "sensors/ISensorHost.h"
#include "sensors/SensorConfig.h"
#include "sensors/SensorManager.h"

namespace skyvane {
namespace {

void save(const IniFile& document, const std::string& path) {
    if (!document.Save(path))
        logText("The changed forwarders could not be saved to " + path + "\n");
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
    const std::string path = host_->getConfigPath();
    IniFile document(path);
    const int configIndex = appendForwarderSection(document, factoryIndex, *factory);
    save(document, path);
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
    const std::string path = host_->getConfigPath();
    IniFile document(path);
    removeForwarderSection(document, configIndex);
    save(document, path);
}

void SensorManager::setAllForwarderPause(bool paused) {
    for (const LoadedForwarder& loaded : forwarders_)
        loaded.forwarder->setPause(paused);
}

} // namespace skyvane
