#pragma once

#include "core/ini/IniFile.h"
#include "procedures/HighwayMeshes.h"
#include "procedures/highway/HighwayBuilder.h"
#include "procedures/plan/AirportCorridor.h"
#include "procedures/plan/RouteProfile.h"
#include "procedures/plan/SavedPlans.h"

#include <functional>
#include <irrlicht.h>
#include <optional>
#include <string>
#include <vector>

namespace skyvane {

class Context;
class IChartElement;
struct FlightReadings;

/// The flight plan of the running program: keeps the current procedure told of the flight, moves on to the next one,
/// saves plans, and hands the panels the highway in the sky and the ground below the route. The panels hear of every
/// change. Main thread only; the highway is built by HighwayBuilder's thread.
class ProcedureManager : public ITerrainPointCallback {
public:
    static constexpr int SideViewRows = 256;

    /// The context outlives it and has its panels and sensors; the panels, and the terrain with them, go first.
    explicit ProcedureManager(Context* context);
    ~ProcedureManager() override;
    ProcedureManager(const ProcedureManager&) = delete;
    ProcedureManager& operator=(const ProcedureManager&) = delete;

    void addProcedureFactory(std::unique_ptr<IProcedureFactory> factory);
    /// Null for an index out of range.
    IProcedureFactory* getProcedureFactory(int index) const;
    int getProcedureFactoryCount() const { return static_cast<int>(factories_.size()); }
    IProcedureFactory* findProcedureFactorybyType(IProcedure::Type type) const;
    const ProcedureFactories& getProcedureFactories() const { return factories_; }

    // See FlightPlan. The panels hear of each; paths are made anew by calculateCourseList.
    void addProcedure(std::unique_ptr<IProcedure> procedure);
    void addProcedureAfterCurrent(std::unique_ptr<IProcedure> procedure);
    void addProcedureBeforeCurrent(std::unique_ptr<IProcedure> procedure);
    void replaceCurrentProcedure(std::unique_ptr<IProcedure> procedure);
    void deleteCurrentProcedure();
    void deleteAllProcedures();
    void setCurrentProcedure(int index);
    void nextProcedure();
    void previousProcedure();
    void moveCurrentProcedureForwards();
    void moveCurrentProcedureBackwards();

    /// Does something to a procedure as if it were the current one, as the operations above do. The one that is flown
    /// stays the current one. False, and nothing is done, when the plan has no such procedure.
    bool changeProcedure(const IProcedure* procedure, const std::function<void()>& change);

    IProcedure* getCurrentProcedure() { return plan_.getCurrent(); }
    int getCurrentProcedureIndex() const { return plan_.getCurrentIndex(); }
    const FlightPlan::Procedures& getProcedures() const { return plan_.getProcedures(); }
    int getProcedureCount() const { return plan_.getCount(); }
    bool isProcedureTarget(int chartIndex) { return plan_.isTarget(chartIndex); }

    /// Makes the paths anew from where the aircraft is. False without procedures, and when nobody knows where that is:
    /// the paths stay then, and are made once somebody does.
    bool calculateCourseList();
    /// Every frame. The highway follows at most twice a second, and at once when forced.
    void Update(bool force);
    /// What the procedures have to say stands on the displays again: for after a time without messages.
    void repeatMessages();

    /// Asks the pilot for a destination and what to fly there, over the whole glass, and waits for it: true when a
    /// procedure went into the plan after the current one, and is current now. Begins with that element of the charts,
    /// used before their next call only, or with what the current procedure leads to; see SearchBoxHandler::init.
    bool newProcedure(const IChartElement* element = nullptr, int id = 0, bool keepsProcedure = false);

    /// Stores the plan under that name in the document of saved plans.
    void insertFlightPlan(const std::string& name) { insertFlightPlan(saved_, name); }
    /// The same in another document.
    void insertFlightPlan(IniFile& document, const std::string& name);
    /// The saved plan becomes the plan. False, and the plan stays, without one of that name, or when nothing of it can
    /// be flown. The pilot hears of what can't be.
    bool retrieveFlightPlan(const std::string& name);
    /// The same for the plan that a start shall begin with: its paths are made once somebody knows where the aircraft
    /// is. The pilot hears of a name that there is no plan of.
    void startWithFlightPlan(const std::string& name);
    /// What the last saved plan had that can't be flown.
    const std::vector<std::string>& getLosses() const { return losses_; }
    /// False when data/fpl.ini can't be written.
    bool saveFlightPlans();
    IniFile& getSavedFlightPlans() { return saved_; }

    /// The width in metres; nothing without charts.
    std::vector<AirportRecord> findAirportsInCorridor(double width, const AirportKinds& kinds);
    /// Other charts and terrain are loaded: finds what procedures lead to again.
    void OnChartChanged();

    /// From one rectangle of the highway to the next, in metres: the display that asked last decides.
    void setHighwaySpacing(double metres) { highwaySpacing_ = metres; }
    /// The highway, around the active mesh's position: x east, y up from sea level, z north, in metres. It holds until
    /// the panels are told to delete their nodes.
    irr::scene::IMesh* getActiveMesh() const { return meshes_.getActive(); }
    const ChartPosition& getActiveMeshPosition() const { return highwayMesh_.centre; }

    /// The ground along the plan, its picture 256 rows high; null while the terrain hasn't answered.
    irr::video::ITexture* getSideTexture() const { return profile_ ? sideTexture_ : nullptr; }
    RouteProfile* getLastPointCall() { return profile_.get(); }
    void OnHeightPoints(PointCall& call) override;

private:
    void notifyChanged();
    void updateHighway(const FlightReadings& readings, bool force);
    void warnOfDestination(double altitudeMetres);
    void requestProfile();
    void tellLosses();

    Context* context_;
    FlightPlan plan_;
    ProcedureFactories factories_;
    IniFile saved_;
    HighwayBuilder highway_;
    double highwaySpacing_ = HighwaySize::StandardSpacingMetres;
    HighwayMesh highwayMesh_;
    HighwayMeshes meshes_;
    bool pathChanged_ = false;
    bool awaitsPosition_ = false; ///< The paths were asked for and couldn't be made yet.
    unsigned lastUpdateMilliseconds_ = 0;
    std::optional<int> warnedFeet_; ///< Above the destination.
    unsigned warnedMilliseconds_ = 0;
    int sideViewPoints_;
    irr::video::ITexture* sideTexture_ = nullptr; ///< The driver's.
    std::unique_ptr<RouteProfile> profile_;
    std::vector<std::string> losses_;
};

} // namespace skyvane
