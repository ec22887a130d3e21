#include "chartmaker/ground/GroundShapes.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace skyvane {
namespace {

using Place = std::pair<double, double>;

Place placeOf(const ChartPosition& position) {
    return {position.longitude, position.latitude};
}

/// The lines by their ends. A line that closes stands there twice, so that nothing is joined to it.
class LineEnds {
public:
    explicit LineEnds(const std::vector<GroundLine>& lines) {
        for (size_t i = 0; i < lines.size(); ++i) {
            ends_[placeOf(lines[i].front())].push_back(i);
            ends_[placeOf(lines[i].back())].push_back(i);
        }
    }
    /// The one other line that meets that one at a place; the line itself when there is none, or more.
    size_t getNext(const ChartPosition& position, size_t line) const {
        const std::vector<size_t>& meeting = ends_.at(placeOf(position));
        if (meeting.size() != 2)
            return line;
        return meeting[0] == line ? meeting[1] : meeting[0];
    }

private:
    std::map<Place, std::vector<size_t>> ends_;
};

} // namespace

std::vector<GroundLine> joinLines(std::vector<GroundLine> lines) {
    const LineEnds ends(lines);
    std::vector<bool> isUsed(lines.size(), false);
    // Goes on from the back of a joined line, whose last part is `last`.
    const auto extend = [&](GroundLine& joined, size_t last) {
        for (;;) {
            const size_t next = ends.getNext(joined.back(), last);
            if (next == last || isUsed[next])
                return;
            isUsed[next] = true;
            GroundLine& part = lines[next];
            if (placeOf(part.front()) != placeOf(joined.back()))
                std::reverse(part.begin(), part.end());
            joined.insert(joined.end(), part.begin() + 1, part.end());
            last = next;
        }
    };
    std::vector<GroundLine> joined;
    for (size_t i = 0; i < lines.size(); ++i) {
        if (isUsed[i])
            continue;
        isUsed[i] = true;
        GroundLine line = lines[i];
        extend(line, i);
        std::reverse(line.begin(), line.end());
        extend(line, i);
        std::reverse(line.begin(), line.end());
        joined.push_back(std::move(line));
    }
    return joined;
}

std::vector<GroundLine> leaveOutRepeated(const std::vector<GroundLine>& lines, const std::vector<GroundLine>& others) {
    std::set<std::pair<Place, Place>> seen;
    const auto isNew = [&](const ChartPosition& from, const ChartPosition& to) {
        return seen.insert(std::minmax(placeOf(from), placeOf(to))).second;
    };
    for (const GroundLine& line : others)
        for (size_t i = 0; i + 1 < line.size(); ++i)
            isNew(line[i], line[i + 1]);
    std::vector<GroundLine> left;
    for (const GroundLine& line : lines) {
        bool isOpen = false; // the last piece goes on
        for (size_t i = 0; i + 1 < line.size(); ++i) {
            const bool isKept = isNew(line[i], line[i + 1]);
            if (isKept && !isOpen)
                left.push_back({line[i]});
            if (isKept)
                left.back().push_back(line[i + 1]);
            isOpen = isKept;
        }
    }
    return left;
}

} // namespace skyvane
