"""Flights from elsewhere: another copy of the program forwards its flight, a log replays one; and one is recorded."""
import math
import os
import struct
import time

from cockpit import Cockpit
from dials import red
from glass import Glass
from run_tests import smoke
from test_dials import DEMO, DIALS, SIZE, check_state, dismiss_box, hold

SIMULATOR = 'FactoryIndex = 4\nFactoryName = FlightGear\\ Flight\\ Simulator'
STATE = dict(pitch=6, roll=-25, heading=123, altitude_ft=4321, ias_kt=104, vs_fpm=400)


def sender_config():
    assert 'ForwarderCount = 0' in DEMO
    return DEMO.replace('ForwarderCount = 0', 'ForwarderCount = 1') + (
        '\n[F0]\nForwarderFactory = 1\nForwarderFactoryName = UDP\nIpv6 = 0\nBroadcast = 0\n'
        'TargetAddress = 127.0.0.1\nTargetPort = 1991\n')


def receiver_config():
    assert SIMULATOR in DEMO
    return DEMO.replace(SIMULATOR, 'FactoryIndex = 2\nFactoryName = UDPSensor\nbindPort = 1991')


def crossed(cockpit):
    pixels = cockpit.look()
    return all(DIALS[name].share(pixels, red) > 0.02 for name in ('speed', 'altimeter', 'attitude'))


@smoke
def test_a_second_copy_shows_the_flight_of_the_first(build):
    with Cockpit(build, sender_config(), SIZE) as first, Cockpit(build, receiver_config(), SIZE) as second:
        first.wait_for_window()
        second.wait_for_window()
        second.wait(lambda: crossed(second), 20, 'crosses before anything came')
        dismiss_box(first)
        feeder = hold(first, 'flightgear', **STATE)
        check_state(second, build, name='forwarded-state', **STATE)
        # The sender's data ages and is forwarded no more: the second copy must not keep showing it.
        feeder.kill()
        feeder.wait()
        second.wait(lambda: crossed(second), 20, 'crosses when the flight ends')
        second.save(second.look(), 'forwarded-silence')
        feeder = hold(first, 'flightgear', **STATE)
        check_state(second, build, name='forwarded-again', **STATE)
        feeder.kill()
        feeder.wait()
        assert first.close() == 0 and second.close() == 0


def linked(own_sensor, heading_from, receives, sends, ipv6):
    """Two sensors, and a forwarder of all that they tell: the flight from one of them, the heading from the other."""
    flight, receiver = ('S1', 'S2') if heading_from == 2 else ('S2', 'S1')
    config = DEMO.replace('ForwarderCount = 0', 'ForwarderCount = 1').replace('SensorCount = 2', 'SensorCount = 3')
    config = config.replace('D2 = 1', 'D2 = 2').replace('[S1]\n' + SIMULATOR, '')
    return config + ('\n[%s]\n%s\n[%s]\nFactoryIndex = 2\nFactoryName = UDPSensor\nbindPort = %d\nipv6 = %d\n'
                     '[F0]\nForwarderFactory = 1\nForwarderFactoryName = UDP\nIpv6 = %d\nBroadcast = 0\n'
                     'TargetAddress = %s\nTargetPort = %d\n'
                     % (flight, own_sensor, receiver, receives, not ipv6, ipv6, '::1' if ipv6 else '127.0.0.1', sends))


def test_two_copies_forward_to_each_other(build):
    """The first sends its flight over IPv6 to the second, which sends its heading over IPv4 to the first."""
    xplane = 'FactoryIndex = 5\nFactoryName = XPlane\\ Flight\\ Simulator'
    first_config = linked(SIMULATOR, 2, 1992, 1991, True)
    second_config = linked(xplane, 1, 1991, 1992, False)
    with Cockpit(build, first_config, SIZE) as first, Cockpit(build, second_config, SIZE) as second:
        for copy in (first, second):
            copy.wait_for_window()
            dismiss_box(copy)
        hold(first, 'flightgear', **dict(STATE, heading=20, vs_fpm=0))
        hold(second, 'xplane', **dict(STATE, pitch=0, roll=0, altitude_ft=900, ias_kt=60, vs_fpm=0))
        for copy, name in ((first, 'linked-first'), (second, 'linked-second')):
            check_state(copy, build, name=name, **dict(STATE, vs_fpm=0))
        assert first.close() == 0 and second.close() == 0


def matrix(heading, pitch, roll):
    """Nine numbers of the attitude, from the aircraft (right, up, forward) to the world (east, up, north)."""
    h, p, r = map(math.radians, (heading, pitch, roll))
    forward = (math.cos(p) * math.sin(h), math.sin(p), math.cos(p) * math.cos(h))
    level_right = (math.cos(h), 0.0, -math.sin(h))
    level_up = (-math.sin(p) * math.sin(h), math.cos(p), -math.sin(p) * math.cos(h))
    right = [math.cos(r) * a - math.sin(r) * b for a, b in zip(level_right, level_up)]
    up = [math.sin(r) * a + math.cos(r) * b for a, b in zip(level_right, level_up)]
    return [number for row in zip(right, up, forward) for number in row]


def log_of(state, seconds):
    """A log without an index, as a crash leaves it."""
    bytes_ = struct.pack('<III21I', 1, 0, 21, *range(21))
    scalars = {2: state['heading'], 5: state['altitude_ft'] * 0.3048, 6: 100.0, 7: state['vs_fpm'] * 0.00508, 8: 0.0,
               9: state['ias_kt']}
    for t in range(1000, 1000 + 1000 * seconds, 36):
        forms = {1: struct.pack('<9diI', *matrix(state['heading'], state['pitch'], state['roll']), 0, t),
                 3: struct.pack('<3dI', 0.0, -9.81, 0.0, t), 4: struct.pack('<2dI', -28.5, 42.05, t)}
        forms.update({kind: struct.pack('<dI', value, t) for kind, value in scalars.items()})
        for kind, form in sorted(forms.items()):
            bytes_ += struct.pack('<III', t, kind, len(form)) + form
    return bytes_


def test_a_log_left_by_a_crash_is_replayed(build):
    config = DEMO.replace(SIMULATOR, 'FactoryIndex = 1\nFactoryName = LogFileSensor\nfileName = Flight.dat\nlevel = GOOD')

    def prepare(home):
        os.makedirs(os.path.join(home, '.Skyvane', 'Logs'), exist_ok=True)
        os.makedirs(os.path.join(home, 'Logs'), exist_ok=True)
        for folder in ('.Skyvane/Logs', 'Logs'):
            with open(os.path.join(home, folder, 'Flight.dat'), 'wb') as log:
                log.write(log_of(STATE, 60)[:-5])
    with Cockpit(build, config, SIZE, prepare=prepare) as cockpit:
        cockpit.wait_for_window()
        time.sleep(1)
        cockpit.save(cockpit.look(), 'replay-notice')
        dismiss_box(cockpit)
        check_state(cockpit, build, name='replayed-state', **STATE)
        assert cockpit.close() == 0


def test_a_flight_is_recorded_through_the_menu(build):
    with Cockpit(build, DEMO, SIZE) as cockpit:
        cockpit.wait_for_window()
        dismiss_box(cockpit)
        feeder = hold(cockpit, 'flightgear', **STATE)
        Glass(cockpit).open('Forwarding')
        time.sleep(1)
        for place in ((375, 572), (763, 323)):  # Add; Ok, above the keys on the screen
            cockpit.click(*place)
            time.sleep(1)
        cockpit.save(cockpit.look(), 'recording')
        path = cockpit.path('.Skyvane', 'Logs', 'Logfile.dat')
        cockpit.wait(lambda: os.path.exists(path) and os.path.getsize(path) > 20000, 20, 'the log to grow')
        assert open(path, 'rb').read(8) == struct.pack('<II', 1, 0), 'no index while it is recorded'
        feeder.kill()
        feeder.wait()
        assert cockpit.close() == 0
        log = open(path, 'rb').read()
    index = struct.unpack_from('<I', log, 4)[0]
    count = struct.unpack_from('<I', log, index)[0]
    assert 12 + 84 < index < len(log) and count > 200, (index, count, len(log))
    places = [struct.unpack_from('<I', log, index + 8 + 8 * i)[0] for i in range(count)]
    kinds = {struct.unpack_from('<I', log, place + 4)[0] for place in places}
    assert {1, 2, 4, 5, 9} <= kinds, kinds
