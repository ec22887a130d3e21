#include "procedures/aircraft/AircraftManager.h"

#include "core/Context.h"
#include "core/ini/IniFile.h"
#include "procedures/aircraft/AircraftScreen.h"

namespace skyvane {
namespace {

const char* const documentPath = "data/aircrafts.ini";

} // namespace

AircraftManager::AircraftManager(Context* context) : context_(context) {
    extractIniValues();
}

void AircraftManager::extractIniValues() {
    ++revision_;
    profiles_.read(IniFile(context_->getPath(documentPath)));
}

void AircraftManager::saveAircrafts() {
    ++revision_;
    const std::string path = context_->getPath(documentPath);
    if (!profiles_.write().Save(path))
        context_->showMessageBox("The aircraft could not be saved to " + path);
}

void AircraftManager::setSetupVisible() {
    AircraftScreen(*context_, *this).run();
}

} // namespace skyvane
