#include "chart/areas/AreaFile.h"
#include "chart/areas/AreaLeafes.h"
#include "chart/areas/AreaTree.h"
#include "core/bytes/ByteReader.h"

#include <cstdlib>
#include <iostream>
#include <sys/mman.h>
#include <unistd.h>

using namespace skyvane;

// The bytes as either file: no more units than the file holds come out, and the leaves stay those of the tree.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static std::vector<IArea*> table(AreaCount);
    static const std::unique_ptr<AreaArena> areas = createWorldWideAreaTree(false, table.data());
    static const int file = memfd_create("areas", MFD_CLOEXEC);
    std::cout.setstate(std::ios::badbit); // the log
    if (ftruncate(file, 0) != 0 || pwrite(file, data, size, 0) != static_cast<ssize_t>(size))
        return 0;
    const std::string path = "/proc/self/fd/" + std::to_string(file);
    for (const AreaFileKind& kind : {AreaLeafesFile, AreaLeafesAccFile}) {
        AreaFileReader reader(path, kind);
        size_t held = 0, units = 0;
        while (reader.nextRecord())
            while (reader.takeUnits(units))
                held += units * kind.unitBytes;
        if (held > size)
            std::abort();
    }
    mergeAreaLeafes(path, 0, table.data());
    size_t entered = 0;
    for (size_t i = 0; i + 4 <= size; ++i) { // every number that a record could have
        IArea* area = getAreaOfTable(table.data(), ByteReader(data + i, 4).little<int32_t>());
        if (AreaLeaf* leaf = area ? area->asLeaf() : nullptr) {
            entered += leaf->getElements().size();
            leaf->clear();
        }
    }
    if (entered * 4 > size)
        std::abort();
    return 0;
}
