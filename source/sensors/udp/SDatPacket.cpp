#include "sensors/udp/SDatPacket.h"

#include "core/bytes/ByteReader.h"
#include "core/bytes/ByteWriter.h"

#include <cstring>

namespace skyvane {
namespace {

constexpr char Mark[] = {'S', 'D', 'a', 't'};
constexpr int CheckSumPlace = 12;
constexpr int LargestStepOnTheCircle = 10;
constexpr int MostDropped = 27;

} // namespace

bool SDatPacket::read(const uint8_t* bytes, size_t available) {
    ByteReader in(bytes, available);
    const uint8_t* mark = in.take(sizeof Mark);
    if (!mark || std::memcmp(mark, Mark, sizeof Mark) != 0)
        return false;
    type = in.little<int32_t>();
    length = in.little<uint32_t>();
    checkSum = in.little<uint8_t>();
    const auto levelNumber = in.little<int8_t>();
    sequenceNumber = in.little<uint8_t>();
    form = in.fail() ? nullptr : in.take(length);
    if (!form)
        return false;
    level = levelNumber >= ISensor::GOOD && levelNumber <= ISensor::WRONG
                ? static_cast<ISensor::WarningLevel>(levelNumber)
                : ISensor::WRONG;
    isIntact =
        calcCheckSum(reinterpret_cast<const char*>(bytes), static_cast<int>(this->bytes()), CheckSumPlace) == checkSum;
    return true;
}

void SDatPacket::write(uint8_t* bytes) const {
    ByteWriter out(bytes, this->bytes());
    out.bytes(Mark, sizeof Mark);
    out.little(static_cast<int32_t>(type));
    out.little(static_cast<uint32_t>(length));
    out.little(uint8_t{0});
    out.little(static_cast<int8_t>(level));
    out.little(sequenceNumber);
    out.bytes(form, length);
    bytes[CheckSumPlace] =
        calcCheckSum(reinterpret_cast<const char*>(bytes), static_cast<int>(this->bytes()), CheckSumPlace);
}

uint8_t calcCheckSum(const char* data, int length, int skipIndex) {
    uint8_t sum = 0;
    for (int i = 0; i < length; ++i)
        if (i != skipIndex)
            sum = static_cast<uint8_t>(sum + static_cast<uint8_t>(data[i]));
    return sum;
}

bool SequenceCheck::isInOrder(uint8_t number) {
    const bool follows =
        number >= last_ || SeqNrDiff(static_cast<char>(number), static_cast<char>(last_)) <= LargestStepOnTheCircle;
    if (!follows && dropped_ < MostDropped) {
        ++dropped_;
        return false;
    }
    last_ = number;
    dropped_ = 0;
    return true;
}

int8_t SeqNrDiff(char a, char b) {
    return static_cast<int8_t>(a - b);
}

} // namespace skyvane
