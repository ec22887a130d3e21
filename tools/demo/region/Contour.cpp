#include "demo/region/Contour.h"

#include <cstdint>
#include <map>

namespace skyvane::demo {

namespace {

class Squares {
public:
    Squares(const ContourBox& box, const std::function<double(Spot)>& field)
        : box_(box), columns_(static_cast<int>((box.to.x - box.from.x) / box.step) + 3),
          rows_(static_cast<int>((box.to.y - box.from.y) / box.step) + 3),
          values_(static_cast<size_t>(columns_) * static_cast<size_t>(rows_), -1.0) {
        for (int j = 1; j < rows_ - 1; ++j) {
            for (int i = 1; i < columns_ - 1; ++i)
                values_[node(i, j)] = field(spot(i, j));
        }
    }

    std::vector<std::vector<Spot>> rings() {
        for (int j = 0; j + 1 < rows_; ++j) {
            for (int i = 0; i + 1 < columns_; ++i)
                addSquare(i, j);
        }
        std::vector<std::vector<Spot>> rings;
        while (!next_.empty()) {
            std::vector<Spot> ring;
            const size_t first = next_.begin()->first;
            size_t edge = first;
            do {
                const auto step = next_.extract(edge);
                ring.push_back(step.mapped().from);
                edge = step.mapped().to;
            } while (edge != first);
            rings.push_back(std::move(ring));
        }
        return rings;
    }

private:
    struct Step {
        Spot from;
        size_t to; ///< The edge of the grid that the line crosses next.
    };

    size_t node(int i, int j) const {
        return static_cast<size_t>(j) * static_cast<size_t>(columns_) + static_cast<size_t>(i);
    }
    Spot spot(int i, int j) const { return {box_.from.x + (i - 1) * box_.step, box_.from.y + (j - 1) * box_.step}; }
    bool isAbove(int i, int j) const { return values_[node(i, j)] > 0.0; }

    // The edges of a square: south, east, north, west. Their keys: two for each node, its eastern and its northern
    // edge.
    size_t edgeKey(int i, int j, int side) const {
        static constexpr int offsets[4][3] = {{0, 0, 0}, {1, 0, 1}, {0, 1, 0}, {0, 0, 1}};
        return 2 * node(i + offsets[side][0], j + offsets[side][1]) + static_cast<size_t>(offsets[side][2]);
    }
    Spot crossing(int i, int j, int side) const {
        static constexpr int ends[4][4] = {{0, 0, 1, 0}, {1, 0, 1, 1}, {0, 1, 1, 1}, {0, 0, 0, 1}};
        const int* end = ends[side];
        const double first = values_[node(i + end[0], j + end[1])];
        const double second = values_[node(i + end[2], j + end[3])];
        return blend(spot(i + end[0], j + end[1]), spot(i + end[2], j + end[3]), first / (first - second));
    }

    // A line enters a square where, going round it to the left, what is above begins, and leaves where it ends.
    void addSquare(int i, int j) {
        const bool corners[4] = {isAbove(i, j), isAbove(i + 1, j), isAbove(i + 1, j + 1), isAbove(i, j + 1)};
        for (int side = 0; side < 4; ++side) {
            if (!corners[side] || corners[(side + 1) % 4])
                continue;
            // Above ends on this side: the line comes in here and goes out where above began, walking back.
            int out = (side + 3) % 4;
            while (corners[out])
                out = (out + 3) % 4;
            next_[edgeKey(i, j, side)] = {crossing(i, j, side), edgeKey(i, j, out)};
        }
    }

    ContourBox box_;
    int columns_;
    int rows_;
    std::vector<double> values_;
    std::map<size_t, Step> next_;
};

} // namespace

std::vector<std::vector<Spot>> traceContours(const ContourBox& box, const std::function<double(Spot)>& field) {
    return Squares(box, field).rings();
}

double signedArea(const std::vector<Spot>& ring) {
    double sum = 0.0;
    for (size_t i = 0; i < ring.size(); ++i) {
        const Spot& a = ring[i];
        const Spot& b = ring[(i + 1) % ring.size()];
        sum += a.x * b.y - b.x * a.y;
    }
    return 0.5 * sum;
}

} // namespace skyvane::demo
