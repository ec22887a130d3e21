#pragma once

#include "chart/elements/ElementFactory.h"
#include "chartmaker/compile/PointIndex.h"
#include "chartmaker/compile/SourceKind.h"
#include "chartmaker/region/Region.h"
#include "core/IProgressSink.h"

#include <cstdlib>
#include <sstream>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace skyvane {

/// Any bytes as a file that has a path and no disk.
class SourceBytes {
public:
    SourceBytes(const uint8_t* bytes, size_t count) : file_(memfd_create("source", 0)) {
        if (file_ < 0 || write(file_, bytes, count) != static_cast<ssize_t>(count))
            std::abort();
    }
    ~SourceBytes() { close(file_); }
    SourceBytes(const SourceBytes&) = delete;
    SourceBytes& operator=(const SourceBytes&) = delete;

    std::string path() const { return "/proc/self/fd/" + std::to_string(file_); }

private:
    int file_;
};

/// What a reader makes of hostile bytes is an element that is whole: its record reads back as the same.
class StrictSink : public IElementSink, public IProgressSink {
public:
    using IElementSink::add;
    void add(std::unique_ptr<IChartElement> element, const SourceLine&, const ElementOrigin&) override {
        const std::string record = recordOf(*element);
        const std::unique_ptr<IChartElement> again = createChartElement(element->getType());
        unsigned position = 4;
        if (!again->readFromBuffer(record.data(), position, static_cast<unsigned>(record.size())) ||
            recordOf(*again) != record || !Region().touches(*element))
            std::abort();
        element->createHTI(true);
    }
    void refuse(const SourceLine&, const std::string&) override {}
    void warn(const SourceLine&, const std::string&) override {}
    void setTitle(const std::string&) override {}
    void setProgress(double share) override {
        if (!(share >= 0.0 && share <= 1.0))
            std::abort();
    }
    SourceContext context(PointIndex& points) { return {*this, region_, points, *this}; }

private:
    static std::string recordOf(const IChartElement& element) {
        std::ostringstream out;
        element.write(out);
        return out.str();
    }

    Region region_;
};

} // namespace skyvane
