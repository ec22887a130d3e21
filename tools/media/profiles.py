#!/usr/bin/env python3
"""Writes media/drawings/*.svg: the pictures of the sensor profiles, 96 units wide, white with a dark edge.

    tools/media/profiles.py media/drawings

The drawings are committed; run this again only to change them.
"""
import math
import pathlib
import sys

from skin import WHITE, sign

AMBER, CYAN, GREEN = "#f5b83d", "#4fc3ea", "#5fd38d"


def tablet(x=0, scale=1.0):
    def at(px, py):
        return f"{x + px * scale:g} {py * scale:g}"
    return (sign(f"M{at(-25, -38)}H{x + 25 * scale:g}V{38 * scale:g}H{x - 25 * scale:g}Z", 6 * scale, "#1d2632") +
            sign(f"M{at(-14, 8)}L{at(14, -8)}", 6 * scale, ink=AMBER) + sign(f"M{at(-4, 29)}H{x + 4 * scale:g}", 5 * scale))


def waves(x, y, radii, start, end, ink=CYAN, width=6.0):
    """Arcs around a point, from one angle to another, in degrees clockwise from the right."""
    path = ""
    for r in radii:
        a, b = math.radians(start), math.radians(end)
        path += (f"M{x + r * math.cos(a):.4g} {y + r * math.sin(a):.4g}"
                 f"A{r} {r} 0 0 1 {x + r * math.cos(b):.4g} {y + r * math.sin(b):.4g}")
    return sign(path, width, ink=ink)


def satellite():
    return ('<g transform="rotate(-45)">' + sign("M-9-13H9V13H-9Z", 5, WHITE) +
            sign("M-40-10H-16V10H-40ZM16-10H40V10H16Z", 5, "#1d4f9e") + sign("M-28-10V10M28-10V10", 3, edge="none") +
            "</g>" + waves(0, 0, (24, 36), 15, 75))


def place():
    """A drop that marks a place on the ground."""
    return (sign("M0 38C-10 18-24 6-24-12A24 24 0 1 1 24-12C24 6 10 18 0 38Z", 6, "#1d2632") +
            sign("M-8-12A8 8 0 1 0 8-12A8 8 0 1 0-8-12Z", 4, WHITE))


def bluetooth():
    return ('<g transform="translate(-18 2) scale(.82)">' + place() + "</g>" +
            sign("M14-14L36 8L25 19V-25L36-14L14 8", 5, ink=CYAN))


def receiver(mark):
    return (sign("M-34 2H34V36H-34Z", 6, "#1d2632") + sign("M0 2V-18", 6) + sign("M-20 19H-18", 7, ink=GREEN) +
            waves(0, -18, (13, 24), -160, -20) + mark)


def unit():
    """A box with an antenna at its side."""
    return (sign("M-36-4H24V36H-36Z", 6, "#1d2632") + sign("M34 36V-36", 7) + waves(34, -26, (15, 25), 140, 205) +
            sign("M-22 24L-8 8L2 18L12 8", 5, ink=AMBER))


def combination():
    return (tablet(-20, 0.8) + sign("M14 34H38V10H14Z", 5, "#1d2632") + sign("M26 10V-4", 5) +
            waves(26, -6, (9, 17), -150, -30))


def file():
    return (sign("M-26-38H10L28-20V38H-26Z", 6, "#1d2632") + sign("M10-38V-20H28", 5) +
            sign("M-12-2V24L14 11Z", 5, GREEN, ink=GREEN))


def gamepad():
    return (sign("M-20-18H20C34-18 40 6 40 20C40 32 28 32 22 22L15 12H-15L-22 22C-28 32-40 32-40 20C-40 6-34-18-20-18Z",
                 6, "#1d2632") + sign("M-28-3H-12M-20-11V5", 5) + sign("M15 2H15.1M27-8H27.1", 8, ink=AMBER))


def gear(teeth=8):
    points = []
    for i in range(teeth):
        middle = 2 * math.pi * i / teeth
        for angle, radius in ((-0.26, 28), (-0.17, 40), (0.17, 40), (0.26, 28)):
            points.append(f"{radius * math.sin(middle + angle):.4g} {-radius * math.cos(middle + angle):.4g}")
    return sign("M" + "L".join(points) + "Z", 5, "#1d2632") + sign("M-12 0A12 12 0 1 0 12 0A12 12 0 1 0-12 0Z", 6)


PROFILES = {
    "tabletIcon": tablet, "gnssIcon": satellite, "tarnlinkIcon": unit, "extIcon": bluetooth,
    "talosIcon": lambda: receiver(sign("M2 14H22M12 14V28", 6, ink=AMBER)),
    "gdl90Icon": lambda: receiver(sign("M2 19L10 27L24 11", 6, ink=AMBER)),
    "combinationIcon": combination, "file": file, "gamepadIcon": gamepad, "gear": gear,
}

if __name__ == "__main__":
    for name, draw in PROFILES.items():
        pathlib.Path(sys.argv[1], name + ".svg").write_text(
            f'<svg xmlns="http://www.w3.org/2000/svg" width="96" height="96" viewBox="-48 -48 96 96">\n{draw()}\n</svg>\n'
            .replace("/><", "/>\n<"))
