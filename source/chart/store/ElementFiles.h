#pragma once

#include "core/files/RandomAccessFile.h"

#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace skyvane {

class IChartElement;

// The two files of a chart set that hold its elements. Little-endian:
//
//   ElementOffsets.dat   i32 version 2, u32 count N, then N times u32: where element i begins in Elements.dat
//   Elements.dat         the records one after the other, each a 32-bit type value and the element's own bytes
//
// Record i ends where record i + 1 begins, the last one at the file's end.

constexpr const char* ElementOffsetsFileName = "ElementOffsets.dat";
constexpr const char* ElementsFileName = "Elements.dat";
constexpr int32_t ElementOffsetsVersion = 2;

/// Writes both files of a folder, which must exist.
///
///     ElementFilesWriter files(folder);
///     for (const auto& element : elements) files.add(*element);      // 0, 1, 2, ...
///     if (!files.finish()) ...
///
/// What stood there before stays until finish(); then both are replaced, the bytes on the disk first. Whoever is
/// interrupted in between leaves a set without elements, never one of two halves.
class ElementFilesWriter {
public:
    explicit ElementFilesWriter(const std::string& folder);
    /// Without finish() nothing has happened.
    ~ElementFilesWriter();
    ElementFilesWriter(const ElementFilesWriter&) = delete;
    ElementFilesWriter& operator=(const ElementFilesWriter&) = delete;

    /// The element's index in the set, -1 when no more have one (MaxElementsOfSubChart), or offsets end (4 GiB).
    int add(const IChartElement& element);
    /// Writes what is left beside the files that stand there. False when the disk refuses: nothing has happened then.
    bool prepare();
    /// The same, and then in their place. True when both files are.
    bool finish();

private:
    bool writeOffsets(const std::string& path) const;

    std::string folder_;
    std::ofstream out_;
    std::vector<uint32_t> offsets_;
    uint64_t end_ = 0; ///< Bytes of records so far.
    bool isPrepared_ = false;
};

/// Reads records by their index, each by one read. Keeps Elements.dat open.
///
/// Nothing is believed: an offset table that ends early gives the elements whose ends it still tells; an element that
/// lies beyond the file's end, or that is longer than any element can be, is absent.
class ElementFilesReader {
public:
    enum class State {
        Good,
        Missing,          ///< No offsets, or no elements.
        OtherVersion,     ///< Of the offsets: made for another version of the program.
        DecreasingOffsets ///< Not to be used at all: nobody knows which element is which.
    };
    /// No element is longer.
    static constexpr uint64_t MaxRecordBytes = 64 * 1024 * 1024;

    explicit ElementFilesReader(const std::string& folder);

    State getState() const { return state_; }
    /// The table claims more elements than it has, or than there are ids.
    bool isCut() const { return isCut_; }
    /// Elements that have a place; 0 unless the state is good.
    int getCount() const { return static_cast<int>(offsets_.size()); }
    /// The record's bytes, its type value first. False when there is none that can be read.
    bool read(int index, std::vector<char>& record) const;
    /// How many records were asked of the disk so far.
    unsigned long getReadCount() const { return reads_; }

private:
    State readOffsets(const RandomAccessFile& file);

    RandomAccessFile elements_;
    std::vector<uint32_t> offsets_;
    uint64_t end_ = 0; ///< Where the last element ends.
    bool isCut_ = false;
    State state_; ///< Reading the offsets gives it: behind what they fill.
    mutable unsigned long reads_ = 0;
};

} // namespace skyvane
