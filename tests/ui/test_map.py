"""The moving map: known places lie at their pixels in both orientations, and fingers move it."""
import math
import os
import time

import numpy

import scans
from cockpit import Cockpit
from glass import Glass
from run_tests import thorough
from test_dials import DEMO, SIZE, dismiss_box, hold

WIDTH, HEIGHT = 1280, 673  # of the panel
AIRCRAFT = dict(latitude=42.5, longitude=1.5)
MARK = dict(latitude=42.62, longitude=1.75)
HEADING = 60
RADIUS = 6371000.785
FILL = numpy.array([0x51, 0x89, 0x49])
OPTIONS = 'displays/map/documents/mapOptions%s.ini'


def config():
    head = DEMO.split('[P0]')[0].replace('PanelCount = 10', 'PanelCount = 1')
    return head + ('[P0]\nFactoryIndex = 2\nFactoryName = 2D-Map\nPage = 0\nPortrait = \nViewPortSX = 0\n'
                   'ViewPortSY = 0\nViewPortTX = 1\nViewPortTY = 1\nterrainEnable = 0\ndrawNose = 0\n'
                   'planeSize = 0.03\nmarks = 1\nmapElementSize = 0.03\n')


def add_mark(home):
    with open(os.path.join(home, 'customElements', 'e-1.ini'), 'w') as out:
        out.write('Type = MARK\nName = Tower\nLong = %(longitude)f\nLat = %(latitude)f\n' % MARK)


def metres_and_bearing(a, b):
    """On the great circle, by the formulas of navigators: another way than the map's own."""
    y1, y2 = math.radians(a['latitude']), math.radians(b['latitude'])
    dx = math.radians(b['longitude'] - a['longitude'])
    h = math.sin((y2 - y1) / 2) ** 2 + math.cos(y1) * math.cos(y2) * math.sin(dx / 2) ** 2
    bearing = math.atan2(math.sin(dx) * math.cos(y2),
                         math.cos(y1) * math.sin(y2) - math.sin(y1) * math.cos(y2) * math.cos(dx))
    return 2 * RADIUS * math.asin(math.sqrt(h)), bearing


def expected(centre, top=0.0, zoom=1.0, place=MARK):
    metres, bearing = metres_and_bearing(AIRCRAFT, place)
    pixels = metres * zoom * 720 / 83396.20525904474
    turned = bearing - math.radians(top)
    return centre[0] + pixels * math.sin(turned), centre[1] - pixels * math.cos(turned)


def find_mark(pixels, place, reach=30):
    """The foot of the flag on the plain ground around a place of the panel; None for nothing."""
    x, y = int(round(place[0])), int(round(place[1]))
    cut = pixels[max(0, y - reach):y + reach, max(0, x - reach):x + reach].astype(int)
    rows, columns = numpy.nonzero(numpy.abs(cut - FILL).max(axis=2) > 40)
    if len(rows) < 60:
        return None
    return max(0, x - reach) + columns.min() + 1.5, max(0, y - reach) + rows.max()


class Map:
    def __init__(self, cockpit):
        self.cockpit = cockpit
        self.glass = Glass(cockpit)

    def wait_for_mark(self, place, name):
        def is_there():
            self.pixels = self.cockpit.look()
            found = find_mark(self.pixels, place)
            return found and math.hypot(found[0] - place[0], found[1] - place[1]) < 5
        try:
            self.cockpit.wait(is_there, 20, 'the mark at %.0f, %.0f' % place)
        finally:
            self.cockpit.save(self.pixels, 'map-' + name)

    def press_button(self, row):
        gap, button = self.glass.button // 8, self.glass.button
        self.glass.click(WIDTH - gap - self.glass.button_width / 2,
                         HEIGHT - (7 - row) * (button + gap) + button / 2)

    def shift(self, start, stop):
        self.cockpit.drag(start, stop)


def start_map(cockpit):
    cockpit.wait_for_window()
    feeder = hold(cockpit, 'flightgear', heading=HEADING, altitude_ft=3000, **AIRCRAFT)
    dismiss_box(cockpit)
    return feeder, Map(cockpit)


def test_known_places_lie_at_their_pixels_and_fingers_move_the_map(build):
    with Cockpit(build, config(), SIZE, prepare=add_mark) as cockpit:
        _, chart = start_map(cockpit)
        middle = (WIDTH / 2, HEIGHT / 2)
        chart.wait_for_mark(expected(middle), 'north-up')
        chart.glass.click(35, HEIGHT - 35)  # the compass
        chart.wait_for_mark(expected((WIDTH / 2, 0.75 * HEIGHT), top=HEADING), 'track-up')
        chart.glass.click(35, HEIGHT - 35)
        chart.wait_for_mark(expected(middle), 'north-up-again')
        cockpit.key('plus')
        chart.wait_for_mark(expected(middle, zoom=1.5), 'zoomed')
        cockpit.key('minus')
        chart.glass.click(500, 450)  # a tap brings that place to the middle
        tapped = (middle[0] + middle[0] - 500, middle[1] + middle[1] - 450)
        chart.wait_for_mark(expected(tapped), 'tapped')
        chart.shift((600, 300), (400, 200))  # half as far as the finger
        dragged = (tapped[0] - 100, tapped[1] - 50)
        chart.wait_for_mark(expected(dragged), 'dragged')
        chart.press_button(3)  # "Center"
        chart.wait_for_mark(expected(middle), 'centred')
        cockpit.drag((1240, 300), (1240, 300 - HEIGHT / 8))  # the zoom bar
        chart.wait_for_mark(expected(middle, zoom=math.exp(2.0149030205422647 / 8)), 'zoom-bar')
        assert cockpit.close() == 0


def test_options_of_a_map_are_written_to_its_section(build):
    with Cockpit(build, config(), SIZE, prepare=add_mark) as cockpit:
        _, chart = start_map(cockpit)
        place = expected((WIDTH / 2, HEIGHT / 2))
        chart.wait_for_mark(place, 'before-options')
        chart.glass.click(WIDTH / 2, HEIGHT / 2 + 2)
        chart.press_button(5)  # "Options"
        document = OPTIONS % chart.glass.shape
        for name in ('cmarks', 'cheliports', 'boptOk'):
            chart.glass.press(document, name)
        cockpit.wait(lambda: find_mark(cockpit.look(), place) is None, 20, 'the mark to go')
        with open(cockpit.path('data', 'config.ini')) as text:
            section = text.read().split('[P0]')[1]
        assert 'marks = 0' in section and 'heliports = 1' in section and 'terrainEnable = 0' in section, section
        assert cockpit.close() == 0


@thorough
def test_scanned_charts_lie_where_they_belong(build):
    """The middle of each field of the chart that the panel shows, and its corners, north up and track up."""
    def fields(centre, top=0.0, zoom=1.0):
        for row in range(8):
            for column in range(8):
                middle = dict(latitude=scans.NORTH - (row + 0.5) * scans.FIELD,
                              longitude=scans.WEST + (column + 0.5) * scans.FIELD)
                for north, east in ((0, 0), (0.4, 0.4), (-0.4, 0.4), (0.4, -0.4), (-0.4, -0.4)):
                    place = dict(latitude=middle['latitude'] + north * scans.FIELD,
                                 longitude=middle['longitude'] + east * scans.FIELD)
                    x, y = expected(centre, top, zoom, place)
                    is_free = 60 < x < WIDTH - 120 and 5 < y < HEIGHT - 90 and math.hypot(x - centre[0], y - centre[1]) > 40
                    if is_free:
                        yield int(x), int(y), scans.colour_at(**place)

    with Cockpit(build, config().replace('marks = 1', 'bgType = vfr'), SIZE, prepare=scans.install(build)) as cockpit:
        _, chart = start_map(cockpit)

        def wait_for_fields(name, least, *view):
            def are_there():
                pixels = cockpit.look().astype(int)
                wanted = list(fields(*view))
                good = sum(numpy.abs(pixels[y, x] - colour).max() < 12 for x, y, colour in wanted)
                assert len(wanted) > least, len(wanted)
                return good == len(wanted)
            try:
                cockpit.wait(are_there, 10, 'the fields of the chart, ' + name)
            finally:
                cockpit.save(cockpit.look(), 'scan-' + name)

        middle = (WIDTH / 2, HEIGHT / 2)
        wait_for_fields('north-up', 100, middle)
        chart.glass.click(35, HEIGHT - 35)  # the compass
        wait_for_fields('track-up', 100, (WIDTH / 2, 0.75 * HEIGHT), HEADING)
        chart.glass.click(35, HEIGHT - 35)
        cockpit.key('plus')
        cockpit.key('plus')
        wait_for_fields('near', 30, middle, 0.0, 2.25)
        for _ in range(6):  # far away the tiles are those that the program computed itself
            cockpit.key('minus')
        wait_for_fields('far', 200, middle, 0.0, 2.25 / 1.5 ** 6)
        assert cockpit.close() == 0
