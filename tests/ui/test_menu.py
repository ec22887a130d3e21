"""The main menu of the real program: every row opened by a click, and what it changed read from the documents."""
import os
import time

import numpy

from cockpit import Cockpit
from dials import red
from glass import GREEN, RED, ROWS, Glass
from run_tests import thorough
from test_dials import DEMO, DIALS, SIZE, STATES, dismiss_box, hold
from test_links import SIMULATOR, log_of
from test_start import read_ini

AIRCRAFT = 'gui/windows/documents/listScreen*.ini'
CHECKLIST = 'procedures/aircraft/documents/checkList*.ini'
ALTIMETER = 'gui/menu/documents/altimeter*.ini'
FORWARDERS = 'gui/menu/documents/forwarders*.ini'
PANELS = 'displays/setup/documents/panelSetup*.ini'
PRESETS = 'displays/setup/documents/preset.ini'


class Flight(Glass):
    """The demo in a home of its own, its first box answered."""

    def __init__(self, cockpit, playback=False):
        super().__init__(cockpit, playback)
        cockpit.wait_for_window()
        dismiss_box(cockpit)

    def text(self, name='config'):
        with open(self.cockpit.path('data', name + '.ini')) as document:
            return document.read()

    def document(self, name='config'):
        return read_ini(self.cockpit.path('data', name + '.ini'))

    def wait_for(self, key, value, name='config'):
        self.cockpit.wait(lambda: self.document(name)[''].get(key) == value, 20, '%s = %s' % (key, value))

    def choose_preset(self, name, remember=False):
        area = (self.width // 12, self.height // 12, self.width - self.width // 12, self.height - self.height // 12)
        if remember:
            self.press(PRESETS, 'remember', area)
        self.press(PRESETS, name, area)


def set_up_the_program(flight):
    before = flight.text()
    flight.open('General Setup')
    flight.click(*flight.editor_row(7))
    flight.click(*flight.editor_button('Cancel'))
    assert flight.text() == before
    flight.open('General Setup')
    flight.write(flight.editor_row(1), 'fir')
    flight.click(*flight.editor_row(4))
    flight.click(*flight.editor_row(5))  # the colour window
    flight.answer(RED)
    flight.click(*flight.editor_row(7))
    flight.click(*flight.editor_button('Ok'))
    flight.wait_for('useColoredButtons', '1')
    settings = flight.document()['']
    assert settings['drawFPS'] == '1' and settings['blacklist'] == 'fir', settings
    assert settings['inputColor.G'] == '255' and settings['units'] == 'ft|nm|knots' and settings['fontOffset'] == '0'
    time.sleep(1)
    flight.menu()
    x, y = map(int, flight.row_place(ROWS.index('Change Sensors')))

    def is_yellow():
        r, g, b = flight.cockpit.look()[y + flight.button // 2, x].astype(int)
        return r > b + 30 and g > b + 20
    flight.cockpit.wait(is_yellow, 20, 'a yellow row')
    flight.menu()


def set_up_aircraft(flight):
    count = lambda: flight.document('aircrafts')['']['aircraftCount']
    flight.open('Aircraft Setup')
    flight.press(AIRCRAFT, 'bdelete')
    flight.answer(GREEN)  # the last one stays
    assert count() == '1'
    flight.press(AIRCRAFT, 'bnew')
    flight.write(flight.editor_row(0), 'glider')
    flight.click(*flight.editor_button('Ok'))
    flight.wait_for('aircraftCount', '2', 'aircrafts')
    flight.press(AIRCRAFT, 'bedit')
    flight.write(flight.editor_row(2), '5x')  # no number: the editor stays
    flight.click(*flight.editor_button('Ok'))
    flight.write(flight.editor_row(2), '57')
    flight.click(*flight.editor_button('Ok'))
    flight.cockpit.wait(lambda: flight.document('aircrafts')['A1']['Vs'] == '57', 20, 'the new speed')
    assert flight.document('aircrafts')['A1']['Name'] == 'glider'
    flight.press(AIRCRAFT, 'bmore')
    flight.press(AIRCRAFT, 'bnew')
    flight.write(flight.element(CHECKLIST, 'ename'), 'start')
    flight.write(flight.element(CHECKLIST, 'elines'), 'fuel')
    flight.press(CHECKLIST, 'bok')
    flight.cockpit.save(flight.cockpit.look(), 'menu-checklist')
    flight.cockpit.wait(lambda: flight.document('aircrafts')['A1']['ListCount'] == '1', 20, 'a checklist')
    aircraft = flight.document('aircrafts')['A1']
    assert aircraft['L0.Name'] == 'start' and aircraft['L0'] == 'fuel', aircraft
    flight.press(AIRCRAFT, 'bcancel')
    flight.press(AIRCRAFT, 'bdelete')
    flight.answer(RED)
    assert count() == '2'
    flight.press(AIRCRAFT, 'bdelete')
    flight.answer(GREEN)
    flight.wait_for('aircraftCount', '1', 'aircrafts')
    flight.press(AIRCRAFT, 'bcancel')


def choose_presets(flight):
    flight.open('Apply Optimized Settings')
    flight.choose_preset('vfr')  # remembered, as the one before was
    flight.wait_for('optimized', '2')
    flight.open('Apply Optimized Settings')
    flight.choose_preset('glider', remember=True)  # which unticks
    flight.wait_for('optimized', '')


@thorough
def test_settings_aircraft_and_presets_are_changed_from_the_menu(build):
    with Cockpit(build, DEMO, SIZE) as cockpit:
        flight = Flight(cockpit)
        set_up_the_program(flight)
        set_up_aircraft(flight)
        choose_presets(flight)
        cockpit.save(cockpit.look(), 'menu-settings')
        assert cockpit.close() == 0


def step_the_altimeter(flight):
    area = flight.lower_area()
    flight.open('QNH/Altimeter Settings')
    texts = lambda: [flight.region(ALTIMETER, name, area) for name in ('tfallbackValue', 'tfallbackValueHg')]
    first = texts()
    same = lambda: [numpy.array_equal(a, b) for a, b in zip(first, texts())]
    for button in ('bmore', 'bmuchmoreHg'):
        flight.press(ALTIMETER, button, area)
    flight.cockpit.wait(lambda: same() == [False, False], 20, 'other figures in both units')
    for button in ('bless', 'bmuchlessHg'):
        flight.press(ALTIMETER, button, area)
    flight.cockpit.wait(lambda: same() == [True, True], 20, 'steps that take each other back')
    hand = DIALS['altimeter'].needle(flight.cockpit.look(), 0.725)
    flight.press(ALTIMETER, 'cautoQnh', area)
    flight.press(ALTIMETER, 'bmuchmore', area)
    flight.press(ALTIMETER, 'bclose', area)
    flight.cockpit.wait(lambda: DIALS['altimeter'].needle(flight.cockpit.look(), 0.725) != hand, 20, 'moved hands')


def forward(flight):
    area = flight.lower_area()
    flight.open('Forwarding')
    flight.press(FORWARDERS, 'badd', area)
    time.sleep(0.7)
    flight.cockpit.key('Return')  # the name that is proposed
    flight.wait_for('ForwarderCount', '1')
    assert flight.document()['F0']['ForwarderFactory'] == '0'
    left, top, right, _ = flight.element_rect(FORWARDERS, 'lforwarders', area)
    flight.click((left + right) / 2, top + flight.button / 2)
    for colour, count in ((RED, '1'), (GREEN, '0')):
        flight.press(FORWARDERS, 'bremove', area)
        flight.answer(colour)
        flight.wait_for('ForwarderCount', count)
    assert 'F0' not in flight.document()
    flight.press(FORWARDERS, 'bclose', area)


@thorough
def test_altimeter_forwarders_calibration_and_homepage(build):
    browser = os.path.join(build, 'test-browser')
    os.makedirs(browser, exist_ok=True)
    with open(os.path.join(browser, 'xdg-open'), 'w') as script:
        script.write('#!/bin/sh\necho "$1" >"$HOME/opened"\n')
    os.chmod(script.name, 0o755)
    with Cockpit(build, DEMO, SIZE, environment={'PATH': browser + ':' + os.environ['PATH']}) as cockpit:
        flight = Flight(cockpit)
        hold(cockpit, 'flightgear', **STATES[0])
        time.sleep(1)
        step_the_altimeter(flight)
        forward(flight)
        flight.open('Calib.')
        cockpit.wait(lambda: flight.coloured(GREEN), 20, 'the refusal')
        cockpit.key('Return')
        time.sleep(0.3)
        assert not flight.coloured(GREEN)
        flight.open('Homepage')
        opened = os.path.join(cockpit.folder, 'opened')
        cockpit.wait(lambda: os.path.exists(opened) and os.path.getsize(opened), 20, 'the browser')
        page = open(opened).read().strip()
        assert page.startswith('file:///') and os.path.isfile(page[7:]), page
        cockpit.save(cockpit.look(), 'menu-homepage')
        assert cockpit.close() == 0


def set_up_panels(flight):
    before = flight.text()
    left, top, right, _ = flight.element_rect(PANELS, 'available')
    area = flight.element_rect(PANELS, 'preview')
    height = area[3] - area[1]
    first_panel = (left + right) / 2 - flight.button / 2, top + flight.button / 2
    for button in ('cancel', 'ok'):
        flight.open('Panel Setup')
        flight.press(PANELS, 'nextPage')
        flight.click(*first_panel)  # the attitude indicator
        flight.press(PANELS, 'add')
        flight.cockpit.drag((area[0] + 30, area[1] + height / 2), (area[0] + (area[2] - area[0]) / 2, area[1] + height / 2))
        if button == 'ok':
            flight.cockpit.save(flight.cockpit.look(), 'menu-panel-added')
        flight.press(PANELS, button)
        if button == 'cancel':
            assert flight.text() == before
    flight.wait_for('PanelCount', '11')
    panel = flight.document()['P10']
    assert panel['FactoryName'] == 'AttitudeIndicator' and panel['Page'] == '1', panel
    assert 0.3 < float(panel['ViewPortSX']) < 0.7 and panel['ViewPortTX'] == '1', panel


@thorough
def test_panels_restoring_and_the_exit(build):
    with Cockpit(build, DEMO, SIZE) as cockpit:
        flight = Flight(cockpit)
        set_up_panels(flight)
        time.sleep(1)
        before = flight.text()
        flight.open('Restore Standard Config')
        flight.answer(RED)
        assert flight.text() == before
        flight.open('Restore Standard Config')
        flight.answer(GREEN)
        flight.wait_for('PanelCount', '120')
        time.sleep(1.5)
        flight.choose_preset('default')
        cockpit.save(cockpit.look(), 'menu-restored')
        flight.open('Exit')
        flight.answer(RED)
        assert cockpit.alive()
        flight.open('Exit')
        flight.answer(GREEN)
        assert cockpit.program.wait(20) == 0


def test_a_log_is_paused_and_played_from_the_menu(build):
    config = DEMO.replace(SIMULATOR, 'FactoryIndex = 1\nFactoryName = LogFileSensor\nfileName = Flight.dat\nlevel = GOOD')

    def prepare(home):
        os.makedirs(os.path.join(home, '.Skyvane', 'Logs'))
        with open(os.path.join(home, '.Skyvane', 'Logs', 'Flight.dat'), 'wb') as log:
            log.write(log_of(STATES[1], 60))
    with Cockpit(build, config, SIZE, prepare=prepare) as cockpit:
        flight = Flight(cockpit, playback=True)
        flight.menu()
        x, y = map(int, flight.playback_place('bar'))

        def moves():
            bars = []
            for _ in range(2):
                bars.append(cockpit.look()[y, x - 2 * flight.button:x + 2 * flight.button])
                time.sleep(0.4)
            return not numpy.array_equal(*bars)
        flight.click(*flight.playback_place('Loop'))
        flight.write(flight.playback_place('speed'), '20', flight.row_place(0))  # the title of the rows
        cockpit.wait(moves, 10, 'twenty times the speed')
        cockpit.save(cockpit.look(), 'menu-playback')
        # "Play" is "Pause" while it plays.
        for button, goes_on in (('Play', False), ('Play', True), ('Stop', False), ('Play', True)):
            flight.click(*flight.playback_place(button))
            cockpit.wait(lambda: moves() == goes_on, 20, '%s: %s' % (button, goes_on))
        time.sleep(2)
        assert moves(), 'from the start again after three seconds'
        assert DIALS['altimeter'].share(cockpit.look(), red) < 0.02
        assert cockpit.close() == 0
