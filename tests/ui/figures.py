"""Reads the figures of value fields from the pixels. What a digit looks like is learned from fields whose value is known,
so nothing here knows the font."""
import numpy

GRID = (18, 12)


def value_ink(pixels, place):
    """How much of each pixel of a field's value is ink, 0 to 1."""
    left, top, right, bottom = map(int, place)
    rim = (bottom - top) // 8
    lower = pixels[(top + bottom) // 2:bottom - rim, left + rim:right - rim].astype(float)
    return numpy.clip((lower.min(axis=2) - 90.0) / 120.0, 0.0, 1.0)


def glyphs(bright):
    """The signs of a line of ink, from left to right, as grids of coverage with their height in the line."""
    inked = bright.max(axis=0) > 0.3
    edges = numpy.flatnonzero(numpy.diff(numpy.concatenate(([False], inked, [False])).astype(int)))
    rows = numpy.flatnonzero(bright.max(axis=1) > 0.3)
    if not len(rows):
        return []
    line = bright[rows[0]:rows[-1] + 1]
    return [trim(line[:, a:b]) for a, b in zip(edges[::2], edges[1::2])]


def trim(sign):
    """(share of the line's height, where it begins in it, shape): a colon, a degree sign and a digit differ in these."""
    rows = numpy.flatnonzero(sign.max(axis=1) > 0.3)
    cut = sign[rows[0]:rows[-1] + 1]
    y = (numpy.arange(GRID[0]) + 0.5) * cut.shape[0] / GRID[0]
    x = (numpy.arange(GRID[1]) + 0.5) * cut.shape[1] / GRID[1]
    return (len(cut) / len(sign), cut.shape[1] / len(sign), cut[y.astype(int)][:, x.astype(int)])


class FigureReader:
    """`ink` gives the coverage of a place's line of text; that of a value field's value without it."""

    def __init__(self, ink=value_ink):
        self.ink = ink
        self.known = []

    def learn(self, pixels, place, text):
        signs = glyphs(self.ink(pixels, place))
        assert len(signs) == len(text), (len(signs), text)
        self.known += [(letter, sign) for letter, sign in zip(text, signs)]

    def read(self, pixels, place):
        """The digits of the value, colons and minus signs; what is as high as a digit but none is a '?', what is lower is
        left out."""
        text = ''
        for height, width, shape in glyphs(self.ink(pixels, place)):
            if height < 0.85:
                text += ':' if width < 0.3 else '-' if height < 0.25 else ''
                continue
            letter, off = min(((letter, numpy.abs(shape - sign[2]).mean() + abs(width - sign[1]))
                               for letter, sign in self.known), key=lambda each: each[1])
            text += letter if off < 0.25 else '?'
        return text
