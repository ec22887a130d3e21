"""Takes the manual's pictures from the running program, on a display of its own.

    manual.py BUILD [WORD...]      into media/doc/pictures; WORD: only scenes whose name holds it

Needs what the window tests need. Run it in a network of its own when another copy listens to the simulators' ports:
    unshare -rn bash -c 'ip link set lo up; tools/media/manual.py build/release'
"""
import os
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
sys.path.insert(0, os.path.join(ROOT, 'tests/ui'))

from PIL import Image  # noqa: E402

from cockpit import Cockpit, end  # noqa: E402
from dials import panel_area  # noqa: E402
from glass import Glass  # noqa: E402
from islands import install  # noqa: E402
from test_checklists import CHECKLISTS, Lists  # noqa: E402
from test_flightplan import PLAN, START, WHERE, Plan, prepare, procedure  # noqa: E402
from test_glide import GLIDE, INFORMATION, TABLE_PANEL, Glider, pages, prepare as prepare_glide  # noqa: E402
from test_links import SIMULATOR  # noqa: E402
from test_profiles import Screen, asking, wait_for_screen  # noqa: E402
from test_touch import Fingers  # noqa: E402

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


def flying(config, *protocol):
    """A cockpit on a held state, once its dials have come to rest."""
    cockpit = Cockpit(sys.argv[1], config, SIZE)
    cockpit.__enter__()
    start(cockpit)
    cockpit.feeder = cockpit.feed('--hold', '--state', STATE, *protocol)
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


# Their rows in the menu.
SCREENS = {'sensors': 'Change Sensors', 'panels': 'Panel Setup',
           'aircraft': 'Aircraft Setup', 'general': 'General Setup',
           'presets': 'Apply Optimized Settings', 'altimeter-settings': 'QNH/Altimeter Settings',
           'forwarding': 'Forwarding'}


def scene_screens():
    cockpit = flying(DEMO)
    try:
        glass = Glass(cockpit)
        keep(cockpit.look(), 'cockpit')
        glass.menu()
        keep(cockpit.look(), 'menu')
    finally:
        cockpit.__exit__()
    for name, row in SCREENS.items():
        cockpit = flying(DEMO)
        try:
            Glass(cockpit).open(row)
            time.sleep(0.5)
            keep(cockpit.look(), name)
            if name == 'sensors':
                click(cockpit, 0.46, 0.785)
                keep(cockpit.look(), 'sensors-advanced')
        finally:
            cockpit.__exit__()


def scene_plan():
    """A plan over the fictional islands, and the simulator beside it."""
    with Cockpit(sys.argv[1], DEMO, SIZE, prepare=prepare(sys.argv[1])) as cockpit:
        plan = Plan(cockpit)
        cockpit.feed('--hold', '--state', STATE + ',latitude=%f,longitude=%f' % START)
        time.sleep(3)
        plan.load(0, 5)
        plan.write(plan.element(PLAN, 'espeed', plan.low), '100', (0.5 * plan.width, 0.2 * plan.height))
        time.sleep(1)
        keep(cockpit.look(), 'flightplan')
        plan.press(PLAN, 'bclose', plan.low)
        plan.open('Position Simulator')
        plan.write(plan.element(WHERE, 'edest', plan.high), 'EMBRA', (0.99 * plan.width, 0.3 * plan.height))
        plan.press(WHERE, 'bstart', plan.high)
        time.sleep(1)
        keep(cockpit.look(), 'simulator')


def with_terrain(build):
    """The fictional region with its plan and its mountains."""
    def fill(home):
        prepare(build)(home)
        terrain = os.path.join(home, '.Skyvane/Terrain')
        subprocess.run([os.path.join(ROOT, 'tools/demo/build-region.sh'), build, os.path.join(home, 'region'), '1', terrain],
                       check=True, stdout=subprocess.DEVNULL)
        subprocess.run([os.path.join(build, 'tools/chartmaker/chartmaker'), 'levels', terrain], check=True,
                       stdout=subprocess.DEVNULL)
    return fill


def whole_glass(factory, options):
    """A cockpit of one panel, with terrain."""
    page = [line for line in DEMO.split('[P0]')[0].split('\n') if not line.startswith('PanelCount')]
    config = ('PanelCount = 1\n' + '\n'.join(page) + '\n[P0]\nFactoryIndex = %d\nPage = 0\nPortrait = 0\n'
              'ViewPortSX = 0\nViewPortSY = 0\nViewPortTX = 1\nViewPortTY = 1\n%s' % (factory, options))
    return Cockpit(sys.argv[1], config, SIZE, prepare=with_terrain(os.path.abspath(sys.argv[1])))


def scene_vision():
    """The synthetic view with a plan over the fictional mountains."""
    with whole_glass(3, 'pfdColor = 128,128,128,64\n') as cockpit:
        plan = Plan(cockpit)
        state = 'pitch=2,roll=-8,heading=12,altitude_ft=3020,ias_kt=98,vs_fpm=150,latitude=%f,longitude=%f' % START
        cockpit.feed('--hold', '--state', state)
        time.sleep(4)
        plan.load(0, 5)
        time.sleep(1)
        plan.press(PLAN, 'bclose', plan.low)
        time.sleep(8)
        keep(cockpit.look()[:panel_area(SIZE)[1]], 'vision')


def scene_map():
    """The map with a plan: following the aircraft, and with a place under its cross."""
    with whole_glass(2, 'noseLength = 10\ncoastlines = 1\nlowIFR = 0\n') as cockpit:
        plan = Plan(cockpit)
        cockpit.feed('--hold', '--state',
                     'heading=330,altitude_ft=3900,ias_kt=98,gs_kt=98,latitude=42.2600,longitude=-28.3700')
        time.sleep(4)
        plan.load(0, 5)
        time.sleep(1)
        plan.press(PLAN, 'bclose', plan.low)
        cockpit.key('plus')
        time.sleep(1)
        plan.click(35, panel_area(SIZE)[1] - 35)  # the compass
        time.sleep(4)
        keep(cockpit.look()[:panel_area(SIZE)[1]], 'map')
        plan.click(SIZE[0] * 0.5, SIZE[1] * 0.3)
        time.sleep(2)
        keep(cockpit.look()[:panel_area(SIZE)[1]], 'map-marked')


def scene_glide():
    """The two glide computers on the way to an airport of the islands."""
    panels = [(INFORMATION, ''), (TABLE_PANEL, '')]
    with Cockpit(sys.argv[1], pages(SIZE, panels), SIZE, prepare=prepare_glide(sys.argv[1])) as cockpit:
        glider = Glider(cockpit)
        cockpit.feed('--hold', '--state', ','.join('%s=%s' % item for item in dict(GLIDE, vs_fpm=-520).items()))
        time.sleep(2)
        glider.load_plan()
        glider.next_procedure()
        time.sleep(1)
        keep(cockpit.look()[:panel_area(SIZE)[1]], 'glideinfo', 500)
        glider.next_page()
        time.sleep(1)
        keep(cockpit.look()[:panel_area(SIZE)[1]], 'glider', 600)


CHECKLIST = ('L0 = Doors\\ closed\\ and\\ locked|Fuel\\ selector\\ both|Brakes\\ set|Mixture\\ rich|Master\\ switch\\ on|'
             'Beacon\\ on|Starter\\ at\\ most\\ 10\\ s,\\ then\\ wait\\ half\\ a\\ minute|Oil\\ pressure\\ in\\ the\\ green\n'
             'L0.Name = Engine\\ start\n')


def scene_checklist():
    def fill(home):
        path = os.path.join(home, 'data/aircrafts.ini')
        with open(path) as document:
            text = document.read()
        with open(path, 'w') as document:
            document.write(text.replace('ListCount = 0\n', 'ListCount = 1\n' + CHECKLIST))
    with Cockpit(sys.argv[1], pages(SIZE, [(CHECKLISTS, '')]), SIZE, prepare=fill) as cockpit:
        lists = Lists(cockpit)
        for number in (0, 1, 3):
            lists.click(*lists.item(number))
        time.sleep(0.5)
        keep(cockpit.look()[:panel_area(SIZE)[1]], 'checklist', 700)


def over_the_mountains(home):
    """The islands with their heights, and a plan across their mountains."""
    install(sys.argv[1])(home)
    subprocess.run([os.path.join(ROOT, 'tools/demo/build-region.sh'), sys.argv[1], os.path.join(home, 'region'), '1',
                    os.path.join(home, '.Skyvane/Terrain')], check=True, stdout=subprocess.DEVNULL)
    way = [((42.314762523, -28.426699993), 6500), ((42.446063, -28.504766), 8000), ((42.737443626, -28.597470208), 6000),
           ((42.683484, -28.726768), None)]
    with open(os.path.join(home, 'data', 'fpl.ini'), 'w') as plans:
        plans.write('[Mountains]\ncnt = %d\n' % len(way))
        for i, (place, feet) in enumerate(way):
            kind = 7 if i in (1, 3) else 3
            plans.write(procedure(i, 'Direct', place, kind, **({'targetAltitude': feet * 0.3048} if feet else {})))


def scene_sideview():
    config = page_config([('sideview', 16)]).replace('ViewPortTX = 0.333333', 'ViewPortTX = 1').replace(
        'ViewPortTY = 0.500000', 'ViewPortTY = 1')
    with Cockpit(sys.argv[1], config, SIZE, prepare=over_the_mountains) as cockpit:
        plan = Plan(cockpit)
        cockpit.feed('--hold', '--state', 'latitude=42.14,longitude=-28.24,heading=320,altitude_ft=3500,ias_kt=100,'
                     'gs_kt=100,vs_fpm=500')
        time.sleep(2)
        plan.load(0, 4)
        plan.menu()
        plan.menu()
        plan.click(840, 29)  # "Airspaces"
        time.sleep(7)
        keep(cockpit.look(), 'sideview')


def scene_keys():
    """The three ways to type on the screen, in the editor of an aircraft."""
    cockpit = flying(DEMO)
    try:
        glass, fingers = Glass(cockpit), Fingers(cockpit)
        glass.open('Aircraft Setup')
        glass.press('gui/windows/documents/listScreen*.ini', 'bedit')
        for name, row in (('keyboard', 0), ('number-pad', 4)):
            glass.click(*glass.editor_row(row), pause=1.0)
            keep(cockpit.look(), name)
            fingers.leave_edit_box()
        glass.click(*glass.editor_row(4), pause=1.0)
        glass.click(glass.button_width / 2, glass.height - glass.button * 3 // 4, pause=1.0)  # the change key
        keep(cockpit.look(), 'wipe')
    finally:
        cockpit.__exit__()


def scene_colours():
    cockpit = flying(DEMO)
    try:
        glass = Glass(cockpit)
        glass.open('General Setup')
        glass.click(*glass.editor_row(5), pause=1.0)
        keep(cockpit.look(), 'colours')
    finally:
        cockpit.__exit__()


def scene_profiles():
    with asking(sys.argv[1], SIZE) as cockpit:
        wait_for_screen(cockpit, Screen(SIZE))
        keep(cockpit.look(), 'profiles')


def scene_calibration():
    config = DEMO.replace(SIMULATOR, 'FactoryIndex = 6\nFactoryName = GDL90\\ compatible\\ device\nport = 4000')
    cockpit = flying(config, '--protocol', 'gdl90')
    try:
        Glass(cockpit).open('Calib.')
        time.sleep(6)  # the message of the connection goes
        keep(cockpit.look(), 'calibration')
    finally:
        cockpit.__exit__()


def scene_procedures():
    """Over the fictional region, from the flight plan's window on."""
    with Cockpit(sys.argv[1], DEMO, SIZE, prepare=install(sys.argv[1])) as cockpit:
        start(cockpit)
        cockpit.feed('--hold', '--state', 'latitude=42.3,longitude=-28.4,altitude_ft=3500,heading=30,ias_kt=110')
        time.sleep(2)
        glass = Glass(cockpit)

        def press(screen, name):
            glass.press('procedures/dialogs/documents/%s*.ini' % screen, name)

        def choose(screen, name, row):
            left, top, right, _ = glass.element_rect('procedures/dialogs/documents/%s*.ini' % screen, name)
            glass.click((left + right) / 2, top + (row + 0.5) * glass.button)

        def keep_dialog(name):
            """Without the instruments at its side."""
            keep(cockpit.look()[:, :int(0.727 * SIZE[0])], name)

        def search(text):
            glass.press('gui/menu/documents/flightPlan*.ini', 'bcreate', glass.lower_area())
            for letter in text:
                cockpit.key(letter)
            cockpit.key('Return')
            time.sleep(0.5)

        glass.open('FlightPlan')
        search('xstm')
        choose('chooseProcedure', 'lprocedures', 1)
        keep_dialog('procedure')
        press('chooseProcedure', 'bnext')
        choose('approach', 'lprofiles', 2)
        keep_dialog('approach')
        press('approach', 'bgeneral')
        keep_dialog('procedure-general')
        press('generalProcedure', 'bback')
        press('approach', 'bback')
        press('chooseProcedure', 'bcancel')
        search('ncp')
        press('chooseProcedure', 'bnext')
        keep_dialog('intercept')
        press('intercept', 'back')
        choose('chooseProcedure', 'lprocedures', 1)
        press('chooseProcedure', 'bnext')
        keep_dialog('holding')


def main():
    words = sys.argv[2:]
    for name, scene in sorted(globals().items()):
        if name.startswith('scene_') and (not words or any(word in name for word in words)):
            scene()


if __name__ == '__main__':
    main()
