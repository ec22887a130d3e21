"""Charts at the start: loaded, prepared once, missing, and damaged."""
import os
import struct
import time

from cockpit import Cockpit


def install(cockpit, name, version=2, offsets=None, vendor='Skyvane'):
    """A set of one mark, in the first leaf."""
    data = os.path.join(cockpit.folder, '.Skyvane', 'ChartData')
    folder = os.path.join(data, name)
    os.makedirs(folder, exist_ok=True)
    record = struct.pack('<idd', 4, 89.75, 0.25) + struct.pack('<I5sI', 5, b'Tower', 0)
    offsets = [0] if offsets is None else offsets
    with open(os.path.join(data, name + '.sci'), 'w') as out:
        out.write('ChartVersion=1\nVendor=%s\nAreaName=%s islands\nLocation=%s\n' % (vendor, name, name))
    for file, content in (('ElementOffsets.dat', struct.pack('<iI%dI' % len(offsets), version, len(offsets), *offsets)),
                          ('Elements.dat', record),
                          ('AreaLeafes.dat', struct.pack('<Biii', 1, 7, 1, 0))):
        with open(os.path.join(folder, file), 'wb') as out:
            out.write(content)
    return folder


def log_of(cockpit):
    with open(os.path.join(cockpit.folder, '.Skyvane', 'Logs', 'log.txt'), errors='replace') as log:
        return log.read()


def test_charts_are_prepared_at_the_first_start_with_them_only(build):
    with Cockpit(build) as cockpit:
        cockpit.wait_for_window()
        assert 'No charts are installed.' in log_of(cockpit)
        assert cockpit.close() == 0
        folder = install(cockpit, 'north')
        for prepared in (False, True):
            cockpit.start()
            cockpit.wait_for_window()
            log = log_of(cockpit)
            assert 'building SubCharts' in log and 'building Trie' in log
            assert ('Calculating static chart' in log) != prepared, log
            assert cockpit.close() == 0
            with open(os.path.join(folder, 'AreaLeafesAcc.dat'), 'rb') as acc:
                assert acc.read() == struct.pack('<iiiBBB', 2, 7, 1, 4, 0, 0)


def test_charts_of_another_format_are_told_and_the_rest_flies(build):
    with Cockpit(build) as cockpit:
        cockpit.wait_for_window()
        assert cockpit.close() == 0
        install(cockpit, 'north', version=3)
        cockpit.start()
        cockpit.wait_for_window()
        time.sleep(1)
        cockpit.save(cockpit.look(), 'charts-other-format')
        assert 'is of another format' in log_of(cockpit)
        assert cockpit.close() == 0


def test_charts_that_cant_be_told_apart_end_the_program_with_a_word(build):
    with Cockpit(build) as cockpit:
        cockpit.wait_for_window()
        assert cockpit.close() == 0
        folder = install(cockpit, 'north', offsets=[4, 0])
        cockpit.start()
        cockpit.wait(cockpit.find_window, 20, 'the window')
        cockpit.wait(lambda: 'Press any key to end' in cockpit.output(), 20, 'the word')
        time.sleep(1)
        assert cockpit.alive(), 'the user has to have the time to read'
        pixels = cockpit.look()
        cockpit.save(pixels, 'charts-damaged')
        assert 0.002 < (pixels.min(axis=2) > 200).mean() < 0.2, 'text on black'
        assert 'Monotony in offsets broken! Bad data!' in log_of(cockpit) and folder in log_of(cockpit)
        cockpit.key('Return')
        assert cockpit.program.wait(20) == 1
        os.remove(os.path.join(folder, 'ElementOffsets.dat'))
        cockpit.start()
        cockpit.wait_for_window()
        assert cockpit.close() == 0
