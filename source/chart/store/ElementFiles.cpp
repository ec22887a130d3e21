#include "chart/store/ElementFiles.h"

#include "chart/elements/IChartElement.h"
#include "chart/store/ElementId.h"
#include "core/bytes/ByteReader.h"
#include "core/bytes/ByteWriter.h"
#include "core/files/SafeFile.h"

#include <algorithm>
#include <cstdio>
#include <limits>

namespace skyvane {
namespace {

constexpr size_t HeadBytes = 8;
constexpr size_t OffsetBytes = 4;
/// Offsets that are read or written at once.
constexpr size_t ChunkOffsets = 16 * 1024;

std::string elementsPath(const std::string& folder) {
    return folder + "/" + ElementsFileName;
}

std::string offsetsPath(const std::string& folder) {
    return folder + "/" + ElementOffsetsFileName;
}

std::string fresh(const std::string& path) {
    return path + ".new";
}

} // namespace

ElementFilesWriter::ElementFilesWriter(const std::string& folder)
    : folder_(folder), out_(fresh(elementsPath(folder)), std::ios::binary | std::ios::trunc) {}

ElementFilesWriter::~ElementFilesWriter() {
    std::remove(fresh(elementsPath(folder_)).c_str());
    std::remove(fresh(offsetsPath(folder_)).c_str());
}

int ElementFilesWriter::add(const IChartElement& element) {
    if (offsets_.size() >= static_cast<size_t>(MaxElementsOfSubChart) || end_ > std::numeric_limits<uint32_t>::max())
        return -1;
    element.write(out_);
    offsets_.push_back(static_cast<uint32_t>(end_));
    end_ = static_cast<uint64_t>(std::max<std::streamoff>(out_.tellp(), 0));
    return static_cast<int>(offsets_.size()) - 1;
}

bool ElementFilesWriter::writeOffsets(const std::string& path) const {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    char bytes[ChunkOffsets * OffsetBytes];
    ByteWriter head(bytes, HeadBytes);
    head.little(ElementOffsetsVersion);
    head.little(static_cast<uint32_t>(offsets_.size()));
    out.write(bytes, HeadBytes);
    for (size_t i = 0; i < offsets_.size(); i += ChunkOffsets) {
        const size_t count = std::min(ChunkOffsets, offsets_.size() - i);
        ByteWriter chunk(bytes, sizeof bytes);
        for (size_t j = 0; j < count; ++j)
            chunk.little(offsets_[i + j]);
        out.write(bytes, static_cast<std::streamsize>(count * OffsetBytes));
    }
    out.close();
    return out.good();
}

bool ElementFilesWriter::prepare() {
    out_.close();
    isPrepared_ = out_ && writeOffsets(fresh(offsetsPath(folder_)));
    return isPrepared_;
}

bool ElementFilesWriter::finish() {
    if (!isPrepared_ && !prepare())
        return false;
    const std::string offsets = offsetsPath(folder_), elements = elementsPath(folder_);
    std::remove(offsets.c_str()); // none of them may meet the other elements
    return replaceFile(fresh(elements), elements) && replaceFile(fresh(offsets), offsets);
}

ElementFilesReader::ElementFilesReader(const std::string& folder)
    : elements_(elementsPath(folder)), state_(readOffsets(RandomAccessFile(offsetsPath(folder)))) {
    if (state_ == State::Good && !elements_.good())
        state_ = State::Missing;
    if (state_ != State::Good)
        offsets_.clear();
}

ElementFilesReader::State ElementFilesReader::readOffsets(const RandomAccessFile& file) {
    uint8_t bytes[ChunkOffsets * OffsetBytes];
    if (!file.good() || !file.read(0, bytes, HeadBytes))
        return State::Missing;
    ByteReader head(bytes, HeadBytes);
    if (head.little<int32_t>() != ElementOffsetsVersion)
        return State::OtherVersion;
    const uint64_t claimed = head.little<uint32_t>();
    const uint64_t held = (file.getSize() - HeadBytes) / OffsetBytes;
    // One more than there are ids: it tells where the last one ends.
    const uint64_t count = std::min({claimed, held, uint64_t(MaxElementsOfSubChart) + 1});
    offsets_.reserve(count);
    while (offsets_.size() < count) {
        const size_t here = std::min<size_t>(ChunkOffsets, count - offsets_.size());
        if (!file.read(HeadBytes + offsets_.size() * OffsetBytes, bytes, here * OffsetBytes))
            return State::Missing;
        ByteReader chunk(bytes, here * OffsetBytes);
        for (size_t i = 0; i < here; ++i) {
            const uint32_t offset = chunk.little<uint32_t>();
            if (!offsets_.empty() && offset < offsets_.back())
                return State::DecreasingOffsets;
            offsets_.push_back(offset);
        }
    }
    isCut_ = claimed > held || claimed > uint64_t(MaxElementsOfSubChart);
    end_ = elements_.getSize();
    if (isCut_ && !offsets_.empty()) {
        end_ = offsets_.back();
        offsets_.pop_back();
    }
    return State::Good;
}

bool ElementFilesReader::read(int index, std::vector<char>& record) const {
    if (index < 0 || index >= getCount())
        return false;
    const auto i = static_cast<size_t>(index);
    const uint64_t begin = offsets_[i];
    const uint64_t end = i + 1 < offsets_.size() ? offsets_[i + 1] : end_;
    if (begin > end || end > elements_.getSize() || end - begin > MaxRecordBytes)
        return false;
    ++reads_;
    record.resize(end - begin);
    return elements_.read(begin, record.data(), record.size());
}

} // namespace skyvane
