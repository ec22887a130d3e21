#include "flightfeed/command/Options.h"

#include "core/text/StrictNumber.h"

#include <cmath>
#include <unordered_map>

namespace skyvane {

namespace {

bool setNumber(const std::string& text, double least, double greatest, double& out) {
    double value = 0.0;
    if (!parseStrictNumber(text, value) || value < least || value > greatest)
        return false;
    out = value;
    return true;
}

bool setProtocol(Options& options, const std::string& text) {
    const Protocol* found = findProtocol(text);
    if (found)
        options.protocol = found;
    return found != nullptr;
}

bool setPort(Options& options, const std::string& text) {
    double port = 0.0;
    if (!setNumber(text, 1.0, 65535.0, port) || port != std::floor(port))
        return false;
    options.port = static_cast<int>(port);
    return true;
}

bool setSpeed(Options& options, const std::string& text) {
    if (text != "max")
        return setNumber(text, 0.01, 10000.0, options.speed);
    options.speed = 0.0;
    return true;
}

bool setText(std::string& out, const std::string& text) {
    out = text;
    return !text.empty();
}

using Setter = bool (*)(Options&, const std::string&);

const std::unordered_map<std::string, Setter> VALUES{
    {"--protocol", setProtocol},
    {"--port", setPort},
    {"--speed", setSpeed},
    {"--host", [](Options& o, const std::string& t) { return setText(o.host, t); }},
    {"--pty", [](Options& o, const std::string& t) { return setText(o.pty, t); }},
    {"--card", [](Options& o, const std::string& t) { return setText(o.card, t); }},
    {"--replay", [](Options& o, const std::string& t) { return setText(o.replay, t); }},
    {"--plan", [](Options& o, const std::string& t) { return setText(o.plan, t); }},
    {"--charts", [](Options& o, const std::string& t) { return setText(o.charts, t); }},
    {"--record", [](Options& o, const std::string& t) { return setText(o.record, t); }},
    {"--state", [](Options& o, const std::string& t) { return setText(o.state, t); }},
    {"--rate", [](Options& o, const std::string& t) { return setNumber(t, 0.1, 1000.0, o.ratePerSecond); }},
    {"--duration", [](Options& o, const std::string& t) { return setNumber(t, 0.001, 1e6, o.durationSeconds); }},
    {"--from", [](Options& o, const std::string& t) { return setNumber(t, 0.0, 1e6, o.fromSeconds); }},
};

const std::unordered_map<std::string, bool Options::*> SWITCHES{
    {"--hold", &Options::hold}, {"--print", &Options::print}, {"--loop", &Options::loop}, {"--help", &Options::help}};

bool consistent(const Options& options, std::string& error) {
    const int sources = (options.hold ? 1 : 0) + (options.replay.empty() ? 0 : 1) + (options.card.empty() ? 0 : 1);
    if (sources > 1)
        error = "--card, --replay and --hold exclude each other";
    else if (!options.state.empty() && !options.hold)
        error = "--state needs --hold";
    else if (options.plan.empty() != options.charts.empty() || (!options.plan.empty() && options.card.empty()))
        error = "--plan needs --charts, and a --card that flies it";
    else if (!options.record.empty() && (options.loop || !options.replay.empty()))
        error = "--record fits neither --loop nor --replay";
    else if (!options.pty.empty() && !options.protocol->isStream)
        error = "--pty needs --protocol nmea";
    return error.empty();
}

} // namespace

bool parseOptions(const std::vector<std::string>& arguments, Options& options, std::string& error) {
    error.clear();
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::string& name = arguments[i];
        const auto flag = SWITCHES.find(name);
        if (flag != SWITCHES.end()) {
            options.*flag->second = true;
            continue;
        }
        const auto value = VALUES.find(name);
        if (value == VALUES.end()) {
            error = "\"" + name + "\" is unknown";
            return false;
        }
        if (i + 1 >= arguments.size()) {
            error = name + " needs a value";
            return false;
        }
        if (!value->second(options, arguments[++i])) {
            error = "\"" + arguments[i] + "\" doesn't fit " + name;
            return false;
        }
    }
    return consistent(options, error);
}

} // namespace skyvane
