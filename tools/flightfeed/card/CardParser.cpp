#include "flightfeed/card/CardParser.h"

#include "flightfeed/card/CardLine.h"
#include "flightfeed/flight/CalendarTime.h"
#include "flightfeed/flight/FlightState.h"
#include "flightfeed/flight/Units.h"

#include <sstream>
#include <unordered_map>

namespace skyvane {

namespace {

constexpr size_t MOST_STEPS = 10000;

// Where the aircraft is while the lines are read: what fits the ground doesn't fit the air.
enum class Place { Nowhere, Ground, Air };

struct Reading {
    FlightCard& card;
    Place place = Place::Nowhere;
    int number = 0;

    CardStep& add(CardStep::Kind kind) {
        card.steps.emplace_back();
        card.steps.back().kind = kind;
        card.steps.back().line = number;
        return card.steps.back();
    }
};

bool inAir(Reading& reading, CardLine& line) {
    if (reading.place != Place::Air)
        line.fail("the aircraft isn't in the air here");
    return reading.place == Place::Air;
}

bool onGround(Reading& reading, CardLine& line) {
    if (reading.place != Place::Ground)
        line.fail("the aircraft isn't on the ground here");
    return reading.place == Place::Ground;
}

void readStart(Reading& reading, CardLine& line) {
    FlightCard& card = reading.card;
    if (reading.place != Place::Nowhere)
        return line.fail("there is a start already");
    line.takePoint(card.startPoint.latitudeDegrees, card.startPoint.longitudeDegrees);
    card.startInAir = line.takeIf("altitude");
    if (!card.startInAir)
        line.expect("elevation");
    card.startAltitudeMetres = line.takeMetres("height");
    line.expect("heading");
    card.startHeadingDegrees = line.takeHeading();
    if (line.takeIf("speed"))
        card.startSpeedKnots = line.takeKnots(50.0, 200.0);
    reading.place = card.startInAir ? Place::Air : Place::Ground;
}

void readTime(Reading& reading, CardLine& line) {
    const std::string date = line.takeWord();
    const std::string time = line.takeWord();
    if (!parseUtc(date, time, reading.card.utcSeconds))
        line.fail("the time is written as 2026-06-01 10:00:00");
}

void readRunway(Reading& reading, CardLine& line) {
    CardRunway& runway = reading.card.runway;
    reading.card.hasRunway = true;
    line.takePoint(runway.threshold.latitudeDegrees, runway.threshold.longitudeDegrees);
    line.expect("elevation");
    runway.elevationMetres = line.takeMetres("elevation");
    line.expect("course");
    runway.courseDegrees = line.takeHeading();
    if (line.takeIf("length"))
        runway.lengthMetres = line.takeMetres("length");
    if (line.takeIf("rise"))
        runway.riseMetres = line.takeMetres("rise");
    if (line.takeIf("glide"))
        runway.glideDegrees = line.takeNumber("glide angle", 2.0, 8.0, "deg");
    if (runway.lengthMetres < 100.0)
        line.fail("the runway is shorter than 100 m");
}

void readTraffic(Reading& reading, CardLine& line) {
    CardTraffic traffic;
    line.takePoint(traffic.point.latitudeDegrees, traffic.point.longitudeDegrees);
    line.expect("altitude");
    traffic.altitudeMetres = line.takeMetres("altitude");
    line.expect("heading");
    traffic.headingDegrees = line.takeHeading();
    line.expect("speed");
    traffic.speedKnots = line.takeKnots(0.0, 600.0);
    if (line.takeIf("turn"))
        traffic.turnDegreesPerSecond = line.takeNumber("turn rate", -10.0, 10.0);
    if (line.takeIf("climb"))
        traffic.climbMetresPerSecond = line.takeClimb();
    else if (line.takeIf("descend"))
        traffic.climbMetresPerSecond = -line.takeClimb();
    if (line.takeIf("name"))
        traffic.name = line.takeWord().substr(0, 8);
    if (reading.card.traffic.size() >= FlightState::MAXIMAL_TRAFFIC)
        return line.fail("there are eight other aircraft already");
    reading.card.traffic.push_back(traffic);
}

void readStand(Reading& reading, CardLine& line) {
    if (onGround(reading, line))
        reading.add(CardStep::Kind::Stand).seconds = line.takeSeconds("time");
}

void readTakeOff(Reading& reading, CardLine& line) {
    if (!onGround(reading, line))
        return;
    reading.add(CardStep::Kind::TakeOff);
    reading.place = Place::Air;
}

void readClimb(Reading& reading, CardLine& line) {
    if (!inAir(reading, line))
        return;
    CardStep& step = reading.add(CardStep::Kind::Climb);
    step.climbMetresPerSecond = line.takeClimb();
    line.expect("to");
    step.altitudeMetres = line.takeMetres("altitude");
}

void readTurn(Reading& reading, CardLine& line) {
    if (!inAir(reading, line))
        return;
    CardStep& step = reading.add(CardStep::Kind::Turn);
    step.turnRight = line.takeIf("right");
    if (!step.turnRight)
        line.expect("left");
    if (!line.takeIf("standard")) {
        line.expect("bank");
        step.bankDegrees = line.takeNumber("bank", 3.0, 60.0, "deg");
    }
    step.turnByAngle = line.takeIf("by");
    if (!step.turnByAngle)
        line.expect("to");
    step.angleDegrees = step.turnByAngle ? line.takeNumber("angle", 1.0, 3600.0, "deg") : line.takeHeading();
}

void readLevel(Reading& reading, CardLine& line) {
    if (inAir(reading, line))
        reading.add(CardStep::Kind::Level).seconds = line.takeSeconds("time");
}

void readSlip(Reading& reading, CardLine& line) {
    if (!inAir(reading, line))
        return;
    CardStep& step = reading.add(CardStep::Kind::Slip);
    step.angleDegrees = line.takeNumber("angle of the ball", -12.0, 12.0, "deg");
    step.seconds = line.takeSeconds("time");
}

void readDirect(Reading& reading, CardLine& line) {
    if (!inAir(reading, line))
        return;
    CardStep& step = reading.add(CardStep::Kind::Direct);
    line.takePoint(step.point.latitudeDegrees, step.point.longitudeDegrees);
}

void readFollow(Reading& reading, CardLine& line) {
    if (!inAir(reading, line))
        return;
    CardStep& step = reading.add(CardStep::Kind::Follow);
    line.takePoint(step.point.latitudeDegrees, step.point.longitudeDegrees);
    step.keepAltitude = !line.takeIf("altitude");
    if (!step.keepAltitude)
        step.altitudeMetres = line.takeMetres("altitude");
}

void readPlan(Reading& reading, CardLine& line) {
    if (inAir(reading, line))
        reading.add(CardStep::Kind::Plan);
}

void readLand(Reading& reading, CardLine& line) {
    if (!inAir(reading, line))
        return;
    if (!reading.card.hasRunway)
        line.fail("no runway was named to land on");
    reading.add(CardStep::Kind::Land);
    reading.place = Place::Ground;
}

void readSpeed(Reading& reading, CardLine& line) {
    if (inAir(reading, line))
        reading.add(CardStep::Kind::Speed).speedKnots = line.takeKnots(50.0, 200.0);
}

void readWind(Reading& reading, CardLine& line) {
    CardStep& step = reading.add(CardStep::Kind::Wind);
    step.angleDegrees = line.takeHeading();
    step.speedKnots = line.takeKnots(0.0, 60.0);
}

using Reader = void (*)(Reading&, CardLine&);

Reader readerOf(const std::string& word) {
    static const std::unordered_map<std::string, Reader> readers{
        {"start", readStart},   {"time", readTime},       {"runway", readRunway}, {"traffic", readTraffic},
        {"stand", readStand},   {"takeoff", readTakeOff}, {"climb", readClimb},   {"descend", readClimb},
        {"turn", readTurn},     {"level", readLevel},     {"slip", readSlip},     {"direct", readDirect},
        {"follow", readFollow}, {"plan", readPlan},       {"land", readLand},     {"speed", readSpeed},
        {"wind", readWind}};
    const auto found = readers.find(word);
    return found == readers.end() ? nullptr : found->second;
}

void readLine(Reading& reading, CardLine& line) {
    const std::string word = line.takeWord();
    const Reader reader = readerOf(word);
    if (!reader)
        return line.fail("\"" + word + "\" is no line of a flight card");
    if (reading.card.steps.size() >= MOST_STEPS)
        return line.fail("the card is too long");
    reader(reading, line);
    if (line.error().empty() && !line.atEnd())
        line.fail("\"" + line.takeWord() + "\" is too much");
}

} // namespace

std::vector<CardError> parseCard(const std::string& text, FlightCard& card) {
    card = FlightCard();
    Reading reading{card};
    std::vector<CardError> errors;
    std::istringstream in(text);
    for (std::string written; std::getline(in, written);) {
        ++reading.number;
        CardLine line(written);
        if (line.empty())
            continue;
        readLine(reading, line);
        if (!line.error().empty())
            errors.push_back({reading.number, line.error()});
    }
    if (reading.place == Place::Nowhere)
        errors.push_back({reading.number, "the card has no start"});
    return errors;
}

} // namespace skyvane
