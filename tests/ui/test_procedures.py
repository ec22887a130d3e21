"""The dialogs of procedures in the real program, over the fictional region: chosen, set up, flown."""
import struct
import time

from cockpit import Cockpit
from glass import RED, Glass
from islands import install
from test_dials import DEMO, dismiss_box, hold

CHOOSE = 'procedures/dialogs/documents/chooseProcedure*.ini'
APPROACH = 'procedures/dialogs/documents/approach*.ini'
HOLDING = 'procedures/dialogs/documents/holding*.ini'
INTERCEPT = 'procedures/dialogs/documents/intercept*.ini'
GENERAL = 'procedures/dialogs/documents/generalProcedure*.ini'
SCREENS = ((1280, 720), (720, 1280), (800, 480))


class Planner(Glass):
    """A cockpit over the Skyvane Islands, in flight."""

    def __init__(self, cockpit):
        super().__init__(cockpit)
        cockpit.wait_for_window()
        dismiss_box(cockpit)
        hold(cockpit, 'flightgear', latitude=42.3, longitude=-28.4, altitude_ft=3500, heading=30, ias_kt=110)
        time.sleep(0.5)

    def keep(self, name):
        self.cockpit.save(self.cockpit.look(), 'procedures-%s-%dx%d' % (name, self.width, self.height))

    def search(self, text):
        for letter in text:
            self.cockpit.key(letter, pause=0.0)
        self.cockpit.key('Return')
        time.sleep(0.4)

    def choose(self, document, name, row):
        left, top, right, _ = self.element_rect(document, name)
        self.click(left + (right - left) / 4, top + (row + 0.5) * self.button)

    def made(self):
        """The names of the procedures made so far."""
        with open(self.cockpit.path('.Skyvane', 'Logs', 'log.txt'), errors='replace') as log:
            return [line.split(': ', 1)[1].strip() for line in log if line.startswith('New procedure: ')]

    def wait_for(self, name):
        self.cockpit.wait(lambda: self.made() and self.made()[-1] == name, 5, name)

    def recent(self):
        with open(self.cockpit.path('data', 'recent'), 'rb') as file:
            return [one for one in struct.unpack('<15i', file.read()) if one != -9999999]

    def warns(self):
        """A red box with a message lies over the lower part of the panels."""
        r, g, b = self.cockpit.look()[self.height // 2:].astype(int).transpose(2, 0, 1)
        return ((r > 180) & (g < 60) & (b < 60)).sum() > 20 * self.button * self.button // 4

    def shows_path(self, document, name):
        """Some of the preview is in the colour of a path."""
        r, g, b = self.region(document, name).astype(int).transpose(2, 0, 1)
        return ((r > 180) & (b > 180) & (g < 120)).mean() > 0.002


def test_a_plan_of_all_kinds_of_procedures_is_made_by_touch(build):
    with Cockpit(build, DEMO, SCREENS[0], prepare=install(build)) as cockpit:
        planner = Planner(cockpit)
        planner.open('New Procedure')
        planner.search('ncp')
        planner.press(CHOOSE, 'bdirect')
        planner.wait_for('Direct: NCP - Northcape (fictional) - VORDME')
        assert len(planner.recent()) == 1
        planner.open('New Procedure')  # begins with what is flown to
        planner.choose(CHOOSE, 'lprocedures', 1)
        planner.press(CHOOSE, 'bnext')
        assert planner.shows_path(HOLDING, 'spreview')
        planner.press(HOLDING, 'cright')
        planner.press(HOLDING, 'bnext')
        planner.wait_for('Holding at: NCP - Northcape (fictional) - VORDME')
        planner.open('New Procedure')
        planner.press(CHOOSE, 'brecent')
        planner.choose(CHOOSE, 'lprocedures', 2)
        planner.press(CHOOSE, 'bnext')
        assert planner.shows_path(INTERCEPT, 'spreview')
        planner.press(INTERCEPT, 'cradial')
        planner.write(planner.element(INTERCEPT, 'eradial'), '210', planner.element(INTERCEPT, 'tradial'))
        planner.press(INTERCEPT, 'next')
        planner.wait_for('Intercept: NCP - Northcape (fictional) - VORDME 210 (to)')
        assert len(planner.recent()) == 1
        assert cockpit.close() == 0


def test_an_approach_is_set_up_and_warns_of_what_the_charts_dont_know(build):
    with Cockpit(build, DEMO, SCREENS[0], prepare=install(build)) as cockpit:
        planner = Planner(cockpit)
        planner.open('New Procedure')
        planner.press(CHOOSE, 'brecent')
        planner.press(CHOOSE, 'bnrst')
        planner.choose(CHOOSE, 'lprocedures', 1)
        assert planner.shows_path(CHOOSE, 'previewBox'), 'an arrow points to the runway'
        planner.press(CHOOSE, 'bnext')
        before = planner.region(APPROACH, 'tdescentrate')
        planner.choose(APPROACH, 'lprofiles', 2)
        assert (planner.region(APPROACH, 'tdescentrate') != before).any()
        assert planner.shows_path(APPROACH, 'spreview')
        planner.press(APPROACH, 'bgeneral')
        planner.press(GENERAL, 'bback')
        assert not planner.coloured(RED) is None, 'the way back'
        planner.press(APPROACH, 'bnext')
        planner.wait_for('App: RWY 10 Thornmoor (fictional)')
        cockpit.wait(lambda: planner.warns(), 3, 'the warning of the low accuracy')
        planner.keep('warned')
        assert cockpit.close() == 0
