#pragma once

#include <string>

namespace skyvane {

struct ChartPosition;

/// The shell command that opens a URL in the user's browser: xdg-open "<url>" &. Whatever the URL holds stays inside
/// the quotes: signs that the shell would act on there are written as the per cent codes that URLs have for them.
std::string openUrlCommand(const std::string& url);

/// A web map of the position.
std::string mapUrl(const ChartPosition& position);

} // namespace skyvane
