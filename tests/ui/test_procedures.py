"""The dialogs of procedures in the real program, over the fictional region: chosen, set up, flown."""
import struct
import time

from cockpit import Cockpit
from glass import Glass
from islands import install
from test_dials import DEMO, dismiss_box, hold
from test_start import read_ini

PLAN = 'gui/menu/documents/flightPlan*.ini'
SAVES = 'gui/windows/documents/loadSave*.ini'
CHOOSE = 'procedures/dialogs/documents/chooseProcedure*.ini'
APPROACH = 'procedures/dialogs/documents/approach*.ini'
HOLDING = 'procedures/dialogs/documents/holding*.ini'
INTERCEPT = 'procedures/dialogs/documents/intercept*.ini'
GENERAL = 'procedures/dialogs/documents/generalProcedure*.ini'
SIZE = (1280, 720)


class Planner(Glass):
    """A cockpit over the Skyvane Islands, in flight."""

    def __init__(self, cockpit):
        super().__init__(cockpit)
        cockpit.wait_for_window()
        dismiss_box(cockpit)
        hold(cockpit, 'flightgear', latitude=42.3, longitude=-28.4, altitude_ft=3500, heading=30, ias_kt=110)
        time.sleep(0.5)

    def search(self, text):
        for letter in text:
            self.cockpit.key(letter, pause=0.0)
        self.cockpit.key('Return')
        time.sleep(0.4)

    def choose(self, document, name, row):
        left, top, right, _ = self.element_rect(document, name)
        self.click(left + (right - left) / 4, top + (row + 0.5) * self.button)

    def create_new(self):
        self.press(PLAN, 'bcreate', self.lower_area())

    def saved(self):
        """The plan, as the document of saved plans has it."""
        self.press(PLAN, 'bsaved', self.lower_area())
        self.write(self.element(SAVES, 'fileName'), 'tour')
        self.press(SAVES, 'bsaveload')
        plan = read_ini(self.cockpit.path('data', 'fpl.ini'))['tour']
        return {key.replace(r'\0', '[').replace(r'\1', ']'): value for key, value in plan.items()}

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
    with Cockpit(build, DEMO, SIZE, prepare=install(build)) as cockpit:
        planner = Planner(cockpit)
        planner.open('FlightPlan')
        planner.create_new()
        planner.search('ncp')
        planner.press(CHOOSE, 'bdirect')
        assert len(planner.recent()) == 1
        planner.create_new()  # begins with what is flown to
        planner.choose(CHOOSE, 'lprocedures', 1)
        planner.press(CHOOSE, 'bnext')
        cockpit.wait(lambda: planner.shows_path(HOLDING, 'spreview'), 5, 'a path')
        planner.press(HOLDING, 'cright')
        planner.press(HOLDING, 'bnext')
        planner.create_new()
        planner.choose(CHOOSE, 'lprocedures', 2)
        planner.press(CHOOSE, 'bnext')
        cockpit.wait(lambda: planner.shows_path(INTERCEPT, 'spreview'), 5, 'a path')
        planner.press(INTERCEPT, 'cradial')
        planner.write(planner.element(INTERCEPT, 'eradial'), '210', planner.element(INTERCEPT, 'tradial'))
        planner.press(INTERCEPT, 'next')
        plan = planner.saved()
        assert [plan['proc[%d].name' % i] for i in range(3)] == ['Direct', 'Holding', r'Intercept\ Airway/Radial'], plan
        assert plan['cnt'] == '3' and plan['proc[1].rightturns'] == '0' and plan['proc[1].dmedistance'] == '2', plan
        assert plan['proc[2].courseToElement'] == '30' and plan['proc[2].to'] == '1', plan
        assert cockpit.close() == 0


def test_an_approach_is_set_up_and_warns_of_what_the_charts_dont_know(build):
    with Cockpit(build, DEMO, SIZE, prepare=install(build)) as cockpit:
        planner = Planner(cockpit)
        planner.open('FlightPlan')
        planner.create_new()
        planner.press(CHOOSE, 'bnrst')
        planner.choose(CHOOSE, 'lprocedures', 1)
        cockpit.wait(lambda: planner.shows_path(CHOOSE, 'previewBox'), 5, 'an arrow points to the runway')
        planner.press(CHOOSE, 'bnext')
        before = planner.region(APPROACH, 'tdescentrate')
        planner.choose(APPROACH, 'lprofiles', 2)
        assert (planner.region(APPROACH, 'tdescentrate') != before).any()
        cockpit.wait(lambda: planner.shows_path(APPROACH, 'spreview'), 5, 'a path')
        planner.press(APPROACH, 'bgeneral')
        planner.press(GENERAL, 'bback')
        planner.press(APPROACH, 'bnext')
        plan = planner.saved()
        assert plan['proc[0].appId'] == 'TrafficPatternApproach' and plan['proc[0].threshold.name'] == '10', plan
        assert plan['proc[0].isLeftTraffic'] == '1' and plan['proc[0].targetGroundSpeed'] == '120', plan
        assert not planner.warns(), 'messages are off'
        planner.press(PLAN, 'bclose', planner.lower_area())
        cockpit.wait(planner.warns, 20, 'the warning of the unknown accuracy')
        assert cockpit.close() == 0
