#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace skyvane {

/// Cuts a stream of bytes into sentences, and a sentence into its tokens.
///
///     if (sentence.add(byte)) {              // the byte ended a sentence
///         if (sentence.split()) ... sentence.token(1) ...
///         sentence.begin(byte);
///     }
///
/// A sentence ends with a line feed or with the "$" of the next one. Before the first "$" nothing counts.
class NmeaSentence {
public:
    /// Standard sentences have 82 bytes; of one that is longer than this, nothing is believed.
    static constexpr size_t MaximalBytes = 1024;

    bool add(char byte) {
        if (byte == '$' || byte == '\n')
            return true;
        if (length_ < limit_)
            bytes_[length_++] = static_cast<Byte>(byte);
        else
            isCut_ = true;
        return false;
    }
    /// After the "$" or the line feed.
    void begin(char end);

    /// All of it, with what stands behind the "*".
    std::string_view text() const { return {reinterpret_cast<const char*>(bytes_.data()), length_}; }
    /// Makes the tokens. False when there is nothing, or when the checksum, over what stands before the "*", isn't the
    /// one behind it. Without a checksum only a sentence whose own is 0 passes.
    bool split();
    size_t count() const { return count_; }
    /// Empty behind the last token.
    std::string_view token(size_t index) const;

private:
    /// Not a char, which the compiler would have to take for a part of every other member: one byte costs a third less.
    enum class Byte : uint8_t {};

    std::array<Byte, MaximalBytes> bytes_;
    std::array<uint16_t, MaximalBytes + 2> starts_{}; ///< Of each token, and one more behind the last one's comma.
    size_t length_ = 0;
    size_t limit_ = 0; ///< 0 before the first "$".
    size_t count_ = 0;
    bool isCut_ = false;
};

} // namespace skyvane
