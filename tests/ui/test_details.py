"""The details of a chart element: the panel, its search box, and the screen that the moving map opens."""
import time

from cockpit import Cockpit
from glass import Glass
from islands import install
from test_dials import DEMO, dismiss_box, hold

DETAILS = 'displays/information/documents/details*.ini'
HEAD = DEMO.split('[P0]')[0]
PLACE = 'ViewPortSX = 0\nViewPortSY = 0\nViewPortTX = 1\nViewPortTY = 1\nSensorCount = 1\nSensor0 = -1\nPage = %d\nPortrait = %s\n'


def pages(size):
    """The details on the first page, a moving map on the second."""
    place = PLACE % (0, int(size[1] > size[0])) + 'FactoryIndex = 15\nFactoryName = Details\n'
    chart = PLACE % (1, int(size[1] > size[0])) + 'FactoryIndex = 2\nFactoryName = 2D-Map\nbgType = none\n'
    return HEAD.replace('PanelCount = 10', 'PanelCount = 2') + '[P0]\n' + place + '[P1]\n' + chart


class Reader(Glass):
    def __init__(self, cockpit):
        super().__init__(cockpit)
        cockpit.wait_for_window()
        dismiss_box(cockpit)
        hold(cockpit, 'flightgear', latitude=42.3, longitude=-28.4, altitude_ft=3500, heading=30, ias_kt=110)

    def keep(self, name):
        time.sleep(0.4)
        self.cockpit.save(self.cockpit.look(), 'details-%s-%dx%d' % (name, self.width, self.height))

    def place(self, name):
        left, top, right, bottom = self.element_rect(DETAILS, name, self.panel())
        return int(left), int(top), int(right), int(bottom)

    def panel(self):
        return 0, 0, self.width, self.height - self.button

    def tap(self, name):
        left, top, right, bottom = self.place(name)
        self.click((left + right) / 2, (top + bottom) / 2)

    def brightness(self, name):
        """How much of an element's place is as bright as text."""
        left, top, right, bottom = self.place(name)
        return (self.cockpit.look()[top + 4:bottom - 4, left + 4:right - 4].min(axis=2) > 150).mean()


def look_up(build, size):
    with Cockpit(build, pages(size), size, prepare=install(build)) as cockpit:
        reader = Reader(cockpit)
        reader.keep('empty')
        assert reader.brightness('lfrequencies') == 0
        reader.tap('bselect')
        for letter in 'ncp':
            cockpit.key(letter, pause=0.05)
        reader.keep('search')
        cockpit.key('Return')
        time.sleep(0.4)
        reader.tap('bselect')
        cockpit.wait(lambda: reader.brightness('lfrequencies') > 0.003, 20, 'the frequencies')
        assert reader.brightness('stext') > 0.001, 'its channel'
        reader.keep('navaid')
        reader.tap('bmaps')
        time.sleep(1)
        reader.keep('map')
        assert cockpit.close() == 0


def test_a_place_is_looked_up(build):
    look_up(build, (1280, 720))


def test_a_place_is_looked_up_on_a_tall_screen(build):
    look_up(build, (720, 1280))
