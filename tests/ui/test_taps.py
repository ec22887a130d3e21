"""Taps on what stands on a page, in the running program: lamp and battery tell their details, the heading bug follows
the pointer, and the instruments over the manual give way."""
import time

import numpy

from cockpit import Cockpit
from dials import Dial, panel_area
from run_tests import thorough
from test_dials import DEMO, STATES, hold
from test_menu import Flight

SIZES = ((1280, 720), (720, 1280))
LAMP, BATTERY, COMPASS = (0.0, 0.0, 0.3, 0.4), (0.3, 0.0, 0.6, 0.3), (0.0, 0.4, 0.6, 1.0)
ORANGE = 0xff, 0x86, 0x00


def page(size):
    lines = [line for line in DEMO.split('[P0]')[0].split('\n') if not line.startswith('PanelCount')]
    config = 'PanelCount = 3\n' + '\n'.join(lines)
    for i, (factory, place) in enumerate(((7, LAMP), (12, BATTERY), (5, COMPASS))):
        config += ('\n[P%d]\nFactoryIndex = %d\nPage = 0\nPortrait = %d\nType = DEFAULTSENSORS\nViewPortSX = %f\n'
                   'ViewPortSY = %f\nViewPortTX = %f\nViewPortTY = %f' % ((i, factory, size[1] > size[0]) + place))
    return config


def middle(place, size):
    width, height = panel_area(size)
    return (place[0] + place[2]) / 2 * width, (place[1] + place[3]) / 2 * height


def details_come_and_go(flight, place, name):
    """A box stands in the middle of the screen until Return answers it."""
    cockpit, (width, height) = flight.cockpit, flight.cockpit.size
    look = lambda: cockpit.look()[height // 2 - 60:height // 2 + 60, width // 2 - 90:width // 2 + 90].astype(int)
    page_alone = look()
    is_page = lambda: abs(look() - page_alone).mean() < 2
    flight.click(*middle(place, cockpit.size))
    cockpit.wait(lambda: not is_page(), 20, 'the details')
    cockpit.save(cockpit.look(), 'tap-%s-%dx%d' % ((name,) + cockpit.size))
    cockpit.key('Return')
    cockpit.wait(is_page, 20, 'the details to go')


def bug_angle(cockpit, dial):
    """Where the orange bug stands, clockwise from up."""
    part = dial.cut(cockpit.look()).astype(int)
    rows, columns = numpy.nonzero(abs(part - numpy.array(ORANGE)).max(axis=2) < 40)
    assert len(rows) > 20, 'no bug to be seen'
    half = dial.edge // 2
    return numpy.degrees(numpy.arctan2(columns.mean() - half, half - rows.mean())) % 360


def the_bug_follows(flight):
    cockpit, dial = flight.cockpit, Dial(COMPASS, panel_area(flight.cockpit.size))
    reach = dial.radius / 2
    flight.click(dial.x + reach, dial.y)
    assert abs(bug_angle(cockpit, dial) - 90) < 4
    cockpit.drag((dial.x + reach, dial.y), (dial.x, dial.y + reach))
    time.sleep(0.3)
    assert abs(bug_angle(cockpit, dial) - 180) < 4
    cockpit.save(cockpit.look(), 'tap-bug-%dx%d' % cockpit.size)


def overlays_give_way(flight):
    cockpit, sixth = flight.cockpit, flight.width // 6
    large = flight.width - 15 - sixth // 2, flight.button + 15 + sixth // 2
    small = flight.width - flight.button * 7 // 8, flight.height - flight.button * 7 // 8
    flight.open('Manual')
    time.sleep(0.5)

    def blue_at(place):
        """The sky of an attitude indicator."""
        part = cockpit.look()[place[1] - 25:place[1] + 25, place[0] - 25:place[0] + 25].astype(int)
        return numpy.mean(part[:, :, 2] > part[:, :, 0] + 60) > 0.1
    for _ in range(2):
        cockpit.wait(lambda: blue_at(large) and not blue_at(small), 20, 'the instruments over the page')
        flight.click(*large)
        cockpit.wait(lambda: blue_at(small) and not blue_at(large), 20, 'the instruments in the corner')
        cockpit.save(cockpit.look(), 'tap-overlays-%dx%d' % cockpit.size)
        flight.click(*small)
    cockpit.key('XF86_Back')


@thorough
def test_what_stands_on_a_page_answers_taps(build):
    for size in SIZES:
        with Cockpit(build, page(size), size) as cockpit:
            flight = Flight(cockpit)
            hold(cockpit, 'flightgear', **dict(STATES[0], heading=0))
            time.sleep(1.5)
            details_come_and_go(flight, LAMP, 'lamp')
            details_come_and_go(flight, BATTERY, 'battery')
            the_bug_follows(flight)
            overlays_give_way(flight)
            assert cockpit.close() == 0
