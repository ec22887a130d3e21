#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "core/bytes/ByteReader.h"
#include "core/bytes/ByteWriter.h"

#include <cmath>
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace skyvane {

// The primitives of element records, little-endian and without padding. A kind lists its fields once, in a function
// that takes either form: the reader fills the fields, the writer takes them.
//
//     form.latitudeFirst(self.position);
//     form.number(self.frequency);          // as wide as the field
//     form.text(self.ident);

constexpr size_t VertexBytes = 2 * sizeof(double);

/// Fills fields from bytes. Once the bytes end early, or hold a coordinate that isn't finite, fail() is set.
class RecordReader {
public:
    RecordReader(const char* bytes, size_t count) : in_(bytes, count), count_(count) {}

    template <class T>
    void number(T& value) {
        value = in_.little<T>();
        if constexpr (std::is_floating_point<T>::value)
            bad_ = bad_ || !std::isfinite(value);
    }
    /// A byte; all but 0 is set.
    void flag(bool& value) { value = in_.little<uint8_t>() != 0; }
    /// u32 length and the bytes.
    void text(std::string& value) {
        const size_t length = in_.little<uint32_t>();
        const uint8_t* bytes = in_.take(length);
        value.assign(reinterpret_cast<const char*>(bytes), bytes ? length : 0);
    }
    void latitudeFirst(ChartPosition& position) {
        number(position.latitude);
        number(position.longitude);
    }
    void longitudeFirst(ChartPosition& position) {
        number(position.longitude);
        number(position.latitude);
    }
    void vertices(std::vector<ChartPosition>& positions) {
        positions.resize(count(VertexBytes));
        for (ChartPosition& position : positions)
            longitudeFirst(position);
    }
    /// u32 count and the objects, each of `leastBytes` or more, listed by Object::record.
    template <class Object>
    void objects(std::vector<Object>& objects, size_t leastBytes) {
        objects.resize(count(leastBytes));
        for (Object& object : objects)
            Object::record(object, *this);
    }
    /// A u32 count of things that take `leastBytes` or more; 0, and fail, when the bytes left can't hold them.
    size_t count(size_t leastBytes) {
        const size_t claimed = in_.little<uint32_t>();
        if (claimed <= in_.remaining() / leastBytes)
            return claimed;
        bad_ = true;
        return 0;
    }

    bool fail() const { return bad_ || in_.fail(); }
    size_t size() const { return count_ - in_.remaining(); }

    static constexpr bool Reads = true;

private:
    ByteReader in_;
    size_t count_;
    bool bad_ = false;
};

/// Appends fields to bytes of its own.
class RecordWriter {
public:
    template <class T>
    void number(T value) {
        char bytes[sizeof value];
        ByteWriter(bytes, sizeof bytes).little(value);
        bytes_.append(bytes, sizeof bytes);
    }
    void flag(bool value) { number<uint8_t>(value ? 1 : 0); }
    void text(const std::string& value) {
        count(value.size());
        bytes_ += value;
    }
    void latitudeFirst(const ChartPosition& position) {
        number(position.latitude);
        number(position.longitude);
    }
    void longitudeFirst(const ChartPosition& position) {
        number(position.longitude);
        number(position.latitude);
    }
    void vertices(const std::vector<ChartPosition>& positions) {
        count(positions.size());
        for (const ChartPosition& position : positions)
            longitudeFirst(position);
    }
    template <class Object>
    void objects(const std::vector<Object>& objects, size_t) {
        count(objects.size());
        for (const Object& object : objects)
            Object::record(object, *this);
    }
    void count(size_t value) { number(static_cast<uint32_t>(value)); }

    const std::string& bytes() const { return bytes_; }

    static constexpr bool Reads = false;

private:
    std::string bytes_;
};

} // namespace skyvane
