"""What a damaged installation does: a clear word and a sane default, never a crash."""
import os
import random
import shutil
import socket
import subprocess
import tempfile
import time

import numpy

from cockpit import ROOT, Cockpit
from dials import yellow
from run_tests import thorough
from test_menu import Flight

DEMO = open(os.path.join(ROOT, 'tools/demo/config.ini')).read()


def flies(build, config=None, prepare=None, seconds=1.5, name=None):
    """Starts, runs for a while, must still live and close in order; gives its output."""
    with Cockpit(build, config, prepare=prepare) as cockpit:
        cockpit.wait_for_window()
        time.sleep(seconds)
        assert cockpit.alive(), cockpit.output()[-600:]
        if name:
            cockpit.save(cockpit.look(), name)
        assert cockpit.close() == 0, cockpit.output()[-600:]
        logs = ''
        for folder, _, files in os.walk(cockpit.folder):
            if 'log.txt' in files:
                logs += open(os.path.join(folder, 'log.txt'), errors='replace').read()
        return cockpit.output() + logs


def test_documents_of_garbage(build):
    noise = random.Random(7)
    flies(build, bytes(noise.randrange(256) for _ in range(20000)))
    head = b'major = 2\nminor = 9\n'
    flies(build, head + b'PanelCount = 4000000000\nSensorCount = 4000000000\nForwarderCount = -7\nD5 = 99\nfont = no such font\n'
          b'fontOffset = 1e300\n')
    flies(build, head + b'PanelCount = 1e9999\nSensorCount = nan\nunits = ?\nblacklist = ,,,,\n[P0]\n')


def test_wrong_indices_and_rectangles(build):
    config = DEMO
    for before, after in (('FactoryIndex = 9', 'FactoryIndex = -3'), ('FactoryIndex = 8', 'FactoryIndex = 999999'),
                          ('ViewPortSX = 0.28', 'ViewPortSX = nan'), ('ViewPortTX = 1.0', 'ViewPortTX = 1e300'),
                          ('ViewPortSY = 0.5', 'ViewPortSY = -inf'), ('Page = 0', 'Page = -5')):
        assert before in config, before
        config = config.replace(before, after, 1)
    flies(build, config, name='wrong-rectangles')


def test_ten_thousand_panels(build):
    lines = [line for line in DEMO.split('[P0]')[0].split('\n') if not line.startswith('PanelCount')]
    config = 'PanelCount = 10000\n' + '\n'.join(lines)
    for i in range(10000):
        config += ('\n[P%d]\nFactoryIndex = %d\nPage = %d\nPortrait = 0\nType = SPEED\nViewPortSX = %f\n'
                   'ViewPortSY = 0\nViewPortTX = %f\nViewPortTY = 1' % (i, i % 20, i % 500, i % 7 / 7, i % 5 / 5))
    flies(build, config, name='ten-thousand-panels')


@thorough
def test_a_storm_of_keys_and_clicks(build):
    noise = random.Random(11)
    keys = ['Return', 'Escape', 'Prior', 'Next', 'Tab', 'BackSpace', 'End', 'a', '7', 'space', 'XF86_Back', 'Left']
    with Cockpit(build, DEMO, environment={'BROWSER': 'true'}) as cockpit:
        cockpit.wait_for_window()
        for _ in range(8):
            for _ in range(12):
                if not cockpit.alive():
                    break
                if noise.random() < 0.3:
                    cockpit.key(noise.choice(keys), pause=0.0)
                else:  # half of them where the menu is
                    width = cockpit.size[0] * noise.choice((0.25, 1.0))
                    cockpit.drag((noise.random() * width, noise.random() * cockpit.size[1]),
                                 (noise.random() * width, noise.random() * cockpit.size[1]), steps=noise.choice((1, 1, 2)))
        if cockpit.alive():
            time.sleep(1)
            cockpit.save(cockpit.look(), 'after-the-storm')
            assert cockpit.close() == 0, cockpit.output()[-600:]
        assert cockpit.program.returncode == 0, cockpit.output()[-600:]  # the storm may have found the exit


@thorough
def test_documents_that_cannot_be_saved_are_told(build):
    """While a folder stands in the place of a document nothing can be written there."""
    with Cockpit(build, DEMO) as cockpit:
        flight = Flight(cockpit)

        def unwritable(name):
            path = cockpit.path('data', name)
            if os.path.isdir(path):
                os.rmdir(path)
                os.rename(path + '.kept', path)
            else:
                os.rename(path, path + '.kept')
                os.mkdir(path)

        def is_told():
            flight.answer('green')
            time.sleep(0.3)
            assert not flight.coloured('green'), 'one box'
        before = flight.text()
        flight.open('General Setup')
        flight.click(*flight.editor_row(4))
        unwritable('config.ini')
        flight.click(*flight.editor_button('Ok'))
        is_told()
        unwritable('config.ini')
        flight.open('Change Sensors')
        flight.press('sensors/setup/documents/sensorSetup*.ini', 'beuse')
        unwritable('config.ini')
        flight.press('sensors/setup/documents/sensorSetup*.ini', 'bok')
        is_told()
        unwritable('config.ini')
        assert flight.text() == before

        flight.open('Forwarding')
        area = flight.lower_area()
        flight.press('gui/menu/documents/forwarders*.ini', 'badd', area)
        time.sleep(0.7)
        unwritable('config.ini')
        cockpit.key('Return')

        def is_yellow():
            above = cockpit.look()[:int(area[1])].astype(int)  # the window
            return numpy.mean(yellow(above[:, :, 0], above[:, :, 1], above[:, :, 2])) > 0.005
        cockpit.wait(is_yellow, 20, 'a yellow message')
        cockpit.save(cockpit.look(), 'forwarders-not-saved')
        unwritable('config.ini')
        assert flight.text() == before
        flight.press('gui/menu/documents/forwarders*.ini', 'bclose', area)

        before = flight.text('aircrafts')
        flight.open('Aircraft Setup')
        flight.press('gui/windows/documents/listScreen*.ini', 'bnew')
        unwritable('aircrafts.ini')
        flight.click(*flight.editor_button('Ok'))
        flight.answer('green')
        unwritable('aircrafts.ini')
        assert flight.text('aircrafts') == before
        assert cockpit.close() == 0


def test_missing_fonts_and_images(build):
    def without(*names):
        def prepare(home):
            media = os.path.join(home, 'media')
            os.remove(media)
            shutil.copytree(os.path.join(build, 'media'), media)
            for name in names:
                path = os.path.join(media, name)
                shutil.rmtree(path) if os.path.isdir(path) else os.remove(path)
        return prepare

    said = flies(build, DEMO, without('sdff'), name='no-fonts')
    assert 'font' in said.lower()
    said = flies(build, DEMO, without('alt_bg.png', 'comp_card.png', 'gauge_back_alpha.png'), name='no-images')
    assert 'alt_bg.png' in said

    def without_media(home):
        os.remove(os.path.join(home, 'media'))
    flies(build, DEMO, without_media)


def test_damaged_fonts_and_images(build):
    def damage(home):
        media = os.path.join(home, 'media')
        os.remove(media)
        shutil.copytree(os.path.join(build, 'media'), media)
        for name in os.listdir(os.path.join(media, 'sdff')):
            path = os.path.join(media, 'sdff', name)
            if name.endswith('.fnt'):
                with open(path, 'r+b') as font:
                    font.truncate(os.path.getsize(path) // 2)
        with open(os.path.join(media, 'alt_100.png'), 'wb') as image:
            image.write(b'not a picture')
    flies(build, DEMO, damage, name='damaged-media')


def test_home_that_cannot_be_written(build):
    def seal(home):
        shutil.rmtree(os.path.join(home, 'data'))
        open(os.path.join(home, 'data'), 'w').write('a file where the folder should be')
    said = flies(build, DEMO, seal)
    assert 'data could not be created' in said or 'could not' in said


def test_settings_of_an_older_version_are_kept_aside_and_told(build):
    old = DEMO.replace('minor = 9', 'minor = 7').replace('units = ', 'unknownToday = 1\nformerUnits = ')
    with Cockpit(build, old) as cockpit:
        cockpit.wait_for_window()
        assert 'settings of version 2.7 don\'t fit' in cockpit.output(), cockpit.output()
        with open(cockpit.path('data/config.ini.old')) as kept:
            assert kept.read() == old
        assert cockpit.close() == 0
        assert 'minor = 9' in open(cockpit.path('data/config.ini')).read()
    # Of this version, but with keys that are missing or unknown: what isn't there has its default.
    sparse = '\n'.join(line for line in DEMO.split('\n') if line.split(' = ')[0] not in
                       ('font', 'units', 'drawFPS', 'terrainDetailLevel', 'D4', 'showPopups', 'ForwarderCount'))
    flies(build, 'unknownToday = 1\n' + sparse)


def in_a_small_disk(build, fill, words):
    """Starts in a home on a file system of its own, which `fill` has made useless; it must say the words, and fly."""
    def prepare(home):
        os.rename(home, home + '.kept')
        os.mkdir(home)
        subprocess.run(['mount', '-t', 'tmpfs', '-o', 'size=1m', 'none', home], check=True)
        subprocess.run(['cp', '-a', home + '.kept/.', home], check=True)
        fill(home)
    cockpit = Cockpit(build, DEMO, prepare=prepare)
    try:
        with cockpit:
            cockpit.wait_for_window()
            time.sleep(1.5)
            cockpit.save(cockpit.look(), 'small-disk')
            said = [line for line in cockpit.output().split('\n') if words in line]
            assert len(said) == 1, cockpit.output()[-900:]
            cockpit.key('Next')
            assert cockpit.close() == 0, cockpit.output()[-600:]
    finally:
        subprocess.run(['umount', cockpit.home], check=True)
        shutil.rmtree(cockpit.folder, ignore_errors=True)


def test_a_home_where_nothing_can_be_saved_is_told(build):
    if subprocess.run(['unshare', '--mount', 'true'], stderr=subprocess.DEVNULL).returncode != 0:
        print('skipped: a disk that is full, since nothing can be mounted here')
        return

    def seal(home):
        subprocess.run(['mount', '-o', 'remount,ro', home], check=True)

    def fill(home):
        filler = os.open(os.path.join(home, 'filler'), os.O_WRONLY | os.O_CREAT)
        try:
            while True:
                os.write(filler, b'x' * 4096)
        except OSError:
            os.close(filler)
    in_a_small_disk(build, seal, 'make it writable')
    in_a_small_disk(build, fill, 'The disk is full')


def test_a_display_that_is_not_there_is_told(build):
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([os.path.join(ROOT, 'tools/demo/prepare-home.sh'), build, folder], check=True)
        for name in (None, ':64999'):
            environment = dict(os.environ, DISPLAY=name or '')
            run = subprocess.run([os.path.join(folder, 'skyvane')], env=environment, stdout=subprocess.PIPE,
                                 stderr=subprocess.PIPE, text=True, timeout=20)
            assert run.returncode == 1 and run.stderr.startswith('Skyvane: no display'), (run.returncode, run.stderr)
            assert run.stderr.count('\n') == 1, run.stderr


def test_run_tells_wrong_arguments(build):
    """Before it builds anything."""
    for arguments in (['bogus'], ['800'], ['0', '0'], ['800', 'wide'], ['1', '2', '3'], ['flightgear', 'x']):
        run = subprocess.run([os.path.join(ROOT, 'run'), *arguments], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                             text=True, timeout=20)
        assert run.returncode == 2 and run.stderr.count('\n') == 1 and './run [' in run.stderr, (arguments, run.stderr)


def test_a_missing_network_is_told_to_who_listens(build):
    simulator = 'FactoryIndex = 4\nFactoryName = FlightGear\\ Flight\\ Simulator'
    assert simulator in DEMO
    said = flies(build, DEMO.replace(simulator, 'FactoryIndex = 6\nFactoryName = GDL90\nport = 4000\nflavor = Generic'))
    if [name for _, name in socket.if_nameindex()] == ['lo']:  # as in a network of its own
        assert 'No network is up: join' in said, said
    assert 'No network' not in flies(build, DEMO), 'a simulator runs on the same computer'
