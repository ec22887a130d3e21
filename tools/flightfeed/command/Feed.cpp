#include "flightfeed/command/Feed.h"

#include "flightfeed/send/FlightGearSender.h"

#include <chrono>
#include <thread>

namespace skyvane {

namespace {

double steadySeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

bool over(const FeedSettings& settings, double flightSeconds) {
    return settings.durationSeconds > 0.0 && flightSeconds >= settings.durationSeconds - 1e-9;
}

void skip(IFlightSource& source, const FeedSettings& settings) {
    for (double skipped = 0.0; skipped < settings.fromSeconds; skipped += 1.0 / settings.ratePerSecond)
        if (!source.advance(1.0 / settings.ratePerSecond))
            return;
}

} // namespace

ClockPacer::ClockPacer(double speed) : speed_(speed), beginSeconds_(steadySeconds()) {}

void ClockPacer::waitUntil(double flightSeconds) {
    if (speed_ <= 0.0)
        return;
    const double ahead = beginSeconds_ + flightSeconds / speed_ - steadySeconds();
    if (ahead > 0.0)
        std::this_thread::sleep_for(std::chrono::duration<double>(ahead));
}

void feedFlight(IFlightSource& source, IProtocolSender& sender, IDatagramSink& sink, TruthPrinter* printer,
                IPacer& pacer, const FeedSettings& settings) {
    skip(source, settings);
    for (long count = 0;; ++count) {
        const double flightSeconds = static_cast<double>(count) / settings.ratePerSecond;
        if (over(settings, flightSeconds))
            return;
        pacer.waitUntil(flightSeconds);
        sender.send(source.state(), sink);
        if (printer)
            printer->print(source.state());
        if (source.advance(1.0 / settings.ratePerSecond))
            continue;
        if (!settings.loop)
            return;
        source.restart();
    }
}

void feedRecording(const DatagramRecording& recording, IDatagramSink& sink, TruthPrinter* printer, IPacer& pacer,
                   const FeedSettings& settings) {
    double begin = -settings.fromSeconds;
    do {
        for (size_t i = 0; i < recording.count(); ++i) {
            const double flightSeconds = begin + recording.seconds(i);
            if (flightSeconds < 0.0)
                continue;
            if (over(settings, flightSeconds))
                return;
            pacer.waitUntil(flightSeconds);
            sink.send(recording.datagram(i), FlightGearSender::DATAGRAM_BYTES);
            if (!printer)
                continue;
            FlightState state = readFlightGearDatagram(recording.datagram(i));
            state.timeSeconds = flightSeconds;
            printer->print(state);
        }
        begin += recording.seconds(recording.count() - 1) + 1.0 / settings.ratePerSecond;
    } while (settings.loop);
}

} // namespace skyvane
