#pragma once

#include "procedures/aircraft/profiles/AircraftProfiles.h"

namespace skyvane {

class Context;

/// The aircraft of data/aircrafts.ini for the whole program, and the screen on which the pilot chooses and edits them.
/// Owned by Context; main thread only.
class AircraftManager {
public:
    /// Reads the document.
    explicit AircraftManager(Context* context);

    int getAircraftCount() const { return profiles_.getCount(); }
    /// Null for an index out of range. No reader keeps it across frames.
    Aircraft* getAircraft(int index) { return profiles_.get(index); }
    Aircraft& getCurrentAircraft() { return profiles_.getCurrent(); }
    int getCurrentAircraftIndex() const { return profiles_.getCurrentIndex(); }
    void setCurrentAircraft(int index) { profiles_.setCurrent(index); }
    /// Makes it the current one, and gives its index.
    int addAircraft(Aircraft aircraft) { return profiles_.add(std::move(aircraft)); }
    /// False for the last one.
    bool removeAircraft(int index) { return profiles_.remove(index); }

    void extractIniValues();
    /// On failure a box tells it.
    void saveAircrafts();
    /// Another number after each reading and saving: whoever shows aircraft looks at it.
    unsigned getRevision() const { return revision_; }

    /// Shows the screen until the pilot leaves it.
    void setSetupVisible();

private:
    Context* context_;
    AircraftProfiles profiles_;
    unsigned revision_ = 0;
};

} // namespace skyvane
