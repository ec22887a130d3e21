#pragma once

#include "chartmaker/compile/PointIndex.h"
#include "chartmaker/compile/SourceKind.h"
#include "chartmaker/region/Region.h"
#include "chartmaker/report/CompileReport.h"
#include "core/IProgressSink.h"
#include "support/SourceFolder.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace skyvane {

/// Keeps what a reader gives, and the lines it refuses or warns of as "LINE: WORDS".
class TestSink : public IElementSink, public IProgressSink {
public:
    using IElementSink::add;
    void add(std::unique_ptr<IChartElement> element, const SourceLine&, const ElementOrigin&) override {
        elements.push_back(std::move(element));
    }
    void refuse(const SourceLine& line, const std::string& reason) override {
        refusals.push_back(std::to_string(line.number) + ": " + reason);
    }
    void warn(const SourceLine& line, const std::string& words) override {
        warnings.push_back(std::to_string(line.number) + ": " + words);
    }
    void setTitle(const std::string&) override {}
    void setProgress(double) override {}

    template <class Element>
    const Element& at(size_t i) const {
        return dynamic_cast<const Element&>(*elements.at(i));
    }
    SourceContext context() { return {*this, region, points, *this}; }

    std::vector<std::unique_ptr<IChartElement>> elements;
    std::vector<std::string> refusals;
    std::vector<std::string> warnings;
    Region region;
    PointIndex points;
};

inline std::string chartmakerData(const std::string& name) {
    return sourceFolder() + "tests/tools/chartmaker/data/" + name;
}

/// A file that is gone at the end of the test.
class TextFile {
public:
    explicit TextFile(const std::string& text) {
        char name[] = "/tmp/chartmakerXXXXXX";
        close(mkstemp(name));
        path = name;
        std::ofstream(path, std::ios::binary) << text;
    }
    ~TextFile() { std::remove(path.c_str()); }

    std::string path;
};

} // namespace skyvane
