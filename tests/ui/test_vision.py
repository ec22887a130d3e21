"""The synthetic view in the real program: its horizon lies where the flight says, and a tap brings its options."""
import math
import os
import subprocess
import time
import zipfile

import numpy

from cockpit import ROOT, Cockpit, end
from dials import panel_area
from run_tests import thorough
from test_dials import dismiss_box, hold

DEMO = open(os.path.join(ROOT, 'tools/demo/config.ini')).read()
SIZE = (1280, 720)


def config():
    lines = [line for line in DEMO.split('[P0]')[0].split('\n') if not line.startswith('PanelCount')]
    return ('PanelCount = 1\n' + '\n'.join(lines) + '\n[P0]\nFactoryIndex = 3\nPage = 0\nPortrait = 0\nViewPortSX = 0\n'
            'ViewPortSY = 0\nViewPortTX = 1\nViewPortTY = 1\nrenderSpeedBar = 0\nrenderAltBar = 0\nrenderVSpeedBar = 0\n'
            'renderTrackBar = 0\nrenderBank = 0\n')


def horizon_row(pixels, x, top, bottom):
    """The first row of brown ground in a column; there is no terrain here."""
    column = pixels[top:bottom, x].astype(int)
    rows = (column[:, 0] > column[:, 2] + 12).nonzero()[0]
    return top + int(rows[0]) if len(rows) else None


def expected_row(x, pitch, bank, area):
    left, top, right, bottom = area
    width, height = right - left, bottom - top
    focal = min(width, height) / 2 / math.tan(math.radians(22.5))
    lean = math.radians(bank)
    # Straight up of the aircraft the horizon is pitch away; the line leans the other way.
    foot = focal * math.tan(math.radians(pitch))
    dx = x + 0.5 - (left + right) / 2
    return (top + bottom) / 2 + foot / math.cos(lean) - dx * math.tan(lean)


def test_synthetic_view_follows_the_flight_and_keeps_its_options(build):
    with Cockpit(build, config(), SIZE) as cockpit:
        cockpit.wait_for_window()
        dismiss_box(cockpit)
        area = (0, 0) + panel_area(SIZE)
        for pitch, bank in ((6, 0), (-4, 20)):
            feeder = hold(cockpit, 'flightgear', pitch=pitch, roll=bank, heading=120, altitude_ft=5000, ias_kt=100,
                          vs_fpm=0)

            def is_there():
                pixels = cockpit.look()
                rows = [(horizon_row(pixels, x, area[1], area[3]), expected_row(x, pitch, bank, area))
                        for x in (200, 1220)]
                return all(row is not None and abs(row - expected) < 6 for row, expected in rows)
            cockpit.wait(is_there, 25, 'the horizon of %d, %d' % (pitch, bank))
            cockpit.save(cockpit.look(), 'vision_%d_%d' % (pitch, bank))
            end(feeder)

        before = cockpit.look()
        cockpit.click(300, 200)
        lower = (slice(area[3] - 50, area[3] - 14), slice(560, 720))  # where "Options" comes
        cockpit.wait(lambda: (cockpit.look()[lower] != before[lower]).mean() > 0.4, 10, 'the buttons')
        height = area[3] - 30
        cockpit.click(640, height)  # "Options", in the middle
        time.sleep(1.0)
        cockpit.save(cockpit.look(), 'vision_options')
        stored = cockpit.path('data/config.ini')
        assert 'heliports = 1' not in open(stored).read()
        cockpit.click(60, 720 * 0.13 + 720 * 0.14 * 3.44)  # "Heliports"
        time.sleep(0.5)
        cockpit.click(1280 * 0.82, 720 * 0.92)  # "Ok"
        cockpit.wait(lambda: 'heliports = 1' in open(stored).read(), 10, 'the options to be stored')
        assert cockpit.close() == 0


class Heights:
    """Real elevation tiles, the slow and obvious way."""

    def __init__(self, folder, names):
        self.tiles = {}
        for name, corner in names.items():
            with zipfile.ZipFile(os.path.join(folder, name)) as packed:
                raw = packed.read(packed.namelist()[0])
            self.tiles[corner] = numpy.frombuffer(raw, '>i2').reshape(1201, 1201).astype(float)

    def at(self, longitude, latitude):
        corner = math.floor(longitude), math.floor(latitude)
        if corner not in self.tiles:
            return None
        x, y = (longitude - corner[0]) * 1200, (corner[1] + 1 - latitude) * 1200
        column, row = min(int(x), 1199), min(int(y), 1199)
        square = self.tiles[corner][row:row + 2, column:column + 2]
        if square.min() < -1000:
            return None
        fx, fy = x - column, y - row
        return ((square[0, 0] * (1 - fx) + square[0, 1] * fx) * (1 - fy) +
                (square[1, 0] * (1 - fx) + square[1, 1] * fx) * fy)


def ridge_row(heights, place, altitude, heading, x, focal, area):
    """Where the highest ground along the direction of a column stands, and how far off that is, in metres."""
    metres = 111194.940345393
    aside = math.atan((x + 0.5 - (area[0] + area[2]) / 2) / focal)
    azimuth = math.radians(heading) + aside
    best, far = -9.0, 0
    for distance in range(100, 45000, 50):
        height = heights.at(place[0] + distance * math.sin(azimuth) / (metres * math.cos(math.radians(place[1]))),
                            place[1] + distance * math.cos(azimuth) / metres)
        if height is not None and (height - altitude) / distance / math.cos(aside) > best:
            best, far = (height - altitude) / distance / math.cos(aside), distance
    return (area[1] + area[3]) / 2 - focal * best, far


@thorough
def test_ridges_stand_where_the_heights_say(build):
    folder = os.environ.get('SKYVANE_DATA')
    if not folder:
        print('skipped: ridge lines over real terrain, since SKYVANE_DATA names no folder')
        return
    sources = {'N42E001.hgt.zip': (1, 42), 'N41E001.hgt.zip': (1, 41)}
    terrain = os.path.join(folder, 'terrain')

    def prepare(home):
        subprocess.run([os.path.join(build, 'tools/chartmaker/chartmaker'), 'terrain', '--out',
                        os.path.join(home, '.Skyvane/Terrain'), '--name', 'Pyrenees'] +
                       [os.path.join(terrain, name) for name in sources], check=True, stdout=subprocess.DEVNULL)
    place, altitude, heading = (1.50, 42.36), 1500.0, 20.0
    with Cockpit(build, config(), SIZE, prepare=prepare) as cockpit:
        cockpit.wait_for_window(240)  # the coarser levels are computed first
        dismiss_box(cockpit)
        hold(cockpit, 'flightgear', pitch=0, roll=0, heading=heading, altitude_ft=altitude / 0.3048, ias_kt=100,
             longitude=place[0], latitude=place[1], vs_fpm=0)
        area = (0, 0) + panel_area(SIZE)
        focal = area[3] / 2 / math.tan(math.radians(22.5))
        time.sleep(10)
        pixels = cockpit.look()
        cockpit.save(pixels, 'vision_ridges')
    heights = Heights(terrain, sources)
    differences = []
    for x in list(range(200, 500, 25)) + list(range(780, 1240, 25)):
        expected, far = ridge_row(heights, place, altitude, heading, x, focal, area)
        column = pixels[:area[3], x].astype(int)
        seen = int(numpy.argmax(column[:, 2] <= column[:, 0] + 8))
        differences.append(abs(seen - expected))
        # Within the near mesh the ground is drawn finely, beyond it about as coarsely as the wide mesh is.
        assert differences[-1] < (6 if far < 9000 else 16), (x, expected, seen, far)
    assert sum(differences) / len(differences) < 4, differences
