"""Finds what stands on the glass without asking the program: rows of the menu, elements of window layouts, buttons of
message boxes and editors. Places are pixels of the window."""
import math
import os
import re
import time

import numpy

from cockpit import ROOT

# As the table of the menu lists them; rows with a condition of their own come with a flight plan.
with open(os.path.join(ROOT, 'source/gui/menu/MenuRow.cpp')) as table:
    ROWS = [row for row, condition in re.findall(r'\{L"([^"]+)", "\w+", \w+(?:, (\w+))?\}', table.read())
            if condition in ('', 'hasForwarderFactory')]
PLAYBACK_ROWS = 3
RED, GREEN = 'red', 'green'


def read_layout(path):
    """(ratio, {id: (left, top, right, bottom)}) of a window layout document, by its path below source."""
    ratio, places, key = 1.0, {}, None
    for line in open(os.path.join(ROOT, 'source', path)):
        name, _, value = line.rstrip('\n').partition(' = ')
        if name == 'Ratio':
            ratio = float(value)
        elif name == 'Id':
            key = value
        elif name == 'Rect':
            places[key] = tuple(map(float, value.split(',')))
    return ratio, places


class Glass:
    """Touches the program of a cockpit. `playback`: a log is being replayed, which adds rows to the menu."""

    def __init__(self, cockpit, playback=False):
        self.cockpit = cockpit
        self.width, self.height = cockpit.size
        root = math.sqrt(self.width * self.height)
        self.button = int(0.049410625 * root + 0.5)
        self.button_width = int(0.12649 * root + 0.5)
        self.shape = 'Portrait' if self.height > self.width else 'Landscape'
        self.playback = playback
        self.plan_rows = 0  # those that come with a flight plan, behind the first row

    def click(self, x, y, pause=0.3):
        self.cockpit.click(x, y)
        time.sleep(pause)

    def menu(self):
        self.click(self.button_width * 0.75, self.height - self.button / 2)

    def row_place(self, number):
        """Of a row of the open menu, playback rows first."""
        height, margin = self.button * 5 // 4, max(2, self.button // 8)
        rows = len(ROWS) + self.plan_rows + (PLAYBACK_ROWS if self.playback else 0)
        bottom = self.height - self.button
        top = max(0, bottom - rows * height - 2 * margin) + margin
        return 0.19 * math.sqrt(self.width * self.height), top + (number + 0.5) * height

    def playback_place(self, name):
        height, margin = self.button * 5 // 4, max(2, self.button // 8)
        width = 0.379 * math.sqrt(self.width * self.height) - 3 * margin - self.button / 2
        row, share = {'Loop': (1, 1 / 6), 'Stop': (1, 3 / 6), 'Play': (1, 5 / 6), 'speed': (2, 1 / 6),
                      'bar': (2, 2 / 3)}[name]
        return margin + share * width, margin + (row + 0.5) * height

    def open(self, row):
        self.menu()
        height, margin = self.button * 5 // 4, max(2, self.button // 8)
        number = ROWS.index(row)
        x, y = self.row_place(number + (self.plan_rows if number else 0) + (PLAYBACK_ROWS if self.playback else 0))
        bottom = self.height - self.button - margin
        if y > bottom - height / 2:  # scrolled to the end, where the last row ends at the bottom
            self.cockpit.drag((x, bottom * 0.8), (x, bottom * 0.3))
            time.sleep(1)
            rows = len(ROWS) + self.plan_rows + (PLAYBACK_ROWS if self.playback else 0)
            y -= rows * height - (bottom - margin)
        self.click(x, y)

    def element(self, document, name, area=None):
        """The centre of an element of a layout document; '*' in its name stands for the shape of the screen."""
        left, top, right, bottom = self.element_rect(document, name, area)
        return (left + right) / 2, (top + bottom) / 2

    def element_rect(self, document, name, area=None):
        ratio, places = read_layout(document.replace('*', self.shape))
        area = area or (0, 0, self.width, self.height)
        width, height = area[2] - area[0], area[3] - area[1]
        window = (height * ratio, height) if width / ratio >= height + 0.5 else (width, width / ratio)
        x, y = area[0] + (width - window[0]) / 2, area[1] + (height - window[1]) / 2
        place = places[name]
        return (x + place[0] * window[0], y + place[1] * window[1], x + place[2] * window[0], y + place[3] * window[1])

    def lower_area(self):
        """Where the small windows of the menu stand."""
        bottom = self.height - self.button
        return 0, bottom - int(bottom * 0.62), self.width, bottom

    def press(self, document, name, area=None):
        self.click(*self.element(document, name, area))

    def region(self, document, name, area=None):
        """The pixels of an element."""
        left, top, right, bottom = map(int, self.element_rect(document, name, area))
        return self.cockpit.look()[top:bottom, left:right]

    def write(self, place, text, beside=None):
        """Puts a text in the place of what an edit box holds, and leaves the box by a tap beside it, which brings a
        window back that made room for the keys on the screen."""
        self.click(*place, pause=0.1)
        self.cockpit.key('End')
        for _ in range(50):
            self.cockpit.key('BackSpace', pause=0.0)
        for letter in text:
            self.cockpit.key(letter, pause=0.0)
        self.click(*(beside or (0.01 * self.width, 0.2 * self.height)), pause=0.5)

    def answer(self, colour):
        """Presses the uppermost button of that colour, once there is one."""
        self.click(*self.cockpit.wait(lambda: self.coloured(colour), 20, 'a %s button' % colour))

    def editor_button(self, which):
        """"Cancel", "Help" or "Ok" of a settings editor."""
        width = self.button_width * 3 // 2
        share = {'Cancel': 0.0, 'Help': 0.5, 'Ok': 1.0}[which]
        left = self.button // 2 + share * (self.width - self.button - width)
        return left + width / 2, self.height - self.button * 0.75

    def editor_row(self, number):
        """The control of a row that isn't scrolled away."""
        height = self.button * 3 // 2
        return self.width * (0.79 if self.height > self.width else 0.72), height + (number + 0.5) * height

    def choose(self, place, row, rows):
        """Takes a row of a combo box that has so many of them; it opens where there is room."""
        x, y = place
        self.click(x, y)
        upper, lower = y - self.button / 2, y + self.button / 2
        wanted = rows * self.button + 4
        is_below = wanted <= self.height - lower or self.height - lower >= upper
        top = lower if is_below else upper - min(wanted, upper)
        self.click(x, top + 2 + (row + 0.5) * self.button)

    def coloured(self, colour):
        """The middle of the uppermost button of that colour; None where there is none."""
        pixels = self.cockpit.look().astype(int)
        r, g, b = pixels[:, :, 0], pixels[:, :, 1], pixels[:, :, 2]
        mask = (r > 2 * g) & (r > 2 * b) & (r > 80) if colour == RED else (g > 1.8 * r) & (g > r + 30) & (g > b + 20)
        sums = numpy.pad(mask.cumsum(0).cumsum(1), ((1, 0), (1, 0)))
        high, wide = self.button // 2, self.button // 4
        inside = sums[high:, wide:] - sums[:-high, wide:] - sums[high:, :-wide] + sums[:-high, :-wide]
        rows, columns = numpy.nonzero(inside > 0.95 * high * wide)
        return (columns[0] + wide / 2, rows[0] + high / 2) if len(rows) else None
