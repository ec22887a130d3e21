#include "flightfeed/replay/GzipFile.h"

#include <memory>
#include <vector>
#include <zlib.h>

namespace skyvane {

bool readMaybeGzip(const std::string& path, std::string& content, std::string& error) {
    constexpr size_t mostBytes = size_t{256} << 20;
    const std::unique_ptr<gzFile_s, int (*)(gzFile)> file(gzopen(path.c_str(), "rb"), gzclose);
    if (!file) {
        error = "can't open \"" + path + "\"";
        return false;
    }
    content.clear();
    std::vector<char> block(size_t{1} << 16);
    int count = 0;
    while ((count = gzread(file.get(), block.data(), static_cast<unsigned>(block.size()))) > 0) {
        content.append(block.data(), static_cast<size_t>(count));
        if (content.size() > mostBytes) {
            error = "\"" + path + "\" is too large";
            return false;
        }
    }
    // A stream that ends early shows only in the state of the file, not in the count.
    int state = Z_OK;
    gzerror(file.get(), &state);
    if (count < 0 || (state != Z_OK && state != Z_STREAM_END)) {
        error = "\"" + path + "\" is damaged";
        return false;
    }
    return true;
}

} // namespace skyvane
