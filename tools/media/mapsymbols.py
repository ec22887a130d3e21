#!/usr/bin/env python3
"""Writes media/drawings/map_*.svg: the symbols of chart elements on the map.

    tools/media/mapsymbols.py media/drawings [media/doc/pictures]

With a second folder also the pictures of the manual's legend, by rsvg-convert. The drawings are committed; run this again only to change them. A symbol is 96 units wide and white, to be drawn in a
colour; most come with a halo, the same shape grown, to be drawn under it in white or in a dark colour, so that they
show on water, forest and snow alike.
"""
import math
import pathlib
import subprocess
import sys

WHITE, DARK = "#ffffff", "#10141a"
GROWTH = 7  # of halos, on each side


def at(angle, radius):
    """Degrees clockwise from up."""
    return radius * math.sin(math.radians(angle)), -radius * math.cos(math.radians(angle))


def points(places):
    return "L".join(f"{x:.2f} {y:.2f}" for x, y in places)


def ring_path(radius):
    return f"M{radius:g} 0A{radius:g} {radius:g} 0 1 0 {-radius:g} 0A{radius:g} {radius:g} 0 1 0 {radius:g} 0Z"


def rays(angles, inner, outer):
    return "".join(f"M{points([at(a, inner), at(a, outer)])}" for a in angles)


def polygon_path(count, radius, start=0.0):
    return "M" + points([at(start + 360 / count * i, radius) for i in range(count)]) + "Z"


class Symbol:
    """Strokes (path, width) and filled paths; `body` is what the halo fills, where that is more than both."""

    def __init__(self, strokes=(), fills=(), body=""):
        self.strokes, self.fills, self.body = strokes, fills, body

    def svg(self):
        out = "".join(f'<path fill="{WHITE}" fill-rule="evenodd" d="{d}"/>' for d in self.fills)
        return out + "".join(f'<path fill="none" stroke="{WHITE}" stroke-width="{w:g}" stroke-linecap="butt" '
                             f'stroke-linejoin="miter" d="{d}"/>' for d, w in self.strokes)

    def halo(self):
        grown = 'stroke-linecap="round" stroke-linejoin="round"'
        out = "".join(f'<path fill="{WHITE}" stroke="{WHITE}" stroke-width="{2 * GROWTH}" {grown} d="{d}"/>'
                      for d in [*self.fills, *([self.body] if self.body else [])])
        return out + "".join(f'<path fill="none" stroke="{WHITE}" stroke-width="{w + 2 * GROWTH:g}" {grown} d="{d}"/>'
                             for d, w in self.strokes)


# --- Airports --------------------------------------------------------------------------------------------------------

RING = 27
FIELD = ring_path(RING)


def airport(*more, fills=(), width=6.5):
    return Symbol([(FIELD, width), *more], fills, FIELD)


def letter_h(k=1.0):
    return f"M{-9 * k:g} {-14 * k:g}V{14 * k:g}M{9 * k:g} {-14 * k:g}V{14 * k:g}M{-9 * k:g} 0H{9 * k:g}"


ANCHOR = ("M0 -12V17M-8 -6H8M-14 6C-13 14-7 17 0 17C7 17 13 14 14 6", "M3.6 -16A3.6 3.6 0 1 0 -3.6 -16A3.6 3.6 0 1 0 3.6 -16Z")
GLIDER = "M-23 -1L-3 -5L0 -16L3 -5L23 -1V2L3 3L1.6 12L8 15V18H-8V15L-1.6 12L-3 3L-23 2Z"

AIRPORTS = {
    "map_airport": airport(),
    "map_airport_towered": airport((rays((0, 90, 180, 270), RING, RING + 13), 8)),
    "map_airport_military": airport((ring_path(RING - 9), 3.5), (rays((0, 90, 180, 270), RING, RING + 13), 8)),
    "map_airport_closed": airport((rays((45, 135, 225, 315), 0, RING), 6)),
    "map_airport_glider": airport(fills=(GLIDER,), width=5),
    "map_airport_water": airport((ANCHOR[0], 4.5), (ANCHOR[1], 3)),
    "map_airport_private": airport(("M-7 15V-13H2A7.5 7.5 0 0 1 2 3H-7M1 3L8 15", 5.5), width=4.5),
    "map_heliport": airport((letter_h(), 6)),
}

# --- Navaids ---------------------------------------------------------------------------------------------------------

HEXAGON = polygon_path(6, 27, 30)
DOT = ring_path(5)


def dme_box():
    return "M-31 -28H31V28H-31Z"


def vortac_arms():
    """On every second side of the hexagon."""
    out = ""
    for side in (60, 180, 300):
        inner, outer = 27 * math.cos(math.pi / 6), 27 * math.cos(math.pi / 6) + 13
        along = at(side + 90, 13.5)
        a, b = at(side, inner), at(side, outer)
        out += "M" + points([(a[0] - along[0], a[1] - along[1]), (b[0] - along[0], b[1] - along[1]),
                             (b[0] + along[0], b[1] + along[1]), (a[0] + along[0], a[1] + along[1])]) + "Z"
    return out


def rose(grown=0):
    """The compass rose of a VOR: north is marked by an arrow."""
    out = f'<g fill="none" stroke="{WHITE}"><path stroke-width="{1.8 + grown}" d="{ring_path(110)}"/>'
    out += f'<path stroke-width="{1.8 + grown}" d="{rays([a for a in range(0, 360, 10) if a % 30], 101, 110)}"/>'
    out += f'<path stroke-width="{3.4 + grown}" d="{rays(range(30, 360, 30), 94, 110)}"/></g>'
    return out + f'<path fill="{WHITE}" stroke="{WHITE}" stroke-width="{grown}" d="M0 -117L8 -92L0 -98L-8 -92Z"/>'


def dots(radius, count, size):
    return "".join("M{x:.2f} {y:.2f}m{s} 0a{s} {s} 0 1 0 -{d} 0a{s} {s} 0 1 0 {d} 0Z".format(
        x=at(360 / count * i, radius)[0], y=at(360 / count * i, radius)[1], s=size, d=2 * size) for i in range(count))


NAVAIDS = {
    "map_vor": Symbol([(HEXAGON, 6)], [DOT], HEXAGON),
    "map_vordme": Symbol([(HEXAGON, 5.5), (dme_box(), 4.5)], [DOT], dme_box()),
    "map_vortac": Symbol([(HEXAGON, 5.5)], [DOT, vortac_arms()], HEXAGON),
    "map_tacan": Symbol([(HEXAGON, 4.5), (vortac_arms(), 4)], [DOT], HEXAGON),
    "map_ndb": Symbol([(ring_path(8), 4)], [dots(17, 10, 2.9), dots(28, 16, 2.9), ring_path(4)], ring_path(28)),
}

# --- Fixes, obstacles, marks -----------------------------------------------------------------------------------------

TRIANGLE = polygon_path(3, 27)

FIXES = {
    "map_fix": Symbol([(TRIANGLE, 6)]),
    "map_reporting_point": Symbol(fills=[TRIANGLE]),
    "map_fix_plain": Symbol([("M-15 -15L15 15M15 -15L-15 15", 7)]),
}

MAST = "M-13 12L0 -25L13 12"
BEAMS = rays((-52, 0, 52), 11, 21)


def obstacle(lit, group, tall):
    shift = 11 if group else 0
    masts = [f"M{x - 12} 20L{x} {-30 if tall else -17}L{x + 12} 20" for x in ([-shift, shift] if group else [0])]
    strokes = [("".join(masts), 6)]
    if tall:
        strokes.append(("".join(f"M{x - 6.5} 4H{x + 6.5}" for x in ([-shift, shift] if group else [0])), 4))
    if lit:
        top = -30 if tall else -17
        beams = "".join(f"M{p[0][0]:.2f} {p[0][1] + top:.2f}L{p[1][0]:.2f} {p[1][1] + top:.2f}"
                        for p in ((at(a, 6), at(a, 16)) for a in (-60, 0, 60)))
        strokes.append((beams, 4.5))
    return Symbol(strokes, [f"M4.5 21A4.5 4.5 0 1 0 -4.5 21A4.5 4.5 0 1 0 4.5 21Z"])


OBSTACLES = {"map_obstacle" + ("_tall" if tall else "") + ("_group" if group else "") + ("_lit" if lit else ""):
             obstacle(lit, group, tall) for lit in (False, True) for group in (False, True) for tall in (False, True)}


def flag():
    edge = f'stroke="{DARK}" stroke-width="4" stroke-linejoin="round"'
    return (f'<path fill="none" stroke="{DARK}" stroke-width="11" stroke-linecap="round" d="M0 0V-38"/>'
            f'<path fill="#e8203c" {edge} d="M2 -38C12 -44 20 -32 34 -38V-16C20 -10 12 -22 2 -16Z"/>'
            f'<path fill="none" stroke="{WHITE}" stroke-width="5" stroke-linecap="round" d="M0 0V-38"/>'
            f'<circle r="5" fill="{WHITE}" stroke="{DARK}" stroke-width="3"/>')


def write(folder, name, content, size=96, units=96):
    (folder / f"{name}.svg").write_text(
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{size}" height="{size}" '
        f'viewBox="{-units / 2:g} {-units / 2:g} {units:g} {units:g}">{content}</svg>\n')


# --- The manual's legend ---------------------------------------------------------------------------------------------

BLACK, GREEN, BLUE, VOR, NDB, FIX, GROUND = "#000000", "#008000", "#0000ff", "#0000ff", "#fa6cff", "#33f8ff", "#518949"
RUNWAY = '<path fill="#ffffff" transform="rotate(40)" d="M-5.5 -20H5.5V20H-5.5Z"/>'
LEGEND = {  # name: symbol, colour, dark halo, what lies on it
    "towered": ("map_airport_towered", BLACK, False, RUNWAY), "field": ("map_airport", BLACK, False, RUNWAY),
    "grass": ("map_airport", GREEN, False, RUNWAY), "water": ("map_airport_water", BLUE, False, ""),
    "glider": ("map_airport_glider", GREEN, False, ""), "heliport": ("map_heliport", BLACK, False, ""),
    "private": ("map_airport_private", BLACK, False, ""), "military": ("map_airport_military", BLACK, False, RUNWAY),
    "closed": ("map_airport_closed", BLACK, False, ""), "vor": ("map_vor", VOR, False, ""),
    "vordme": ("map_vordme", VOR, False, ""), "vortac": ("map_vortac", VOR, False, ""),
    "tacan": ("map_tacan", VOR, False, ""), "ndb": ("map_ndb", NDB, True, ""),
    "reporting": ("map_reporting_point", WHITE, True, ""), "fix": ("map_fix", FIX, True, ""),
    "mast": ("map_obstacle", "#ff3000", True, ""), "mastlit": ("map_obstacle_tall_lit", "#ffe000", True, ""),
    "mastgroup": ("map_obstacle_group", "#00ff00", True, ""),
}


def legend(folder, symbols):
    def picture(name, content):
        ground = f'<rect x="-48" y="-48" width="96" height="96" rx="10" fill="{GROUND}"/>'
        drawing = (f'<svg xmlns="http://www.w3.org/2000/svg" width="144" height="144" viewBox="-48 -48 96 96">'
                   f'{ground}{content}</svg>')
        subprocess.run(["rsvg-convert", "-o", str(folder / f"symbol-{name}.png")], input=drawing.encode(), check=True)

    for name, (symbol, color, dark, over) in LEGEND.items():
        halo = symbols[symbol].halo().replace(WHITE, DARK if dark else WHITE)
        picture(name, halo + (symbols[symbol].svg() + over).replace(WHITE, color))
    picture("mark", f'<g transform="translate(-8 18)">{flag()}</g>')


def main():
    folder = pathlib.Path(sys.argv[1])
    symbols = {**AIRPORTS, **NAVAIDS, **FIXES, **OBSTACLES}
    for name, symbol in symbols.items():
        write(folder, name, symbol.svg())
        write(folder, name + "_halo", symbol.halo())
    write(folder, "map_airport_runway", f'<path fill="{WHITE}" d="M-5.5 -20H5.5V20H-5.5Z"/>')
    write(folder, "map_vor_rose", rose(), 256, 240)
    write(folder, "map_vor_rose_halo", rose(4), 256, 240)
    write(folder, "map_mark", flag())
    if len(sys.argv) > 2:
        legend(pathlib.Path(sys.argv[2]), symbols)


if __name__ == "__main__":
    main()
