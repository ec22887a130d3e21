#pragma once

#include <string>

namespace irr {
namespace io {
class IFileSystem;
}
} // namespace irr

namespace skyvane {

/// The whole content of a file of the engine's file system, archives included. False, with an empty result, when it
/// can't be opened.
bool readFileWithAssetSupport(irr::io::IFileSystem* files, const std::string& path, std::string& content);

} // namespace skyvane
