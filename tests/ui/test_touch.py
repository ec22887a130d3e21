"""On-screen input: edit boxes of the real program filled with the finger alone."""
import time

from cockpit import Cockpit
from glass import Glass
from run_tests import thorough
from test_start import read_ini

CONFIG = 'major = 2\nminor = 9\noptimized = 0\nPanelCount = 0\nSensorCount = 0\n' + ''.join(
    'inputColor.%s = %d\n' % part for part in zip('RGBA', (200, 200, 200, 255)))
TEXT = ['1234567890', 'qwertyuiop', 'asdfghjkl=', 'zxcvbnm,.-']
NUMBERS = ['789<', '456.', '123\n', '0']


class Fingers:
    """Taps places of the screen, as shares of it, and keys."""

    def __init__(self, cockpit):
        self.cockpit = cockpit
        self.width, self.height = cockpit.size
        button = int(0.049410625 * (self.width * self.height) ** 0.5 + 0.5)
        self.text_key = self.width / 10, min(button * 3 // 2, self.height // 2 // 5)
        pad = min(button * 3 // 2, self.height // 2 // 4)
        self.number_key = 2 * pad, pad

    def tap(self, x, y):
        self.cockpit.click(self.width * x, self.height * y)
        time.sleep(0.5)

    def tap_key(self, column, row, rows, key, columns=10):
        left = (self.width - columns * key[0]) / 2
        self.cockpit.click(left + (column + 0.5) * key[0], self.height - (rows - row - 0.5) * key[1])
        time.sleep(0.12)

    def text(self, text):
        for character in text:
            if character.isupper():
                self.tap_key(0, 4, 5, self.text_key)
                character = character.lower()
            if character == '\n':
                self.tap_key(7.5, 4, 5, self.text_key)
            elif character == ' ':
                self.tap_key(4.5, 4, 5, self.text_key)
            else:
                row = next(row for row in TEXT if character in row)
                self.tap_key(row.index(character), TEXT.index(row), 5, self.text_key)

    def number(self, text):
        for character in text:
            row = next(row for row in NUMBERS if character in row)
            self.tap_key(row.index(character), NUMBERS.index(row), 4, self.number_key, 4)

    def change(self):
        """To the next way of typing, while the number pad stands, which leaves the lower left corner free."""
        height = self.text_key[1]
        self.cockpit.click(height / 2, self.height - height / 2)
        time.sleep(0.5)

    def wipe(self, steps):
        """Dials the last character that many characters on: ten of them fill the strip at the right edge."""
        x, start = self.width - 20, self.height / 2
        self.cockpit.drag((x, start), (x, start - steps * self.height / 10))
        time.sleep(0.3)

    def save(self, name):
        time.sleep(0.3)
        self.cockpit.save(self.cockpit.look(), 'touch-%s-%dx%d' % ((name,) + self.cockpit.size))

    def leave_edit_box(self):
        """A tap on the window beside; the window is back where it was afterwards."""
        self.cockpit.click(self.width * 0.01, 0.2 * self.height)
        time.sleep(0.5)

    def open_aircraft(self):
        self.cockpit.wait_for_window()
        time.sleep(0.5)
        Glass(self.cockpit).open('Aircraft Setup')
        time.sleep(0.5)


def aircraft(cockpit):
    return read_ini(cockpit.path('data', 'aircrafts.ini'))


def values(document):
    return [value for section in document.values() for value in section.values()]


@thorough
def test_a_checklist_is_written_with_the_finger(build):
    for size in ((1280, 720), (800, 480)):
        with Cockpit(build, CONFIG, size=size) as cockpit:
            fingers = Fingers(cockpit)
            fingers.open_aircraft()
            fingers.tap(0.86, 0.39)  # Checklists
            fingers.tap(0.86, 0.155)  # New
            fingers.tap(0.5, 0.16)  # its name
            fingers.text('Taxi')
            fingers.save('name')
            fingers.text('\n')  # which leaves the edit box
            fingers.tap(0.5, 0.42)  # its lines
            fingers.text('Brakes\nflaps 2')
            fingers.save('lines')
            fingers.leave_edit_box()
            fingers.save('left')
            fingers.tap(0.83, 0.925)  # Ok
            fingers.save('done')

            def is_written():
                text = '|'.join(values(aircraft(cockpit))).replace('\\ ', ' ')
                return 'Taxi' in text and 'Brakes' in text and 'flaps 2' in text
            cockpit.wait(is_written, 10, 'the checklist in the document')
            assert cockpit.close() == 0


def test_the_number_pad_replaces_a_speed(build):
    with Cockpit(build, CONFIG) as cockpit:
        fingers = Fingers(cockpit)
        fingers.open_aircraft()
        fingers.tap(0.86, 0.275)  # Edit
        fingers.tap(0.7, 0.63)  # Vne, which the pad would cover
        fingers.number('173')
        fingers.save('speed')
        fingers.leave_edit_box()
        fingers.tap(0.91, 0.955)  # Ok
        cockpit.wait(lambda: '173' in values(aircraft(cockpit)), 10, 'the speed in the document')
        assert '200173' not in values(aircraft(cockpit))
        assert cockpit.close() == 0


def test_a_wipe_dials_the_last_digit(build):
    with Cockpit(build, CONFIG) as cockpit:
        fingers = Fingers(cockpit)
        fingers.open_aircraft()
        fingers.tap(0.86, 0.275)  # Edit
        fingers.tap(0.7, 0.24)  # Vso
        fingers.change()
        fingers.save('wipe')
        fingers.wipe(3)  # 48
        fingers.wipe(-4)  # 44
        fingers.save('wiped')
        fingers.leave_edit_box()
        fingers.tap(0.91, 0.955)  # Ok
        cockpit.wait(lambda: '44' in values(aircraft(cockpit)), 10, 'the speed in the document')
        assert '45' not in values(aircraft(cockpit))
        assert cockpit.close() == 0
