"""The checklist panel: a checklist is made, ticked off, changed and removed with clicks."""
import time

from cockpit import Cockpit
from glass import GREEN, RED, read_layout
from run_tests import thorough
from test_glide import pages
from test_menu import CHECKLIST, Flight

PANEL = 'displays/information/documents/checkListPanel%s.ini'
CHECKLISTS = 13


class Lists(Flight):
    """The panel over the whole of the only page."""

    def __init__(self, cockpit):
        super().__init__(cockpit)
        self.places = read_layout(PANEL % self.shape)[1]
        self.row = int(self.button * 3 / 4) * 5 // 3

    def place(self, name):
        left, top, right, bottom = self.places[name]
        height = self.height - self.button
        return left * self.width, top * height, right * self.width, bottom * height

    def middle(self, name):
        left, top, right, bottom = self.place(name)
        return (left + right) / 2, (top + bottom) / 2

    def tap(self, name):
        self.click(*self.middle(name))

    def item(self, number):
        """The middle of the box of an item that takes one line."""
        left, top, _, _ = self.place('sitems')
        return int(left + self.button * 3 / 4), int(top + 4 + (number + 0.5) * self.row)

    def ticks(self, count):
        """Which of the items have the green of what is done at their rows' ends."""
        pixels = self.cockpit.look().astype(int)
        right = int(self.place('sitems')[2]) - self.button
        grounds = [pixels[self.item(number)[1], right] for number in range(count)]
        return [bool(g > r + 10 and g > b + 10) for r, g, b in grounds]

    def keep(self, name):
        time.sleep(0.4)
        self.cockpit.save(self.cockpit.look(), 'checklist-%s-%dx%d' % (name, self.width, self.height))

    def aircraft(self, number=0):
        return self.document('aircrafts')['A%d' % number]

    def wait_until(self, key, value):
        self.cockpit.wait(lambda: self.aircraft().get(key) == value, 5, '%s = %s' % (key, value))

    def fill_in(self, name, lines, is_new=True):
        beside = self.element_rect(CHECKLIST, 'ename')[0] - 8, 0.2 * self.height
        if is_new:
            self.write(self.element(CHECKLIST, 'ename'), name, beside)
        self.click(*self.element(CHECKLIST, 'elines'), pause=0.1)
        for number, line in enumerate(lines):
            if number:
                self.cockpit.key('Return', pause=0.02)
            for letter in line:
                self.cockpit.key(letter, pause=0.02)
        self.click(*beside, pause=0.5)
        self.press(CHECKLIST, 'bok')

    def make(self, name, lines):
        self.tap('bnew')
        self.fill_in(name, lines)


def go_through(lists):
    assert lists.ticks(3) == [False, False, False]
    for number in (0, 2):
        lists.click(*lists.item(number))
    lists.cockpit.wait(lambda: lists.ticks(3) == [True, False, True], 3, 'two ticks')
    lists.keep('ticked')
    lists.click(*lists.item(2))
    lists.cockpit.wait(lambda: lists.ticks(3) == [True, False, False], 3, 'one tick')
    _, top, right, bottom = lists.place('sitems')
    lists.click(right - 2 * lists.button, bottom - 8)
    assert lists.ticks(3) == [True, False, False], 'nothing is ticked below the last item'


def use_checklists(build, size):
    with Cockpit(build, pages(size, [(CHECKLISTS, '')]), size) as cockpit:
        lists = Lists(cockpit)
        lists.keep('empty')
        lists.tap('bedit')  # both off
        lists.tap('bremove')
        assert not lists.coloured(RED) and lists.aircraft()['ListCount'] == '0'
        lists.make('start', ['doors', 'fuel', 'brakes'])
        lists.wait_until('ListCount', '1')
        assert lists.aircraft()['L0.Name'] == 'start' and lists.aircraft()['L0'] == 'doors|fuel|brakes'
        go_through(lists)
        lists.make('taxi', ['flaps'])
        lists.wait_until('L1', 'flaps')
        lists.cockpit.wait(lambda: lists.ticks(1) == [False], 3, 'the new list, untouched')
        lists.choose(lists.middle('clist'), 0, 2)
        time.sleep(0.4)
        assert lists.ticks(3) == [False, False, False], 'chosen again, begun anew'
        lists.keep('chosen')
        lists.tap('bedit')
        lists.fill_in('start', ['x'], is_new=False)
        cockpit.wait(lambda: 'x' in lists.aircraft()['L0'], 5, 'the changed line')
        lists.tap('bremove')
        lists.answer(RED)
        assert lists.aircraft()['ListCount'] == '2'
        lists.tap('bremove')
        lists.answer(GREEN)
        lists.wait_until('ListCount', '1')
        assert lists.aircraft()['L0.Name'] == 'taxi'
        lists.keep('removed')
        assert cockpit.close() == 0


def test_a_checklist_is_made_ticked_changed_and_removed(build):
    use_checklists(build, (1280, 720))


@thorough
def test_a_checklist_is_used_on_a_tall_screen(build):
    use_checklists(build, (800, 1280))
