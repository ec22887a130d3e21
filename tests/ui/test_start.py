"""Start and stop: the first start of an empty home, the documents, the log, the screenshot key, the ways of ending."""
import os
import stat
import subprocess
import time

import numpy
from PIL import Image

from cockpit import Cockpit
from dials import panel_area
from run_tests import smoke


def read_ini(path):
    sections, name = {'': {}}, ''
    for line in open(path):
        line = line.rstrip('\n')
        if line.startswith('['):
            name = line[1:-1]
            sections.setdefault(name, {})
        elif ' = ' in line:
            key, value = line.split(' = ', 1)
            sections[name][key] = value
    return sections


@smoke
def test_first_start_makes_a_home_and_ends_in_order(build):
    with Cockpit(build) as cockpit:
        cockpit.wait_for_window()
        for name in ('config', 'calibration', 'extSensorConfig', 'hotspot', 'aircrafts', 'data'):
            assert os.path.isfile(cockpit.path('data', name + '.ini')), name
        assert os.path.isfile(cockpit.path('data', '2.9_data_created'))
        for folder in ('customElements', 'Screenshots', 'data/Packages'):
            assert stat.S_IMODE(os.stat(cockpit.path(folder)).st_mode) & 0o700 == 0o700, folder
        config = read_ini(cockpit.path('data', 'config.ini'))
        assert config['']['PanelCount'] == '120' and config['']['minor'] == '9'
        assert sum(name.startswith('P') for name in config) == 120
        data = read_ini(cockpit.path('data', 'data.ini'))['']
        assert os.path.isfile(os.path.join(data['Logs'], '.Skyvane', 'Logs', 'log.txt'))
        assert cockpit.close() == 0
        assert 'Skyvane Exit' in cockpit.output()


def test_second_start_keeps_settings_and_an_old_version_is_replaced_with_a_word(build):
    with Cockpit(build) as cockpit:
        cockpit.wait_for_window()
        assert cockpit.close() == 0
        path = cockpit.path('data', 'config.ini')
        text = open(path).read()
        open(path, 'w').write(text.replace('drawFPS = 0', 'drawFPS = 1'))
        cockpit.start()
        cockpit.wait_for_window()
        assert read_ini(path)['']['drawFPS'] == '1'
        assert cockpit.close() == 0
        open(path, 'w').write(text.replace('minor = 9', 'minor = 8').replace('drawFPS = 0', 'drawFPS = 1'))
        cockpit.start()
        cockpit.wait_for_window()
        assert read_ini(path)['']['drawFPS'] == '0' and read_ini(path)['']['minor'] == '9'
        time.sleep(0.5)
        pixels = cockpit.look()
        cockpit.save(pixels, 'version-message')
        # The yellow box of the message stands at the top, above what the panels have claimed.
        width, end = panel_area((pixels.shape[1], pixels.shape[0]))
        middle = pixels[:end, width // 2 - 100:width // 2 + 100].astype(int)
        yellow = ((middle[..., :2].min(axis=2) > 170) & (middle[..., 2] < 90)).mean(axis=1)
        share = max(yellow[row:row + 30].mean() for row in range(end - 30))
        assert share > 0.3, share


@smoke
def test_insert_saves_what_the_window_shows(build):
    with Cockpit(build) as cockpit:
        cockpit.wait_for_window()
        time.sleep(1)
        shown = cockpit.look().astype(int)
        cockpit.key('Insert')

        def pictures():
            return [name for name in os.listdir(cockpit.path('Screenshots')) if name.endswith('.png')]
        saved = cockpit.wait(pictures, 10, 'a screenshot')
        time.sleep(0.5)
        picture = numpy.asarray(Image.open(cockpit.path('Screenshots', saved[0])).convert('RGB')).astype(int)
        assert picture.shape == shown.shape
        assert shown.max() > 60, 'the page is black'
        different = (abs(picture - shown).max(axis=2) > 12).mean()
        assert different < 0.02, different


def run_plainly(build, arguments, environment=None):
    return subprocess.run([os.path.join(build, 'source/skyvane')] + arguments, capture_output=True, text=True,
                          timeout=60, env=dict(os.environ, **(environment or {})))


def test_wrong_arguments_and_no_display_end_with_a_clear_word(build):
    usage = 'Usage: main64|32 without parameters'
    for arguments in (['800'], ['1', '2', '3', '4']):
        result = run_plainly(build, arguments)
        assert result.returncode == 0 and usage in result.stdout, result
    environment = {name: value for name, value in os.environ.items() if name != 'DISPLAY'}
    result = subprocess.run([os.path.join(build, 'source/skyvane'), '800', '600'], capture_output=True, text=True,
                            timeout=60, env=environment)
    assert result.returncode == 1, result
    assert 'display' in (result.stdout + result.stderr).lower()


def test_portrait_and_odd_sizes_start(build):
    for size in ((720, 1280), (800, 480), (641, 353)):
        with Cockpit(build, size=size) as cockpit:
            cockpit.wait_for_window()
            pixels = cockpit.look()
            assert pixels.shape[:2] == (size[1], size[0])
            cockpit.save(pixels, 'first-start-%dx%d' % size)
            assert cockpit.close() == 0
