#pragma once

#include <irrlicht.h>
#include <string>

namespace skyvane {

/// Saves what has been drawn since the last beginScene as a PNG in the folder (with a trailing slash), named by the
/// number of entries that the folder's list holds, or the next free number.
///
/// Call it before endScene: it reads the back buffer, which is undefined after the swap. (The engine's own screenshot
/// reads the front buffer, which is black under a software renderer.) False, with a line in the log, when the folder or
/// the file can't be written.
bool saveScreenshot(const std::string& path, irr::io::IFileSystem* fileSystem, irr::video::IVideoDriver* driver);

/// The first name of a picture in the folder: its number of entries, or the next number that isn't taken.
/// Empty when the folder can't be read. The file system's working directory is unchanged afterwards.
std::string nextScreenshotName(const std::string& path, irr::io::IFileSystem* fileSystem);

} // namespace skyvane
