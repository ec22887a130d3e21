#pragma once

#include "sensors/ISensorFactory.h"

#include <string>
#include <vector>

namespace skyvane {

class IniFile;
class SensorManager;

/// Changes which sensors a configuration document has, and which of them gives each type of data. Nothing is loaded
/// until the manager reads the document.
///
///     SensorSelection selection(sensors, &document);
///     if (selection.add(factoryIndex))                              // the sensor's own setup was accepted
///         selection.setDefault(ISensorData::Position, selection.count());
///
/// Sensors are numbered from 1, as their sections S1, S2, ... are; 0 is the NullSensor. A setup that is given up leaves
/// the document as it was. Main thread only.
class SensorSelection {
public:
    /// Both outlive the selection.
    SensorSelection(SensorManager& sensors, IniFile* document);

    /// Places in the factory list that hold a factory.
    const std::vector<int>& getFactories() const { return factories_; }
    std::string getFactoryName(int factoryIndex) const;

    int count() const;
    /// The name of its factory; the stored one when this program has no such factory.
    std::string getName(int sensor) const;
    /// The place of its factory in the list; -1 for none.
    int getFactory(int sensor) const;
    /// Whether this program can make it.
    bool isKnown(int sensor) const { return factoryOf(sensor) != nullptr; }

    /// Runs the factory's setup for one sensor more. False when it was given up.
    bool add(int factoryIndex);
    bool edit(int sensor);
    /// What it gave comes from the NullSensor now; later ones move down.
    void remove(int sensor);
    /// Runs the factory's setup; then its sensor is the only one, and gives all that it can. False when it was given
    /// up.
    bool useOnly(int factoryIndex);
    void useForAll(int sensor);

    /// The sensor that the type comes from.
    int getDefault(ISensorData::Type type) const;
    /// False, and nothing changes, when the sensor doesn't have the type. The NullSensor has all.
    bool setDefault(ISensorData::Type type, int sensor);
    /// The one sensor that all data comes from; 0 when there is none, -1 when there are several.
    int getUsed() const;

private:
    ISensorFactory* factoryAt(int index) const;
    ISensorFactory* factoryOf(int sensor) const;
    bool setUp(IniFile document, int factoryIndex, int sensor);

    SensorManager& sensors_;
    IniFile* document_;
    std::vector<int> factories_;
};

} // namespace skyvane
