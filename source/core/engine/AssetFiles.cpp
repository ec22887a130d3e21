#include "core/engine/AssetFiles.h"

#include "core/engine/EngineRef.h"
#include "core/ini/UnicodeCfgParser.h"

#include <irrlicht.h>

namespace skyvane {

bool readFileWithAssetSupport(irr::io::IFileSystem* files, const std::string& path, std::string& content) {
    content.clear();
    const auto file = EngineRef<irr::io::IReadFile>::adopt(files->createAndOpenFile(path.c_str()));
    if (!file)
        return false;
    // By what arrives, not by the size that an archive claims.
    char chunk[4096];
    for (irr::s32 count = file->read(chunk, sizeof chunk); count > 0; count = file->read(chunk, sizeof chunk))
        content.append(chunk, static_cast<size_t>(count));
    return true;
}

void UnicodeCfgParser::parseFromUTF8File(irr::io::IFileSystem* files, const char* path) {
    std::string content;
    readFileWithAssetSupport(files, path, content);
    parseFromUTF8(content);
}

} // namespace skyvane
