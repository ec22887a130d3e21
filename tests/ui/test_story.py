"""A newcomer's first flight, end to end: a fresh home as ./run prepares it, the profile screen, "Use Last Settings", and the
recorded flight over the islands from runway to runway. What is forwarded is compared with the log byte for byte, the log with
reviewed figures (story.csv) and the plan's places, the pictures with what a pilot must see there."""
import csv
import os
import time

import numpy

from figures import FigureReader
from navigator import along_and_right, bearing, distance
from run_tests import thorough
from story import (ALTITUDE, GROUND_SPEED, HEADING, LOG, POSITION, SIZE, Story, is_magenta, is_warning, read_log)

HERE = os.path.dirname(os.path.abspath(__file__))
VIEW, MAP = (slice(0, 672), slice(0, 640)), (slice(0, 672), slice(640, 1280))  # of the first page
# Both runways by their thresholds, feet; the way points by hand from their kilometres (tools/demo/region).
XSKV, THRESHOLD, FAR_END = (42.113285, -28.185773), (42.530446, -28.252009), (42.523559, -28.259851)
ELEVATION, RISE = 241, 42
SOUTH, WEST, METRES, NARROW = 42.0, -29.0, 111194.940345393, 0.7372773368101241
WAY = [('TARNA', 56.818, 20.982, 2800), ('BURNA', 47.0, 26.5, 2000), ('MOORA', 47.0, 35.0, 1800),
       ('ALDRA', 46.5, 42.6, 3000), ('CAIRN', 42.4, 46.6, 4300), ('SCREE', 42.9, 53.0, 4000),
       ('CALDR', 46.5, 55.1, 2800), ('BECKS', 49.2, 53.7, 2250), ('FLINN', 61.5, 70.0, 1500)]
REPLAYED = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 15}


def way_point(east, north):
    return SOUTH + north * 1000 / METRES, WEST + east * 1000 / (METRES * NARROW)


def check_log(times):
    """The recorded flight is the reviewed one, and flies the plan."""
    with open(os.path.join(HERE, 'story.csv')) as table:
        for row in csv.DictReader(table):
            at = times[int(row['ms'])]
            place = at[POSITION][1], at[POSITION][0]
            wanted = float(row['latitude']), float(row['longitude'])
            assert distance(place, wanted) < 15.0 if place != wanted else True, (row, place)
            assert abs(at[ALTITUDE][0] / 0.3048 - float(row['feet'])) < 10, (row, at)
            assert abs(at[GROUND_SPEED][0] - float(row['knots'])) < 2, (row, at)
            off = (at[HEADING][0] - float(row['heading']) + 180) % 360 - 180
            assert abs(off) < 2, (row, at)
    flown = [((at[POSITION][1], at[POSITION][0]), at[ALTITUDE][0] / 0.3048) for _, at in sorted(times.items())][::20]
    first = 0
    for name, east, north, feet in WAY:
        away = [distance(place, way_point(east, north)) for place, _ in flown[first:]]
        nearest = first + int(numpy.argmin(away))
        assert min(away) < 250, (name, min(away))
        assert abs(flown[nearest][1] - feet) < 120, (name, flown[nearest])
        first = nearest


def check_forwarded(records, story, most_types):
    """Each record that was forwarded is one of the log, to the byte, and in its order."""
    known = {}
    for number, record in enumerate(records):
        known.setdefault(record, number)
    before = -1
    kinds = set()
    for kind, level, form in story.forwarded():
        assert (kind, form) in known, (kind, form.hex())
        assert level == 0, (kind, level)
        kinds.add(kind)
        if kind == POSITION:
            assert known[kind, form] >= before, 'backwards'
            before = known[kind, form]
    assert kinds >= most_types, kinds


def check_landed(story):
    place, feet, knots = story.place()
    along, right = along_and_right(THRESHOLD, bearing(THRESHOLD, FAR_END), place)
    assert 100 < along < 900 and abs(right) < 8, (along, right)
    assert knots < 0.5, knots
    assert abs(feet - ELEVATION - RISE * along / 1000) < 5, feet


def check_start(story):
    """On the runway: the highway and the plan's course in magenta, the ground about in red, and yellow at most."""
    def is_there():
        pixels = story.look()
        return (is_magenta(pixels[VIEW]).sum() > 1000 and is_magenta(pixels[MAP]).sum() > 300 and
                is_warning(pixels[MAP]).mean() > 0.2)
    story.wait(is_there, 20, 'the highway, the course and the red ground')
    story.save(story.look(), 'story-start')
    place, feet, knots = story.place()
    assert distance(place, XSKV) < 2500 and feet < 1000, (place, feet)


def seek(glass, seconds, length):
    """Takes the handle of the replay's bar to a time; the bar is wide enough for some ten seconds a pixel."""
    x, y = glass.playback_place('bar')
    height, margin = glass.button * 5 // 4, max(2, glass.button // 8)
    width = (0.379 * (SIZE[0] * SIZE[1]) ** 0.5 - 3 * margin - glass.button / 2) * 2 / 3
    handle = 0.95 * height
    glass.menu()
    for at in (length if seconds < length / 2 else 0, seconds):  # a touch on the handle would only hold it
        glass.click(x - width / 2 + handle / 2 + (width - handle) * at / length, y)
    glass.click(0.7 * SIZE[0], 0.3 * SIZE[1])


def play(story, glass, speed):
    """At so many times the speed; a glass that was too busy for what was typed is asked again."""
    def is_fast():
        glass.menu()
        glass.write(glass.playback_place('speed'), str(speed), glass.row_place(0))  # the title of the rows
        glass.click(0.7 * SIZE[0], 0.3 * SIZE[1])
        since = story.flight_seconds()
        time.sleep(1)
        return story.flight_seconds() - since > 0.4 * speed
    story.wait(is_fast, 30, '%d times the speed' % speed)


def pause(glass):
    """Or on again."""
    glass.menu()
    glass.click(*glass.playback_place('Play'))
    glass.click(0.7 * SIZE[0], 0.3 * SIZE[1])


def test_the_first_flight_begins_and_ends(build):
    with Story(build) as story:
        glass = story.begin()
        check_start(story)
        records, times = read_log(story.path('.Skyvane/Logs', LOG))
        check_log(times)
        length = max(times) / 1000
        seek(glass, 920, length)
        # Between the mountains the ground before and below is red and yellow.
        story.wait(lambda: is_warning(story.look()[VIEW]).mean() > 0.12, 10, 'the mountains in red')
        story.save(story.look(), 'story-valley')
        assert 800 < story.flight_seconds() < 1000
        seek(glass, 1960, length)
        play(story, glass, 8)
        story.wait(lambda: story.flight_seconds() > 2000, 20, 'the landing')
        check_landed(story)
        story.save(story.look(), 'story-landed')
        seen = {kind for kind, _, _ in story.forwarded()}
        assert seen >= REPLAYED, seen
        assert story.close() == 0


def learn_figures(story, glass, length):
    """What figures look like in value fields, from altitudes that were forwarded while the flight stood still."""
    reader, learned, place = FigureReader(), set(), story.field('ALTITUDE', 3)
    pause(glass)
    seek(glass, 0, length)
    time.sleep(0.5)
    reader.learn(story.look(), story.field('GROUNDSPEED', 3), '0')
    for at in (560, 1110, 700, 1500, 1420):
        seek(glass, at, length)
        time.sleep(0.5)
        pixels, text = story.look(), str(round(story.place()[1]))
        if set(text) <= learned:
            assert reader.read(pixels, place) == text, at
        else:
            reader.learn(pixels, place, text)
        learned.update(text)
    assert learned >= set('0126'), learned
    return reader


@thorough
def test_the_whole_first_flight_as_it_was_recorded(build):
    with Story(build) as story:
        glass = story.begin()
        check_start(story)
        records, times = read_log(story.path('.Skyvane/Logs', LOG))
        for _ in range(3):
            story.key('Next')  # to the page of dials and values
        reader = learn_figures(story, glass, max(times) / 1000)
        glass.menu()
        for button in ('Stop', 'Play'):  # from the beginning
            glass.click(*glass.playback_place(button))
        glass.click(0.7 * SIZE[0], 0.3 * SIZE[1])
        story.wait(lambda: 2 < story.flight_seconds() < 60, 10, 'the beginning')
        story.datagrams.clear()
        time.sleep(1)
        # So fast that an instant of it is seen every hundred metres, also by a machine that has other things to do.
        play(story, glass, min(50, max(5, 4 * len(story.datagrams))))
        story.wait(lambda: story.flight_seconds() > 2040, 300, 'the landing')
        check_landed(story)
        pixels = story.look()
        story.save(pixels, 'story-values')
        assert reader.read(pixels, story.field('ALTITUDE', 3)) == str(round(story.place()[1]))
        # The plan went on by itself to the approach, of which no mile is left.
        assert reader.read(pixels, story.field('DISTANCE', 3)) == '0', 'miles to go'
        check_forwarded(records, story, REPLAYED | {16, 17})
        assert story.close() == 0
