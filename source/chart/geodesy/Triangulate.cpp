#include "chart/geodesy/Triangulate.h"

#include <numeric>

namespace skyvane {

namespace {

/// Twice the area below which a triangle is no ear.
constexpr float flatEar = 1e-10f;

float cross(float ax, float ay, float bx, float by) {
    return ax * by - ay * bx;
}

} // namespace

float Triangulate::Area(const Contour& contour) {
    float sum = 0.0f;
    for (size_t q = 0, p = contour.size() - 1; q < contour.size(); p = q++)
        sum += cross(contour[p].X, contour[p].Y, contour[q].X, contour[q].Y);
    return 0.5f * sum;
}

bool Triangulate::InsideTriangle(float ax, float ay, float bx, float by, float cx, float cy, float px, float py) {
    return cross(cx - bx, cy - by, px - bx, py - by) >= 0.0f && cross(bx - ax, by - ay, px - ax, py - ay) >= 0.0f &&
           cross(ax - cx, ay - cy, px - cx, py - cy) >= 0.0f;
}

bool Triangulate::Snip(const Contour& contour, int u, int v, int w, int n, const int* V) {
    const Point a = contour[V[u]], b = contour[V[v]], c = contour[V[w]];
    if (!(cross(b.X - a.X, b.Y - a.Y, c.X - a.X, c.Y - a.Y) >= flatEar))
        return false;
    for (int p = 0; p < n; ++p) {
        const Point& other = contour[V[p]];
        if (p != u && p != v && p != w && InsideTriangle(a.X, a.Y, b.X, b.Y, c.X, c.Y, other.X, other.Y))
            return false;
    }
    return true;
}

bool Triangulate::Process(const Contour& contour, std::vector<Point>& result) {
    const int n = static_cast<int>(contour.size());
    if (n < 3)
        return false;
    static thread_local std::vector<int> V;
    V.resize(contour.size());
    if (Area(contour) > 0.0f)
        std::iota(V.begin(), V.end(), 0);
    else
        std::iota(V.rbegin(), V.rend(), 0);

    int nv = n;
    int count = 2 * nv;
    for (int v = nv - 1; nv > 2;) {
        if (count-- <= 0)
            return false;
        const int u = v < nv ? v : 0;
        v = u + 1 < nv ? u + 1 : 0;
        const int w = v + 1 < nv ? v + 1 : 0;
        if (!Snip(contour, u, v, w, nv, V.data()))
            continue;
        if (result.capacity() - result.size() < 3)
            return false;
        for (int corner : {u, v, w})
            result.push_back(contour[V[corner]]);
        V.erase(V.begin() + v);
        --nv;
        count = 2 * nv;
    }
    return true;
}

} // namespace skyvane
