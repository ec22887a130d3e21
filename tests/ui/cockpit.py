"""Drives the real program in a window on a display of its own, as a pilot would: looks, presses keys, clicks, closes.

    with Cockpit(build, config) as cockpit:
        cockpit.wait_for_window()
        pixels = cockpit.look()          # numpy array, height x width x 3

Every process started here is ended by its id when the block ends.
"""
import os
import random
import shutil
import signal
import subprocess
import tempfile
import time

import numpy
from PIL import Image
from Xlib import X, XK, display
from Xlib.ext import xtest
from Xlib.protocol import event

XK.load_keysym_group('xf86')
HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))


def end(process, seconds=5):
    if process.poll() is None:
        process.send_signal(signal.SIGTERM)
        try:
            process.wait(seconds)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


def start_display():
    """A virtual display: (server, name). A number picked by the server itself (-displayfd) takes no lock, and servers of
    other network namespaces would share it."""
    for _ in range(20):
        number = random.randint(100, 32000)
        socket = '/tmp/.X11-unix/X%d' % number
        if os.path.exists(socket):
            continue
        server = subprocess.Popen(['Xvfb', ':%d' % number, '-screen', '0', '1920x1920x24', '-noreset', '-nolisten', 'tcp'],
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        while server.poll() is None:
            if os.path.exists(socket):
                return server, ':%d' % number
            time.sleep(0.02)
    raise AssertionError('no virtual display could be started (Xvfb)')


class Cockpit:
    """One run of the program in a home of its own. `config` is the text of data/config.ini; None lets the program make
    its first start in an empty home."""

    def __init__(self, build, config=None, size=(1280, 720), arguments=None, environment=None, prepare=None):
        self.build = os.path.abspath(build)
        self.size = size
        self.arguments = [str(size[0]), str(size[1])] if arguments is None else arguments
        self.folder = tempfile.mkdtemp(prefix='skyvane-ui-')
        self.home = os.path.join(self.folder, 'home')
        # A first start takes SKYVANE_DATA_ROOT for its data without asking, and no start asks for a sensor profile.
        self.environment = dict(os.environ, HOME=self.folder, SKYVANE_DATA_ROOT=self.folder, SKYVANE_CHOOSE_PROFILE='0',
                                LIBGL_ALWAYS_SOFTWARE='1')
        self.environment.update(environment or {})
        self.processes = []
        self.make_home(config)
        if prepare:
            prepare(self.home)

    def make_home(self, config):
        if config is None:
            os.mkdir(self.home)
            for name, target in (('skyvane', 'source/skyvane'), ('media', 'media')):
                os.symlink(os.path.join(self.build, target), os.path.join(self.home, name))
            return
        path = os.path.join(self.folder, 'config.ini')
        with open(path, 'wb') as out:
            out.write(config if isinstance(config, bytes) else config.encode())
        subprocess.run([os.path.join(ROOT, 'tools/demo/prepare-home.sh'), self.build, self.home, path], check=True)

    def __enter__(self):
        self.server, name = start_display()
        self.environment['DISPLAY'] = name
        self.display = display.Display(name)
        self.start()
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            end(process)
        self.display.close()
        end(self.server)
        keep = os.environ.get('SKYVANE_KEEP')
        if not keep:
            shutil.rmtree(self.folder, ignore_errors=True)

    def start(self):
        self.output_path = os.path.join(self.folder, 'output.txt')
        self.output_file = open(self.output_path, 'ab')
        self.program = subprocess.Popen([os.path.join(self.home, 'skyvane')] + self.arguments, env=self.environment,
                                        stdin=subprocess.DEVNULL, stdout=self.output_file, stderr=subprocess.STDOUT)
        self.processes.append(self.program)

    def feed(self, *arguments):
        """Starts flightfeed with these arguments; end() it to fall silent."""
        self.truth_path = os.path.join(self.folder, 'truth.csv')
        with open(self.truth_path, 'wb') as truth:
            feeder = subprocess.Popen([os.path.join(self.build, 'tools/flightfeed/flightfeed'), *arguments],
                                      stdin=subprocess.DEVNULL, stdout=truth)
        self.processes.append(feeder)
        return feeder

    def truth(self):
        """The state sent last by a feeder that was started with --print, by the names of its columns."""
        with open(self.truth_path) as lines:
            rows = lines.read().split('\n')[:-1]
        return dict(zip(rows[0].split(','), map(float, rows[-1].split(',')))) if len(rows) > 1 else None

    def output(self):
        with open(self.output_path, errors='replace') as text:
            return text.read()

    def path(self, *parts):
        return os.path.join(self.home, *parts)

    def alive(self):
        return self.program.poll() is None

    def wait(self, condition, seconds=20, what='a condition'):
        """Polls until the condition gives something true, and gives that."""
        limit = time.time() + seconds
        while time.time() < limit:
            result = condition()
            if result:
                return result
            time.sleep(0.05)
        raise AssertionError('waited %.0f s in vain for %s; the program said: %s' % (seconds, what, self.output()[-600:]))

    def find_window(self):
        for window in self.display.screen().root.query_tree().children:
            name = window.get_wm_name() or ''
            name = name.decode(errors='replace') if isinstance(name, bytes) else name
            if name.startswith('Skyvane'):
                return window
        return None

    def wait_for_window(self, seconds=60):
        def look():
            if not self.alive():
                raise AssertionError('the program ended: ' + self.output()[-600:])
            return self.find_window()
        window = self.wait(look, seconds, 'the window')
        # The caption carries the frame rate from the first frame on.
        self.wait(lambda: 'FPS' in str(self.find_window().get_wm_name()), seconds, 'the first frame')
        return window

    def look(self):
        """What the window shows, as an array of rows of (red, green, blue)."""
        window = self.find_window()
        geometry = window.get_geometry()
        raw = window.get_image(0, 0, geometry.width, geometry.height, X.ZPixmap, 0xffffffff)
        pixels = numpy.frombuffer(raw.data, numpy.uint8).reshape(geometry.height, geometry.width, 4)
        return pixels[:, :, 2::-1].copy()

    def save(self, pixels, name):
        folder = os.environ.get('SKYVANE_PICTURES', os.path.join(self.build, 'test-pictures'))
        os.makedirs(folder, exist_ok=True)
        Image.fromarray(pixels).save(os.path.join(folder, name + '.png'))

    def key(self, name, pause=0.05):
        code = self.display.keysym_to_keycode(XK.string_to_keysym(name))
        assert code, 'no key ' + name
        self.focus()
        for kind in (X.KeyPress, X.KeyRelease):
            xtest.fake_input(self.display, kind, code)
            self.display.sync()
            time.sleep(pause)

    def focus(self):
        self.find_window().set_input_focus(X.RevertToParent, X.CurrentTime)
        self.display.sync()

    def click(self, x, y):
        corner = self.find_window().get_geometry()
        xtest.fake_input(self.display, X.MotionNotify, x=corner.x + int(x), y=corner.y + int(y))
        self.display.sync()
        for kind in (X.ButtonPress, X.ButtonRelease):
            time.sleep(0.08)
            xtest.fake_input(self.display, kind, 1)
            self.display.sync()

    def drag(self, start, stop, steps=8):
        corner = self.find_window().get_geometry()
        for step in range(steps + 1):
            share = step / steps
            xtest.fake_input(self.display, X.MotionNotify, x=int(corner.x + start[0] + (stop[0] - start[0]) * share),
                             y=int(corner.y + start[1] + (stop[1] - start[1]) * share))
            self.display.sync()
            time.sleep(0.06)
            if step == 0:
                xtest.fake_input(self.display, X.ButtonPress, 1)
                self.display.sync()
                time.sleep(0.08)
        xtest.fake_input(self.display, X.ButtonRelease, 1)
        self.display.sync()

    def close(self, seconds=30):
        """Closes the window as a window manager does; gives the program's exit status."""
        window = self.find_window()
        protocols = self.display.intern_atom('WM_PROTOCOLS')
        delete = self.display.intern_atom('WM_DELETE_WINDOW')
        window.send_event(event.ClientMessage(window=window, client_type=protocols,
                                              data=(32, [delete, X.CurrentTime, 0, 0, 0])))
        self.display.sync()
        return self.program.wait(seconds)
