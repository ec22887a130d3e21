#pragma once

#include "flightfeed/flight/IFlightSource.h"
#include "flightfeed/replay/DatagramRecording.h"
#include "flightfeed/send/IProtocolSender.h"
#include "flightfeed/send/TruthPrinter.h"

namespace skyvane {

/// Makes flight time last as long as it should.
class IPacer {
public:
    virtual ~IPacer() = default;
    /// Returns when that much flight time has passed since the feed began.
    virtual void waitUntil(double flightSeconds) = 0;
};

/// Waits by the system's monotonic clock, or never for a speed of 0.
class ClockPacer : public IPacer {
public:
    explicit ClockPacer(double speed);
    void waitUntil(double flightSeconds) override;

private:
    double speed_;
    double beginSeconds_;
};

struct FeedSettings {
    double ratePerSecond = 30.0;
    double durationSeconds = 0.0; ///< 0: to the end of the flight
    double fromSeconds = 0.0;
    bool loop = false;
};

/// Flies and sends until the flight or the duration ends. The printer may be null.
void feedFlight(IFlightSource& source, IProtocolSender& sender, IDatagramSink& sink, TruthPrinter* printer,
                IPacer& pacer, const FeedSettings& settings);

/// Sends the datagrams of a recording as they are, at their times; the rate has no say.
void feedRecording(const DatagramRecording& recording, IDatagramSink& sink, TruthPrinter* printer, IPacer& pacer,
                   const FeedSettings& settings);

} // namespace skyvane
