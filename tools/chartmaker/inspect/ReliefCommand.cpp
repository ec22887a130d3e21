#include "chartmaker/inspect/ReliefCommand.h"

#include "chart/geodesy/LocalFrame.h"
#include "chartmaker/inspect/ReliefPicture.h"
#include "core/text/StrictNumber.h"
#include "terrain/mesh/MeshApron.h"
#include "terrain/mesh/NearMesh.h"
#include "terrain/mesh/WideMesh.h"
#include "terrain/tree/TerrainSampler.h"
#include "terrain/tree/TerrainStore.h"

#include <algorithm>
#include <cmath>
#include <iostream>

namespace skyvane {
namespace {

/// Vertices per side of the finer near mesh.
constexpr int NearSamples = 181;

struct ReliefOptions {
    std::string folder;
    std::string out;
    ChartPosition place;
    bool hasPlace = false;
    ReliefPicture::View view;
};

bool takeNumber(const std::string& name, const std::string& value, double least, double most, double& number,
                std::string& error) {
    if (!parseStrictNumber(value, number) || !(number >= least && number <= most))
        error = name + ": \"" + value + "\" isn't possible";
    return error.empty();
}

bool takePlace(const std::string& value, ReliefOptions& options, std::string& error) {
    const size_t comma = value.find(',');
    const std::string north = comma == std::string::npos ? "" : value.substr(comma + 1);
    options.hasPlace = takeNumber("--at", value.substr(0, comma), -180.0, 180.0, options.place.longitude, error) &&
                       takeNumber("--at", north, -90.0, 90.0, options.place.latitude, error);
    return options.hasPlace;
}

bool takeValue(const std::string& name, const std::string& value, ReliefOptions& options, std::string& error) {
    constexpr double metresPerKilometre = 1000.0;
    double number = 0.0;
    if (name == "--out")
        options.out = value;
    else if (name == "--at")
        return takePlace(value, options, error);
    else if (name == "--radius" && takeNumber(name, value, 0.1, 300.0, number, error))
        options.view.radiusMetres = number * metresPerKilometre;
    else if (name == "--tilt")
        return takeNumber(name, value, 1.0, 90.0, options.view.tiltDegrees, error);
    else if (name == "--width" && takeNumber(name, value, 50.0, 4000.0, number, error))
        options.view.side = static_cast<int>(number);
    else if (error.empty())
        error = "\"" + name + "\" is unknown";
    return error.empty();
}

bool parse(const Arguments& arguments, ReliefOptions& options, std::string& error) {
    for (size_t i = 0; i < arguments.size() && error.empty(); ++i) {
        if (arguments[i].rfind("--", 0) != 0 && options.folder.empty())
            options.folder = arguments[i] + "/";
        else if (i + 1 >= arguments.size())
            error = "\"" + arguments[i] + "\" needs a value, or is one too many";
        else if (takeValue(arguments[i], arguments[i + 1], options, error))
            ++i;
    }
    if (error.empty() && (options.folder.empty() || options.out.empty() || !options.hasPlace))
        error = "the terrain folder, --at or --out is missing";
    return error.empty();
}

/// Around the near mesh, which the wide one's more coarsely known ground would meet with a step.
TerrainMesh makeApron(const MeshApron& apron, const TerrainMesh& near, const TerrainMesh& wide) {
    TerrainMesh mesh;
    apron.build([&near](int i) { return near.vertices[static_cast<size_t>(i)]; },
                [&wide](int i) { return wide.vertices[static_cast<size_t>(i)]; }, 0.0, 0.0, mesh.vertices);
    return mesh;
}

/// Sinks the wide mesh where the near one and its apron lie.
void sinkUnderNear(TerrainMesh& wide) {
    constexpr auto covered = static_cast<float>(MeshApron::CoveredHalfSide);
    constexpr float depth = 3000.0f;
    for (TerrainVertex& vertex : wide.vertices)
        if (std::max(std::fabs(vertex.position.X), std::fabs(vertex.position.Z)) < covered)
            vertex.position.Y -= depth;
}

} // namespace

int runRelief(const Arguments& arguments) {
    ReliefOptions options;
    std::string error;
    if (!parse(arguments, options, error)) {
        complain("relief: " + error + "; --help tells more");
        return 2;
    }
    TerrainStore store(options.folder, TerrainStore::DefaultCacheSize);
    TerrainSampler sampler(store);
    NearMesh near(NearSamples);
    TerrainMesh nearMesh, wideMesh;
    near.build(sampler, options.place, nearMesh);
    WideMesh().build(sampler, options.place, wideMesh);
    if (nearMesh.undefined && wideMesh.undefined) {
        complain(options.folder + ": no ground there; the coarser levels are the program's to compute");
        return 1;
    }
    const bool showsWide = options.view.radiusMetres > NearMesh::RadiusMetres;
    options.view.lowestMetres = static_cast<double>(nearMesh.minimum);
    options.view.highestMetres =
        static_cast<double>(showsWide ? std::max(nearMesh.maximum, wideMesh.maximum) : nearMesh.maximum);
    ReliefPicture picture(options.view);
    if (!nearMesh.undefined) {
        picture.draw(nearMesh, near.makeIndices());
        const MeshApron apron(NearSamples);
        picture.draw(makeApron(apron, nearMesh, wideMesh), apron.makeIndices());
        sinkUnderNear(wideMesh);
    }
    picture.draw(wideMesh, WideMesh::makeIndices());
    if (!picture.save(options.out)) {
        complain("can't write " + options.out);
        return 1;
    }
    std::cout << options.out << ": heights of " << nearMesh.minimum << " to " << nearMesh.maximum << " m within 10 km, "
              << wideMesh.minimum << " to " << wideMesh.maximum << " m beyond; "
              << picture.countHoles(options.view.radiusMetres) << " pixels without ground\n";
    return 0;
}

} // namespace skyvane
