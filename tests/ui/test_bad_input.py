"""What a damaged installation does: a clear word and a sane default, never a crash."""
import os
import random
import shutil
import time

from cockpit import ROOT, Cockpit

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
