"""The memory of the whole program over a long flight: it fills its caches, then it stays as it is.

A recorded flight over the islands, with its plan and its traffic, is replayed many times as fast as it was flown, again
and again, while the pages turn and the map is zoomed. By hand, for an hour of flight: SKYVANE_FLIGHT_MINUTES=60 tests/ui/run.sh build/release over_a_long_flight"""
import os
import shutil
import subprocess
import time

import numpy

from cockpit import ROOT, Cockpit
from glass import Glass
from run_tests import thorough
from test_dials import SIZE

SPEED = 40
MINUTES = float(os.environ.get('SKYVANE_FLIGHT_MINUTES', 12))
SETTLED = 1 / 3  # of the flight, after which nothing more may be gathered
TURN_SECONDS = 0.8
GROWTH_MEGABYTES = 12.0


def resident(process):
    """Megabytes that a process has in memory."""
    with open('/proc/%d/status' % process.pid) as lines:
        return next(int(line.split()[1]) / 1024 for line in lines if line.startswith('VmRSS'))


def fly_demo(build):
    """For `prepare`: the standard pages over the islands, with their terrain."""
    def prepare(home):
        shutil.rmtree(home)
        subprocess.run([os.path.join(ROOT, 'tools/demo/prepare-flight.sh'), os.path.abspath(build), home], check=True,
                       stdout=subprocess.DEVNULL)
    return prepare


def is_flying(cockpit):
    """What is drawn goes on: a program that isn't fed proves nothing. Pages of texts are passed over."""
    before = cockpit.look().astype(int)
    time.sleep(1.0)
    if numpy.mean(numpy.abs(cockpit.look().astype(int) - before).max(axis=2) > 30) > 0.02:
        return True
    cockpit.key('Next')
    return False


def replay_fast(glass):
    """Sets loop and speed in the menu, and shuts it by a touch beside it."""
    glass.menu()
    glass.click(*glass.playback_place('Loop'))
    glass.write(glass.playback_place('speed'), str(SPEED), glass.row_place(0))
    glass.cockpit.save(glass.cockpit.look(), 'long-flight-menu')
    glass.click(0.7 * glass.width, 0.5 * glass.height)


@thorough
def test_memory_stays_flat_over_a_long_flight(build):
    with Cockpit(build, '', SIZE, prepare=fly_demo(build)) as cockpit:
        cockpit.wait_for_window(120)
        time.sleep(1.0)
        cockpit.key('Return')  # the box that says that nothing is real; green ground can be taken for its button
        replay_fast(Glass(cockpit, playback=True))
        cockpit.wait(lambda: is_flying(cockpit), 20, 'the flight')
        begun, turns, sizes = time.time(), 0, []
        while time.time() - begun < MINUTES * 60 / SPEED:
            cockpit.key('Next')
            cockpit.key('plus' if turns % 12 < 6 else 'minus')
            time.sleep(TURN_SECONDS)
            turns += 1
            assert cockpit.alive(), cockpit.output()[-600:]
            sizes.append(((time.time() - begun) * SPEED / 60, resident(cockpit.program)))
        cockpit.wait(lambda: is_flying(cockpit), 20, 'the flight at its end')
        cockpit.save(cockpit.look(), 'after-a-long-flight')
        settled = [size for minute, size in sizes if minute >= SETTLED * MINUTES]
        third = max(1, len(settled) // 3)
        early, late = (sum(part) / third for part in (settled[:third], settled[-third:]))
        print('%.0f minutes of flight, %d pages turned: %.0f MB at first, %.1f MB from minute %.0f, %.1f MB at the end'
              % (MINUTES, turns, sizes[0][1], early, SETTLED * MINUTES, late))
        if 'SKYVANE_MEMORY_LOG' in os.environ:
            with open(os.environ['SKYVANE_MEMORY_LOG'], 'w') as out:
                out.writelines('%.2f %.1f\n' % pair for pair in sizes)
        assert late - early < GROWTH_MEGABYTES, sizes
        assert cockpit.close() == 0
