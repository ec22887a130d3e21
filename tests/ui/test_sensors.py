"""The sensor setup screen, opened from the menu and clicked through."""
import time

from cockpit import Cockpit
from glass import RED, Glass
from test_start import read_ini

SIZE = (1280, 720)
# Two simulators; all data comes from the first.
CONFIG = ('major = 2\nminor = 9\noptimized = 0\nSensorCount = 3\n' + ''.join('D%d = 1\n' % t for t in range(21)) +
          '[S1]\nFactoryIndex = 4\nFactoryName = FlightGear Flight Simulator\n'
          '[S2]\nFactoryIndex = 5\nFactoryName = XPlane Flight Simulator\n')


def click(cockpit, x, y):
    """A place as shares of the screen, which the layout fills."""
    cockpit.click(SIZE[0] * x, SIZE[1] * y)
    time.sleep(0.4)


def open_setup(cockpit):
    cockpit.wait_for_window()
    time.sleep(0.5)
    for _ in range(2):  # each simulator says that it isn't real
        click(cockpit, 0.5, 0.555)
    Glass(cockpit).open('Change Sensors')


def config(cockpit):
    return read_ini(cockpit.path('data', 'config.ini'))


def test_the_sensor_setup_changes_the_document_on_ok_only(build):
    with Cockpit(build, CONFIG, size=SIZE) as cockpit:
        open_setup(cockpit)
        cockpit.save(cockpit.look(), 'sensor-setup')
        cockpit.key('XF86_Back')
        cockpit.wait(lambda: not Glass(cockpit).coloured(RED), 10, 'the screen to go')
        Glass(cockpit).open('Change Sensors')
        click(cockpit, 0.17, 0.785)  # Use, the one in use
        click(cockpit, 0.11, 0.93)  # Cancel
        assert config(cockpit)['']['SensorCount'] == '3'
        Glass(cockpit).open('Change Sensors')
        click(cockpit, 0.17, 0.785)
        click(cockpit, 0.89, 0.93)  # Ok
        cockpit.wait(lambda: config(cockpit)['']['SensorCount'] == '2', 10, 'one sensor in the document')
        document = config(cockpit)
        assert document['S1']['FactoryIndex'] == '4', document['S1']
        assert 'S2' not in document
        assert document['']['D4'] == '1' and document['']['D15'] == '0'
        time.sleep(0.5)
        cockpit.save(cockpit.look(), 'sensor-setup-done')
        assert cockpit.close() == 0


def test_the_advanced_form_removes_a_sensor(build):
    with Cockpit(build, CONFIG, size=SIZE) as cockpit:
        open_setup(cockpit)
        click(cockpit, 0.46, 0.785)  # Advanced
        cockpit.save(cockpit.look(), 'sensor-setup-advanced')
        click(cockpit, 0.42, 0.585)  # Remove the first
        cockpit.save(cockpit.look(), 'sensor-setup-removed')
        click(cockpit, 0.89, 0.93)
        cockpit.wait(lambda: config(cockpit)['']['SensorCount'] == '2', 10, 'one sensor in the document')
        document = config(cockpit)
        assert document['S1']['FactoryIndex'] == '5', document['S1']
        assert document['']['D4'] == '0'
        assert cockpit.close() == 0
