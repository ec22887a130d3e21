"""An ADS-B receiver in flight: the dials follow it, its silence crosses them out, and its attitude can be levelled."""
import os
import random
import socket
import time

from cockpit import Cockpit
from dials import Dial, red
from glass import Glass
from run_tests import smoke
from test_dials import DEMO, DIALS, SIZE, STATES, apart, check_state, hold

SIMULATOR = 'FactoryIndex = 4\nFactoryName = FlightGear\\ Flight\\ Simulator'
STATE = STATES[1]
HORIZON = Dial((0.59, 0.13, 0.98, 0.84), SIZE)


def receiver(flavor='Generic'):
    assert SIMULATOR in DEMO
    return DEMO.replace(SIMULATOR, 'FactoryIndex = 6\nFactoryName = GDL90\nport = 4000\nflavor = ' + flavor)


def crossed(cockpit):
    pixels = cockpit.look()
    return [name for name, dial in DIALS.items() if dial.share(pixels, red) > 0.02]


def click(cockpit, x, y):
    """A place as shares of the screen."""
    cockpit.click(SIZE[0] * x, SIZE[1] * y)
    time.sleep(0.5)


@smoke
def test_the_dials_follow_a_receiver_and_fail_with_it(build):
    with Cockpit(build, receiver(), SIZE) as cockpit:
        cockpit.wait_for_window()
        cockpit.wait(lambda: len(crossed(cockpit)) == len(DIALS), 20, 'crosses before anything came')
        feeder = hold(cockpit, 'gdl90', **STATE)
        check_state(cockpit, build, name='gdl90-state', **STATE)
        feeder.kill()
        feeder.wait()
        silent = time.time()
        cockpit.wait(lambda: len(crossed(cockpit)) == len(DIALS), 10, 'crosses when it stops')
        assert time.time() - silent < 4, time.time() - silent
        cockpit.save(cockpit.look(), 'gdl90-silence')
        hold(cockpit, 'gdl90', **STATE)
        check_state(cockpit, build, name='gdl90-again', **STATE)
        assert cockpit.close() == 0


def resident_mb(cockpit):
    with open('/proc/%d/statm' % cockpit.program.pid) as statm:
        return int(statm.read().split()[1]) * os.sysconf('SC_PAGESIZE') / 1e6


def test_a_flood_leaves_the_display_alive(build):
    with Cockpit(build, receiver(), SIZE) as cockpit:
        cockpit.wait_for_window()
        feeder = hold(cockpit, 'gdl90', **STATE)
        cockpit.wait(lambda: not crossed(cockpit), 20, 'the device')
        before = resident_mb(cockpit)
        noise = random.Random(3)
        garbage = [bytes(noise.randrange(256) for _ in range(1400)) for _ in range(50)]
        with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as flood:
            end = time.time() + 3
            while time.time() < end:
                for datagram in garbage:
                    flood.sendto(datagram, ('127.0.0.1', 4000))
            grown = resident_mb(cockpit) - before
        assert grown < 30, 'the flood took %.0f MB' % grown
        feeder.kill()
        feeder.wait()
        cockpit.wait(lambda: len(crossed(cockpit)) == len(DIALS), 10, 'crosses: the display lives')
        hold(cockpit, 'gdl90', **STATE)
        cockpit.wait(lambda: not crossed(cockpit), 10, 'the device again')
        assert cockpit.close() == 0


def test_the_horizon_of_the_calibration_window_moves_at_once(build):
    with Cockpit(build, receiver(), SIZE) as cockpit:
        cockpit.wait_for_window()
        hold(cockpit, 'gdl90', **STATE)
        cockpit.wait(lambda: not crossed(cockpit), 20, 'the device')

        def banked(dial, degrees):
            pixels = cockpit.look()
            cockpit.save(pixels, 'gdl90-calibration')
            seen = dial.horizon(pixels)
            return seen and apart(seen[0], degrees) < 1.5
        Glass(cockpit).open('Calib.')
        cockpit.wait(lambda: banked(HORIZON, STATE['roll']), 10, 'the horizon')
        for _ in range(5):
            click(cockpit, 0.53, 0.195)  # roll +
        cockpit.wait(lambda: banked(HORIZON, STATE['roll'] - 5), 10, 'the bank to change')
        click(cockpit, 0.13, 0.925)  # Cancel
        cockpit.wait(lambda: banked(DIALS['attitude'], STATE['roll']), 10, 'what was before')
        check_state(cockpit, build, name='gdl90-cancelled', **STATE)
        assert cockpit.close() == 0
