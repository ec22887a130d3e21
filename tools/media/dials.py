#!/usr/bin/env python3
"""Writes media/drawings/*.svg: the family of dial faces, hands and rings, fields, lamps and battery.

    apt-get install python3-fonttools fonts-roboto-unhinted
    tools/media/dials.py media/drawings

The drawings are committed; run this again only to change them. Letters become outlines, so that the build needs no
font. Angles are degrees, 0 up, clockwise. A face's radius is 500 units.
"""
import math
import pathlib
import sys

from fontTools.pens.svgPathPen import SVGPathPen
from fontTools.pens.transformPen import TransformPen
from fontTools.ttLib import TTFont

FONTS = "/usr/share/fonts/truetype/roboto/unhinted/"
WHITE, DIM, DARK, SYMBOL = "#f6f8fb", "#98a4b3", "#05070a", "#ffc31f"
SKY, SKY_LOW, GROUND, GROUND_HIGH = "#1c66c4", "#4ba0f2", "#5f3a1a", "#9c6430"
GREEN, YELLOW, RED = "#00a344", "#ffe11f", "#e8203c"


class Type:
    """Text as outlines."""

    def __init__(self, file):
        self.font = TTFont(FONTS + file)
        self.glyphs, self.map = self.font.getGlyphSet(), self.font.getBestCmap()
        self.em = self.font["head"].unitsPerEm
        self.capital = self.font["OS/2"].sCapHeight / self.em

    def __call__(self, x, y, text, capital_height, fill=WHITE, spacing=0.0):
        """Centred on x, y; the height is that of a capital."""
        k = capital_height / self.capital / self.em
        names = [self.map[ord(c)] for c in text]
        widths = [self.glyphs[n].width * k + spacing for n in names]
        left, out = x - (sum(widths) - spacing) / 2, []
        for name, width in zip(names, widths):
            pen = SVGPathPen(self.glyphs, lambda v: f"{v:.1f}")
            self.glyphs[name].draw(TransformPen(pen, (k, 0, 0, -k, left, y + capital_height / 2)))
            out.append(pen.getCommands())
            left += width
        return f'<path fill="{fill}" d="{"".join(out)}"/>'


digits = Type("RobotoTTF/Roboto-Medium.ttf")
caption = Type("RobotoCondensed-Medium.ttf")


def at(angle, radius):
    return radius * math.sin(math.radians(angle)), -radius * math.cos(math.radians(angle))


def tick(angle, inner, outer, width, color=WHITE):
    (x1, y1), (x2, y2) = at(angle, inner), at(angle, outer)
    return f'<path stroke="{color}" stroke-width="{width}" d="M{x1:.1f} {y1:.1f}L{x2:.1f} {y2:.1f}"/>'


def label(angle, radius, text, height, **more):
    return digits(*at(angle, radius), text, height, **more)


def arc(from_angle, to_angle, radius, width, color):
    (x1, y1), (x2, y2) = at(from_angle, radius), at(to_angle, radius)
    large = int(to_angle - from_angle > 180)
    return (f'<path fill="none" stroke="{color}" stroke-width="{width}" '
            f'd="M{x1:.1f} {y1:.1f}A{radius} {radius} 0 {large} 1 {x2:.1f} {y2:.1f}"/>')


def shape(points, fill=WHITE, outline=DARK, width=9):
    """A filled polygon with an outline outside of it."""
    d = "M" + "L".join(f"{x:.1f} {y:.1f}" for x, y in points) + "Z"
    edge = f' stroke="{outline}" stroke-width="{2 * width}" stroke-linejoin="round" paint-order="stroke"'
    return f'<path fill="{fill}"{edge if width else ""} d="{d}"/>'


def mirrored(points):
    return points + [(-x, y) for x, y in reversed(points)]


def disc(radius=500):
    return (f'<radialGradient id="face"><stop offset="0.55" stop-color="#12161c"/><stop offset="1" '
            f'stop-color="#090b0f"/></radialGradient><circle r="{radius}" fill="url(#face)"/>')


def ring(inner, outer, fill):
    def circle(r):
        return f"M{r} 0A{r} {r} 0 1 0 {-r} 0A{r} {r} 0 1 0 {r} 0Z"
    return f'<path fill="{fill}" fill-rule="evenodd" d="{circle(outer)}{circle(inner)}"/>'


# --- Faces -----------------------------------------------------------------------------------------------------------

def altimeter_face():
    out = disc()
    for i in range(50):
        out += tick(i * 7.2, 378, 470, 13) if i % 5 == 0 else tick(i * 7.2, 422, 470, 6)
    for i in range(10):
        out += label(i * 36, 305, str(i), 84)
    return out + caption(0, -150, "ALT", 40, DIM, 8)


def vertical_angle(feet_per_minute):
    """Clockwise from up; 0 ft/min points left."""
    m = 180 * (1 - math.exp(-0.00046209812033333334 * abs(feet_per_minute)))
    return -90 + math.copysign(m, feet_per_minute)


def vertical_face(unit, to_feet, labels, minor):
    out = disc()
    for sign in (1, -1):
        for value in minor:
            out += tick(vertical_angle(sign * value * to_feet), 425, 470, 6)
        for value, text in labels:
            angle = vertical_angle(sign * value * to_feet)
            out += tick(angle, 385, 470, 13)
            if value or sign > 0:
                out += label(angle, 315, text, 66)
    for sign in (1, -1):
        x, y = at(-90 + sign * 17, 318)
        out += shape([(x - 22, y + sign * 16), (x + 22, y + sign * 16), (x, y - sign * 20)], DIM, width=0)
    return out + caption(0, -138, "VERTICAL SPEED", 30, DIM, 5) + caption(0, 84, unit, 30, DIM, 5)


def feet_face():
    return vertical_face("100 FT/MIN", 100, [(0, "0"), (5, "5"), (10, "10"), (15, ""), (20, "20"), (30, "30")],
                         list(range(1, 20)) + [25])


def metre_face():
    return vertical_face("M/S", 60 / 0.3048, [(0, "0"), (2, "2"), (4, "4"), (6, "6"), (10, "10"), (15, "15")],
                         [i / 2 for i in range(1, 12)] + [7, 8, 9, 12.5])


def compass_card():
    out = disc()
    for i in range(0, 360, 5):
        out += tick(i, 392, 452, 10) if i % 10 == 0 else tick(i, 420, 452, 6)
    for i in range(0, 360, 30):
        text = {0: "N", 90: "E", 180: "S", 270: "W"}.get(i, str(i // 10))
        bold = i % 90 == 0
        x, y = at(i, 325)
        out += f'<g transform="translate({x:.1f} {y:.1f}) rotate({i})">' + digits(0, 0, text, 80 if bold else 62) + "</g>"
    return out


def aircraft(k):
    half = [(0, -300), (26, -262), (30, -120), (262, 8), (262, 58), (30, 0), (22, 148), (96, 206), (96, 244), (0, 222)]
    return mirrored([(x * k, y * k) for x, y in half])


def compass_plane():
    lubber = shape([(-34, -500), (34, -500), (0, -428)], SYMBOL)
    marks = "".join(tick(a, 462, 497, 9, DIM) for a in (45, 90, 135, 180, 225, 270, 315))
    return marks + lubber + shape(aircraft(0.62), WHITE)


def compass_bug():
    points = [at(-6.2, 500), at(-6.2, 444), at(-3.4, 444), at(0, 478), at(3.4, 444), at(6.2, 444), at(6.2, 500)]
    return shape(points, "#ffffff", width=7)


# --- Attitude: a degree of pitch is a 90th of the ladder's edge ------------------------------------------------------

def attitude_disc(color, edge, sign):
    """Behind the ladder, seen beyond 45 degrees of pitch: chevrons point to the horizon."""
    out = f'<circle r="500" fill="{color}"/>'
    for y in (-190, 0, 190):
        out += (f'<path fill="none" stroke="{edge}" stroke-width="34" stroke-linejoin="round" '
                f'd="M-110 {y - sign * 45}L0 {y + sign * 45}L110 {y - sign * 45}"/>')
    return out


def attitude_ladder():
    out = "<defs>"
    for name, far, near, y1, y2 in (("sky", SKY, SKY_LOW, -400, 0), ("ground", GROUND, GROUND_HIGH, 350, 0)):
        out += (f'<linearGradient id="{name}" gradientUnits="userSpaceOnUse" x1="0" x2="0" y1="{y1}" y2="{y2}">'
                f'<stop offset="0" stop-color="{far}"/><stop offset="1" stop-color="{near}"/></linearGradient>')
    out += '</defs><path fill="url(#sky)" d="M-450-450h900V0h-900z"/><path fill="url(#ground)" d="M-450 0h900v450h-900z"/>'
    out += f'<path fill="{WHITE}" d="M-450-5h900v10h-900z"/>'
    for half_degrees in range(5, 85, 5):
        half = 140 if half_degrees % 20 == 0 else 78 if half_degrees % 10 == 0 else 34
        for y in (-5 * half_degrees, 5 * half_degrees):
            if half == 34 and half_degrees > 40:
                continue
            out += f'<path stroke="{WHITE}" stroke-width="{8 if half == 140 else 7}" d="M{-half} {y}H{half}"/>'
            if half == 140:
                for x in (-192, 192):
                    out += digits(x, y, str(half_degrees // 2), 42)
    return out


def attitude_bank():
    out = ('<path fill="%s" d="M-500 0A500 500 0 0 1 500 0H376A376 376 0 0 0 -376 0Z"/>' % SKY +
           '<path fill="%s" d="M-500 0A500 500 0 0 0 500 0H376A376 376 0 0 1 -376 0Z"/>' % GROUND +
           f'<circle r="376" fill="none" stroke="{DARK}" stroke-width="7"/>')
    for side in (-1, 1):
        for angle, outer, width in ((10, 428, 10), (20, 428, 10), (30, 468, 15), (60, 468, 15), (90, 500, 12)):
            out += tick(side * angle, 380, outer, width)
        x, y = at(side * 45, 412)
        out += f'<circle cx="{x:.1f}" cy="{y:.1f}" r="15" fill="{WHITE}"/>'
    return out + shape([(-36, -470), (36, -470), (0, -388)], WHITE, width=5)


def attitude_top():
    wing = [(105, -14), (250, -14), (250, 14), (133, 14), (133, 50), (105, 50)]
    wings = shape(wing, SYMBOL) + shape([(-x, y) for x, y in wing], SYMBOL)
    pointer = shape([(-36, -296), (36, -296), (0, -374)], SYMBOL)
    return wings + shape([(-17, -17), (17, -17), (17, 17), (-17, 17)], SYMBOL) + pointer


# --- Hands -----------------------------------------------------------------------------------------------------------

def hub(radius):
    return f'<circle r="{radius}" fill="#1b2129" stroke="{DARK}" stroke-width="8"/>' \
           f'<circle r="{radius - 12}" fill="none" stroke="#4a5563" stroke-width="5"/>'


def hand_100():
    return shape(mirrored([(0, -440), (11, -408), (15, -40), (21, 110), (0, 118)])) + hub(46)


def hand_1000():
    return shape(mirrored([(0, -262), (36, -196), (17, -50), (24, 74), (0, 82)])) + hub(52)


def hand_10000():
    return shape(mirrored([(0, -500), (42, -490), (5, -398), (5, 60), (0, 60)]), "#ffffff")


# --- Turn, acceleration and slip ------------------------------------------------------------------------------------

BALL_Y, BALL_REACH = 262, 330  # the tube's height under the middle, and how far the ball goes in it


def turn_face():
    out = disc()
    for side in (-1, 1):
        out += tick(side * 90, 395, 470, 16) + tick(side * 110, 395, 470, 16)
        out += caption(side * 250, 366, "R" if side > 0 else "L", 52, DIM)
    y, reach = BALL_Y, BALL_REACH + 62
    out += (f'<linearGradient id="tube" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#aeb8c4"/>'
            f'<stop offset="0.45" stop-color="#f1f5f9"/><stop offset="1" stop-color="#8d98a6"/></linearGradient>'
            f'<rect x="{-reach}" y="{y - 62}" width="{2 * reach}" height="124" rx="62" fill="url(#tube)" stroke="{DARK}" '
            f'stroke-width="8"/>')
    for x in (-66, 66):
        out += f'<path stroke="{DARK}" stroke-width="10" d="M{x} {y - 62}V{y + 62}"/>'
    return out + caption(0, 372, "2 MIN", 44, DIM, 6)


def turn_ball():
    return ('<radialGradient id="ball" cx="0.38" cy="0.32" r="0.75"><stop offset="0" stop-color="#6a7482"/>'
            '<stop offset="0.35" stop-color="#232a33"/><stop offset="1" stop-color="#04060a"/></radialGradient>'
            f'<circle cy="{BALL_Y}" r="54" fill="url(#ball)"/>')


def turn_plane():
    wing = [(0, -26), (46, -16), (372, -11), (372, 11), (46, 22), (0, 28)]
    fin = [(0, -128), (9, -128), (14, -30), (0, -30)]
    tail = [(0, -112), (96, -106), (96, -90), (0, -84)]
    out = shape(mirrored(tail)) + shape(mirrored(fin)) + shape(mirrored(wing))
    return out + f'<circle r="52" fill="{WHITE}" stroke="{DARK}" stroke-width="10"/><circle r="20" fill="#1b2129"/>'


def load_angle(g):
    """Clockwise from up; 0 g points left."""
    turned = 27 * abs(g) if abs(g) < 5 else 180 - 903.8492 * math.exp(-0.6 * abs(g))
    return -90 + math.copysign(turned, g)


def load_face():
    out = disc()
    for sign in (1, -1):
        for tenths in range(0, 50, 2):
            out += tick(load_angle(sign * tenths / 10), 430, 470, 5) if tenths % 10 else ""
        for g in (5.5, 6.5, 7):
            out += tick(load_angle(sign * g), 430, 470, 5)
        for g in (0, 1, 2, 3, 4, 5, 6, 8):
            angle = load_angle(sign * g)
            out += tick(angle, 385, 470, 13) if g or sign > 0 else ""
            if g < 8 and (g or sign > 0):
                out += label(angle, 318, ("-" if sign < 0 else "") + str(g), 62)
    return out + caption(0, -150, "G", 52, DIM)


SLIP_ASPECT = 5.2605634


def slip_ground():
    """A square as wide as the strip; only its middle band is seen. A degree per second is 28 of its 747 units."""
    half = 747 / SLIP_ASPECT / 2
    out = (f'<rect x="-373.5" y="{half * 0.1:.1f}" width="747" height="{half * 0.9:.1f}" fill="#e6ebf0" fill-opacity="0.88"/>')
    for rate, height in ((0, 0.38), (3, 0.38), (6, 0.22)):
        for x in {rate * 28, -rate * 28}:
            out += f'<path stroke="{DARK}" stroke-width="5" d="M{x} {half * 0.1:.1f}v{half * height:.1f}"/>'
    for side in (-1, 1):
        x = side * 44
        out += f'<path stroke="{DARK}" stroke-width="11" d="M{x} {-half:.1f}V{half * 0.06:.1f}"/>'
        out += f'<path stroke="{WHITE}" stroke-width="5" d="M{x} {-half:.1f}V{half * 0.06:.1f}"/>'
    return out


def slip_top():
    return shape([(-46, -42), (46, -42), (46, 42), (-46, 42)], WHITE, width=8)


def slip_bottom():
    return shape(mirrored([(0, -50), (48, 46)]), "#ffffff", width=0)


# --- Fields, lamps, battery -----------------------------------------------------------------------------------------

def segment():
    """Cut into nine by whoever draws it: the corners keep their size. White, to be tinted."""
    return ('<linearGradient id="field" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#ffffff"/>'
            '<stop offset="1" stop-color="#d4d4d4"/></linearGradient>'
            '<rect x="-494" y="-494" width="988" height="988" rx="240" fill="#000" fill-opacity="0.55"/>'
            '<rect x="-462" y="-462" width="924" height="924" rx="210" fill="#ffffff"/>'
            '<rect x="-436" y="-436" width="872" height="872" rx="186" fill="#5a5a5a"/>'
            '<rect x="-424" y="-424" width="848" height="848" rx="176" fill="url(#field)"/>')


def lamp_ground():
    return ('<radialGradient id="glow"><stop offset="0" stop-color="#ffffff"/><stop offset="0.62" stop-color="#ffffff"/>'
            '<stop offset="1" stop-color="#9a9a9a"/></radialGradient><circle r="420" fill="url(#glow)"/>')


def lamp_rim():
    return ('<linearGradient id="rim" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#7b8796"/>'
            '<stop offset="0.5" stop-color="#343c47"/><stop offset="1" stop-color="#15191f"/></linearGradient>' +
            ring(404, 492, "url(#rim)") + ring(404, 422, "#05070a") + ring(484, 496, "#05070a"))


def lamp():
    glass = ('<linearGradient id="glass" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#fff" stop-opacity="0.85"/>'
             '<stop offset="1" stop-color="#fff" stop-opacity="0.02"/></linearGradient>'
             '<ellipse cy="-205" rx="262" ry="150" fill="url(#glass)"/>')
    return glass + lamp_rim()


def lamp_symbol(symbol):
    """A lamp drawn in one piece: the tint colours rim and glass alike, the dark symbol stays."""
    return (f'<circle r="496" fill="{DARK}"/><circle r="470" fill="#ffffff"/><circle r="424" fill="{DARK}"/>'
            '<radialGradient id="glow"><stop offset="0" stop-color="#ffffff"/><stop offset="0.7" stop-color="#f2f2f2"/>'
            '<stop offset="1" stop-color="#a8a8a8"/></radialGradient><circle r="404" fill="url(#glow)"/>' + symbol)


def lamp_altitude():
    arrow = [(0, -262), (86, -128), (30, -128), (30, 128), (86, 128), (0, 262)]
    bars = "".join(f'<path fill="{DARK}" d="M-210 {y - 17}h420v34h-420z"/>' for y in (-300, 300))
    return lamp_symbol(bars + shape(mirrored(arrow), DARK, width=0))


def lamp_course():
    track = f'<path fill="none" stroke="{DARK}" stroke-width="40" stroke-dasharray="84 46" d="M-150 320V-320"/>'
    plane = "".join(f"{x * 0.86 + 90:.1f} {y * 0.86 + 30:.1f}L" for x, y in aircraft(1))[:-1]
    return lamp_symbol(track + f'<path fill="{DARK}" d="M{plane}Z"/>')


def lamp_speed():
    out = f'<path fill="none" stroke="{DARK}" stroke-width="42" d="M-226 150A270 270 0 1 1 226 150"/>'
    for angle in (-90, -45, 0, 45, 90):
        out += tick(angle, 175, 260, 30, DARK)
    return lamp_symbol(out + shape([at(50, 205), at(150, 34), at(-40, 34)], DARK, width=0) + f'<circle r="46" fill="{DARK}"/>')


BATTERY = 1000, 465  # their ratio is the panel's


def battery_outline(inset=0):
    """Body and pole."""
    x, y = 478 - inset, 206 - inset
    pole = 40 - inset
    return (f'M{-x + 60} {-y}H{x - 114}a54 54 0 0 1 54 54V-92h{pole}a20 20 0 0 1 20 20V72a20 20 0 0 1 -20 20h{-pole}V{y - 54}'
            f'a54 54 0 0 1 -54 54H{-x + 60}a60 60 0 0 1 -60 -60V{-y + 60}a60 60 0 0 1 60 -60Z')


def battery_shadow():
    return (f'<path fill="{DARK}" fill-opacity="0.8" stroke="{DARK}" stroke-opacity="0.8" stroke-width="44" '
            f'stroke-linejoin="round" d="{battery_outline()}"/>'
            f'<path fill="{DARK}" stroke="#aab4c0" stroke-width="22" stroke-linejoin="round" d="{battery_outline()}"/>')


def battery_color():
    return (f'<linearGradient id="cell" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#ffffff"/>'
            f'<stop offset="1" stop-color="#c4c4c4"/></linearGradient>'
            f'<path fill="url(#cell)" d="{battery_outline(22)}"/>')


def battery_light():
    return ('<linearGradient id="gloss" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#fff" stop-opacity="0.75"/>'
            '<stop offset="1" stop-color="#fff" stop-opacity="0.08"/></linearGradient>'
            '<rect x="-428" y="-166" width="812" height="140" rx="40" fill="url(#gloss)"/>')


def battery_charging():
    bolt = [(40, -176), (-130, 26), (-18, 26), (-52, 176), (124, -44), (8, -44)]
    return shape([(x - 24, y) for x, y in bolt], SYMBOL, width=14)


def battery_unknown():
    return digits(-24, 0, "?", 270, DARK)


# --- Rings -----------------------------------------------------------------------------------------------------------

def bezel():
    out = ('<defs><linearGradient id="plate" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#262c35"/>'
           '<stop offset="1" stop-color="#14181d"/></linearGradient>'
           '<linearGradient id="rim" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#596575"/>'
           '<stop offset="0.5" stop-color="#2a313b"/><stop offset="1" stop-color="#11151a"/></linearGradient>'
           '<linearGradient id="lip" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#06080a"/>'
           '<stop offset="1" stop-color="#3a4450"/></linearGradient></defs>')
    hole = "M462 0A462 462 0 1 0 -462 0A462 462 0 1 0 462 0Z"
    out += f'<path fill="{DARK}" fill-rule="evenodd" d="M-500-500h1000v1000h-1000z{hole}"/>'
    plate = "M-440-492h880a52 52 0 0 1 52 52v880a52 52 0 0 1-52 52h-880a52 52 0 0 1-52-52v-880a52 52 0 0 1 52-52z"
    out += f'<path fill="url(#plate)" fill-rule="evenodd" stroke="#343d48" stroke-width="3" d="{plate}{hole}"/>'
    out += ring(442, 464, "#0d1014\" fill-opacity=\"0.72") + ring(428, 450, "url(#rim)") + ring(417, 431, "url(#lip)")
    return out


def outer_ring():
    return ring(440, 466, "#ffffff")


def round_line():
    """A line across the middle eighth of its height, soft at the edges. A breath of alpha keeps the rest white, so that
    no dark fringe shows on white."""
    return ('<linearGradient id="g" x1="0" y1="0" x2="0" y2="1"><stop offset="0.42" stop-color="#fff" stop-opacity="0.005"/>'
            '<stop offset="0.45" stop-color="#fff"/><stop offset="0.55" stop-color="#fff"/>'
            '<stop offset="0.58" stop-color="#fff" stop-opacity="0.005"/></linearGradient>'
            '<path fill="url(#g)" d="M-500-500h1000v1000h-1000z"/>')


# --- Pictures of whole dials -----------------------------------------------------------------------------------------

def turned(angle, content, k=0.839344):
    return f'<g transform="rotate({angle}) scale({k})">{content}</g>'


def whole(*layers):
    return '<clipPath id="w"><path d="M-500-500h1000v1000h-1000z"/></clipPath><g clip-path="url(#w)">' + \
        "".join(layers) + bezel() + "</g>"


def altimeter_preview():
    return whole(turned(0, altimeter_face()), turned(16, hand_10000()), turned(162, hand_1000()), turned(324, hand_100()))


def compass_preview():
    return whole(turned(-40, compass_card()), turned(0, compass_plane()))


def vertical_preview():
    return whole(turned(0, feet_face()), turned(vertical_angle(500), hand_100()))


def attitude_preview():
    ladder = f'<g transform="rotate(-15) translate(0 42) scale({0.839344 * 0.76 / 0.9})">{attitude_ladder()}</g>'
    return whole(turned(-15, attitude_disc(SKY, SKY, 1)), ladder, turned(-15, attitude_bank())) + turned(0, attitude_top())


def speed_preview():
    def angle(v):
        return 320 * (v - 40) / 160 + 20
    out = disc() + arc(angle(55), angle(105), 470 - 58, 116, WHITE) + arc(angle(58), angle(140), 470 - 29, 58, GREEN)
    out += arc(angle(140), angle(200), 470 - 29, 58, YELLOW)
    for v in range(40, 200, 5):
        out += tick(angle(v), 378 if v % 10 == 0 else 425, 470, 10)
    out += tick(angle(200), 378, 475, 16, RED)
    for v in range(40, 201, 20):
        out += label(angle(v), 275, str(v), 62)
    return whole(turned(0, out), turned(angle(112), hand_100()))


def turn_preview():
    return whole(turned(0, turn_face()), turned(0, f'<g transform="translate(-40 0)">{turn_ball()}</g>'),
                 turned(20, turn_plane()))


def load_preview():
    return whole(turned(0, load_face()), turned(load_angle(1), hand_100()))


def slip_preview():
    half = 747 / SLIP_ASPECT / 2
    top = f'<g transform="translate(30 {-half * 0.55:.1f}) scale({half * 0.9 / 100})">{slip_top()}</g>'
    bottom = (f'<g transform="translate(84 {half * 0.72:.1f}) scale({half * 0.5 / 100})">'
              f'{shape(mirrored([(0, -50), (48, 46)]), DARK, width=0)}</g>')
    return (f'<clipPath id="w"><path d="M-373.5 {-half:.1f}h747v{2 * half:.1f}h-747z"/></clipPath><g clip-path="url(#w)">'
            f'<rect x="-373.5" y="{-half:.1f}" width="747" height="{2 * half:.1f}" fill="#3a4048"/>'
            f'{slip_ground()}{top}{bottom}</g>')


def loading():
    path = "".join(f"{x * 0.7:.1f} {y * 0.7 - 60:.1f}L" for x, y in aircraft(1))[:-1]
    return (f'<circle r="500" fill="{DARK}"/>' + arc(-128, 128, 440, 16, "#2f7fd6") + arc(-128, -40, 440, 16, WHITE) +
            f'<path fill="{WHITE}" d="M{path}Z"/>' + caption(0, 300, "SKYVANE", 76, WHITE, 22))


# Parts of a drawing's edge, left, top, right, bottom: pictures that are empty elsewhere hold only this part.
WHOLE, HAND, BUG, TOP = (0, 0, 1, 1), (0.4375, 0, 0.5625, 1), (0.4375, 0, 0.5625, 0.0625), (0.1875, 0.0625, 0.8125, 0.5625)
PLANE, BALL = (0.0625, 0.34375, 0.9375, 0.65625), (0.4375, 0.703125, 0.5625, 0.828125)
PARTS = {"turn_plane": PLANE, "turn_ball": BALL, "alt_100": HAND, "alt_1000": HAND, "alt_10000": HAND, "comp_bug": BUG, "att_top": TOP}

DRAWINGS = {
    "speed_bg": (256, 1000, disc), "alt_bg": (512, 1000, altimeter_face), "vsi_bg": (512, 1000, feet_face), "vsi_bg_m": (512, 1000, metre_face),
    "comp_card": (512, 1000, compass_card), "comp_plane": (512, 1000, compass_plane),
    "comp_bug": (512, 1000, compass_bug),
    "alt_100": (512, 1000, hand_100), "alt_1000": (512, 1000, hand_1000), "alt_10000": (512, 1000, hand_10000),
    "att_sky": (256, 1000, lambda: attitude_disc(SKY, SKY_LOW, 1)),
    "att_ground": (256, 1000, lambda: attitude_disc(GROUND, GROUND_HIGH, -1)),
    "att_ladder": (512, 900, attitude_ladder), "att_bank": (512, 1000, attitude_bank),
    "att_top": (512, 1000, attitude_top),
    "gauge_back_alpha": (640, 1000, bezel), "gauge_back_back": (512, 1000, outer_ring),
    "roundline": (64, 1000, round_line), "white": (8, 1000, lambda: '<path fill="#fff" d="M-500-500h1000v1000h-1000z"/>'),
    "loading": (320, 1000, loading),
    "attitude_preview": (256, 1000, attitude_preview), "alt_preview": (256, 1000, altimeter_preview),
    "comp_preview": (256, 1000, compass_preview), "vsi_preview": (256, 1000, vertical_preview),
    "speed_preview": (256, 1000, speed_preview),
    "turn_bg": (512, 1000, turn_face), "turn_ball": (512, 1000, turn_ball), "turn_plane": (512, 1000, turn_plane),
    "acc": (512, 1000, load_face),
    "slip_bg": (1024, 747, slip_ground), "slip_top": ((144, 128), (112.5, 100), slip_top),
    "slip_bot": ((128, 128), 100, slip_bottom),
    "onesegment": (128, 1000, segment),
    "lamp_bg": (256, 1000, lamp_ground), "lamp": (256, 1000, lamp), "lamp_alt": (256, 1000, lamp_altitude),
    "lamp_course": (256, 1000, lamp_course), "lamp_speed": (256, 1000, lamp_speed),
    "battery2Shadow": ((512, 238), BATTERY, battery_shadow), "battery2Color": ((512, 238), BATTERY, battery_color),
    "battery2Light": ((512, 238), BATTERY, battery_light), "battery2Charging": ((512, 238), BATTERY, battery_charging),
    "battery2Unknown": ((512, 238), BATTERY, battery_unknown),
    "turn_preview": (256, 1000, turn_preview), "acc_preview": (256, 1000, load_preview),
    "slip_preview": ((512, 97), (747, 142), slip_preview),
}


def pair(value):
    return value if isinstance(value, tuple) else (value, value)


if __name__ == "__main__":
    folder = pathlib.Path(sys.argv[1])
    for name, (size, units, draw) in DRAWINGS.items():
        (width, height), (across, down) = pair(size), pair(units)
        left, top, right, bottom = PARTS.get(name, WHOLE)
        share_across, share_down = right - left, bottom - top
        folder.joinpath(name + ".svg").write_text(
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{width * share_across:g}" height="{height * share_down:g}" '
            f'viewBox="{(left - 0.5) * across:g} {(top - 0.5) * down:g} {across * share_across:g} {down * share_down:g}">'
            f'\n{draw()}\n</svg>\n'.replace("/><", "/>\n<"))
