#!/usr/bin/env python3
"""Writes media/*.b3d: the meshes of the synthetic view, from shapes described here.

    tools/media/meshes.py media

The meshes are committed; run this again only to change them. x is right, y up, z forward; an aircraft's wings span 1, and
so does a rectangle of the highway. Triangles are clockwise seen from outside. Colours are those of the vertices.
"""
import math
import pathlib
import struct
import sys

WHITE, SHADE, BLUE, GLASS = (0.95, 0.96, 0.98), (0.72, 0.75, 0.80), (0.10, 0.32, 0.62), (0.10, 0.14, 0.20)
DARK, RED, GREEN, GOLD = (0.15, 0.16, 0.18), (0.95, 0.10, 0.12), (0.10, 0.80, 0.25), (0.95, 0.75, 0.15)


def minus(a, b):
    return tuple(p - q for p, q in zip(a, b))


def cross(a, b):
    return (a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0])


def unit(a):
    length = math.sqrt(sum(p * p for p in a)) or 1.0
    return tuple(p / length for p in a)


class Mesh:
    def __init__(self):
        self.vertices, self.triangles = [], []

    def vertex(self, place, normal, color, uv=(0.5, 0.5)):
        self.vertices.append((place, normal, color, uv))
        return len(self.vertices) - 1

    def face(self, corners, color, uvs=None):
        """A flat convex face, its corners clockwise seen from outside."""
        normal = unit(cross(minus(corners[1], corners[0]), minus(corners[2], corners[0])))
        uvs = uvs or [(0.5, 0.5)] * len(corners)
        ids = [self.vertex(c, normal, color, uv) for c, uv in zip(corners, uvs)]
        self.triangles += [(ids[0], ids[i], ids[i + 1]) for i in range(1, len(ids) - 1)]

    def box(self, low, high, color):
        (a, b, c), (d, e, f) = low, high
        self.face([(a, e, c), (a, e, f), (d, e, f), (d, e, c)], color)  # top
        self.face([(a, b, f), (a, b, c), (d, b, c), (d, b, f)], color)  # bottom
        self.face([(a, b, c), (a, e, c), (d, e, c), (d, b, c)], color)  # back
        self.face([(d, b, f), (d, e, f), (a, e, f), (a, b, f)], color)  # front
        self.face([(a, b, f), (a, e, f), (a, e, c), (a, b, c)], color)  # left
        self.face([(d, b, c), (d, e, c), (d, e, f), (d, b, f)], color)  # right

    def loft(self, rings, sides, color_of):
        """Ellipses along z: (z, middle y, half width, half height), from the tail to the nose."""
        grid = []
        for z, y, rx, ry in rings:
            row = []
            for i in range(sides):
                angle = 2 * math.pi * i / sides
                s, c = math.sin(angle), math.cos(angle)
                place = (rx * s, y + ry * c, z)
                row.append(self.vertex(place, unit((s / max(rx, 1e-4), c / max(ry, 1e-4), 0.0)), color_of(z, angle)))
            grid.append(row)
        for back, front in zip(grid, grid[1:]):
            for i in range(sides):
                j = (i + 1) % sides
                self.triangles += [(back[i], front[i], front[j]), (back[i], front[j], back[j])]

    def wing(self, root, tip, thickness, color, tip_color=None):
        """A flat surface from a root to a tip: (leading edge, trailing edge) as points each."""
        out = minus(tip[0], root[0])
        up = (thickness, 0, 0) if abs(out[1]) > abs(out[0]) else (0, thickness, 0)
        add = lambda p, sign, k=1.0: tuple(a + sign * k * b for a, b in zip(p, up))
        steps = [0.0, 0.9, 1.0] if tip_color else [0.0, 1.0]
        at = lambda edge, t: tuple(a + (b - a) * t for a, b in zip(root[edge], tip[edge]))
        for t0, t1 in zip(steps, steps[1:]):
            paint = tip_color if tip_color and t1 == 1.0 else color
            quad = [at(1, t0), at(0, t0), at(0, t1), at(1, t1)]
            for sign in (1, -1):
                corners = [add(p, sign) for p in quad]
                normal = cross(minus(corners[1], corners[0]), minus(corners[2], corners[0]))
                outwards = sum(n * u for n, u in zip(normal, up)) * sign > 0
                self.face(corners if outwards else corners[::-1], paint)
        self.face([add(root[0], -1), add(root[0], 1), add(tip[0], 1), add(tip[0], -1)], SHADE)

    def write(self, path):
        def chunk(tag, data):
            return tag + struct.pack("<i", len(data)) + data
        vertices = struct.pack("<iii", 1 | 2, 1, 2)
        for place, normal, color, uv in self.vertices:
            vertices += struct.pack("<12f", *place, *normal, *color, 1.0, *uv)
        triangles = struct.pack("<i", -1) + b"".join(struct.pack("<iii", *t) for t in self.triangles)
        mesh = struct.pack("<i", -1) + chunk(b"VRTS", vertices) + chunk(b"TRIS", triangles)
        node = b"mesh\0" + struct.pack("<10f", 0, 0, 0, 1, 1, 1, 1, 0, 0, 0) + chunk(b"MESH", mesh)
        path.write_bytes(chunk(b"BB3D", struct.pack("<i", 1) + chunk(b"NODE", node)))


def plane():
    """A high-winged single, eight metres long for eleven of span."""
    mesh = Mesh()
    rings = [(-0.44, 0.012, 0.006, 0.012), (-0.30, 0.004, 0.022, 0.030), (-0.12, 0.000, 0.045, 0.052),
             (0.00, 0.006, 0.054, 0.066), (0.08, 0.006, 0.054, 0.066), (0.15, -0.010, 0.050, 0.048),
             (0.24, -0.012, 0.042, 0.038), (0.27, -0.012, 0.020, 0.018), (0.29, -0.012, 0.004, 0.004)]

    def paint(z, angle):
        side = abs(math.sin(angle))
        if z >= 0.265:
            return DARK
        if -0.03 <= z <= 0.12 and math.cos(angle) > 0.25:
            return GLASS
        return BLUE if side > 0.9 else WHITE

    mesh.loft(rings, 24, paint)
    y = 0.062
    for sign, light in ((-1, RED), (1, GREEN)):
        mesh.wing([(0.0, y, 0.085), (0.0, y, -0.055)], [(sign * 0.5, y + 0.014, 0.068), (sign * 0.5, y + 0.014, -0.030)],
                  0.008, WHITE, light)
        mesh.wing([(0.0, 0.022, -0.33), (0.0, 0.022, -0.43)], [(sign * 0.165, 0.022, -0.36), (sign * 0.165, 0.022, -0.42)],
                  0.005, WHITE)
        mesh.wing([(sign * 0.045, -0.03, 0.04), (sign * 0.045, -0.03, 0.02)], [(sign * 0.24, y, 0.045), (sign * 0.24, y, 0.02)],
                  0.003, SHADE)
        mesh.box((sign * 0.105 - 0.008, -0.125, -0.002), (sign * 0.105 + 0.008, -0.085, 0.040), DARK)
        mesh.wing([(sign * 0.04, -0.05, 0.03), (sign * 0.04, -0.05, 0.01)], [(sign * 0.105, -0.105, 0.03), (sign * 0.105, -0.105, 0.01)],
                  0.004, SHADE)
    mesh.wing([(0.0, 0.01, -0.30), (0.0, 0.01, -0.44)], [(0.0, 0.155, -0.40), (0.0, 0.155, -0.46)], 0.005, BLUE)
    mesh.box((-0.007, -0.125, 0.19), (0.007, -0.09, 0.225), DARK)
    mesh.box((-0.003, -0.1, 0.203), (0.003, -0.03, 0.211), SHADE)
    mesh.box((-0.004, -0.102, 0.281), (0.004, 0.078, 0.284), GOLD)
    return mesh


def rect():
    """A frame of four bars, one unit wide, high and deep, that is seen from all sides."""
    mesh, bar, deep = Mesh(), 0.06, 0.02
    a, b = 0.5, 0.5 - bar
    for low, high in (((-a, b, -deep), (a, a, deep)), ((-a, -a, -deep), (a, -b, deep)),
                      ((-a, -b, -deep), (-b, b, deep)), ((b, -b, -deep), (a, b, deep))):
        mesh.box(low, high, (1.0, 1.0, 1.0))
    return mesh


def traffic():
    """An arrowhead that flies forward; its picture is wrapped around it from above."""
    mesh = Mesh()
    nose, left, right, notch = (0.0, 0.0, 0.5), (-0.5, 0.0, -0.45), (0.5, 0.0, -0.45), (0.0, 0.0, -0.22)
    top, low = (0.0, 0.16, -0.12), (0.0, -0.1, -0.12)
    uv = lambda p: (p[0] + 0.5, 0.5 - p[2])
    for corners in ((nose, top, left), (nose, right, top), (left, top, notch), (right, notch, top),
                    (nose, left, low), (nose, low, right), (left, notch, low), (right, low, notch)):
        mesh.face([corners[0], corners[2], corners[1]], (1.0, 1.0, 1.0), [uv(c) for c in (corners[0], corners[2], corners[1])])
    return mesh


def main(folder):
    for make in (plane, rect, traffic):
        make().write(pathlib.Path(folder) / f"{make.__name__}.b3d")


if __name__ == "__main__":
    main(sys.argv[1])
