#include "flightfeed/command/Command.h"

#include "core/log/Logger.h"
#include "flightfeed/card/CardParser.h"
#include "flightfeed/command/Feed.h"
#include "flightfeed/command/FlightRecorder.h"
#include "flightfeed/command/Options.h"
#include "flightfeed/flight/HeldState.h"
#include "flightfeed/flight/PlanRoute.h"
#include "flightfeed/flight/ScriptedFlight.h"
#include "flightfeed/replay/CsvFlight.h"
#include "flightfeed/replay/GzipFile.h"
#include "flightfeed/send/StreamSenders.h"
#include "flightfeed/send/UdpSender.h"

#include <algorithm>
#include <iostream>

extern "C" const char flightfeed_demo_card[];
extern "C" const char flightfeed_usage[];

namespace skyvane {

namespace {

void complain(const std::string& words) {
    std::cerr << "flightfeed: " << words << '\n';
}

bool fliesPlan(const FlightCard& card) {
    return std::any_of(card.steps.begin(), card.steps.end(),
                       [](const CardStep& step) { return step.kind == CardStep::Kind::Plan; });
}

/// The plan that the card flies, if it flies one.
bool openRoute(const Options& options, FlightCard& card, std::unique_ptr<PlanRoute>& route) {
    std::string error;
    if (fliesPlan(card) && options.plan.empty())
        error = options.card + ": the card flies a plan: --plan and --charts tell which";
    else if (fliesPlan(card))
        route = PlanRoute::open(options.plan, options.charts, error);
    if (!error.empty())
        complain(error);
    card.route = route.get();
    return error.empty();
}

std::unique_ptr<IFlightSource> openCard(const Options& options, std::unique_ptr<PlanRoute>& route) {
    const std::string& path = options.card;
    std::string text = flightfeed_demo_card, error;
    if (!path.empty() && !readMaybeGzip(path, text, error)) {
        complain(error);
        return nullptr;
    }
    FlightCard card;
    const std::vector<CardError> errors = parseCard(text, card);
    for (const CardError& entry : errors)
        complain((path.empty() ? "demo card" : path) + ": line " + std::to_string(entry.line) + ": " + entry.message);
    if (!errors.empty() || !openRoute(options, card, route))
        return nullptr;
    return std::make_unique<ScriptedFlight>(std::move(card));
}

std::unique_ptr<IFlightSource> openHeld(const std::string& text) {
    auto held = std::make_unique<HeldState>();
    std::string error;
    if (held->set(text, error))
        return held;
    complain(error);
    return nullptr;
}

// A recording of datagrams has no header row, and its first byte is never that of one.
bool isTable(const std::string& content) {
    return content.find("sim-time-sec") < content.find('\n');
}

FeedSettings settingsOf(const Options& options) {
    return {options.ratePerSecond, options.durationSeconds, options.fromSeconds, options.loop};
}

int replayDatagrams(const Options& options, std::string content, IDatagramSink& sink, TruthPrinter* printer) {
    DatagramRecording recording;
    std::string error;
    if (options.protocol != findProtocol("flightgear"))
        error = "these are FlightGear's datagrams, they can't be sent as another protocol";
    if (!error.empty() || !recording.read(std::move(content), error)) {
        complain(options.replay + ": " + error);
        return 1;
    }
    ClockPacer pacer(options.speed);
    feedRecording(recording, sink, printer, pacer, settingsOf(options));
    return 0;
}

int record(const Options& options, IFlightSource* source, TruthPrinter* printer) {
    if (!source)
        return 1;
    for (double skipped = 0.0; skipped < options.fromSeconds; skipped += 1.0 / options.ratePerSecond)
        source->advance(1.0 / options.ratePerSecond);
    if (recordFlight(*source, options.record, options.ratePerSecond, options.durationSeconds, printer))
        return 0;
    complain(options.record + ": the log can't be written");
    return 1;
}

int fly(const Options& options, IFlightSource* source, IDatagramSink& sink, TruthPrinter* printer) {
    if (!source)
        return 1;
    const std::unique_ptr<IProtocolSender> sender = options.protocol->make();
    ClockPacer pacer(options.speed);
    feedFlight(*source, *sender, sink, printer, pacer, settingsOf(options));
    return 0;
}

int replay(const Options& options, IDatagramSink& sink, TruthPrinter* printer) {
    std::string content, error;
    if (!readMaybeGzip(options.replay, content, error)) {
        complain(error);
        return 1;
    }
    if (!isTable(content))
        return replayDatagrams(options, std::move(content), sink, printer);
    const std::unique_ptr<CsvFlight> flight = CsvFlight::read(content, error);
    if (!flight)
        complain(options.replay + ": " + error);
    return fly(options, flight.get(), sink, printer);
}

std::unique_ptr<IDatagramSink> openSink(const Options& options, std::string& error) {
    if (!options.pty.empty())
        return PseudoTerminalSender::open(options.pty, error);
    const int port = options.port > 0 ? options.port : options.protocol->port;
    if (options.protocol->isStream)
        return TcpServerSender::open(options.host, port, error);
    return UdpSender::open(options.host, port, error);
}

} // namespace

int runFlightFeed(const std::vector<std::string>& arguments) {
    const QuietConsole quiet;
    Options options;
    std::string error;
    if (!parseOptions(arguments, options, error)) {
        complain(error + "; --help tells more");
        return 2;
    }
    if (options.help) {
        std::cout << flightfeed_usage;
        return 0;
    }
    TruthPrinter printer(std::cout);
    if (options.print)
        printer.printHeader();
    TruthPrinter* const print = options.print ? &printer : nullptr;
    std::unique_ptr<PlanRoute> route;
    std::unique_ptr<IFlightSource> source;
    if (options.replay.empty())
        source = options.hold ? openHeld(options.state) : openCard(options, route);
    if (!options.record.empty())
        return record(options, source.get(), print);
    const std::unique_ptr<IDatagramSink> sink = openSink(options, error);
    if (!sink) {
        complain(error);
        return 1;
    }
    if (!options.replay.empty())
        return replay(options, *sink, print);
    return fly(options, source.get(), *sink, print);
}

} // namespace skyvane
