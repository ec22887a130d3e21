"""What is sent is what the dials show: states held by flightfeed come in over UDP and are read back from the pixels."""
import math
import os
import time

from cockpit import ROOT, Cockpit
from dials import Dial, panel_area, red, yellow
from glass import GREEN, Glass
from run_tests import smoke

DEMO = open(os.path.join(ROOT, 'tools/demo/config.ini')).read()
SIZE = (1280, 720)
PLACES = {'speed': (0.0, 0.0, 0.28, 0.5), 'compass': (0.0, 0.5, 0.28, 1.0), 'attitude': (0.28, 0.09, 0.72, 0.91),
          'altimeter': (0.72, 0.0, 1.0, 0.5), 'vertical': (0.72, 0.5, 1.0, 1.0)}
DIALS = {name: Dial(place, panel_area(SIZE)) for name, place in PLACES.items()}


def apart(a, b):
    return abs((a - b + 180) % 360 - 180)


def speed_angle(knots):
    """On the scale of the standard aircraft, from 30 to 200 knots."""
    return 320 * (knots - 30) / 170 + 20 if knots >= 30 else 0


def vertical_angle(feet_per_minute):
    turn = 180 * (1 - math.exp(-0.00046209812033333334 * abs(feet_per_minute)))
    return -90 + math.copysign(turn, feet_per_minute)


def hold(cockpit, protocol, **state):
    text = ','.join('%s=%s' % item for item in state.items())
    return cockpit.feed('--protocol', protocol, '--hold', '--state', text)


def dismiss_box(cockpit):
    """Answers the box that says that nothing shown is real, however long it takes to come and go."""
    glass = Glass(cockpit)
    cockpit.wait(lambda: glass.coloured(GREEN), 20, 'the box')

    def is_gone():
        cockpit.key('Return')
        time.sleep(0.4)
        return not glass.coloured(GREEN)
    cockpit.wait(is_gone, 20, 'the box to go')


def faults_of(pixels, build, pitch, roll, heading, altitude_ft, ias_kt, vs_fpm):
    """What the dials don't show as it is."""
    found = []

    def compare(what, seen, expected, reach):
        if seen is None or apart(seen, expected) >= reach:
            found.append((what, seen, expected))
    bank, nose = DIALS['attitude'].horizon(pixels) or (None, None)
    compare('bank', bank, roll, 1.5)
    compare('pitch', nose, pitch, 1.0)
    compare('card', DIALS['compass'].card(pixels, build), -heading, 1.5)
    compare('hundreds hand', DIALS['altimeter'].needle(pixels, 0.725), 0.36 * altitude_ft, 2.5)
    compare('speed', DIALS['speed'].needle(pixels, 0.40), speed_angle(ias_kt), 2.5)
    compare('vertical speed', DIALS['vertical'].needle(pixels, 0.725, blind=[(70, 110)]), vertical_angle(vs_fpm), 2.5)
    return found + [(name, 'red') for name, dial in DIALS.items() if dial.share(pixels, red) >= 0.02]


def check_state(cockpit, build, name, **state):
    """Waits until the dials show the state; the vertical speed is filtered with a half-life of two seconds."""
    deadline = time.monotonic() + 25
    while True:
        pixels = cockpit.look()
        faults = faults_of(pixels, build, **state)
        if not faults or time.monotonic() > deadline:
            break
        time.sleep(0.2)
    cockpit.save(pixels, name)
    assert not faults, faults


STATES = [dict(pitch=0, roll=0, heading=0, altitude_ft=2500, ias_kt=90, vs_fpm=0),
          dict(pitch=10, roll=20, heading=87, altitude_ft=12345, ias_kt=137, vs_fpm=800),
          dict(pitch=-8, roll=-35, heading=301, altitude_ft=640, ias_kt=63, vs_fpm=-1200)]


@smoke
def test_flightgear_states_are_shown(build):
    with Cockpit(build, DEMO, SIZE) as cockpit:
        cockpit.wait_for_window()
        dismiss_box(cockpit)
        for number, state in enumerate(STATES):
            feeder = hold(cockpit, 'flightgear', **state)
            check_state(cockpit, build, name='flightgear-state-%d' % number, **state)
            feeder.kill()
            feeder.wait()


def test_xplane_states_are_shown(build):
    config = DEMO.replace('FactoryIndex = 4\nFactoryName = FlightGear\\ Flight\\ Simulator',
                          'FactoryIndex = 5\nFactoryName = XPlane\\ Flight\\ Simulator')
    assert config != DEMO
    with Cockpit(build, config, SIZE) as cockpit:
        cockpit.wait_for_window()
        dismiss_box(cockpit)
        hold(cockpit, 'xplane', **STATES[1])
        check_state(cockpit, build, name='xplane-state', **STATES[1])


def test_silence_brings_red_crosses_in_time_and_data_takes_them_away(build):
    with Cockpit(build, DEMO, SIZE) as cockpit:
        cockpit.wait_for_window()
        dismiss_box(cockpit)

        def crossed():
            pixels = cockpit.look()
            return pixels, [name for name, dial in DIALS.items() if dial.share(pixels, red) > 0.02]
        cockpit.wait(lambda: len(crossed()[1]) == len(DIALS), 10, 'red crosses before any data')
        feeder = hold(cockpit, 'flightgear', **STATES[0])
        cockpit.wait(lambda: not crossed()[1], 10, 'the crosses to go')
        feeder.kill()
        feeder.wait()
        silent = time.time()
        time.sleep(0.6)
        assert not crossed()[1], 'a cross before a second of silence'
        cockpit.wait(lambda: len(crossed()[1]) == len(DIALS), 10, 'red crosses after the silence')
        took = time.time() - silent
        assert took < 2.5, took
        pixels, _ = crossed()
        cockpit.save(pixels, 'failed')
        # A failed dial is never a level horizon.
        assert DIALS['attitude'].horizon(pixels) is None


def test_portrait_page_shows_the_same_dials(build):
    with Cockpit(build, DEMO, (720, 1280)) as cockpit:
        cockpit.wait_for_window()
        dismiss_box(cockpit)
        hold(cockpit, 'flightgear', **STATES[1])
        time.sleep(3)
        pixels = cockpit.look()
        cockpit.save(pixels, 'portrait')
        bank, nose = Dial((0.0, 0.0, 1.0, 0.5), panel_area((720, 1280))).horizon(pixels)
        assert apart(bank, STATES[1]['roll']) < 1.5 and abs(nose - STATES[1]['pitch']) < 1.0, (bank, nose)


def follow(build, name, *arguments):
    """A flight in motion, slowed down so that a look takes no time in it: what the dials show is what was just sent."""
    with Cockpit(build, DEMO, SIZE) as cockpit:
        cockpit.wait_for_window()
        dismiss_box(cockpit)
        cockpit.feed('--print', '--speed', '0.2', *arguments)
        cockpit.wait(cockpit.truth, 10, 'the flight')
        banks = []
        for look in range(6):
            time.sleep(2)
            pixels, sent = cockpit.look(), cockpit.truth()
            bank, nose = DIALS['attitude'].horizon(pixels)
            assert apart(bank, sent['roll_deg']) < 3, (look, 'bank', bank, sent)
            assert abs(nose - sent['pitch_deg']) < 1.5, (look, 'pitch', nose, sent)
            assert apart(DIALS['compass'].card(pixels, build), -sent['heading_deg']) < 3, (look, 'heading', sent)
            assert apart(DIALS['altimeter'].needle(pixels, 0.725), 0.36 * sent['altitude_ft']) < 4, (look, 'altitude', sent)
            banks.append(sent['roll_deg'])
        cockpit.save(pixels, name)
        assert max(banks) - min(banks) > 3, 'the flight was to turn: %s' % banks


def test_the_scripted_flight_is_followed(build):
    follow(build, 'scripted-flight', '--from', '397')


def test_the_recorded_flight_is_followed(build):
    data = os.environ.get('SKYVANE_DATA')
    if not data:
        print('skipped: the recorded flight, since SKYVANE_DATA names no folder')
        return
    follow(build, 'recorded-flight', '--replay', os.path.join(data, 'flights/pyrenees-c172-25hz.csv.gz'), '--from', '600')
