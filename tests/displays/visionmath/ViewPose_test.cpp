#include "attitude/math/Matrix3x3.h"
#include "displays/visionmath/GlassSymbols.h"
#include "displays/visionmath/HorizonLine.h"
#include "displays/visionmath/PitchLadder.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace skyvane {
namespace {

constexpr double radians = 0.017453292519943295;

/// Degrees; nose up and right wing down positive.
ViewPose poseOf(double heading, double pitch, double bank) {
    ViewPose pose;
    EXPECT_TRUE(lookAlong(createYawMatrix(heading * radians) * createPitchMatrix(-pitch * radians) *
                              createRollMatrix(-bank * radians),
                          pose));
    return pose;
}

TEST(ViewPose, LooksAlongTheAircraftAndRefusesWhatIsNoRotation) {
    const ViewPose east = poseOf(90.0, 0.0, 0.0);
    EXPECT_NEAR(east.forward.X, 1.0, 1e-12);
    EXPECT_NEAR(east.right.Z, -1.0, 1e-12);
    const ViewPose up = poseOf(0.0, 10.0, 30.0);
    EXPECT_NEAR(up.forward.Y, std::sin(10.0 * radians), 1e-12);
    EXPECT_LT(up.right.Y, 0.0) << "the right wing is down";
    ViewPose kept;
    Matrix3x3 broken;
    for (const double bad : {std::nan(""), std::numeric_limits<double>::infinity()}) {
        broken(1, 2) = bad;
        EXPECT_FALSE(lookAlong(broken, kept));
    }
    Matrix3x3 flat;
    flat(2, 2) = 0.0;
    EXPECT_FALSE(lookAlong(flat, kept));
    EXPECT_EQ(kept.forward.Z, 1.0);
}

TEST(ViewPose, ChasesFromBehindAndAbove) {
    const ViewPose pose = lookAt({0.0, 1000.0, 0.0}, 90.0, 30.0, 200.0);
    EXPECT_NEAR(pose.position.X, -200.0 * std::cos(30.0 * radians), 1e-9);
    EXPECT_NEAR(pose.position.Y, 1100.0, 1e-9);
    const auto middle = Lens(640, 480).project(pose, ViewPose::Vector(0.0, 1000.0, 0.0) - pose.position);
    ASSERT_TRUE(middle);
    EXPECT_NEAR(middle->X, 320.0, 1e-6);
    EXPECT_NEAR(middle->Y, 240.0, 1e-6);
}

TEST(HorizonLine, LiesWherePitchAndBankPutIt) {
    const Lens lens(1280, 720);
    HorizonLine line = calcHorizon(poseOf(123.0, 0.0, 0.0), lens);
    EXPECT_NEAR(line.getFoot(lens).Y, 360.0, 1e-6);
    line = calcHorizon(poseOf(200.0, 10.0, 0.0), lens);
    EXPECT_NEAR(line.getFoot(lens).Y, 360.0 + lens.focalPixels * std::tan(10.0 * radians), 1e-6);
    line = calcHorizon(poseOf(0.0, 0.0, 30.0), lens);
    EXPECT_NEAR(-line.skyward.X / -line.skyward.Y, std::tan(30.0 * radians), 1e-9) << "sky to the upper left";
    EXPECT_GT(line.distanceOf({0.0, 300.0}, lens), 0.0);
}

/// The slow twin: rays through random pixels, tested for going up or down.
TEST(HorizonLine, SeparatesRaysThatRiseFromThoseThatFall) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> angle(-180.0, 180.0), pitch(-89.0, 89.0), share(0.0, 1.0);
    const Lens lens(600, 800);
    for (int i = 0; i < 2000; ++i) {
        const ViewPose pose = poseOf(angle(random), pitch(random), angle(random));
        const Lens::Point pixel(share(random) * lens.width, share(random) * lens.height);
        const Lens::Point offset = (pixel - lens.getCentre()) / lens.focalPixels;
        const ViewPose::Vector ray = pose.forward + pose.right * offset.X - pose.up * offset.Y;
        const double side = calcHorizon(pose, lens).distanceOf(pixel, lens);
        EXPECT_TRUE(std::abs(ray.Y) < 1e-9 || (ray.Y > 0.0) == (side > 0.0)) << i;
        const auto back = lens.project(pose, ray);
        ASSERT_TRUE(back);
        EXPECT_LT(back->getDistanceFrom(pixel), 1e-6);
    }
}

double areaOf(const std::vector<Lens::Point>& outline) {
    double sum = 0.0;
    for (size_t i = 0; i < outline.size(); ++i) {
        const Lens::Point &a = outline[i], &b = outline[(i + 1) % outline.size()];
        sum += a.X * b.Y - b.X * a.Y;
    }
    return std::abs(sum) / 2.0;
}

TEST(HorizonLine, KeepsASliverOfBothSidesInEveryAttitude) {
    const Lens lens(640, 480);
    for (int pitch = -90; pitch <= 90; pitch += 5)
        for (int bank = -180; bank <= 180; bank += 15) {
            HorizonLine line = calcHorizon(poseOf(40.0, pitch, bank), lens);
            const double before = line.skyPixels;
            const bool moved = keepInView(line, lens, 40.0);
            const double sky = areaOf(sideOf(line, lens, true)), ground = areaOf(sideOf(line, lens, false));
            EXPECT_NEAR(sky + ground, 640.0 * 480.0, 1.0);
            EXPECT_GT(std::min(sky, ground), 1500.0) << pitch << " " << bank;
            EXPECT_EQ(moved, before != line.skyPixels);
            EXPECT_GE(before * line.skyPixels, 0.0) << "the middle keeps its side";
        }
}

TEST(PitchLadder, RungsLieOnTheHorizonAndAtTheirPitches) {
    const Lens lens(800, 800);
    const ViewPose pose = poseOf(310.0, 7.0, -25.0);
    const HorizonLine horizon = calcHorizon(pose, lens);
    int rungs = 0;
    for (const PitchRung& rung : PitchLadder(pose, lens, 300.0)) {
        ++rungs;
        EXPECT_EQ(rung.isLong, rung.pitchDegrees % 10 == 0);
        EXPECT_LE(rung.centre.getDistanceFrom(lens.getCentre()), 300.0);
        const double side = horizon.distanceOf(rung.centre, lens);
        if (rung.pitchDegrees == 0) {
            EXPECT_NEAR(side, 0.0, 1e-6);
            EXPECT_NEAR(rung.along.dotProduct(horizon.skyward), 0.0, 1e-6);
        } else
            EXPECT_EQ(side > 0.0, rung.pitchDegrees > 0);
    }
    EXPECT_EQ(rungs, 7) << "300 pixels are 17 degrees: from -10 to 20";
}

TEST(PitchLadder, GoesOnOverTheTopAndUpsideDown) {
    const Lens lens(800, 800);
    int above = 0;
    for (const PitchRung& rung : PitchLadder(poseOf(0.0, 88.0, 0.0), lens, 350.0)) {
        EXPECT_LE(rung.pitchDegrees, 90);
        above += rung.pitchDegrees == 80;
    }
    EXPECT_EQ(above, 2) << "80 degrees stand on both sides of the zenith";
    const ViewPose inverted = poseOf(0.0, 5.0, 180.0);
    for (const PitchRung& rung : PitchLadder(inverted, lens, 300.0)) {
        EXPECT_TRUE(rung.pitchDegrees <= 5 || rung.centre.Y > 400.0) << "the sky is below";
        EXPECT_LT(rung.along.X, 0.0) << "and numbers stand on their heads";
    }
}

TEST(GlassSymbols, PointToTheHorizonInUnusualAttitudesOnly) {
    const Lens lens(600, 600);
    GlassSymbols symbols(lens, {0, 0, 600, 600});
    const auto chevrons = [&](double pitch, double bank) {
        ShapeMesh mesh;
        symbols.addChevrons(mesh, calcHorizon(poseOf(0.0, pitch, bank), lens), pitch, bank);
        return mesh;
    };
    EXPECT_TRUE(chevrons(29.0, 59.0).isEmpty());
    EXPECT_FALSE(chevrons(0.0, -61.0).isEmpty());
    const auto lowest = [](const ShapeMesh& mesh) {
        float y = -1e9f;
        for (const ShapeMesh::Vertex& vertex : mesh.vertices)
            y = std::max(y, vertex.place.Y);
        return y;
    };
    EXPECT_GT(lowest(chevrons(40.0, 0.0)), 340.0f) << "down to the horizon";
    EXPECT_LT(lowest(chevrons(-40.0, 0.0)), 380.0f) << "up to it";
    EXPECT_EQ(symbols.getBankScale(std::nan("")).rotationDegrees, 0.0);
    EXPECT_NEAR(symbols.getBankScale(370.0).rotationDegrees, 10.0, 1e-9);
    EXPECT_EQ(symbols.getBall(std::nan("")).place.X, symbols.getBall(0.0).place.X);
    const double middle = symbols.getBall(0.0).place.X, reach = symbols.getArcRadius() * 0.45;
    EXPECT_NEAR(symbols.getBall(0.4).place.X - middle, reach * 0.5, 0.01 * reach) << "half way at 0.4";
    EXPECT_LT(symbols.getBall(-1.0).place.X, middle - 0.8 * reach);
}

} // namespace
} // namespace skyvane
