"""What stands about the grounds: gates, the security cameras, a parked car, garden furniture."""

import math

import buildings
import materials
import measures as site
import shapes


def place():
    looks = buildings.looks_of_walls()
    _gates(looks)
    for name, ((x, y), _, z) in site.CAMERAS.items():
        _wall_camera(name, x, y, z)
    _car()
    _furniture(looks)


def _gates(looks):
    parts = shapes.Builder()
    _, _, right, bottom = site.BOUNDARY
    for side, middle, width in site.GATES:
        for sign in (-1, 1):
            along = middle + sign * width / 2
            x, y = (along, bottom) if side == "bottom" else (right, along)
            size, high = (0.34, 2.2) if width > 4 else (0.13, 1.35)
            parts.box(site.at(x - size, y + size, -0.1), site.at(x + size, y - size, high),
                      looks["stone" if width > 4 else "timber"])
            if width > 4:
                parts.box(site.at(x - 0.45, y + 0.45, high), site.at(x + 0.45, y - 0.45, high + 0.14), looks["stone"])
                for i in range(9):
                    bx = x - sign * 0.36
                    by = y - 0.3 - i * 0.27
                    parts.tube([site.at(bx, by, 0.12), site.at(bx, by, 1.5 + 0.25 * math.sin(i / 8 * 3.14))],
                               [0.022, 0.022], looks["trim"], 6)
                for z in (0.2, 1.3):
                    parts.tube([site.at(x - sign * 0.36, y - 0.2, z), site.at(x - sign * 0.36, y - 2.6, z)],
                               [0.03, 0.03], looks["trim"], 6)
    shapes.put(parts.build("Gates"))


def _wall_camera(name, x, y, z):
    """A small white housing under a bracket, behind the picture it takes."""
    part = shapes.Builder()
    part.tube([(0, 0, 0), (0, 0, 0.14)], [0.06, 0.06], materials.plain("Camera white", (0.75, 0.76, 0.77), 0.4), 16)
    shapes.put(part.build(f"Camera {name}"), None, site.at(x, y, z + 0.12))


def _car():
    """A parked estate car: a lofted body, glasshouse, wheels."""
    paint = materials.plain("Paint", (0.03, 0.055, 0.09), 0.22, 0.55)
    dark = materials.plain("Rubber", (0.012, 0.012, 0.013), 0.8)
    pane = materials.glass("Pane", 0.0)
    sections = [(-2.34, 0.8, 0.36, 0.86), (-2.28, 0.9, 0.26, 1.0), (-2.0, 0.96, 0.2, 1.06), (-1.2, 0.99, 0.2, 1.08),
                (0.6, 0.99, 0.2, 1.06),
                (1.5, 0.97, 0.2, 0.97), (2.1, 0.93, 0.22, 0.86), (2.3, 0.84, 0.28, 0.76), (2.36, 0.74, 0.36, 0.66)]
    cabin = [(-2.2, 0.8, 0.86, 1.02), (-2.1, 0.82, 0.86, 1.24), (-1.75, 0.84, 0.86, 1.52), (-0.3, 0.85, 0.9, 1.58),
             (0.35, 0.83, 0.9, 1.52),
             (0.9, 0.84, 0.86, 1.24), (1.35, 0.86, 0.84, 0.98)]
    for name, rows, look in (("Car body", sections, paint), ("Car glass", cabin, pane)):
        verts, faces = [], []
        for x, w, low, high in rows:
            verts += [(x, -w, low), (x, -w * 1.03, (low + high) / 2), (x, -w * (0.9 if look is paint else 0.74), high),
                      (x, w * (0.9 if look is paint else 0.74), high),
                      (x, w * 1.03, (low + high) / 2), (x, w, low)]
        for i in range(len(rows) - 1):
            for k in range(6):
                n = (k + 1) % 6
                faces.append((6 * i + k, 6 * i + n, 6 * i + 6 + n, 6 * i + 6 + k))
        faces += [tuple(range(5, -1, -1)), tuple(range(6 * len(rows) - 6, 6 * len(rows)))]
        thing = shapes.put(shapes.mesh(name, verts, faces, [look], smooth=True), name, site.at(51.6, 47.6, 0.02),
                           math.radians(-97))
        smooth = thing.modifiers.new("Smooth", "SUBSURF")
        smooth.levels = smooth.render_levels = 2
    parts = shapes.Builder()
    parts.box((-1.7, -0.52, 1.36), (0.05, 0.52, 1.475), paint)
    for x in (-1.42, 1.42):
        for y in (-0.83, 0.83):
            parts.tube([(x, y - 0.13, 0.38), (x, y + 0.13, 0.38)], [0.4, 0.4], dark, 28)
            parts.tube([(x, y - 0.14, 0.34), (x, y + 0.14, 0.34)], [0.23, 0.23],
                       materials.plain("Rim", (0.4, 0.41, 0.42), 0.3, 0.8), 20)
    for y in (-0.62, 0.62):
        parts.box((2.2, y - 0.17, 0.6), (2.33, y + 0.17, 0.7), materials.plain("Lamp", (0.8, 0.8, 0.78), 0.1))
        parts.box((-2.33, y - 0.15, 0.72), (-2.2, y + 0.15, 0.88),
                  materials.plain("Tail lamp", (0.35, 0.01, 0.01), 0.2))
        parts.box((0.7, y * 1.5 - 0.1, 1.0), (0.85, y * 1.5 + 0.1, 1.14), paint)
    shapes.put(parts.build("Car parts"), None, site.at(51.6, 47.6, 0.02), math.radians(-97))


class _Joinery:
    """Slatted garden furniture in one wood."""

    def __init__(self, wood):
        self.wood = wood
        self.parts = shapes.Builder()

    def bar(self, low, high):
        self.parts.box(site.at(*low), site.at(*high), self.wood)

    def seat(self, x, y, width, depth, z, slats=5):
        each = depth / slats
        for i in range(slats):
            middle = y - depth / 2 + (i + 0.5) * each
            self.bar((x - width / 2, middle - each * 0.42, z), (x + width / 2, middle + each * 0.42, z + 0.03))

    def legs(self, x, y, across, along, z, thick):
        for sx in (-across, across):
            for sy in (-along, along):
                self.bar((x + sx - thick, y + sy - thick, 0.0), (x + sx + thick, y + sy + thick, z))

    def chair(self, x, y, back):
        self.seat(x, y, 0.46, 0.46, 0.44)
        self.legs(x, y, 0.2, 0.2, 0.44, 0.022)
        for i in range(4):
            post = x - 0.18 + i * 0.12
            self.bar((post - 0.025, y + back - 0.015, 0.44), (post + 0.025, y + back + 0.015, 0.92))
        self.bar((x - 0.23, y + back - 0.02, 0.86), (x + 0.23, y + back + 0.02, 0.94))

    def bench(self, x, y):
        self.seat(x, y, 1.6, 0.45, 0.42)
        self.legs(x, y, 0.7, 0.18, 0.42, 0.035)
        for i in range(3):
            self.bar((x - 0.8, y - 0.24, 0.55 + i * 0.13), (x + 0.8, y - 0.2, 0.64 + i * 0.13))
        for post in (x - 0.7, x + 0.7):
            self.bar((post - 0.035, y - 0.24, 0.0), (post + 0.035, y - 0.18, 0.95))


def _furniture(looks):
    """A table with four chairs under a parasol on the terrace, two benches by the paths."""
    made = _Joinery(looks["timber"])
    x, y = 91.4, 30.2
    made.seat(x, y, 2.0, 1.0, 0.74, 8)
    made.legs(x, y, 0.9, 0.4, 0.74, 0.04)
    for dx in (-0.55, 0.55):
        made.chair(x + dx, y + 0.95, 0.22)
        made.chair(x + dx, y - 0.95, -0.22)
    made.bench(86.4, 63.2)
    made.bench(106.3, 33.6)
    made.parts.tube([site.at(x, y, 0), site.at(x, y, 2.55)], [0.03, 0.025], looks["frame"], 10)
    canvas = materials.cloth("Canvas", (0.52, 0.47, 0.38), (0.43, 0.385, 0.31))
    rim = [site.at(x + math.cos(k * math.pi / 4) * 1.5, y + math.sin(k * math.pi / 4) * 1.5, 2.1) for k in range(9)]
    for low, high in zip(rim, rim[1:]):
        made.parts.face([high, low, site.at(x, y, 2.6)], canvas)
    shapes.put(made.parts.build("Furniture"))
