"""The bars of the synthetic view in the real program: they show what the simulator sends, cross it out when it falls silent,
and the QNH box opens the altimeter's settings."""
import os

from cockpit import ROOT, Cockpit, end
from dials import panel_area
from test_dials import dismiss_box, hold

DEMO = open(os.path.join(ROOT, 'tools/demo/config.ini')).read()
SIZE = (1280, 720)
BAR = SIZE[0] / 7
RANGE = 40  # knots over the whole tape
FLAPS = 100  # the end of the standard aircraft's white strip


def config():
    lines = [line for line in DEMO.split('[P0]')[0].split('\n') if not line.startswith('PanelCount')]
    return ('PanelCount = 1\n' + '\n'.join(lines) + '\n[P0]\nFactoryIndex = 3\nPage = 0\nPortrait = 0\nViewPortSX = 0\n'
            'ViewPortSY = 0\nViewPortTX = 1\nViewPortTY = 1\nspeedRange = %d\n' % RANGE)


def tape_length(height):
    """What the title's and the foot's rows leave of a panel."""
    return height - 2 * (round(3.4 * 0.085 * BAR) + 2)


def white_top(pixels, height):
    """The first row of the white strip, in its column at the speed tape's inner edge."""
    column = pixels[height // 2 - 200:height // 2 + 250, round(2 * BAR - 12)].astype(int)
    rows = (column.min(axis=1) > 225).nonzero()[0]
    return height // 2 - 200 + int(rows[0]) if len(rows) else None


def red_share(pixels, left, top, right, bottom):
    part = pixels[top:bottom, round(left):round(right)].astype(int)
    return float(((part[:, :, 0] > 190) & (part[:, :, 1] < 70) & (part[:, :, 2] < 80)).mean())


def test_bars_follow_the_flight_and_cross_out_what_falls_silent(build):
    with Cockpit(build, config(), SIZE) as cockpit:
        cockpit.wait_for_window()
        dismiss_box(cockpit)
        height = panel_area(SIZE)[1]
        for knots in (112, 98):
            feeder = hold(cockpit, 'flightgear', pitch=2, roll=0, heading=120, altitude_ft=5000, ias_kt=knots, vs_fpm=0)
            expected = height / 2 - (FLAPS - knots) / RANGE * tape_length(height)

            def is_there():
                row = white_top(cockpit.look(), height)
                return row is not None and abs(row - expected) < 5
            cockpit.wait(is_there, 25, 'the white strip of %d knots at row %d' % (knots, expected))
            cockpit.save(cockpit.look(), 'bars-%d' % knots)
            if knots == 98:
                break
            end(feeder)

        tapes = ((BAR, 2 * BAR), (SIZE[0] - 2 * BAR, SIZE[0] - BAR), (SIZE[0] - BAR, SIZE[0]))

        def crossed():
            pixels = cockpit.look()
            return [red_share(pixels, left, 100, right, height - 100) > 0.05 for left, right in tapes]
        assert not any(crossed())
        end(feeder)
        cockpit.wait(lambda: all(crossed()), 10, 'the crosses')
        cockpit.save(cockpit.look(), 'bars-crossed')
        assert red_share(cockpit.look(), 300, 280, 980, 640) > 0.05

        cockpit.click(SIZE[0] - BAR / 2, height - 40)  # "QNH /"
        # Its window covers the middle, where the attitude's cross stands.
        cockpit.wait(lambda: red_share(cockpit.look(), 300, 280, 980, 640) < 0.02, 10, "the altimeter's settings")
        cockpit.save(cockpit.look(), 'bars-qnh')
        assert cockpit.close() == 0
