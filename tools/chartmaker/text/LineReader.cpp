#include "chartmaker/text/LineReader.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <zlib.h>

namespace skyvane {
namespace {

constexpr unsigned blockBytes = 128 * 1024;
constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";
/// Those of UTF-16, either end first.
constexpr std::string_view wideMarks[] = {"\xff\xfe", "\xfe\xff"};

long readPacked(gzFile file, char* bytes, unsigned count) {
    const long got = gzread(file, bytes, count);
    // A stream that ends early shows only in the state of the file, not in the count.
    int state = Z_OK;
    gzerror(file, &state);
    return got <= 0 && state != Z_OK && state != Z_STREAM_END ? -1 : got;
}

} // namespace

LineReader::LineReader(const std::string& path) {
    std::error_code failure;
    const auto size = static_cast<double>(std::filesystem::file_size(path, failure)); // a regular file: a pipe may wait
    const std::shared_ptr<gzFile_s> file(failure ? nullptr : gzopen(path.c_str(), "rb"), [](gzFile opened) {
        if (opened)
            gzclose(opened);
    });
    if (!file) {
        error_ = "can't be opened";
        return;
    }
    gzbuffer(file.get(), blockBytes);
    read_ = [file](char* bytes, unsigned count) { return readPacked(file.get(), bytes, count); };
    share_ = [file, size] { return size > 0.0 ? static_cast<double>(gzoffset(file.get())) / size : 1.0; };
}

bool LineReader::fill() {
    if (!read_)
        return false;
    block_.resize(blockBytes);
    const long got = read_(block_.data(), blockBytes);
    if (got <= 0) {
        read_ = nullptr;
        if (got < 0)
            error_ = "is damaged: not all of it can be read";
        return false;
    }
    rest_ = std::string_view(block_.data(), static_cast<size_t>(got));
    return true;
}

void LineReader::append(std::string_view piece) {
    line_.append(piece.substr(0, LongestLine - std::min(LongestLine, line_.size())));
}

bool LineReader::next(std::string_view& line) {
    line_.clear();
    if (rest_.empty() && !fill())
        return false;
    size_t end = rest_.find('\n');
    while (end == std::string_view::npos) {
        append(rest_);
        rest_ = {};
        if (!fill())
            break;
        end = rest_.find('\n');
    }
    if (end != std::string_view::npos) {
        append(rest_.substr(0, end));
        rest_.remove_prefix(end + 1);
    }
    isUnended_ = end == std::string_view::npos;
    if (!line_.empty() && line_.back() == '\r')
        line_.pop_back();
    if (number_++ == 0 && !takeMark())
        return false;
    line = line_;
    return true;
}

/// Off the first line. False for text of another kind than what is read here.
bool LineReader::takeMark() {
    if (line_.compare(0, byteOrderMark.size(), byteOrderMark) == 0)
        line_.erase(0, byteOrderMark.size());
    for (const std::string_view mark : wideMarks)
        if (line_.compare(0, mark.size(), mark) == 0)
            error_ = "is text in UTF-16: save it as UTF-8";
    if (error_.empty())
        return true;
    read_ = nullptr;
    rest_ = {};
    return false;
}

} // namespace skyvane
