#include "core/system/VisitFiles.h"

#include "core/engine/EngineRef.h"
#include "core/system/FileSizeCounter.h"

#include <algorithm>
#include <vector>

namespace skyvane {
namespace {

class TreeWalk {
public:
    TreeWalk(irr::io::IFileSystem* fileSystem, IFileOperator* fileOperator)
        : fileSystem_(fileSystem), operator_(fileOperator) {}

    /// `path` is where the folder is from the engine's point of view, `name` what the visitor is told.
    void enter(const irr::io::path& path, const std::string& name) {
        const irr::io::path former = fileSystem_->getWorkingDirectory();
        if (!fileSystem_->changeWorkingDirectoryTo(path))
            return;
        // The system's own answer, with links resolved: that is how a folder above is known again.
        const irr::io::path here = fileSystem_->getWorkingDirectory();
        if (std::find(above_.begin(), above_.end(), here) == above_.end()) {
            above_.push_back(here);
            operator_->OnDirChange(name);
            visitEntries(here, name);
            above_.pop_back();
        }
        fileSystem_->changeWorkingDirectoryTo(former);
    }

private:
    void visitEntries(const irr::io::path& here, const std::string& name) {
        const auto list = EngineRef<irr::io::IFileList>::adopt(fileSystem_->createFileList());
        for (irr::u32 i = 0; list && i < list->getFileCount(); ++i) {
            const irr::core::stringc entry = list->getFileName(i);
            if (entry == "." || entry == "..")
                continue;
            const std::string fullName = name + "/" + entry.c_str();
            const bool isDirectory = list->isDirectory(i);
            operator_->OnFileRead(entry, fullName.c_str(), list->getFileSize(i), isDirectory);
            if (isDirectory)
                enter(here + "/" + entry, fullName);
        }
    }

    irr::io::IFileSystem* fileSystem_;
    IFileOperator* operator_;
    std::vector<irr::io::path> above_;
};

} // namespace

void visitFiles(irr::io::IFileSystem* fileSystem, IFileOperator* fileOperator, std::string path) {
    const std::string name = !path.empty() && path.back() == '/' ? path.substr(0, path.size() - 1) : path;
    TreeWalk(fileSystem, fileOperator).enter(name.empty() ? path.c_str() : name.c_str(), name);
}

void countFileSize(irr::io::IFileSystem* fileSystem, const std::string& path, unsigned long& size) {
    FileSizeCounter counter;
    visitFiles(fileSystem, &counter, path);
    size = counter.getSize();
}

} // namespace skyvane
