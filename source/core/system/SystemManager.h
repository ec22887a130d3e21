#pragma once

#include "core/engine/EngineRef.h"
#include "core/files/HomeFolder.h"
#include "core/files/MountPoint.h"

#include <irrlicht.h>
#include <list>
#include <string>

namespace skyvane {

class Context;
class Drawer2D;
class Skin;

/// Makes a running program of an empty installation, and absolute paths of the program's relative ones.
///
/// Main thread, before any other thread exists; getAbsolutePath is only read afterwards and is safe from every thread.
class SystemManager {
public:
    enum ScreenModePreference { ScreenModeAuto = 0, ScreenModeLandscape = 1, ScreenModePortrait = 2 };

    /// Runs the whole first-start work. The drawer and the context outlive the manager.
    SystemManager(Context* context, Drawer2D* drawer, const char* argv0);
    ~SystemManager();
    SystemManager(const SystemManager&) = delete;
    SystemManager& operator=(const SystemManager&) = delete;

    std::string getAbsolutePath(const std::string& path) const;
    irr::IrrlichtDevice* getDevice() const { return device_; }

    const std::string& getAppHome() const { return appHome_; }
    const std::string& getImagePath() const { return paths_.image; }
    const std::string& getTerrainPath() const { return paths_.terrain; }
    const std::string& getDataPath() const { return paths_.data; }
    const std::string& getLogPath() const { return paths_.log; }
    void setImagePath(const std::string& path) { paths_.image = path; }
    void setTerrainPath(const std::string& path) { paths_.terrain = path; }
    void setDataPath(const std::string& path) { paths_.data = path; }
    void setLogPath(const std::string& path) { paths_.log = path; }
    /// Writes the four roots to data/data.ini.
    void savePaths();

    Skin* getSkin() const { return skin_.get(); }
    /// Mode 0770; true on success.
    bool mkdir(const std::string& path);
    /// Bytes of installed memory, 262144 when that can't be told.
    unsigned long getSystemMemory() const;
    int getCPUCoreCount() const;
    void setScreenModePreference(ScreenModePreference preference);

    std::list<MountPoint> getUsableMountPoints() const;
    /// The same with the user's home in front.
    std::list<MountPoint> getUsableDirs() const;
    int getUsableDirCount() const;

    /// The standard document, marked with the current version, as data/config.ini. False when it can't be written.
    bool writeStandardConfig();
    /// What went wrong at the start, in words for the user; empty when all went well.
    const std::string& getStartTrouble() const { return startTrouble_; }

private:
    void testMemory();
    /// A home where nothing can be saved, settings of another version.
    void noteTroubleOfSettings();
    void createDataOfFirstStart();
    /// The folder of the environment variable SKYVANE_DATA_ROOT without asking, for installers and tests; otherwise the
    /// dialog.
    void chooseDataLocation();
    DataPaths askForDataLocation();
    void writeMarker();
    void openDataFolders();
    void noteTrouble(const std::string& text);

    Context* context_;
    irr::IrrlichtDevice* device_;
    Drawer2D* drawer_;
    std::string startDirectory_;
    std::string appHome_;
    HomeFolder home_;
    DataPaths paths_;
    std::string startTrouble_;
    EngineRef<Skin> skin_;
};

} // namespace skyvane
