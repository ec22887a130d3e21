#pragma once

#include <string>

namespace skyvane {

/// What displays ask of the procedure that is being flown.
class IProcedure {
public:
    enum Type { None = 0, Direct = 1, Holding = 2, Approach = 3, Intercept = 4 };

    virtual ~IProcedure() = default;
    virtual std::string getName() = 0;
    virtual Type getType() = 0;
    /// Degrees true to the next significant point, -1 without one.
    double getBearing() const { return bearing_; }

    /// Nautical miles left, -1 when there is nothing to fly.
    double getLength() const { return length_; }
    /// Seconds left, -1 when they can't be told.
    int getETE() const { return ete_; }

    /// Whether a deviation is watched for, and whether there is one.
    bool isAltitudeChecked() const { return checkAltitude_; }
    bool isCourseChecked() const { return checkCourse_; }
    bool isGroundSpeedChecked() const { return checkGroundSpeed_; }
    bool getAltitudeWarning() const { return altitudeWarning_; }
    bool getCourseWarning() const { return courseWarning_; }
    bool getGroundSpeedWarning() const { return groundSpeedWarning_; }

protected:
    double bearing_ = -1.0;
    double length_ = -1.0;
    int ete_ = -1;
    bool checkAltitude_ = false;
    bool checkCourse_ = false;
    bool checkGroundSpeed_ = false;
    bool altitudeWarning_ = false;
    bool courseWarning_ = false;
    bool groundSpeedWarning_ = false;
};

} // namespace skyvane
