#include "chart/names/RecentRing.h"

#include "core/bytes/ByteReader.h"
#include "core/bytes/ByteWriter.h"
#include "core/files/SafeFile.h"

#include <fstream>

namespace skyvane {

namespace {

constexpr size_t fileBytes = RecentRing::Capacity * sizeof(int32_t);

} // namespace

void RecentRing::note(int id) {
    if (id == Empty)
        return;
    int place = 0;
    while (place < Capacity - 1 && at(place) != id)
        ++place;
    for (; place < Capacity - 1; ++place)
        at(place) = at(place + 1);
    start_ = (start_ + Capacity - 1) % Capacity;
    at(0) = id;
}

std::vector<int> RecentRing::ids() const {
    std::vector<int> ids;
    for (int place = 0; place < Capacity; ++place)
        if (at(place) != Empty)
            ids.push_back(at(place));
    return ids;
}

bool RecentRing::load(const std::string& path) {
    *this = RecentRing();
    char bytes[fileBytes];
    std::ifstream in(path, std::ios::binary);
    if (!in.read(bytes, fileBytes))
        return false;
    ByteReader reader(bytes, fileBytes);
    for (int& id : ids_)
        id = reader.little<int32_t>();
    return true;
}

bool RecentRing::save(const std::string& path) const {
    char bytes[fileBytes];
    ByteWriter writer(bytes, fileBytes);
    for (int place = 0; place < Capacity; ++place)
        writer.little<int32_t>(at(place));
    return saveFileSafely(path, std::string(bytes, fileBytes)) == 0;
}

} // namespace skyvane
