#include "chart/geodesy/GlidePath.h"

namespace skyvane {
namespace {

struct Channel {
    unsigned long localizerKilohertz;
    unsigned long glidePathKilohertz;
};

/// ICAO Annex 10, volume I, frequency pairing of localizer and glide path.
constexpr Channel Channels[] = {
    {108100, 334700}, {108150, 334550}, {108300, 334100}, {108350, 333950}, {108500, 329900}, {108550, 329750},
    {108700, 330500}, {108750, 330350}, {108900, 329300}, {108950, 329150}, {109100, 331400}, {109150, 331250},
    {109300, 332000}, {109350, 331850}, {109500, 332600}, {109550, 332450}, {109700, 333200}, {109750, 333050},
    {109900, 333800}, {109950, 333650}, {110100, 334400}, {110150, 334250}, {110300, 335000}, {110350, 334850},
    {110500, 329600}, {110550, 329450}, {110700, 330200}, {110750, 330050}, {110900, 330800}, {110950, 330650},
    {111100, 331700}, {111150, 331550}, {111300, 332300}, {111350, 332150}, {111500, 332900}, {111550, 332750},
    {111700, 333500}, {111750, 333350}, {111900, 331100}, {111950, 330950},
};

} // namespace

unsigned long getGlideSlopeFrequency(unsigned long localizerHertz) {
    for (const Channel& channel : Channels)
        if (channel.localizerKilohertz == localizerHertz / 1000)
            return channel.glidePathKilohertz * 1000;
    return 0;
}

} // namespace skyvane
