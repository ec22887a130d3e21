#include "core/time/Time.h"

#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <thread>

namespace skyvane {

namespace {

using Steady = std::chrono::steady_clock;

const Steady::time_point offSeconds = Steady::now();

class SystemClock : public IClock {
public:
    double seconds() override { return std::chrono::duration<double>(Steady::now() - offSeconds).count(); }
    void delay(int milliseconds) override {
        if (milliseconds > 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    }
};

SystemClock systemClock;
std::atomic<IClock*> currentClock{&systemClock};

} // namespace

void setClock(IClock* clock) {
    currentClock = clock ? clock : &systemClock;
}

unsigned MilliSecs() {
    return static_cast<unsigned>(static_cast<unsigned long long>(Secs() * 1000.0));
}

double Secs() {
    return currentClock.load()->seconds();
}

void Delay(int milliseconds) {
    currentClock.load()->delay(milliseconds);
}

unsigned TimeDiff(unsigned a, unsigned b) {
    if (a < b)
        return 2 * a;
    return static_cast<unsigned>(std::abs(static_cast<int>(a - b)));
}

} // namespace skyvane
