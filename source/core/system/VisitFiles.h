#pragma once

#include "core/system/IFileOperator.h"

namespace skyvane {

/// Walks the tree below a path through the engine's file system, whose working directory it changes to each folder and
/// puts back at the end. A folder that can't be entered is left out, and a folder that leads back into one above it
/// (by a link) isn't entered again. Main thread only.
void visitFiles(irr::io::IFileSystem* fileSystem, IFileOperator* fileOperator, std::string path);

/// Adds up the sizes of the tree's entries.
void countFileSize(irr::io::IFileSystem* fileSystem, const std::string& path, unsigned long& size);

} // namespace skyvane
