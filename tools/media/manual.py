"""Takes the manual's pictures from the running program, on a display of its own.

    manual.py BUILD [WORD...]      into media/doc/pictures; WORD: only scenes whose name holds it

Needs what the window tests need. Run it in a network of its own when another copy listens to the simulators' ports:
    unshare -rn bash -c 'ip link set lo up; tools/media/manual.py build/release'
"""
import os
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
sys.path.insert(0, os.path.join(ROOT, 'tests/ui'))

from PIL import Image  # noqa: E402

from cockpit import Cockpit, end  # noqa: E402
from dials import panel_area  # noqa: E402

OUT = os.path.join(ROOT, 'media/doc/pictures')
SIZE = (1280, 720)
WIDTH = 900  # of a picture of the whole screen
DEMO = open(os.path.join(ROOT, 'tools/demo/config.ini')).read()
STATE = 'pitch=5,roll=-20,heading=75,altitude_ft=3420,ias_kt=98,vs_fpm=450'

# Places of the factories' list, in the cells of a page of three by two; a strip gets a cell's upper third.
DIALS = [('attitude', 0), ('turn', 1), ('altimeter', 4), ('compass', 5), ('vertical', 8), ('speed', 9)]
STRIPS = ('value', 'lamp', 'slip', 'battery')
SMALL = [('value', 6), ('lamp', 7), ('slip', 10), ('load', 11), ('battery', 12)]


def place(index, name):
    column, row = index % 3, index // 3
    top = row / 2
    return column / 3, top, (column + 1) / 3, top + (0.16 if name in STRIPS else 0.5)


def page_config(panels):
    lines = [line for line in DEMO.split('[P0]')[0].split('\n') if not line.startswith('PanelCount')]
    text = 'PanelCount = %d\n' % len(panels) + '\n'.join(lines)
    for i, (name, factory) in enumerate(panels):
        left, top, right, bottom = place(i, name)
        text += ('\n[P%d]\nFactoryIndex = %d\nPage = 0\nPortrait = 0\nType = %s\nColor = 0,0,128\nSensor0 = -1\n'
                 'SensorCount = 1\nViewPortSX = %f\nViewPortSY = %f\nViewPortTX = %f\nViewPortTY = %f\n'
                 % (i, factory, 'GROUNDSPEED' if name == 'value' else 'DEFAULTSENSORS', left, top, right, bottom))
    return text


def click(cockpit, x, y):
    cockpit.click(SIZE[0] * x, SIZE[1] * y)
    time.sleep(0.6)


def start(cockpit):
    cockpit.wait_for_window()
    time.sleep(1.0)
    cockpit.key('Return')  # the simulator says that it isn't real
    time.sleep(0.8)


def keep(pixels, name, width=WIDTH):
    image = Image.fromarray(pixels)
    if image.width > width:
        image = image.resize((width, round(image.height * width / image.width)), Image.LANCZOS)
    # Keeps rare colours, as those of a dial's arcs, which the usual way gives up.
    image = image.quantize(256, method=Image.Quantize.FASTOCTREE, dither=Image.Dither.NONE)
    os.makedirs(OUT, exist_ok=True)
    image.save(os.path.join(OUT, name + '.png'), optimize=True)


def keep_cells(pixels, panels, only=None, suffix=''):
    width, height = panel_area(SIZE)
    for i, (name, _) in enumerate(panels):
        if only and name != only:
            continue
        left, top, right, bottom = place(i, name)
        cut = pixels[int(top * height):int(bottom * height), int(left * width):int(right * width)]
        margin = 0 if name in STRIPS else max(0, (cut.shape[1] - cut.shape[0]) // 2)
        keep(cut[:, margin:cut.shape[1] - margin], name + suffix, 300)


def flying(config):
    """A cockpit on a held state, once its dials have come to rest."""
    cockpit = Cockpit(sys.argv[1], config, SIZE)
    cockpit.__enter__()
    start(cockpit)
    cockpit.feeder = cockpit.feed('--hold', '--state', STATE)
    time.sleep(9)
    return cockpit


def scene_dials():
    for panels in (DIALS, SMALL):
        cockpit = flying(page_config(panels))
        try:
            keep_cells(cockpit.look(), panels)
            if panels is DIALS:
                end(cockpit.feeder)
                time.sleep(2.5)
                keep_cells(cockpit.look(), DIALS, 'altimeter', '-failed')
        finally:
            cockpit.__exit__()


def menu_row(index):
    """The middle of a row of the menu's column, counted from 0, before it is scrolled."""
    height = int(0.049410625 * (SIZE[0] * SIZE[1]) ** 0.5 + 0.5)
    return 0.12, (height // 8 + (index + 0.5) * (height * 5 // 4)) / SIZE[1]


# Their rows in the menu.
SCREENS = [('flightplan', 0), ('sensors', 1), ('panels', 2), ('aircraft', 3), ('general', 4), ('presets', 5),
           ('altimeter-settings', 8), ('simulator', 9), ('forwarding', 10)]


def scene_screens():
    cockpit = flying(DEMO)
    try:
        keep(cockpit.look(), 'cockpit')
        click(cockpit, 0.06, 0.968)
        keep(cockpit.look(), 'menu')
        click(cockpit, 0.06, 0.968)
    finally:
        cockpit.__exit__()
    for name, row in SCREENS:
        cockpit = flying(DEMO)
        try:
            click(cockpit, 0.06, 0.968)
            click(cockpit, *menu_row(row))
            time.sleep(0.5)
            keep(cockpit.look(), name)
            if name == 'sensors':
                click(cockpit, 0.46, 0.785)
                keep(cockpit.look(), 'sensors-advanced')
        finally:
            cockpit.__exit__()


def main():
    words = sys.argv[2:]
    for name, scene in sorted(globals().items()):
        if name.startswith('scene_') and (not words or any(word in name for word in words)):
            scene()


if __name__ == '__main__':
    main()
