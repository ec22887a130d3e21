#pragma once

#include "procedures/aircraft/profiles/Aircraft.h"

#include <string>
#include <vector>

namespace skyvane {

class IniFile;

/// All aircraft that the pilot has described, one of them current: the document data/aircrafts.ini as data. There is
/// always at least one.
///
///     AircraftProfiles profiles;
///     profiles.read(IniFile(path));
///     profiles.getCurrent().Vne
class AircraftProfiles {
public:
    static constexpr int maximumAircraft = 1000;

    /// Holds the aircraft of the standard document.
    AircraftProfiles();

    /// Takes any document, by value, since asking one may add to it: missing sections are passed over, a current
    /// aircraft that isn't there is the first one, and a document without aircraft leaves that of the standard one.
    void read(IniFile ini);
    IniFile write() const;

    int getCount() const { return static_cast<int>(aircraft_.size()); }
    /// Null for an index out of range. Valid until one is added or removed.
    Aircraft* get(int index);
    Aircraft& getCurrent() { return aircraft_[static_cast<std::size_t>(current_)]; }
    int getCurrentIndex() const { return current_; }
    /// An index out of range changes nothing.
    void setCurrent(int index);
    /// Appends, and makes it the current one. Gives its index.
    int add(Aircraft aircraft);
    /// False for an index out of range and for the last one. The current one gives way to the first.
    bool remove(int index);

private:
    std::vector<Aircraft> aircraft_;
    int current_ = 0;
};

} // namespace skyvane
