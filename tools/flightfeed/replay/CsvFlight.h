#pragma once

#include "flightfeed/flight/IFlightSource.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

/// A recorded flight: comma-separated rows below a header whose names carry their units, resampled by time.
///
/// Columns are found by the last part of their names, in any order: sim-time-sec, lat-geod-deg, long-gc-deg, h-sl-ft,
/// phi-rad, theta-rad, psi-rad, p-rad_sec, q-rad_sec, r-rad_sec, a-pilot-{x,y,z}-ft_sec2, v-{north,east,down}-fps,
/// vc-kts. Values between two rows are blended, angles the short way round; pressure and temperature are the standard
/// atmosphere's.
class CsvFlight : public IFlightSource {
public:
    static constexpr size_t COLUMNS = 17;
    using Row = std::array<double, COLUMNS>;

    /// Null, with the reason and the line in `error`, when a column is missing, a row is too short or holds something
    /// that isn't a number, time doesn't grow, or there are fewer than two rows.
    static std::unique_ptr<CsvFlight> read(const std::string& text, std::string& error);

    const FlightState& state() const override { return state_; }
    bool advance(double seconds) override;
    void restart() override;

    double lengthSeconds() const { return rows_.back()[0] - rows_.front()[0]; }

private:
    explicit CsvFlight(std::vector<Row> rows);
    void publish();

    std::vector<Row> rows_;
    size_t row_ = 0; ///< the last one that isn't in the future, but never the last of all
    FlightState state_;
};

} // namespace skyvane
