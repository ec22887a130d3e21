#include "core/system/SystemManager.h"

#include "core/Context.h"
#include "core/engine/ShowState.h"
#include "core/files/Paths.h"
#include "core/files/SavingTrouble.h"
#include "core/files/StandardDocuments.h"
#include "core/log/Logger.h"
#include "core/system/MemoryTest.h"
#include "core/system/StartFrames.h"
#include "core/time/Time.h"
#include "gui/font/FlexibleFont.h"
#include "gui/font/LoadFFont.h"
#include "gui/skin/Skin.h"
#include "gui/windows/DataLocationDialog.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <sys/stat.h>
#include <sys/sysinfo.h>
#include <unistd.h>

namespace skyvane {
namespace {

constexpr StandardDocuments documents{standardConfigINI, standardAircraftsINI, standardHotspotINI,
                                      standardExtSensorConfigINI, standardCalibrationINI};

std::string currentDirectory() {
    const std::unique_ptr<char, decltype(&std::free)> name(get_current_dir_name(), &std::free);
    return name ? name.get() : "";
}

} // namespace

SystemManager::SystemManager(Context* context, Drawer2D* drawer, const char* argv0)
    : context_(context), device_(context->getIrrlichtDevice()), drawer_(drawer), startDirectory_(currentDirectory()),
      appHome_(getAppHomePathFromArgV0(argv0)), home_(appHome_) {
    std::printf("cdir: %s\n", startDirectory_.c_str());
    testMemory();
    skin_ = EngineRef<Skin>::adopt(new Skin(device_->getGUIEnvironment()));
    skin_->setButtonSize(context->getRecommendedButtonWidth(), context->getRecommendedButtonHeight());
    skin_->loadMedia(drawer_, getAbsolutePath("media/"));
    device_->getGUIEnvironment()->setSkin(skin_.get());
    std::printf("apphome: %s ss: %s\n", appHome_.c_str(), home_.getMarkerPath().c_str());
    noteTroubleOfSettings();
    const bool isFirstStart = home_.isFirstStart();
    if (isFirstStart)
        createDataOfFirstStart();
    if (!home_.hasDataLocation())
        chooseDataLocation();
    else
        paths_ = home_.readDataPaths();
    if (isFirstStart)
        writeMarker();
    home_.removeLeftFiles();
    openDataFolders();
}

SystemManager::~SystemManager() = default;

void SystemManager::testMemory() {
    const unsigned long long bytes = readInstalledMemory();
    std::printf("actualRam: %lli bytes\n", static_cast<long long>(bytes > 0 ? bytes : getSystemMemory()));
    if (isMemoryEnough(bytes))
        return;
    FlexibleFont* font = LoadFFont(this, context_->getFontManager(), "Roboto");
    if (font)
        device_->getGUIEnvironment()->getSkin()->setFont(font);
    const std::wstring text = notEnoughMemoryText(bytes);
    std::fprintf(stderr, "%ls\n", text.c_str());
    while (device_->run()) {
        showState(device_, text.c_str());
        Delay(100);
    }
    std::exit(EXIT_SUCCESS);
}

void SystemManager::noteTroubleOfSettings() {
    const std::string data = appHome_ + "data/";
    const std::string trouble = savingTrouble(data, lookAtFolder(data));
    if (!trouble.empty())
        noteTrouble(trouble);
    const std::string former = home_.findOtherConfigVersion();
    if (!former.empty())
        noteTrouble("Set up sensors and panels again: settings of version " + former +
                    " don't fit. They are kept in data/config.ini.old.");
}

void SystemManager::createDataOfFirstStart() {
    std::puts("cpp: Create Data");
    if (!home_.createDocuments(documents))
        noteTrouble("Settings can't be kept: not everything could be written in " + appHome_ + "data/.");
}

void SystemManager::chooseDataLocation() {
    const char* variable = std::getenv("SKYVANE_DATA_ROOT");
    const std::string given = variable ? variable : "";
    const std::string root = firstUsableDataRoot({given});
    if (root.empty() && !given.empty())
        noteTrouble("SKYVANE_DATA_ROOT names no folder that can be written to: " + given);
    paths_ = root.empty() ? askForDataLocation() : DataPaths::below(root);
    showState(device_, L"Please wait...");
    if (home_.saveDataPaths(paths_))
        std::printf("Data saved at: %s\n", (appHome_ + "data/data.ini").c_str());
    else
        noteTrouble("The data location could not be written to " + appHome_ + "data/data.ini.");
}

/// A window that is closed in place of an answer ends the program: the next start asks again.
DataPaths SystemManager::askForDataLocation() {
    skin_->setGUITransparency(255);
    irr::gui::IGUIFont* former = skin_->getFont();
    FlexibleFont* font = LoadFFont(this, context_->getFontManager(), "Roboto");
    if (font) {
        const float scale =
            font->calculateOptimalScale(L"OOOOOOOO", {static_cast<irr::u32>(context_->getRecommendedButtonWidth()),
                                                      static_cast<irr::u32>(context_->getRecommendedButtonHeight())});
        font->setDefaultScale({scale, scale});
        skin_->setFont(font);
    }
    StartFrames frames(*context_);
    const std::optional<DataPaths> chosen =
        DataLocationDialog(device_->getGUIEnvironment()).run(frames, getUsableDirs());
    skin_->setFont(former);
    context_->getFontManager()->removeFont(font);
    if (!chosen)
        std::exit(EXIT_SUCCESS);
    return *chosen;
}

void SystemManager::writeMarker() {
    if (home_.writeMarker())
        return;
    logText("Unknown error: data could not be created.\n");
    drawStateScreen(device_, L"Unknown error: data could not be created.");
}

void SystemManager::openDataFolders() {
    if (!paths_.makeFolders() && startTrouble_.empty())
        noteTrouble("Not all folders for charts, terrain, images and logs could be made below " + paths_.data + ".");
}

void SystemManager::noteTrouble(const std::string& text) {
    logText(text + "\n");
    startTrouble_ += (startTrouble_.empty() ? "" : "\n") + text;
}

std::string SystemManager::getAbsolutePath(const std::string& path) const {
    return paths_.getAbsolutePath(path, appHome_);
}

void SystemManager::savePaths() {
    if (!home_.saveDataPaths(paths_))
        logText("The data location could not be written to " + appHome_ + "data/data.ini.\n");
}

bool SystemManager::mkdir(const std::string& path) {
    return ::mkdir(path.c_str(), 0770) == 0;
}

unsigned long SystemManager::getSystemMemory() const {
    const unsigned long long bytes = readInstalledMemory();
    return bytes > 0 ? static_cast<unsigned long>(bytes) : 262144ul;
}

int SystemManager::getCPUCoreCount() const {
    return get_nprocs();
}

void SystemManager::setScreenModePreference(ScreenModePreference preference) {
    if (preference != ScreenModeAuto)
        context_->showMessageBox("Manual screen orientation changes are not supported on desktop operating systems.");
}

std::list<MountPoint> SystemManager::getUsableMountPoints() const {
    return skyvane::getUsableMountPoints();
}

std::list<MountPoint> SystemManager::getUsableDirs() const {
    std::list<MountPoint> folders = getUsableMountPoints();
    const char* home = std::getenv("HOME");
    if (auto measured = home ? measureMountPoint(home) : std::nullopt) {
        measured->name = std::string("User home: ") + home;
        folders.push_front(*measured);
    }
    return folders;
}

int SystemManager::getUsableDirCount() const {
    return static_cast<int>(getUsableDirs().size());
}

bool SystemManager::writeStandardConfig() {
    return home_.writeStandardConfig(documents.config);
}

} // namespace skyvane
