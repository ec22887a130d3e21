#include "displays/layout/OverlayPlaces.h"

#include <gtest/gtest.h>

using namespace skyvane;
using irr::core::rect;
using Overlay = OverlayPlaces;

namespace {

TEST(OverlayPlaces, aTapOnAShownInstrumentMovesBothToTheirCornersAndBack) {
    OverlayPlaces places({1280, 720}, 47);
    const rect<int> attitude(100, 100, 300, 300), compass(250, 100, 450, 300);
    EXPECT_EQ(places.getPlace(Overlay::Compass), rect<int>(0, 0, 100, 100));
    places.setGiven(Overlay::Attitude, attitude);
    places.setGiven(Overlay::Compass, compass);
    places.setVisible(Overlay::Attitude, true);
    places.press({400, 200});
    EXPECT_FALSE(places.release({400, 200})) << "the compass is hidden";
    places.press({200, 200});
    EXPECT_FALSE(places.release({400, 200})) << "let go beside";
    EXPECT_FALSE(places.release({200, 200})) << "not pressed";
    places.setVisible(Overlay::Compass, true);
    places.press({200, 200});
    EXPECT_FALSE(places.release({400, 200})) << "let go on the other";
    places.press({200, 200});
    EXPECT_TRUE(places.release({210, 210}));
    EXPECT_EQ(places.getPlace(Overlay::Attitude), rect<int>(1280 - 82, 720 - 82, 1280, 720));
    EXPECT_EQ(places.getPlace(Overlay::Compass), rect<int>(1280 - 164, 720 - 82, 1280 - 82, 720));
    places.press({200, 200});
    EXPECT_FALSE(places.release({200, 200})) << "they aren't there any more";
    places.press({1120, 700});
    EXPECT_TRUE(places.release({1120, 700}));
    EXPECT_EQ(places.getPlace(Overlay::Compass), compass);
}

TEST(OverlayPlaces, overTheManualBothStandInItsUpperRightCorner) {
    OverlayPlaces places({1280, 720}, 47);
    places.setManualOpen(true);
    EXPECT_TRUE(places.isVisible(Overlay::Compass));
    EXPECT_EQ(places.getPlace(Overlay::Attitude), rect<int>(1280 - 213 - 15, 62, 1265, 62 + 213));
    EXPECT_EQ(places.getPlace(Overlay::Compass), rect<int>(1280 - 15 - 426, 62, 1280 - 213 - 15, 62 + 213));
    EXPECT_EQ(places.getCoverOfManual(), rect<int>(1280 - 15 - 426, 62, 1265, 62 + 213));
    places.press({1200, 200});
    EXPECT_TRUE(places.release({1200, 200}));
    EXPECT_EQ(places.getCoverOfManual(), rect<int>(1280 - 164, 720 - 82, 1280, 720));
    places.setManualOpen(false);
    EXPECT_FALSE(places.isVisible(Overlay::Attitude));
    EXPECT_EQ(places.getCoverOfManual(), rect<int>());
}

} // namespace
