"""The side view: a course over known ground and through a known airspace lies at its pixels, and buttons and fingers act."""
import math
import os
import re
import subprocess
import time

import numpy

from cockpit import Cockpit, end
from glass import Glass
from islands import charts, install
from run_tests import thorough
from test_dials import DEMO, SIZE, dismiss_box, hold
from test_flightplan import PLAN, SAVED, procedure

FOOT = 0.3048
START, AIM = (42.8526, -28.60), (42.8526, -28.00)
CRUISE, PEAK, PEAK_AT, SLOPE_END = 914.4, 600.0, -28.45, -28.30
PANEL = (0, 0, 1280, 504)  # three quarters of what the menu's bar leaves
FULL = (0, 0, 1280, 673)
POINTS = 1024
CEILING = 2000 * FOOT  # of NORTHCAPE CTR


def config():
    head = DEMO.split('[P0]')[0].replace('PanelCount = 10', 'PanelCount = 1')
    return head + ('[P0]\nFactoryIndex = 16\nFactoryName = SideViewPanel\nPage = 0\nPortrait = \nViewPortSX = 0\n'
                   'ViewPortSY = 0\nViewPortTX = 1\nViewPortTY = 0.75\nmaxDist = 10000000\n')


def ground(longitude):
    """A wall in the west that falls off to the east, the sea elsewhere."""
    if PEAK_AT <= longitude <= SLOPE_END:
        return PEAK * (SLOPE_END - longitude) / (SLOPE_END - PEAK_AT)
    return 0.0


def prepare(build):
    islands = install(build)

    def fill(home):
        islands(home)
        heights = numpy.array([ground(-29 + column / 1200) for column in range(1201)]).round().astype('>i2')
        tile = os.path.join(home, 'N42W029.hgt')
        numpy.tile(heights, (1201, 1)).tofile(tile)
        terrain = os.path.join(home, '.Skyvane', 'Terrain')
        subprocess.run([os.path.join(build, 'tools/chartmaker/chartmaker'), 'terrain', '--out', terrain, '--name', 'Wall',
                        tile], check=True, stdout=subprocess.DEVNULL)
        with open(os.path.join(home, 'data', 'fpl.ini'), 'w') as plans:
            plans.write('[East]\ncnt = 1\n' + procedure(0, 'Direct', AIM, 0, loctype=1, targetAltitude=CRUISE))
    return fill


def crossed(build):
    """Where the course enters and leaves the airspace, as longitudes, by the charts' source: half circles of four miles
    around two centres, and what lies between them."""
    with open(os.path.join(charts(build), 'sources', 'airspaces.txt')) as text:
        block = text.read().split('AN NORTHCAPE CTR')[1].split('\nAC ')[0]
    ends = []
    for degrees in re.findall(r'V X=(\S+) N (\S+) W', block):
        latitude, longitude = (sum(float(part) / 60 ** power for power, part in enumerate(value.split(':')))
                               for value in degrees)
        half = math.sqrt(4.0 ** 2 - ((START[0] - latitude) * 60) ** 2) / 60 / math.cos(math.radians(START[0]))
        ends += [-longitude - half, -longitude + half]
    return min(ends), max(ends)


class SideView(Glass):
    def __init__(self, cockpit):
        super().__init__(cockpit)
        cockpit.wait_for_window(120)
        dismiss_box(cockpit)
        self.area = PANEL
        self.top = max(1.5 * PEAK, CRUISE + 300.0)

    def x(self, longitude):
        share = (longitude - START[1]) / (AIM[1] - START[1])
        return self.area[0] + share * (POINTS - 1) / POINTS * (self.area[2] - self.area[0])

    def y(self, metres):
        return self.area[3] - metres * (self.area[3] - self.area[1]) / self.top

    def press_button(self, name):
        names = ['Airspaces', '-', 'Center', '+', '->', '<-->']
        widths, gap = [1.0, 0.5, 0.8, 0.5, 0.5, 0.62], self.button // 8
        right = self.area[2] - gap
        for width in reversed(widths[names.index(name) + 1:]):
            right -= int(width * self.button_width) + gap
        self.click(right - widths[names.index(name)] * self.button_width / 2, self.area[1] + gap + self.button / 2)

    def load_plan(self):
        self.open('FlightPlan')
        low = self.lower_area()
        self.press(PLAN, 'bsaved', low)
        time.sleep(0.5)
        left, top, right, _ = self.element_rect(SAVED, 'slist')
        self.click(left + (right - left) / 3, top + 0.5 * self.button * 5 // 4)
        self.press(SAVED, 'bload')
        self.menu()
        self.menu()

    def magenta_row(self, pixels, longitude):
        column = pixels[self.area[1]:self.area[3], int(self.x(longitude))].astype(int)
        rows = numpy.nonzero((column[:, 0] > 180) & (column[:, 2] > 180) & (column[:, 1] < 120))[0]
        return self.area[1] + rows.mean() + 0.5 if len(rows) else None

    def ground_row(self, pixels, longitude):
        """The uppermost row below the course that isn't blue."""
        x = int(self.x(longitude))
        column = pixels[int(self.y(CRUISE)) + 8:self.area[3] - 3, x].astype(int)
        rows = numpy.nonzero(column[:, 2] <= column[:, 0] + 8)[0]
        return int(self.y(CRUISE)) + 8 + rows[0] if len(rows) else None

    def faults(self, pixels):
        """What of course and ground isn't where it belongs."""
        found = []
        for longitude in (-28.36, -28.2, -28.1):  # beyond the aircraft's own way of five minutes
            row = self.magenta_row(pixels, longitude)
            if row is None or abs(row - self.y(CRUISE)) > 1.6:
                found.append(('course', longitude, row, self.y(CRUISE)))
        for longitude in (-28.445, -28.435, -28.425, -28.415):  # west of the airspace and its label
            row = self.ground_row(pixels, longitude)
            if row is None or abs(row - self.y(ground(longitude))) > 3.5:
                found.append(('ground', longitude, row, self.y(ground(longitude))))
        return found

    def wait_for_picture(self, name):
        def is_there():
            self.pixels = self.cockpit.look()
            return not self.faults(self.pixels)
        try:
            self.cockpit.wait(is_there, 10, 'course and ground')
        finally:
            self.cockpit.save(self.pixels, 'sideview-' + name)
            assert not self.faults(self.pixels), self.faults(self.pixels)


def blue(pixels, x, y):
    return pixels[int(y) - 2:int(y) + 3, int(x) - 2:int(x) + 3, 2].mean()


def is_band(pixels, inside, outside):
    """Whether the colour of an airspace of class D lies on one place but not on the other."""
    return blue(pixels, *inside) > blue(pixels, *outside) + 20


@thorough
def test_side_view_shows_the_ground_and_airspaces_ahead(build):
    with Cockpit(build, config(), SIZE, prepare=prepare(build)) as cockpit:
        view = SideView(cockpit)
        feeder = hold(cockpit, 'flightgear', latitude=START[0], longitude=START[1], altitude_ft=CRUISE / FOOT, heading=90,
                      ias_kt=100, gs_kt=100, vs_fpm=0)
        time.sleep(1)
        view.load_plan()
        view.wait_for_picture('ground')
        west, east = crossed(build)
        low = view.y(CEILING) + 8
        at_west = (view.x(west) + 8, low), (view.x(west) - 8, low)
        edges = [at_west, (at_west[0], (view.x(west) + 8, view.y(CEILING) - 8)),
                 ((view.x(east) - 8, view.y(200)), (view.x(east) + 8, view.y(200)))]
        assert not any(is_band(view.pixels, *edge) for edge in edges), 'airspaces are shown on request only'
        view.press_button('Airspaces')
        cockpit.wait(lambda: is_band(cockpit.look(), *at_west), 8, 'the airspace')
        view.wait_for_picture('airspaces')
        assert all(is_band(view.pixels, *edge) for edge in edges), [is_band(view.pixels, *edge) for edge in edges]
        view.press_button('+')
        view.top *= 1.5
        view.wait_for_picture('wider')
        view.press_button('-')
        view.press_button('-')
        view.top /= 2.25
        time.sleep(0.3)
        view.press_button('Center')
        view.top *= 1.5
        view.wait_for_picture('centred')
        view.press_button('<-->')
        view.area = FULL
        view.wait_for_picture('full')
        view.press_button('<-->')
        view.area = PANEL
        view.wait_for_picture('back')
        assert cockpit.look()[520:660].max() < 120, 'below the panel there is nothing'
        end(feeder)
        assert cockpit.close() == 0
