#include "Bench.h"
#include "chart/areas/AreaGrid.h"
#include "chart/areas/AreaTree.h"
#include "chart/geodesy/Angles.h"

#include <algorithm>
#include <boost/geometry.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <boost/iterator/function_output_iterator.hpp>
#include <cmath>
#include <map>
#include <random>

namespace skyvane {

namespace bg = boost::geometry;
namespace bgi = boost::geometry::index;

namespace {

/// The tree's table and nodes, against one array of as many bytes that is filled with a number. Both are allocated anew
/// each time and freed outside the measurement.
double treeBuild(bool smoke) {
    const size_t words = (AreaCount * sizeof(IArea*) + (AreaCount - AreaLeafCount) * sizeof(AreaNode) +
                          AreaLeafCount * sizeof(AreaLeaf)) /
                         sizeof(uint64_t);
    const auto build = [] {
        std::vector<IArea*> table;
        std::unique_ptr<AreaArena> areas;
        return secondsOf([&] {
            table.resize(AreaCount);
            areas = createWorldWideAreaTree(false, table.data());
        });
    };
    const auto fill = [words] {
        std::vector<uint64_t> array;
        return secondsOf([&] { array.assign(words, 0x0123456789abcdef); });
    };
    return ratioOfMedians(smoke ? 1 : 15, build, fill);
}

using Point = bg::model::point<double, 2, bg::cs::cartesian>;
using Box = bg::model::box<Point>;

struct View {
    ChartPosition nw, se;
};

/// Places as charts have them, always the same ones: clusters of very different density, the seam among them. Around a
/// place a leaf holds about a dozen others, as it does with the world's airports.
std::vector<ChartPosition> chartPlaces() {
    std::mt19937 random(2024);
    std::uniform_real_distribution<double> longitude(0.0, 360.0), latitude(-55.0, 70.0), spread(0.3, 3.0);
    std::vector<ChartPosition> places;
    for (int cluster = 0; cluster < 400; ++cluster) {
        const ChartPosition centre(cluster ? longitude(random) : 0.0, latitude(random));
        std::normal_distribution<double> offset(0.0, spread(random));
        for (int i = 0; i < 300; ++i)
            places.emplace_back(Angle0to360(centre.longitude + offset(random)),
                                std::clamp(centre.latitude + offset(random), -89.0, 89.0));
    }
    return places;
}

/// Views of maps from a town to a country, each as wide as a screen, around some of the places. Their edges lie on
/// those of leaves, so that both ways find the same elements.
std::vector<View> mapViews(const std::vector<ChartPosition>& places) {
    std::mt19937 random(7);
    std::uniform_int_distribution<size_t> place(0, places.size() - 1);
    std::uniform_int_distribution<int> cells(1, 16);
    std::vector<View> views;
    for (int i = 0; i < 2000; ++i) {
        const ChartPosition centre = places[place(random)];
        const int width = cells(random), height = (width + 1) / 2;
        const double west = std::clamp(std::floor(centre.longitude * 2 - width / 2) / 2, 0.0, 360.0 - width * 0.5);
        const double south = std::clamp(std::floor(centre.latitude * 2 - height / 2) / 2, -80.0, 80.0);
        views.push_back({{west, south + height * 0.5}, {west + width * 0.5, south}});
    }
    return views;
}

/// As area files bring them: leaf after leaf, first the ids of all, then their bytes.
void enterAsLoaded(const std::vector<ChartPosition>& places, const std::vector<IArea*>& table) {
    std::map<int, std::vector<int>> byLeaf;
    for (size_t i = 0; i < places.size(); ++i) {
        const int column = static_cast<int>(places[i].longitude * 2);
        byLeaf[getLeafIndex(column, static_cast<int>((90 - places[i].latitude) * 2))].push_back(static_cast<int>(i));
    }
    for (const auto& [index, ids] : byLeaf) {
        AreaLeaf* leaf = table[static_cast<size_t>(index)]->asLeaf();
        leaf->reserveElements(ids.size());
        for (const int id : ids)
            leaf->appendElement(id);
    }
    for (const auto& [index, ids] : byLeaf)
        table[static_cast<size_t>(index)]->asLeaf()->appendStaticBytes(
            std::vector<uint8_t>(AreaLeaf::BytesPerElement * ids.size()).data(),
            AreaLeaf::BytesPerElement * ids.size());
}

/// Finding the leaves of a view with the ids of their elements, against a search for the same elements in an R*-tree
/// that was packed with their places. Neither looks at an element.
double viewQuery(bool smoke) {
    const std::vector<ChartPosition> places = chartPlaces();
    const std::vector<View> views = mapViews(places);
    std::vector<IArea*> table(AreaCount);
    const std::unique_ptr<AreaArena> areas = createWorldWideAreaTree(false, table.data());
    enterAsLoaded(places, table);
    std::vector<std::pair<Point, int>> entries;
    for (size_t i = 0; i < places.size(); ++i)
        entries.emplace_back(Point(places[i].longitude, places[i].latitude), static_cast<int>(i));
    const bgi::rtree<std::pair<Point, int>, bgi::rstar<16>> tree(entries);
    std::vector<const std::vector<int>*> found;
    size_t count = 0, countByTree = 0;
    const auto byLeafs = [&] {
        for (const View& view : views) {
            found.clear();
            AreaGridView(view.nw, view.se).forEachLeaf([&](int index) {
                const std::vector<int>& ids = table[static_cast<size_t>(index)]->asLeaf()->getElements();
                if (!ids.empty())
                    found.push_back(&ids);
                count += ids.size();
            });
        }
    };
    const auto add = [&countByTree](const std::pair<Point, int>&) { ++countByTree; };
    const auto byTree = [&] {
        for (const View& view : views)
            tree.query(bgi::intersects(
                           Box(Point(view.nw.longitude, view.se.latitude), Point(view.se.longitude, view.nw.latitude))),
                       boost::make_function_output_iterator(add));
    };
    const double ratio = ratioOfMedians(
        smoke ? 1 : 15, [&] { return secondsOf(byLeafs); }, [&] { return secondsOf(byTree); });
    return count == countByTree ? ratio : std::nan("");
}

} // namespace

std::vector<Bench> areaBenches() {
    return {{"areas.build", Bench::Bound::AtMost, 4, treeBuild}, {"areas.query", Bench::Bound::AtMost, 1, viewQuery}};
}

} // namespace skyvane
