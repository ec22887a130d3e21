#pragma once

#include "sensors/gdl90/FirstOrderFilter.h"
#include "sensors/gdl90/GDL90Calibration.h"
#include "sensors/gdl90/GDL90CurrentMessages.h"
#include "sensors/gdl90/GDL90Flavor.h"
#include "sensors/gdl90/GDL90Headings.h"
#include "sensors/gdl90/GDL90Records.h"

#include <optional>

namespace skyvane {

class GDL90MessageStore;

/// Computes the records of the newest messages, whichever makers they are of: the richer source wins.
///
/// A record whose sources have gone, or say nothing, keeps its value and becomes WRONG; so does one that would take a
/// value that no aircraft has. Traffic and uplinks are none of its business. Times are of Secs(); nothing is allocated.
class GDL90Merge {
public:
    /// The records outlive the merge.
    GDL90Merge(GDL90Records& records, GDL90Flavor flavor) : records_(records), flavor_(flavor) {}

    /// Renews the records from the messages that count now. After each batch of datagrams.
    void updateDataExceptTrafficAndUAT(const GDL90MessageStore& store, double now);
    /// The device has fallen silent: what comes later doesn't continue what was.
    void forget();

    GDL90Calibration calibration;

private:
    using Messages = GDL90CurrentMessages;

    struct Place {
        double longitude;
        double latitude;
    };

    void takeTalosGps(const Messages& messages);
    void takeAttitude(const Messages& messages);
    void writeHeadings(bool isAttitudeValid);
    void takeAcceleration(const Messages& messages);
    void takeTurnRate(const Messages& messages);
    void turnByHeading();
    void takeAirSpeed(const Messages& messages);
    void takeVerticalSpeed(const Messages& messages, double arrival);
    std::optional<double> climbByPressure(const TalosPressureMessage& message, double arrival);
    void takePressures(const Messages& messages);
    void takeAltitude(const Messages& messages);
    void takeTemperature(const Messages& messages);
    void takeAngleOfAttack(const Messages& messages);
    void takePosition(const Messages& messages);
    void takeOwnShip(const OwnShipGDL90Message& ownShip);
    void takeLevilGps(const LevilGPSStatus& status);

    bool isGiven(ISensorData::Type type) const { return records_.wasUpdated(type); }
    void setPlace(double longitude, double latitude);
    void setAcceleration(double x, double y, double z);
    bool isMeanSeaLevel() const;

    GDL90Records& records_;
    GDL90Flavor flavor_;
    double now_ = 0.0;
    unsigned nowMs_ = 0;
    double rollRadians_ = 0.0;
    double pitchRadians_ = 0.0;
    GDL90Headings headings_;
    GDL90Headings::Choice heading_;

    FirstOrderFilter accelerationX_{AxisRate};
    FirstOrderFilter accelerationY_{AxisRate};
    FirstOrderFilter accelerationZ_{AxisRate};
    FirstOrderFilter gyroRate_{AxisRate};

    /// Where the turn by heading was measured last.
    struct HeadingMark {
        double degrees = 0.0;
        double time = 0.0;
        GDL90Headings::Kind kind = GDL90Headings::None;
    };
    HeadingMark headingMark_;
    FirstOrderFilter headingRate_{SlowRate};

    /// Where the climb by pressure was measured last; no altitude before the first pressure.
    std::optional<double> pressureAltitude_;
    double pressureTime_ = 0.0;
    FirstOrderFilter climb_{SlowRate};

    /// What was told last, while the device is heard: an altitude mustn't jump when a report is lost on the way.
    std::optional<Place> ownPlace_;
    bool toldMeanSeaLevel_ = false;

    static constexpr double AxisRate = 1.1512925464970227; // a factor of 10 in two seconds
    static constexpr double SlowRate = 0.7675283643313485; // and in three
};

} // namespace skyvane
