// What is too small for a target of its own: texts, names and headers that come with files, from the network and from
// the system.
#include "chart/names/RecentRing.h"
#include "core/files/MountPoint.h"
#include "core/ini/SeparatedString.h"
#include "core/text/Numbers.h"
#include "core/text/StrictNumber.h"
#include "core/text/Utf8.h"
#include "gui/hypertext/pages/PageHistory.h"
#include "gui/hypertext/pages/PictureHeader.h"
#include "sensors/transport/IpAddress.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

using namespace skyvane;

namespace {

void check(bool holds) {
    if (!holds)
        std::abort();
}

void readNumbers(const std::string& text) {
    toInt(text);
    toUnsigned(text);
    const double value = toDouble(text);
    check(std::isfinite(value));
    check(toDouble(toText(value)) == value);
    roundHalfAway(value);
    toFixedText(value, 3);
    double strict = 0.0;
    check(!parseStrictNumber(text, strict) || strict == value);
}

void readRecent(const std::string& bytes) {
    static const int file = memfd_create("recent", MFD_CLOEXEC);
    if (ftruncate(file, 0) != 0 || pwrite(file, bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size()))
        return;
    RecentRing ring;
    ring.load("/proc/self/fd/" + std::to_string(file));
    ring.note(7);
    check(ring.ids().size() <= RecentRing::Capacity && ring.ids().front() == 7);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const std::string clean = encodeUtf8(decodeUtf8(text));
    check(encodeUtf8(decodeUtf8(clean)) == clean);
    readNumbers(text);
    readRecent(text);
    parseMountPaths(text);
    check(parseSeperatedString(text, '|').size() <= size);
    const IpAddress address(text, 4000);
    check(address.getAddressAsString().empty() != address.isGood());
    const auto picture = readPictureSize(text);
    check((picture.Width == 0) == (picture.Height == 0));
    if (isNameWithinFolder(text))
        check(text.front() != '/' && *std::filesystem::path(text).lexically_normal().begin() != "..");
    return 0;
}
