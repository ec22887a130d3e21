#include "SourceBytes.h"
#include "chartmaker/openair/OpenAirParser.h"

using namespace skyvane;

/// Any bytes as airspaces, plain or packed.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t count) {
    const SourceBytes file(bytes, count);
    StrictSink sink;
    PointIndex points;
    readOpenAir(file.path(), sink.context(points));
    return 0;
}
