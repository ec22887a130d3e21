#pragma once

#include "sensors/records/ISensorData.h"

#include <string>
#include <vector>

namespace skyvane {

class IniFile;
class ISensorForwarderFactory;

/// How sensors, defaults and forwarders stand in the configuration document. Whoever reads it creates no keys, and a
/// count that claims more sections than there are is not believed.

/// The number of a value; the fallback when there is no such value or it isn't a number.
int readNumber(IniFile& ini, const std::string& section, const std::string& key, int fallback);
/// The same, where a number outside least to largest is none.
int readNumberWithin(IniFile& ini, const std::string& section, const std::string& key, int least, int largest,
                     int fallback);

/// Every data type, in the order of the numbers.
std::vector<ISensorData::Type> allDataTypes();

/// The section S<n> of a sensor (n from 1), F<n> of a forwarder (n from 0), and the key D<type> of a default.
std::string sensorSection(int index);
std::string forwarderSection(int index);
std::string defaultKey(int type);

/// How many sections S1, S2, ... there are in a row, up to what SensorCount tells.
int countSensorSections(IniFile& ini);
/// How many sections F0, F1, ... there are in a row, up to what ForwarderCount tells.
int countForwarderSections(IniFile& ini);

/// Appends a forwarder's section and gives its index.
int appendForwarderSection(IniFile& ini, int factoryIndex, ISensorForwarderFactory& factory);
/// Removes a forwarder's section; the later ones move down.
void removeForwarderSection(IniFile& ini, int index);

} // namespace skyvane
