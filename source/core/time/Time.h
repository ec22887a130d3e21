#pragma once

#include <atomic>

namespace skyvane {

/// Where the program's time comes from. A test puts its own clock in place and moves it by hand.
/// Implementations are asked from every thread.
class IClock {
public:
    virtual ~IClock() = default;
    /// Seconds since the program's start, monotonic.
    virtual double seconds() = 0;
    /// Blocks for that many milliseconds of this clock's time; nothing for 0 or less.
    virtual void delay(int milliseconds) = 0;
};

/// Replaces the clock behind MilliSecs, Secs and Delay; null brings the system's monotonic clock back.
/// The caller keeps ownership, and changes the clock only while no other thread runs.
void setClock(IClock* clock);

/// Milliseconds since the program's start; wraps after 2^32.
unsigned MilliSecs();

/// Seconds since the program's start, same clock.
double Secs();

void Delay(int milliseconds);

/// a - b for a >= b. For a < b the result is 2 * a, by definition: callers hand in "now" first.
unsigned TimeDiff(unsigned a, unsigned b);

/// A clock that stands still until a test moves it. Delay moves it too, from whatever thread.
class ManualClock : public IClock {
public:
    double seconds() override { return now_; }
    void delay(int milliseconds) override {
        if (milliseconds > 0)
            advance(milliseconds / 1000.0);
    }
    void advance(double seconds) {
        double before = now_;
        while (!now_.compare_exchange_weak(before, before + seconds)) {
        }
    }

private:
    std::atomic<double> now_{0.0};
};

} // namespace skyvane
