#include "chartmaker/command/CompileCommand.h"

#include "chart/store/SetDescription.h"
#include "chartmaker/command/CompileOptions.h"
#include "chartmaker/compile/ChartCompiler.h"
#include "chartmaker/report/ConsoleProgress.h"
#include "core/files/Paths.h"

#include <fstream>
#include <iostream>

namespace skyvane {
namespace {

/// The name of the set's files: letters and digits of vendor and area, all else as "_".
std::string fileNameOf(const CompileOptions& options) {
    std::string name = options.vendor + "_" + options.area;
    for (char& c : name)
        if (!(c >= '0' && c <= '9') && !(c >= 'A' && c <= 'Z') && !(c >= 'a' && c <= 'z') && c != '-')
            c = '_';
    return name;
}

bool readSources(const CompileOptions& options, ChartCompiler& compiler, ConsoleProgress& progress) {
    for (const CompileOptions::Source& source : options.sources) {
        progress.setTitle("reading " + source.path);
        const SourceContext context{compiler, compiler.getRegion(), compiler.getPoints(), progress,
                                    options.groundToleranceMetres};
        if (!source.kind->read(source.path, context))
            return false;
    }
    return true;
}

bool writeSet(const CompileOptions& options, ChartCompiler& compiler, ConsoleProgress& progress) {
    const std::string name = fileNameOf(options), folder = options.out + "/" + name;
    if (compiler.getElementCount() == 0) {
        complain("nothing to write: no elements lie in the region");
        return false;
    }
    progress.setTitle("writing " + folder);
    const bool isWritten =
        makePath(folder) && compiler.write(folder, progress) &&
        SetDescription{options.chartVersion, options.vendor, options.area, name}.save(folder + ".sci");
    progress.clear();
    if (isWritten)
        std::cout << folder << ".sci: " << compiler.getElementCount() << " elements\n";
    else
        complain("can't write the set " + folder);
    return isWritten;
}

} // namespace

int runCompile(const Arguments& arguments) {
    CompileOptions options;
    std::string error;
    if (!parseCompileOptions(arguments, options, error)) {
        complain("compile: " + error + "; --help tells more");
        return 2;
    }
    std::ofstream details;
    if (!options.report.empty()) {
        details.open(options.report, std::ios::trunc);
        if (!details) {
            complain("can't write " + options.report);
            return 1;
        }
    }
    ConsoleProgress progress(stderr);
    CompileReport report(std::cerr, options.report.empty() ? nullptr : &details, [&progress] { progress.clear(); });
    ChartCompiler compiler(options.region, report);
    const bool isRead = readSources(options, compiler, progress);
    progress.clear();
    report.writeSummary(std::cout);
    if (details.is_open() && !details.flush())
        complain("can't write all of " + options.report);
    return isRead && writeSet(options, compiler, progress) ? 0 : 1;
}

} // namespace skyvane
