#pragma once

#include "core/files/PartialFile.h"

#include <cstdint>
#include <iosfwd>
#include <string>

namespace skyvane {

// The two area files of a chart folder. Little-endian, both:
//
//   version             8-bit 1 in AreaLeafes.dat, 32-bit 2 in AreaLeafesAcc.dat
//   records to the end  32-bit number of a leaf, 32-bit count n, then n ids of 32 bits, or n times 3 static bytes

constexpr const char* AreaLeafesFileName = "AreaLeafes.dat";
constexpr const char* AreaLeafesAccFileName = "AreaLeafesAcc.dat";

/// What tells the two apart.
struct AreaFileKind {
    int versionBytes;
    int version;
    unsigned unitBytes;
};
constexpr AreaFileKind AreaLeafesFile = {1, 1, 4};
constexpr AreaFileKind AreaLeafesAccFile = {4, 2, 3};

/// Walks the records of an area file, trusting nothing: no count is believed beyond the file's end.
///
///     AreaFileReader file(path, AreaLeafesFile);
///     while (file.nextRecord())
///         for (size_t units = 0; const uint8_t* bytes = file.takeUnits(units);) ...   // units of 4 bytes
///
/// The walk ends at the file's end, at a number above the last area's, and at a count that is negative. A count of more
/// than the rest of the file gives the whole units that are there. Memory stays small whatever the file's size.
class AreaFileReader {
public:
    AreaFileReader(const std::string& path, const AreaFileKind& kind);

    /// A file that can be read, of the right version.
    bool good() const { return good_; }
    /// On to the next record, past what the last one has left.
    bool nextRecord();
    int getNumber() const { return number_; }
    /// Units of the record that the file holds and that weren't taken yet.
    uint64_t getUnitsLeft() const { return unitsLeft_; }
    /// The next units in place, valid until the next call; null when the record has no more.
    const uint8_t* takeUnits(size_t& units);
    /// A record claimed more than there was, or less than nothing.
    bool isDamaged() const { return damaged_; }

private:
    const uint8_t* take(size_t count);
    uint64_t remaining() const { return file_.getFileSize() - file_.getOffsetInFile(); }

    AreaFileKind kind_;
    PartialFile file_;
    bool good_ = false;
    bool damaged_ = false;
    int number_ = -1;
    uint64_t unitsLeft_ = 0;
};

/// The writer's side: the version, then for each record its head and its units.
void writeAreaFileVersion(std::ostream& out, const AreaFileKind& kind);
void writeAreaRecordHead(std::ostream& out, int number, int count);
void writeAreaUnit(std::ostream& out, int id);

} // namespace skyvane
