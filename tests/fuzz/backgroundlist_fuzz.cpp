#include "chart/areas/AreaTree.h"
#include "terrain/files/BackgroundList.h"

#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

using namespace skyvane;

// Any text as a list: only numbers of areas come out, and no vendor leads out of the images folder.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const int file = memfd_create("list", MFD_CLOEXEC);
    if (ftruncate(file, 0) != 0 || pwrite(file, data, size, 0) != static_cast<ssize_t>(size))
        return 0;
    std::string vendor, second, closing;
    IArea::BgType type = IArea::VFR;
    bool common = false;
    for (const int area :
         parseBgFile("/proc/self/fd/" + std::to_string(file), &vendor, &second, &type, &common, &closing))
        if (area < 0 || area > LastAreaIndex)
            std::abort();
    const std::string folder = getBgFolder("/i/", vendor);
    if (!folder.empty() && folder.find('/', 3) != folder.size() - 1)
        std::abort();
    int area = 0;
    parseBgFileName(vendor, type, area);
    return 0;
}
