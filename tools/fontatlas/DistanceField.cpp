#include "fontatlas/DistanceField.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {

namespace {

using Field = std::vector<float>;
constexpr float farAway = 1e12f;

/// Squared distances along one line: the lower envelope of parabolas that stand on each place's value.
class LineTransform {
public:
    explicit LineTransform(int longest) : values_(longest), vertices_(longest), borders_(longest + 1) {}

    void run(float* line, int count, int stride) {
        for (int i = 0; i < count; ++i)
            values_[i] = line[static_cast<size_t>(i) * stride];
        const int last = findEnvelope(count);
        for (int i = 0, k = 0; i < count; ++i) {
            while (k < last && borders_[k + 1] < static_cast<float>(i))
                ++k;
            const float step = static_cast<float>(i - vertices_[k]);
            line[static_cast<size_t>(i) * stride] = step * step + values_[vertices_[k]];
        }
    }

private:
    int findEnvelope(int count) {
        int last = 0;
        vertices_[0] = 0;
        borders_[0] = -std::numeric_limits<float>::infinity();
        for (int i = 1; i < count; ++i) {
            float border = crossing(i, vertices_[last]);
            while (border <= borders_[last])
                border = crossing(i, vertices_[--last]);
            vertices_[++last] = i;
            borders_[last] = border;
        }
        return last;
    }

    float crossing(int right, int left) const {
        const double difference = double(values_[right]) + double(right) * right - values_[left] - double(left) * left;
        return static_cast<float>(difference / (2.0 * (right - left)));
    }

    std::vector<float> values_;
    std::vector<int> vertices_;
    std::vector<float> borders_;
};

/// The distance of each pixel to the nearest pixel whose being inside is `inside`.
Field distancesTo(const GrayImage& shape, bool inside) {
    Field field(shape.pixels.size());
    for (size_t i = 0; i < field.size(); ++i)
        field[i] = (shape.pixels[i] != 0) == inside ? 0.0f : farAway;
    LineTransform transform(std::max(shape.width, shape.height));
    for (int x = 0; x < shape.width; ++x)
        transform.run(&field[x], shape.height, shape.width);
    for (int y = 0; y < shape.height; ++y)
        transform.run(&field[static_cast<size_t>(y) * shape.width], shape.width, 1);
    for (float& value : field)
        value = std::sqrt(value);
    return field;
}

} // namespace

GrayImage makeDistanceField(const GrayImage& shape, int oversampling, int spread) {
    const Field toInside = distancesTo(shape, true);
    const Field toOutside = distancesTo(shape, false);
    GrayImage result{shape.width / oversampling, shape.height / oversampling, {}};
    result.pixels.resize(static_cast<size_t>(result.width) * result.height);
    const int first = (oversampling - 1) / 2; // the four pixels round the middle
    for (int y = 0; y < result.height; ++y) {
        for (int x = 0; x < result.width; ++x) {
            float sum = 0.0f;
            for (int corner = 0; corner < 4; ++corner) {
                const size_t row = static_cast<size_t>(y) * oversampling + first + corner / 2;
                const size_t place = row * shape.width + static_cast<size_t>(x) * oversampling + first + corner % 2;
                // Half a pixel back: the edge lies between the pixels, not on the nearest one's middle.
                sum += toInside[place] > 0.0f ? 0.5f - toInside[place] : toOutside[place] - 0.5f;
            }
            const float distance = 0.25f * sum / static_cast<float>(oversampling);
            const float value = 127.5f + 127.5f * distance / static_cast<float>(spread);
            result.at(x, y) = static_cast<uint8_t>(std::lround(std::clamp(value, 0.0f, 255.0f)));
        }
    }
    return result;
}

} // namespace skyvane
