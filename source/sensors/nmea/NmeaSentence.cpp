#include "sensors/nmea/NmeaSentence.h"

namespace skyvane {
namespace {

constexpr unsigned NoDigit = 16;

unsigned hexDigit(char c) {
    if (c >= '0' && c <= '9')
        return static_cast<unsigned>(c - '0');
    if (c >= 'A' && c <= 'F')
        return static_cast<unsigned>(c - 'A') + 10;
    if (c >= 'a' && c <= 'f')
        return static_cast<unsigned>(c - 'a') + 10;
    return NoDigit;
}

/// The first byte that is no digit, as a rule the carriage return, ends the number.
unsigned readHex(std::string_view text) {
    constexpr unsigned tooLarge = 0x1000;
    unsigned value = 0;
    for (const char c : text) {
        if (hexDigit(c) == NoDigit || value >= tooLarge)
            break;
        value = value * 16 + hexDigit(c);
    }
    return value;
}

} // namespace

void NmeaSentence::begin(char end) {
    if (end == '$')
        limit_ = MaximalBytes;
    length_ = 0;
    isCut_ = false;
}

bool NmeaSentence::split() {
    const std::string_view all = text();
    const std::string_view body = all.substr(0, all.find('*'));
    if (body.empty() || isCut_)
        return false;
    // Of several "*" the last one counts.
    const unsigned told = body.size() < all.size() ? readHex(all.substr(all.rfind('*') + 1)) : 0;
    unsigned checksum = 0;
    count_ = 1;
    for (size_t i = 0; i < body.size(); ++i) {
        checksum ^= static_cast<unsigned char>(body[i]);
        // Without a branch: where the commas are is hard to guess.
        starts_[count_] = static_cast<uint16_t>(i + 1);
        count_ += body[i] == ',' ? 1 : 0;
    }
    starts_[count_] = static_cast<uint16_t>(body.size() + 1);
    return checksum == told;
}

std::string_view NmeaSentence::token(size_t index) const {
    if (index >= count_)
        return {};
    const size_t begin = starts_[index];
    return text().substr(begin, starts_[index + 1] - 1u - begin);
}

} // namespace skyvane
