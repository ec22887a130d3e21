#pragma once

#include "sensors/ISensor.h"

#include <cstddef>
#include <cstdint>

namespace skyvane {

/// A record on the network, "SDat" packet; docs/formats/sdat-packet.md has the layout. A datagram holds one or more,
/// one right after the other.
struct SDatPacket {
    static constexpr size_t HeaderBytes = 15;
    /// Where a program listens unless told otherwise.
    static constexpr int Port = 1991;

    int type = 0; ///< As it came: may be none.
    uint8_t checkSum = 0;
    ISensor::WarningLevel level = ISensor::WRONG; ///< A level that is none reads as WRONG.
    uint8_t sequenceNumber = 0;
    const uint8_t* form = nullptr;
    size_t length = 0;     ///< Of the form.
    bool isIntact = false; ///< The checksum fits.

    size_t bytes() const { return HeaderBytes + length; }
    /// Takes the packet at the front of the bytes apart; its form stays in place. False when there is none, or not the
    /// whole of it.
    bool read(const uint8_t* bytes, size_t available);
    /// Writes bytes() bytes with their checksum; checkSum and isIntact have no say.
    void write(uint8_t* bytes) const;
};

/// The sum modulo 256 of the bytes but for the one at skipIndex.
uint8_t calcCheckSum(const char* data, int length, int skipIndex);

/// Whether a packet is in order, by the numbers of the packets before.
///
/// A number that isn't smaller than the last, or behind it by at most 10 or more than half the circle, is in order.
/// After 27 others in a row the next counts again, so that a sender that began anew gets through.
class SequenceCheck {
public:
    bool isInOrder(uint8_t number);
    /// Of packets that weren't in order, in a row.
    int dropped() const { return dropped_; }
    uint8_t last() const { return last_; }

private:
    uint8_t last_ = 0;
    int dropped_ = 0;
};

/// The signed difference on the circle of 256 numbers.
int8_t SeqNrDiff(char a, char b);

} // namespace skyvane
