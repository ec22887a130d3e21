#!/usr/bin/env python3
"""Writes media/drawings/*.svg: the panes, buttons and signs that the skin is made of.

    tools/media/skin.py media/drawings

The drawings are committed; run this again only to change them. A pane is 64 units wide, its corners take 16 of them:
the skin keeps the corners and stretches what lies between. White parts of a pane take the colour that it is drawn in.
Signs are 96 units wide: white with a dark edge, so that they show on every colour.
"""
import math
import pathlib
import sys

WHITE, DARK, RIM, BLUE = "#f6f8fb", "#05070a", "#7d8a9c", "#2f7fd6"


def gradient(name, *colors):
    stops = "".join(f'<stop offset="{i / (len(colors) - 1):g}" stop-color="{c}"/>' for i, c in enumerate(colors))
    return f'<linearGradient id="{name}" x1="0" y1="0" x2="0" y2="1">{stops}</linearGradient>'


def box(inset, radius, fill="none", stroke="none", width=0.0, more=""):
    """A rounded square; the stroke lies inside."""
    a = 32 - inset - width / 2
    line = f' stroke="{stroke}" stroke-width="{width:g}"' if width else ""
    return (f'<rect x="{-a:g}" y="{-a:g}" width="{2 * a:g}" height="{2 * a:g}" rx="{radius - width / 2:g}" '
            f'fill="{fill}"{line}{more}/>')


# --- Panes -----------------------------------------------------------------------------------------------------------

def button(face, rim, edge):
    """A dark line around, a rim, and the face; a clear margin keeps neighbours apart."""
    return (gradient("face", *face) + box(1.5, 13, edge) + box(3, 11.5, "url(#face)", rim, 2.5))


def sunken_rim():
    return box(0.5, 9, "none", "#ffffff", 3) + box(3.5, 6, "none", DARK, 1.5, ' stroke-opacity="0.6"')


def window():
    return gradient("face", "#242b35", "#171c23", "#12161c") + box(0, 14, "url(#face)", "#8491a3", 3) + \
        box(3, 11, "none", DARK, 1.5)


def shadow():
    rings = 14
    return "".join(box(i, 16 - i * 0.8, "#000", more=' fill-opacity="0.055"') for i in range(rings))


def label(fill, stroke, raised=False):
    light = box(3.5, 5, "none", "#ffffff", 1.5, ' stroke-opacity="0.35"') if raised else ""
    return box(1, 8, fill, stroke, 2.5) + light


# --- Signs -----------------------------------------------------------------------------------------------------------

def sign(path, width=9.0, fill="none", ink=WHITE, edge=DARK):
    """A stroke with an edge of the other colour around it."""
    d = f'd="{path}" stroke-linecap="round" stroke-linejoin="round" fill="{fill}"'
    return (f'<path {d} stroke="{edge}" stroke-width="{width + 6:g}"/>'
            f'<path {d} stroke="{ink}" stroke-width="{width:g}"/>')


def turned(angle, content):
    return f'<g transform="rotate({angle:g})">{content}</g>'


def flipped(content):
    return f'<g transform="scale(-1 1)">{content}</g>'


def arc_arrow(radius, start, end):
    """From start to end, degrees clockwise from up, with a head at the end."""
    def at(angle, r=radius):
        a = math.radians(angle)
        return f"{r * math.sin(a):.1f} {-r * math.cos(a):.1f}"
    sweep, back = (1, -24) if end > start else (0, 24)
    head = f"M{at(end + back, radius + 11)}L{at(end)}L{at(end + back, radius - 11)}"
    return sign(f"M{at(start)}A{radius} {radius} 0 0 {sweep} {at(end)}", 6) + sign(head, 6)


def from_behind():
    return sign("M-33 4H33M0 4V-16", 7) + sign("M-8 4A8 8 0 1 0 8 4A8 8 0 1 0 -8 4Z", 4, WHITE)


def from_above():
    return sign("M0-20V30M-28 2H28M-11 29H11", 8)


def from_aside():
    return sign("M-34 4H26L34 6M-34 4L-36-12", 8)


def roll_left():
    return f'<g transform="translate(0 16)">{turned(-18, from_behind())}</g>' + arc_arrow(31, 44, -50)


def yaw_left():
    return f'<g transform="translate(0 10)">{turned(-16, from_above())}</g>' + arc_arrow(32, 50, -50)


def pitch(up):
    y = 1 if up else -1
    arrow = sign(f"M24 {-8 * y}V{-38 * y}M13 {-27 * y}L24 {-38 * y}L35 {-27 * y}", 6)
    return f'<g transform="translate(-1 {8 * y})">{turned(-18 * y, from_aside())}</g>' + arrow


def direct(**ink):
    return sign("M-20-32V32H-8A32 32 0 0 0 -8-32Z", 9, **ink) + sign("M-40 0H40M26-14L40 0L26 14", 8, **ink)


def procedure(**ink):
    dots = "".join(sign(f"M{x - 6} {y}A6 6 0 1 0 {x + 6} {y}A6 6 0 1 0 {x - 6} {y}Z", 5, ink.get("ink", WHITE), **ink)
                   for x, y in ((-32, 28), (-12, -16), (30, -28)))
    return sign("M-32 28L-12-16L30-28", 7, **ink) + dots


def chevron_path(up):
    y = 1 if up else -1
    return sign(f"M-30 {16 * y}L0 {-14 * y}L30 {16 * y}", 11)


def bin_sign():
    return sign("M-26-22L-20 36H20L26-22", 7) + sign("M-34-24H34M-10-24V-36H10V-24M-8-8V22M8-8V22", 6)


def rename_sign():
    return sign("M-34 34L-28 12L20-36L36-20L-12 28Z", 6) + sign("M8-24L24-8", 6)


def inked(*paths, fill="none"):
    """On the keys of the on-screen keyboard, which are light: black without an edge."""
    return "".join(f'<path d="{path}" stroke-linecap="round" stroke-linejoin="round" fill="{fill}" '
                   f'stroke="{DARK}" stroke-width="7"/>' for path in paths)


def shift_sign(fill):
    return inked("M0-36L32-2H14V28H-14V-2H-32Z", fill=fill)


def change_sign():
    """A small keyboard, and arrows around it."""
    return inked("M-26-14H26V14H-26Z", "M-14-2H-13M0-2H1M14-2H15M-10 7H11") + \
        inked("M-38 4V-28H30M20-38L32-28L20-18", "M38-4V28H-30M-20 38L-32 28L-20 18")


BLACK = {"ink": DARK, "edge": WHITE}
STEEL, STEEL_DOWN = ("#515e70", "#3a4553", "#313b48"), ("#17488a", "#1f5aa8", "#2667bd")
PANES = {
    "button_normal": lambda: button(STEEL, "#7b8899", DARK),
    "button_normal_pressed": lambda: button(STEEL_DOWN, "#ffffff", DARK),
    "button": lambda: button(("#ffffff", "#dedede", "#c6c6c6"), "#ffffff", DARK),
    "button_pressed": lambda: button(("#a8a8a8", "#b4b4b4", "#c0c0c0"), "#ffffff", DARK),
    "sunkenPaneBg": sunken_rim,
    "sunkenPaneBgAlpha": lambda: box(0.5, 9, "#ffffff"),
    "sunkenPaneFlat": lambda: box(0.5, 9, "none", "#ffffff", 2.5),
    "guiRectangle": lambda: box(1, 7, "#ffffff"),
    "windowBg": window, "windowShadow": shadow,
    "pfdRect": lambda: label("#05070a", WHITE), "pfdLabel": lambda: label("#0d1218", RIM),
    "pfdLabel2": lambda: label("#ffffff", DARK),
    "labelBg": lambda: label("#ffffff", DARK), "label3DBg": lambda: label("#ffffff", DARK, True),
    "drawing": lambda: box(0, 6, "#ffffff"),
}
SIGNS = {
    "tick": lambda: sign("M-28 2L-8 24L30-24", 13),
    "roll_left": roll_left, "roll_right": lambda: flipped(roll_left()),
    "yaw_left": yaw_left, "yaw_right": lambda: flipped(yaw_left()),
    "pitch_up": lambda: pitch(True), "pitch_down": lambda: pitch(False),
    "direct": direct, "proc": procedure,
    "direct2": lambda: direct(**BLACK), "proc2": lambda: procedure(**BLACK),
    "procArrowUp": lambda: chevron_path(True), "procArrowDown": lambda: chevron_path(False),
    "menu": lambda: sign("M-30-22H30M-30 0H30M-30 22H30", 9),
    "bin": bin_sign, "rename": rename_sign,
    "closeSign": lambda: sign("M-24-24L24 24M24-24L-24 24", 10),
    "shift": lambda: shift_sign("none"), "shift_on": lambda: shift_sign(DARK),
    "arrow_left": lambda: inked("M34 0H-34M-12-22L-34 0L-12 22"),
    "arrow_right": lambda: inked("M-34 0H34M12-22L34 0L12 22"),
    "alpha_dot": lambda: inked("M-40-2V14H40V-2"),
    "enter": lambda: inked("M34-26V8H-34M-14-12L-34 8L-14 28"),
    "backspace": lambda: inked("M-40 0L-16-26H38V26H-16Z", "M0-11L22 11M22-11L0 11"),
    "change": change_sign,
}

if __name__ == "__main__":
    folder = pathlib.Path(sys.argv[1])
    for units, drawings in ((64, PANES), (96, SIGNS)):
        for name, draw in drawings.items():
            folder.joinpath(name + ".svg").write_text(
                f'<svg xmlns="http://www.w3.org/2000/svg" width="{units}" height="{units}" '
                f'viewBox="{-units // 2} {-units // 2} {units} {units}">\n{draw()}\n</svg>\n'.replace("/><", "/>\n<"))
