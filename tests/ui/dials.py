"""Reads the round dials from the pixels of the glass, knowing nothing but how they are drawn: faces of 0.839344 of the
square's edge, hands, a card, a horizon. Angles are degrees, clockwise from up."""
import math
import os

import numpy
from PIL import Image

FACE = 0.839344262295082
HALF_DRAWING = 500.0  # a face drawing's radius in its own units


def panel_area(size):
    """What the menu's bar leaves of a window."""
    return size[0], size[1] - int(0.049410625 * math.sqrt(size[0] * size[1]) + 0.5)


class Dial:
    """The square of a dial in an area. `place`: its rectangle as fractions (left, top, right, bottom)."""

    def __init__(self, place, size):
        left, top, right, bottom = (place[0] * size[0], place[1] * size[1], place[2] * size[0], place[3] * size[1])
        self.edge = min(int(right) - int(left), int(bottom) - int(top))
        self.x, self.y = (int(left) + int(right)) / 2, (int(top) + int(bottom)) / 2
        self.radius = self.edge * FACE / 2

    def cut(self, pixels):
        half = self.edge // 2
        return pixels[int(self.y) - half:int(self.y) + half, int(self.x) - half:int(self.x) + half]

    def ring(self, pixels, radius, count=1440):
        """The pixels on a circle at this share of the face's radius, from up clockwise."""
        angles = numpy.arange(count) * 2 * math.pi / count
        x = numpy.clip(numpy.round(self.x + radius * self.radius * numpy.sin(angles)).astype(int), 0, pixels.shape[1] - 1)
        y = numpy.clip(numpy.round(self.y - radius * self.radius * numpy.cos(angles)).astype(int), 0, pixels.shape[0] - 1)
        return pixels[y, x].astype(float)

    def share(self, pixels, test):
        """The share of the dial's square for which test(red, green, blue) holds."""
        part = self.cut(pixels).astype(int)
        return float(numpy.mean(test(part[:, :, 0], part[:, :, 1], part[:, :, 2])))

    def needle(self, pixels, radius, blind=()):
        """The direction of the widest bright thing on the circle; `blind`: (from, to) sectors not to look at."""
        values = self.ring(pixels, radius).mean(axis=1)
        count = len(values)
        for start, stop in blind:
            for i in range(int(start * count / 360), int(stop * count / 360)):
                values[i % count] = 0
        bright = values > 110
        best, best_width = None, 0
        start = int(numpy.argmin(bright)) if not bright.all() else 0
        i = 0
        while i < count:
            j = (start + i) % count
            if not bright[j]:
                i += 1
                continue
            width = 0
            while bright[(j + width) % count] and width < count:
                width += 1
            weights = numpy.array([values[(j + k) % count] for k in range(width)])
            if width > best_width:
                best, best_width = (j + float((weights * numpy.arange(width)).sum() / weights.sum())) * 360 / count, width
            i += width
        return None if best is None else best % 360

    def card(self, pixels, build, radii=(0.58, 0.62, 0.65, 0.68, 0.72)):
        """How far the compass card stands turned clockwise, by matching its drawing against the glass."""
        drawing = numpy.asarray(Image.open(os.path.join(build, 'media/comp_card.png')).convert('RGB'))
        own = Dial((0, 0, 1, 1), (drawing.shape[1], drawing.shape[0]))
        own.radius = drawing.shape[0] / 2
        score = 0
        for radius in radii:
            seen = self.ring(pixels, radius).mean(axis=1)
            card = own.ring(drawing, radius).mean(axis=1)
            seen, card = seen - seen.mean(), card - card.mean()
            score = score + numpy.fft.ifft(numpy.fft.fft(seen) * numpy.conj(numpy.fft.fft(card))).real
        return float(numpy.argmax(score)) * 360 / len(score)

    def horizon(self, pixels, window=0.70):
        """(bank, pitch) in degrees as the attitude dial shows them, right bank and nose up positive."""
        reach = int(window * self.radius)
        grid = numpy.arange(-reach, reach + 1, 3)
        across, down = numpy.meshgrid(grid, grid)
        inside = across ** 2 + down ** 2 <= reach ** 2
        part = pixels[(int(self.y) + grid)[:, None], (int(self.x) + grid)[None, :]].astype(int)
        sky = inside & (part[:, :, 2] > part[:, :, 0] + 40)
        ground = inside & (part[:, :, 0] > part[:, :, 2] + 25) & (part[:, :, 1] < 150)
        if sky.sum() < 20 or ground.sum() < 20:
            return None
        x = numpy.concatenate([across[sky], across[ground]])
        up = numpy.concatenate([-down[sky], -down[ground]])
        is_sky = numpy.concatenate([numpy.ones(sky.sum(), bool), numpy.zeros(ground.sum(), bool)])

        def split(lean):
            """The fewest pixels on the wrong side of a line across this direction of up, and where it lies."""
            along = -x * math.sin(math.radians(lean)) + up * math.cos(math.radians(lean))
            order = numpy.argsort(along)
            ordered = is_sky[order]
            wrong = numpy.cumsum(ordered) + (len(ordered) - ordered.sum() - numpy.cumsum(~ordered))
            cut = int(numpy.argmin(wrong))
            return int(wrong[cut]), float(lean), float(along[order[cut]])

        rough = min(split(lean) for lean in range(-180, 180, 5))
        best = min(split(rough[1] + fine) for fine in numpy.arange(-5, 5.01, 0.25))
        degree = 0.76 * 2 * self.radius / 90
        return best[1], -best[2] / degree


def red(r, g, b):
    return (r > 170) & (g < 90) & (b < 90)


def yellow(r, g, b):
    return (r > 170) & (g > 140) & (b < 100)
