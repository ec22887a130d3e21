#!/usr/bin/env python3
"""Writes media/drawings/*.svg: sky, the colours of terrain, traffic, the pictures of the bars and the preview
of the synthetic view.

    tools/media/vision.py media/drawings

The drawings are committed; run this again only to change them. The middle of sky_front is the horizon, its upper and lower
edges lie 45 degrees above and below; sky_top and sky_bottom go on from there to the middle, which is zenith and nadir.
"""
import math
import pathlib
import sys

ZENITH, HIGH, LOW, HORIZON = "#0f3f82", "#2a6fbe", "#7fb2e4", "#cfe4f4"
HAZE, NEAR, NADIR = "#8a7458", "#5f4a31", "#3d2f20"
EDGE = {"sky": "#2461ab", "ground": "#4d3c29"}  # at 45 degrees, where the pictures meet


def stops(*pairs):
    return "".join(f'<stop offset="{at:g}" stop-color="{color}"/>' for at, color in pairs)


def svg(width, height, content, box=None):
    box = box or (0, 0, width, height)
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
            f'viewBox="{box[0]} {box[1]} {box[2]} {box[3]}">{content}</svg>\n')


def sky_front():
    up = stops((0, EDGE["sky"]), (0.45, HIGH), (0.82, LOW), (1, HORIZON))
    down = stops((0, HAZE), (0.12, NEAR), (1, EDGE["ground"]))
    return svg(64, 512, f'<linearGradient id="u" x1="0" y1="0" x2="0" y2="1">{up}</linearGradient>'
                        f'<linearGradient id="d" x1="0" y1="0" x2="0" y2="1">{down}</linearGradient>'
                        '<rect width="64" height="256" fill="url(#u)"/>'
                        '<rect y="256" width="64" height="256" fill="url(#d)"/>')


def cap(inner, outer):
    ring = stops((0, inner), (0.49 / 0.5, outer), (1, outer))
    return svg(256, 256, f'<radialGradient id="c" cx="0.5" cy="0.5" r="0.5">{ring}</radialGradient>'
                         f'<rect width="256" height="256" fill="{outer}"/><rect width="256" height="256" fill="url(#c)"/>')


def traffic3d():
    """Light over the spine, darker towards the wing tips."""
    sides = stops((0, "#3d86c8"), (0.5, "#bfe3ff"), (1, "#3d86c8"))
    return svg(64, 64, f'<linearGradient id="s" x1="0" y1="0" x2="1" y2="0">{sides}</linearGradient>'
                       '<rect width="64" height="64" fill="url(#s)"/>')


def terrain_gradient():
    """From the lowest ground on the left to the highest on the right: meadows, woods, rock, snow."""
    ground = stops((0, "#6f9a4a"), (0.22, "#4f8536"), (0.42, "#7a7a34"), (0.6, "#8a6a35"), (0.8, "#9a8a76"), (1, "#e9ebee"))
    return svg(256, 4, f'<linearGradient id="g">{ground}</linearGradient><rect width="256" height="4" fill="url(#g)"/>')


def map3d_preview():
    sky = stops((0, HIGH), (1, HORIZON))
    bars = "".join(f'<rect x="{x}" y="70" width="30" height="116" rx="4" fill="#10161e" fill-opacity="0.75" '
                   f'stroke="#c9d2dc" stroke-width="1.5"/><rect x="{x + 3}" y="119" width="24" height="18" rx="2" '
                   f'fill="#05070a" stroke="#f6f8fb" stroke-width="1.5"/>' for x in (18, 208))
    return svg(256, 256, f'<linearGradient id="s" x1="0" y1="0" x2="0" y2="1">{sky}</linearGradient>'
                         '<rect width="256" height="256" rx="10" fill="#5c8a3f"/>'
                         '<path d="M0 10A10 10 0 0 1 10 0H246A10 10 0 0 1 256 10V134H0Z" fill="url(#s)"/>'
                         '<path d="M0 134L38 104L62 122L108 84L150 126L188 98L256 134V150H0Z" fill="#7a6647"/>'
                         '<path d="M86 108L108 84L131 107L118 104L108 112L98 102Z" fill="#eef2f6"/>'
                         '<path d="M0 140L70 128L150 146L256 132V190H0Z" fill="#6f9447"/>'
                         '<path d="M120 256L126 150H130L136 256Z" fill="#56616d"/>'
                         '<g fill="none" stroke="#ff00ff"><path d="M78 92H178V180H78Z" stroke-width="5"/>'
                         '<path d="M104 112H152V156H104Z" stroke-width="3"/></g>'
                         '<path d="M88 134H116L128 146L140 134H168" fill="none" stroke="#05070a" stroke-width="9"/>'
                         '<path d="M88 134H116L128 146L140 134H168" fill="none" stroke="#ffc31f" stroke-width="5"/>' + bars)


def pfd_speed_bar():
    """The ground of a tape, to be tinted: darker towards its ends, a light rim."""
    fade = stops((0, "#5a5a5a"), (0.35, "#ffffff"), (0.65, "#ffffff"), (1, "#5a5a5a"))
    return svg(64, 256, f'<linearGradient id="f" x1="0" y1="0" x2="0" y2="1">{fade}</linearGradient>'
                        '<rect width="64" height="256" fill="url(#f)"/>')


def pfd_ptr():
    """The box of a current value, its point to the right; as wide as 2.4 of its heights."""
    outline = "M6 8H218L218 34L248 50L218 66L218 92H6Z"
    return svg(256, 100, f'<path d="{outline}" fill="#05070a" stroke="#ffffff" stroke-width="4" '
                         'stroke-linejoin="round"/>')


def aoa():
    """From little at the bottom to the stall at the top."""
    rows = ["#3fd65a"] * 5 + ["#ffe11f"] * 3 + ["#f01c28"] * 2
    bars = "".join(f'<path d="M14 {236 - 22 * i}L50 {226 - 22 * i}L86 {236 - 22 * i}V{226 - 22 * i}L50 {216 - 22 * i}'
                   f'L14 {226 - 22 * i}Z" fill="{color}"/>' if i > 7 else
                   f'<rect x="14" y="{222 - 22 * i}" width="72" height="13" rx="2" fill="{color}"/>'
                   for i, color in enumerate(rows))
    return svg(100, 256, '<rect x="2" y="2" width="96" height="252" rx="8" fill="#05070a" fill-opacity="0.78" '
                         f'stroke="#7d8a9c" stroke-width="2"/>{bars}')


def aoa_pointer():
    return svg(64, 64, '<path d="M6 8L58 32L6 56Z" fill="#ffffff" stroke="#05070a" stroke-width="5" '
                       'stroke-linejoin="round"/>')


def edged(path, color, width, edge=6, fill="none"):
    """A line with a dark edge on both sides, so that it shows on snow."""
    return "".join(f'<path d="{path}" fill="{fill}" stroke="{stroke}" stroke-width="{wide}" stroke-linejoin="miter"/>'
                   for stroke, wide in (("#05070a", width + edge), (color, width)))


def pfd_bank_bg():
    """The bank scale to be tinted, 400 units of radius around 0, 0, from 60 degrees left to 60 degrees right."""
    def at(degrees, radius):
        angle = math.radians(degrees)
        return f"{radius * math.sin(angle):.1f} {-radius * math.cos(angle):.1f}"
    marks = "".join(f"M{at(mark, 400)}L{at(mark, 440 if mark % 30 == 0 else 424)}"
                    for mark in (-60, -45, -30, -20, -10, 10, 20, 30, 45, 60))
    arc = f"M{at(-60, 400)}A400 400 0 0 1 {at(60, 400)}"
    zero = "M0-402L22-436H-22Z"
    return svg(1200, 420, edged(arc + marks, "#ffffff", 6) + edged(zero, "#ffffff", 3, fill="#ffffff"),
               (-400, -460, 800, 280))


def pfd_bank_arrow():
    """The pointer below the scale's middle; its tip is the middle of the upper edge."""
    return svg(180, 150, edged("M30 8L54 43H6Z", "#ffc31f", 3, fill="#ffc31f"), (0, 0, 60, 50))


def pfd_bank_arrow2():
    """The brick below the pointer, to be tinted: it slides to where a ball would lie."""
    return svg(180, 60, '<rect x="4" y="4" width="52" height="12" fill="#ffffff" stroke="#05070a" stroke-width="3"/>',
               (0, 0, 60, 20))


def pfd_frame():
    """Where the nose points in a pilot's view: wings and the middle, at 0, 0, to the bank scale's measure."""
    wings = "M-220 0H-100V40M220 0H100V40"
    return svg(1000, 180, edged(wings, "#ffc31f", 11) + edged("M-7-7H7V7H-7Z", "#ffc31f", 4, fill="#ffc31f"),
               (-250, -30, 500, 90))


def main(folder):
    drawings = {"sky_front": sky_front(), "sky_top": cap(ZENITH, EDGE["sky"]),
                "sky_bottom": cap(NADIR, EDGE["ground"]), "terrainGradient": terrain_gradient(),
                "traffic3d": traffic3d(), "map3d_preview": map3d_preview(),
                "pfdSpeedBar": pfd_speed_bar(), "pfd_ptr": pfd_ptr(), "aoa": aoa(), "aoaPointer": aoa_pointer(),
                "pfdBankBg": pfd_bank_bg(), "pfdBankArrow": pfd_bank_arrow(), "pfdBankArrow2": pfd_bank_arrow2(),
                "pfdFrame": pfd_frame()}
    for name, drawing in drawings.items():
        (pathlib.Path(folder) / f"{name}.svg").write_text(drawing)


if __name__ == "__main__":
    main(sys.argv[1])
