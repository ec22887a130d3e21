"""The profile screen of the start, clicked through."""
import time

from cockpit import Cockpit
from test_start import read_ini

SIZES = ((1280, 720), (720, 1280))
# A simulator, and no word about the question.
CONFIG = ('major = 2\nminor = 9\noptimized = 0\nSensorCount = 2\n' + ''.join('D%d = 1\n' % t for t in range(21)) +
          '[S1]\nFactoryIndex = 4\nFactoryName = FlightGear Flight Simulator\n')
LOG, SIMULATOR = 7, 8


def asking(build, size, config=CONFIG):
    return Cockpit(build, config, size=size, environment={'SKYVANE_CHOOSE_PROFILE': '1'})


class Screen:
    """Places of the profile screen, from the metrics that it is laid out by."""

    def __init__(self, size):
        self.width, self.height = size
        self.button = int(0.049410625 * (size[0] * size[1]) ** 0.5 + 0.5)
        self.gap = self.button // 3
        self.portrait = self.height > self.width
        self.head = self.gap + self.button * (5 if self.portrait else 3) // 2
        self.top = self.head + self.gap
        self.row = min(max((self.height - self.gap - self.top) // 10, self.button * 11 // 10), self.button * 5 // 2)

    def at(self, share, row):
        return self.gap + share * (self.width - 2 * self.gap), self.top + (row + 0.5) * self.row

    def use_last(self):
        share, y = (0.3, 0.75) if self.portrait else (0.76, 0.5)
        return self.gap + share * (self.width - 2 * self.gap), self.gap + y * (self.head - self.gap)


def wait_for_screen(cockpit, screen):
    cockpit.wait_for_window()
    x, y = screen.use_last()
    # Its green tells that the button stands.
    cockpit.wait(lambda: (lambda p: p[1] > int(p[0]) + 20)(cockpit.look()[int(y), int(x) - screen.button * 2]), 30,
                 'the profile screen')
    time.sleep(0.3)


def config(cockpit):
    return read_ini(cockpit.path('data', 'config.ini'))


def click(cockpit, place):
    cockpit.click(*place)
    time.sleep(0.5)


def test_use_last_settings_changes_nothing_in_both_shapes(build):
    for size in SIZES:
        with asking(build, size) as cockpit:
            screen = Screen(size)
            wait_for_screen(cockpit, screen)
            cockpit.save(cockpit.look(), 'profiles-%dx%d' % size)
            before = config(cockpit)
            click(cockpit, screen.at(0.87, 0))  # More Details
            cockpit.save(cockpit.look(), 'profiles-details-%dx%d' % size)
            cockpit.key('Return')
            time.sleep(0.4)
            click(cockpit, screen.at(0.4, 0))  # which can't be chosen
            cockpit.save(cockpit.look(), 'profiles-missing-%dx%d' % size)
            cockpit.key('Return')
            time.sleep(0.4)
            click(cockpit, screen.use_last())
            time.sleep(1)
            cockpit.save(cockpit.look(), 'profiles-done-%dx%d' % size)
            assert config(cockpit) == before
            assert cockpit.close() == 0


def test_a_simulator_profile_is_chosen_and_remembered(build):
    size = SIZES[0]
    with asking(build, size) as cockpit:
        screen = Screen(size)
        wait_for_screen(cockpit, screen)
        click(cockpit, screen.at(0.4, SIMULATOR))
        cockpit.save(cockpit.look(), 'profiles-simulator')
        # Four rows, of which the first is the question: the third is XPlane.
        click(cockpit, (size[0] / 2, size[1] / 2 + 0.5 * screen.button))
        cockpit.wait(lambda: config(cockpit)['S1']['FactoryIndex'] == '5', 10, 'X-Plane in the document')
        assert config(cockpit)['']['SensorCount'] == '2'
        assert config(cockpit)['']['D15'] == '1' and config(cockpit)['']['D18'] == '0'
        time.sleep(1)
        cockpit.key('Return')  # it isn't real
        time.sleep(0.3)
        cockpit.feed('--protocol', 'xplane', '--hold', '--state', 'altitude_ft=3500')
        time.sleep(1)
        assert cockpit.close() == 0
        cockpit.start()
        wait_for_screen(cockpit, screen)
        click(cockpit, screen.use_last())
        time.sleep(0.5)
        assert config(cockpit)['S1']['FactoryName'].replace('\\', '') == 'XPlane Flight Simulator'
        assert cockpit.close() == 0


def test_without_logs_the_log_profile_says_so_and_the_screen_comes_back(build):
    size = SIZES[0]
    with asking(build, size) as cockpit:
        screen = Screen(size)
        wait_for_screen(cockpit, screen)
        click(cockpit, screen.at(0.4, LOG))
        cockpit.save(cockpit.look(), 'profiles-no-log')
        cockpit.key('Return')
        wait_for_screen(cockpit, screen)
        assert config(cockpit)['S1']['FactoryIndex'] == '4'
        assert cockpit.close() == 0


def test_a_configuration_can_do_without_the_question(build):
    # The fixture's environment would hide the document's word; an empty one says nothing.
    with Cockpit(build, CONFIG.replace('optimized', 'chooseProfile = 0\noptimized'), size=SIZES[0],
                 environment={'SKYVANE_CHOOSE_PROFILE': ''}) as cockpit:
        cockpit.wait_for_window()
        time.sleep(1)
        pixels = cockpit.look()
        x, y = Screen(SIZES[0]).use_last()
        red, green = (int(v) for v in pixels[int(y), int(x) - 90][:2])
        assert green <= red + 20, (red, green)
        assert cockpit.close() == 0
