#pragma once

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

namespace skyvane {

/// Replaces a file in one step by a text, or by what `write` puts into the stream: first beside it ("<path>.new"), to
/// the disk, then in its place, so that a kill, a full disk or a lost power supply leaves the former file whole. A link
/// is followed, a former file keeps its rights, a device gets the bytes directly. Gives 0, or the errno of what failed;
/// nothing is left beside it then.
///
/// Two threads never write the same path at once.
int saveFileSafely(const std::string& path, const std::function<void(std::ostream&)>& write);
int saveFileSafely(const std::string& path, const std::string& text);

/// Puts a freshly written file in the place of another, in one step and with its bytes on the disk first, so that after
/// a failure of any kind there is the one or the other. False, and the fresh one goes, when that fails.
bool replaceFile(const std::string& fresh, const std::string& path);

/// Makes sure that what was written of a file outlives the power. False when that fails.
bool flushToDisk(const std::string& path);

/// Removes what killed writers have left in a folder, the neighbours of files of this ending (".terr").
void removeUnfinishedFiles(const std::string& folder, const std::string& ending);

/// The whole of a file; nothing when it can't be read or has more bytes.
std::optional<std::string> readWholeFile(const std::string& path, std::size_t mostBytes);

/// Why a file couldn't be written, in words for the pilot: "There is no room left on the disk."
std::string whyNotWritten(int error);

} // namespace skyvane
