#pragma once

namespace skyvane {

class IniFile;

/// Whether the start asks for a sensor profile: not with "chooseProfile = 0" in the configuration document. The
/// environment variable SKYVANE_CHOOSE_PROFILE, 0 or 1, goes before the document, for fixed installations and tests.
bool asksForProfile(IniFile& config);

} // namespace skyvane
