"""The glide computers: a held glide towards an airport of the fictional islands is compared with a pilot's own sums."""
import os
import time

import numpy

from cockpit import Cockpit, end
from dials import red
from figures import FigureReader
from glass import GREEN
from islands import install
from navigator import distance
from run_tests import thorough
from test_dials import DEMO, hold
from test_flightplan import ELEVATION, FIELD, FOOT, KNOT, PLAN, SANDA, Plan, procedure

SIZE = (1280, 720)
PLACE = (42.62, -28.26)
GLIDE = dict(latitude=PLACE[0], longitude=PLACE[1], altitude_ft=9000, heading=0, ias_kt=80, vs_fpm=-900)
RATIO = 9.35  # of the standard aircraft
ROWS, COLUMNS, TABLE = 9, 4, 5
MULTIPLIERS = (1.0, 1 / 0.75, 2.0, 4.0)
INFORMATION, TABLE_PANEL = 17, 14


def pages(size, panels):
    """A configuration with one panel a page: (factory, further lines of its section)."""
    lines = [line for line in DEMO.split('[P0]')[0].split('\n') if not line.startswith('PanelCount')]
    text = 'PanelCount = %d\n' % len(panels) + '\n'.join(lines)
    for page, (factory, extra) in enumerate(panels):
        text += ('\n[P%d]\nFactoryIndex = %d\nPage = %d\nPortrait = %d\nSensor0 = -1\nSensorCount = 1\nViewPortSX = 0\n'
                 'ViewPortSY = 0\nViewPortTX = 1\nViewPortTY = 1\n%s' % (page, factory, page, size[1] > size[0], extra))
    return text


def prepare(build):
    """A home with the islands and a plan that leads to a fix, then to an airport."""
    charts = install(build)

    def fill(home):
        charts(home)
        with open(os.path.join(home, 'data', 'fpl.ini'), 'w') as plans:
            plans.write('[Field]\ncnt = 2\n' + procedure(0, 'Direct', SANDA, 3) + procedure(1, 'Direct', FIELD, 7))
    return fill


def table_ink(pixels, place):
    """The texts of the table are full of red, its grounds have none."""
    left, top, right, bottom = map(int, place)
    return pixels[top + 4:bottom - 4, left + 4:right - 4, 0] / 255.0


class Glider(Plan):
    """The information on the first page, the table on the second."""

    def load_plan(self):
        self.load(0, 2)
        self.press(PLAN, 'bclose', self.low)

    def __init__(self, cockpit):
        super().__init__(cockpit)
        self.figures = FigureReader(table_ink)

    def keep(self, name):
        time.sleep(0.4)
        self.cockpit.save(self.cockpit.look(), '%s-%dx%d' % (name, self.width, self.height))

    def next_page(self):
        self.cockpit.key('Next')
        time.sleep(0.6)

    def cell(self, row, column):
        height = self.height - self.button
        return (column * self.width / COLUMNS, row * height / ROWS, (column + 1) * self.width / COLUMNS,
                (row + 1) * height / ROWS)

    def learn(self):
        for altitude in (1234, 5678, 9000):
            feeder = hold(self.cockpit, 'flightgear', **dict(GLIDE, altitude_ft=altitude))
            time.sleep(1.2)
            self.figures.learn(self.cockpit.look(), self.cell(0, 3), '%dfeet' % altitude)
            end(feeder)
        # So that no average remembers these.
        self.cockpit.wait(lambda: self.cut_off(1) > 0.03, 5, 'the silence')

    def figure(self, row, column):
        return self.figures.read(self.cockpit.look(), self.cell(row, column))

    def table(self):
        return [[self.figure(TABLE + row, column) for row in range(len(MULTIPLIERS))] for column in (1, 2, 3)]

    def cut_off(self, column):
        """The share of a column that is the red of a cross."""
        left, top, right, bottom = map(int, self.cell(TABLE, column)[:2] + self.cell(ROWS - 1, column)[2:])
        part = self.cockpit.look()[top:bottom, left:right].astype(int)
        return float(numpy.mean(red(part[:, :, 0], part[:, :, 1], part[:, :, 2])))


def arrivals(gradient):
    """Feet above the airport for each row of the table."""
    metres = distance(PLACE, FIELD)
    return [(GLIDE['altitude_ft'] * FOOT - gradient * m * metres - ELEVATION * FOOT) / FOOT for m in MULTIPLIERS]


def near(shown, expected, reach=15):
    return all(text.lstrip('-').isdigit() and abs(int(text) - feet) <= reach for text, feet in zip(shown, expected))


def are_no_numbers(shown):
    return not any(text.lstrip('-').isdigit() for text in shown)


def check_table(glider):
    """The ground speed is what is sent: its ratio is read back, which tells how the rest hangs together."""
    cockpit = glider.cockpit
    best = arrivals(1 / RATIO)
    cockpit.wait(lambda: near(glider.table()[2], best), 8, 'the best glide %s' % best)
    current, average, _ = glider.table()
    assert near(current, [int(text) for text in average], 30), ('a held glide is its own average', current, average)
    assert int(current[0]) > int(current[1]) > int(current[2]) > int(current[3])
    # 900 feet a minute at a ground speed of some 80 to 100 knots.
    loss = GLIDE['altitude_ft'] - ELEVATION - int(current[0])
    knots = 900 / 60 * FOOT / (loss * FOOT / distance(PLACE, FIELD)) / KNOT
    assert 75 < knots < 110, knots
    assert abs((GLIDE['altitude_ft'] - ELEVATION - int(current[3])) - 4 * loss) < 30
    assert glider.cut_off(1) < 0.002


def climb_has_no_arrival(glider):
    feeder = hold(glider.cockpit, 'flightgear', **dict(GLIDE, vs_fpm=500))
    glider.cockpit.wait(lambda: are_no_numbers(glider.table()[0]), 5, 'no arrival in a climb')
    assert near(glider.table()[2], arrivals(1 / RATIO)), 'the best glide stays'
    glider.keep('glider-climb')
    end(feeder)


def silence_leaves_no_number(glider):
    glider.cockpit.wait(lambda: min(glider.cut_off(column) for column in (1, 2, 3)) > 0.03, 5, 'crosses')
    assert all(are_no_numbers(column) for column in glider.table())
    glider.keep('glider-failed')


@thorough
def test_a_glide_is_reckoned_to_the_airport(build):
    with Cockpit(build, pages(SIZE, [(INFORMATION, ''), (TABLE_PANEL, '')]), SIZE, prepare=prepare(build)) as cockpit:
        glider = Glider(cockpit)
        glider.next_page()
        glider.learn()
        feeder = hold(cockpit, 'flightgear', **GLIDE)
        cockpit.wait(lambda: glider.cut_off(1) < 0.002, 5, 'the crosses to go')
        assert all(are_no_numbers(column) for column in glider.table()), 'no destination'
        glider.load_plan()
        assert all(are_no_numbers(column) for column in glider.table()), 'a fix has no elevation'
        glider.next_procedure()
        check_table(glider)
        glider.keep('glider')
        end(feeder)
        climb_has_no_arrival(glider)
        silence_leaves_no_number(glider)
        assert cockpit.close() == 0


def label_ink(glider):
    """Where the label with the ratio to reckon with stands."""
    pixels = glider.cockpit.look()
    return pixels[int(0.05 * glider.height):int(0.33 * glider.height), :, 1].astype(int)


@thorough
def test_the_ratio_to_reckon_with_is_entered(build):
    for size in (SIZE, (800, 1280)):
        with Cockpit(build, pages(size, [(INFORMATION, '')]), size, prepare=prepare(build)) as cockpit:
            glider = Glider(cockpit)
            hold(cockpit, 'flightgear', **GLIDE)
            time.sleep(1)
            glider.load_plan()
            glider.keep('glideinfo')
            own = label_ink(glider)
            ask_for(glider, '40')
            cockpit.wait(lambda: abs(label_ink(glider) - own).mean() > 0.5, 5, 'the new ratio')
            glider.keep('glideinfo-own')
            ask_for(glider, '0')
            cockpit.wait(lambda: abs(label_ink(glider) - own).mean() < 0.1, 5, "the aircraft's ratio")
            assert cockpit.close() == 0


def ask_for(glider, ratio):
    glider.click(0.3 * glider.width, 0.45 * glider.height)
    glider.cockpit.wait(lambda: glider.coloured(GREEN), 5, 'the question')
    glider.keep('glideinfo-question')
    glider.cockpit.key('End')
    for _ in range(8):
        glider.cockpit.key('BackSpace', pause=0.01)
    for letter in ratio:
        glider.cockpit.key(letter)
    glider.cockpit.key('Return')
    glider.cockpit.wait(lambda: not glider.coloured(GREEN), 5, 'the question to go')
