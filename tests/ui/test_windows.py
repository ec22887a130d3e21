"""Windows: the data location dialog of a first start, clicked through."""
import os
import time

from cockpit import Cockpit
from test_start import read_ini


def first_start(build, size):
    """A start that asks: no folder is given, and there is no data.ini."""
    return Cockpit(build, size=size, environment={'SKYVANE_DATA_ROOT': ''})


def inside(size, x, y):
    """Pixels of a point of the dialog, which has one of two ratios and is centred."""
    ratio = 1.77778 if size[0] >= size[1] else 0.5625
    width = min(size[0], size[1] * ratio)
    height = width / ratio
    return (size[0] - width) / 2 + x * width, (size[1] - height) / 2 + y * height


def wait_for_dialog(cockpit, size):
    """The dialog stands when its "Ok" button is lighter than the black around the window's text."""
    cockpit.wait(cockpit.find_window, 60, 'the window')

    def shown():
        x, y = inside(size, 0.43, 0.92)
        return cockpit.look()[int(y), int(x)].max() > 25
    cockpit.wait(shown, 30, 'the dialog')
    time.sleep(0.3)


def test_the_first_start_asks_for_the_data_location(build):
    for size in ((1280, 720), (720, 1280)):
        with first_start(build, size) as cockpit:
            wait_for_dialog(cockpit, size)
            cockpit.save(cockpit.look(), 'data-location-%dx%d' % size)
            assert not os.path.exists(cockpit.path('data', 'data.ini'))
            cockpit.click(*inside(size, 0.50, 0.92))
            cockpit.wait_for_window()
            data = read_ini(cockpit.path('data', 'data.ini'))['']
            for key in ('Backgrounds', 'Terrain', 'Data', 'Logs'):
                assert data[key] == cockpit.folder + '/', (key, data[key])
            assert data['Vendor'] == 'Skyvane'
            assert os.path.isdir(os.path.join(cockpit.folder, '.Skyvane', 'ChartData'))
            assert cockpit.close() == 0


def test_another_folder_can_be_chosen_for_one_kind_of_data(build):
    size = (1280, 720)
    with first_start(build, size) as cockpit:
        wait_for_dialog(cockpit, size)
        cockpit.click(*inside(size, 0.48, 0.24))
        time.sleep(0.4)
        cockpit.save(cockpit.look(), 'data-location-list')
        # The second row of the list that hangs below the box.
        row = 0.28 + 1.5 * (0.049410625 * (size[0] * size[1]) ** 0.5) / size[1]
        cockpit.click(*inside(size, 0.48, row))
        time.sleep(0.4)
        cockpit.save(cockpit.look(), 'data-location-chosen')
        cockpit.click(*inside(size, 0.50, 0.92))
        cockpit.wait_for_window()
        data = read_ini(cockpit.path('data', 'data.ini'))['']
        assert data['Data'] == cockpit.folder + '/'
        assert data['Logs'] != cockpit.folder + '/'
        assert os.path.isdir(os.path.join(data['Logs'], '.Skyvane', 'Logs'))
        assert cockpit.close() == 0


def test_closing_the_window_in_place_of_an_answer_asks_again(build):
    size = (1280, 720)
    with first_start(build, size) as cockpit:
        wait_for_dialog(cockpit, size)
        assert cockpit.close() == 0
        assert not os.path.exists(cockpit.path('data', 'data.ini'))
        assert not os.path.exists(cockpit.path('data', '2.9_data_created'))
        cockpit.start()
        wait_for_dialog(cockpit, size)
        cockpit.click(*inside(size, 0.50, 0.92))
        cockpit.wait_for_window()
        assert cockpit.close() == 0
