"""The synthetic view in the real program: its horizon lies where the flight says, and a tap brings its options."""
import math
import os
import time

from cockpit import ROOT, Cockpit, end
from dials import panel_area
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
