#pragma once

#include "procedures/framework/CourseGuidance.h"
#include "procedures/framework/ProcedureValues.h"

#include <string>

namespace skyvane {

class IChartElementSource;
class IniFile;
class IProcedureFactory;

/// One part of a flight plan: a path that begins where the aircraft is, or where the procedure before it ends, and the
/// figures for flying along it. Main thread only.
///
/// A concrete procedure makes its path in calculateCourseList and hands it to setCourseList; it writes its own keys
/// behind the common ones in insertInIni, and reads them in a constructor that calls readCommonKeys first.
class IProcedure {
public:
    enum Type { None = 0, Direct = 1, Holding = 2, Approach = 3, Intercept = 4 };

    virtual ~IProcedure() = default;

    /// Renews figures and warnings: metres, knots, degrees true.
    virtual void updatePosRelated(ChartPosition position, double altitude, double groundSpeed, double heading);
    /// Whether the end was reached; asking clears it.
    virtual bool shallSwitchToNextProc();
    /// Stores the procedure in a section of a document of flight plans. The charts may be null.
    virtual void insertInIni(IChartElementSource* charts, IniFile* document, const std::string& section,
                             unsigned index);
    /// Whether the pilot may choose the altitude at the location.
    virtual bool isLocationAltitudeMutable() const { return false; }
    /// Metres, or ProcedureValues::NoAltitude.
    virtual void setLocationAltitude(double altitude) { values_.targetAltitude = altitude; }
    virtual double getLocationAltitude() const { return values_.targetAltitude; }
    /// Makes the path from a position, an altitude in metres and a course in degrees true.
    virtual void calculateCourseList(ChartPosition position, double altitude, double course) = 0;
    virtual std::string getName() = 0;
    virtual Type getType() = 0;
    /// The charts are others now: finds the chart element again by its kind and place, as after reading a document.
    /// Without it the location becomes a plain position.
    virtual void OnChartChanged(IChartElementSource* charts);
    /// What the pilot must hear of the procedure is told again.
    virtual void repeatMessages() {}

    const ProcedureValues& getValues() const { return values_; }
    void setValues(const ProcedureValues& values) { values_ = values.checked(); }
    /// Null for a procedure that no factory made; such a one isn't saved. Factories outlive procedures.
    IProcedureFactory* getFactory() const { return factory_; }

    const Guidance& getGuidance() const { return guidance_; }
    /// Degrees true to the next significant point, -1 without one.
    double getBearing() const { return guidance_.bearing; }
    /// Nautical miles left, -1 when there is nothing to fly.
    double getLength() const { return guidance_.length; }
    /// Seconds left, -1 when they can't be told.
    int getETE() const { return guidance_.ete; }
    const CourseList& getCourseList() const { return course_.getList(); }
    /// Of the path, in nautical miles.
    double calcTotalLength() const;
    const ProcedureLocation& getLocation() const { return location_; }
    ProcedureLocation::Type getLocationType() const { return location_.type; }
    int getLocationChartIndex() const { return location_.chartIndex; }
    ChartPosition getLocationPosition() const { return location_.position; }

    /// Whether a deviation is watched for, and whether there is one.
    bool isAltitudeChecked() const { return values_.checkAltitude; }
    bool isCourseChecked() const { return values_.checkCourse; }
    bool isGroundSpeedChecked() const { return values_.checkGroundSpeed; }
    bool getAltitudeWarning() const { return altitudeWarning_; }
    bool getCourseWarning() const { return courseWarning_; }
    bool getGroundSpeedWarning() const { return groundSpeedWarning_; }

protected:
    explicit IProcedure(IProcedureFactory* factory) : factory_(factory) {}
    IProcedure(const IProcedure&) = delete;
    IProcedure& operator=(const IProcedure&) = delete;

    /// Also measures it. The figures are renewed by the next updatePosRelated.
    void setCourseList(CourseList list) { course_.setList(std::move(list)); }
    void setLocation(const ChartPosition& position);
    /// False, and the position is 0, 0, when the charts have no such element.
    bool setLocation(IChartElementSource* charts, int chartIndex);
    /// False when the document tells no place on the earth: the procedure can't be flown.
    bool readCommonKeys(IChartElementSource* charts, IniFile* document, const std::string& section, unsigned index);
    /// False for an element that the charts don't have: nobody knows where it is.
    bool isLocationKnown() const;
    /// The label of the element at the location; "User Position" where there is none.
    std::string getLocationName(IChartElementSource* charts) const;

    ProcedureValues values_;
    ProcedureLocation location_;

private:
    void updateWarnings(const AircraftMotion& flight);
    void findElementAgain(IChartElementSource* charts);

    IProcedureFactory* factory_;
    CourseGuidance course_;
    Guidance guidance_;
    bool altitudeWarning_ = false;
    bool courseWarning_ = false;
    bool groundSpeedWarning_ = false;
};

} // namespace skyvane
