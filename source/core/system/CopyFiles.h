#pragma once

#include "core/files/FileMoving.h"

#include <list>
#include <string>

namespace skyvane {

class ICommonAppContext;

/// Copies the tree below `from` into the folder `to`, showing the progress on the screen. Stops at the first file that
/// can't be copied. The result is the list of pairs done: empty when `to` can't be made or lies in `from`. The former
/// files stay.
std::list<FilePair> copyFiles(ICommonAppContext* context, std::string from, const std::string& to);

} // namespace skyvane
