"""The demo flight as `./run` prepares it, in the real program: pressed on, replayed, forwarded; and the flight read back by
nothing of the program: its log, the records that are forwarded, the plan's places by hand."""
import math
import os
import socket
import struct
import subprocess
import threading

from cockpit import ROOT, Cockpit
from glass import Glass
from test_profiles import Screen, wait_for_screen
from test_start import read_ini

SIZE = (1280, 720)
LOG = 'Over Corrie Pass.dat'
POSITION, ALTITUDE, GROUND_SPEED, HEADING = 4, 5, 6, 2


class Story(Cockpit):
    """A fresh home with the demo flight, whose records are forwarded to a port of this process."""

    def __init__(self, build):
        self.receiver = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        self.receiver.bind(('127.0.0.1', 0))
        self.receiver.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, 1 << 22)
        super().__init__(build, '', SIZE, environment={'SKYVANE_CHOOSE_PROFILE': ''})
        self.datagrams = []
        threading.Thread(target=self.receive, daemon=True).start()

    def make_home(self, config):
        subprocess.run([os.path.join(ROOT, 'tools/demo/prepare-flight.sh'), self.build, self.home], check=True)
        path = os.path.join(self.home, 'data/config.ini')
        with open(path) as document:
            text = document.read()
        assert 'ForwarderCount = 0\n' in text
        with open(path, 'w') as document:
            document.write(text.replace('ForwarderCount = 0\n', 'ForwarderCount = 1\n') +
                           '\n[F0]\nForwarderFactory = 1\nForwarderFactoryName = UDP\nIpv6 = 0\nBroadcast = 0\n'
                           'TargetAddress = 127.0.0.1\nTargetPort = %d\n' % self.receiver.getsockname()[1])

    def receive(self):
        while True:
            self.datagrams.append(self.receiver.recv(65536))

    def begin(self):
        """From the profile screen into the flight."""
        screen = Screen(SIZE)
        wait_for_screen(self, screen)
        self.save(self.look(), 'story-profiles')
        self.click(*screen.use_last())
        self.wait(lambda: len(self.datagrams) > 3, 30, 'the first records')
        glass = Glass(self, playback=True)
        glass.plan_rows = 3
        self.wait(self.shows_box, 20, 'the word that nothing of this is real')

        def is_gone():
            self.key('Return')
            return not self.shows_box()
        self.wait(is_gone, 20, 'the word to go')
        return glass

    def shows_box(self):
        """Its green button, below the middle."""
        red, green, blue = self.look()[400:425, 560:720].astype(int).transpose(2, 0, 1)
        return ((green > red + 60) & (green > blue + 30)).mean() > 0.7

    def forwarded(self):
        """(type, level, form) of each record, in the order in which they came."""
        records = []
        for datagram in list(self.datagrams):
            place = 0
            while place < len(datagram):
                mark, kind, length, total, level, _ = struct.unpack_from('<4siIBbB', datagram, place)
                packet = datagram[place:place + 15 + length]
                assert mark == b'SDat' and len(packet) == 15 + length, packet[:15]
                assert (sum(packet) - total) % 256 == total, 'its sum'
                records.append((kind, level, packet[15:]))
                place += len(packet)
        return records

    def newest(self, kind):
        return next(form for other, _, form in reversed(self.forwarded()) if other == kind)

    def flight_seconds(self):
        return struct.unpack_from('<I', self.newest(POSITION), 16)[0] / 1000

    def place(self):
        """(latitude, longitude), altitude in feet, ground speed in knots."""
        longitude, latitude = struct.unpack_from('<dd', self.newest(POSITION))
        return ((latitude, longitude), struct.unpack_from('<d', self.newest(ALTITUDE))[0] / 0.3048,
                struct.unpack_from('<d', self.newest(GROUND_SPEED))[0])

    def field(self, kind, page):
        """The rectangle of a value field of the standard pages, landscape."""
        for number in range(120):
            section = self.config()['P%d' % number]
            if (section.get('Type'), section['Page'], section['Portrait']) == (kind, str(page), ''):
                bottom = SIZE[1] - int(0.049410625 * math.sqrt(SIZE[0] * SIZE[1]) + 0.5)
                return tuple(float(section['ViewPort' + edge]) * side
                             for edge, side in (('SX', SIZE[0]), ('SY', bottom), ('TX', SIZE[0]), ('TY', bottom)))
        raise AssertionError('no field ' + kind)

    def config(self):
        return read_ini(self.path('data/config.ini'))


def read_log(path):
    """The records of a log in file order, (type, form), and the times of the instants in milliseconds."""
    with open(path, 'rb') as file:
        log = file.read()
    _, end, types = struct.unpack_from('<III', log)
    records, times, place = [], {}, 12 + 4 * types
    while place < end:
        time, kind, length = struct.unpack_from('<III', log, place)
        form = log[place + 12:place + 12 + length]
        if kind in (POSITION, ALTITUDE, GROUND_SPEED, HEADING):
            times.setdefault(time, {})[kind] = struct.unpack_from('<dd' if kind == POSITION else '<d', form)
        records.append((kind, form))
        place += 12 + length
    return records, times


def is_magenta(pixels):
    red, green, blue = pixels.astype(int).transpose(2, 0, 1)
    return (red > 200) & (blue > 200) & (green < 60)


def is_warning(pixels):
    """Ground in the colours of a warning: red to yellow."""
    red, green, blue = pixels.astype(int).transpose(2, 0, 1)
    return (red > 110) & (blue < 45) & (red > 1.2 * green)
