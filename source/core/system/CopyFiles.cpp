#include "core/system/CopyFiles.h"

#include "core/ICommonAppContext.h"
#include "core/engine/ShowState.h"
#include "core/files/Paths.h"
#include "core/log/Logger.h"
#include "core/system/FileCopier.h"
#include "core/system/VisitFiles.h"
#include "core/text/Utf8.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace skyvane {
namespace {

std::string withoutSlash(const std::string& path) {
    const bool hasSlash = !path.empty() && (path.back() == '/' || path.back() == '\\');
    return hasSlash ? path.substr(0, path.size() - 1) : path;
}

/// The path with all links resolved, ending in a slash.
std::string realFolder(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
    return real ? std::string(real.get()) + "/" : path + "/";
}

} // namespace

std::list<FilePair> copyFiles(ICommonAppContext* context, std::string from, const std::string& to) {
    if (!makePath(to))
        return {};
    from = withoutSlash(from);
    std::printf("initpath: %s\n", from.c_str());
    if (realFolder(to).rfind(realFolder(from), 0) == 0) {
        logText("Not copied: " + to + " lies in " + from + ".\n");
        return {};
    }
    irr::IrrlichtDevice* device = context->getIrrlichtDevice();
    FileCopier copier(from, withoutSlash(to));
    visitFiles(device->getFileSystem(), &copier, from);
    return copyFilePairs(copier.getPairs(),
                         [device](double share) { showState(device, decodeUtf8(copyProgressText(share)).c_str()); });
}

} // namespace skyvane
