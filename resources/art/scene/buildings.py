"""House with porch wing and sunroom, garage, shed, gate, car and garden furniture."""

import math

from mathutils import Vector

import materials
import measures as site
import shapes


def _looks():
    return {
        "wall": materials.render_coat("Lime wash", (0.56, 0.515, 0.44), (0.46, 0.415, 0.345)),
        "stone": materials.masonry("Stone", 0.5, 0.24, 0.012, (0.33, 0.285, 0.225), (0.25, 0.22, 0.18), (0.3, 0.27, 0.22)),
        "brick": materials.masonry("Brick", 0.24, 0.075, 0.01, (0.27, 0.1, 0.06), (0.2, 0.075, 0.05), (0.3, 0.27, 0.23)),
        "tiles": materials.tiles("Tiles", (0.115, 0.07, 0.055), (0.07, 0.048, 0.042)),
        "slates": materials.tiles("Slates", (0.06, 0.062, 0.07), (0.042, 0.045, 0.052)),
        "frame": materials.plain("Frame", (0.62, 0.6, 0.55), 0.5),
        "trim": materials.plain("Trim", (0.07, 0.075, 0.08), 0.5),
        "door": materials.boards("Door", (0.02, 0.11, 0.11), (0.014, 0.075, 0.078), 0.2),
        "timber": materials.boards("Timber", (0.1, 0.065, 0.04), (0.055, 0.037, 0.025)),
        "pane": materials.glass("Pane", 0.0),
        "lit": materials.glass("Lit pane", 0.5),
        "dim": materials.glass("Dim pane", 0.14),
    }


class House:
    """Collects the parts of one building; walls are named by the side of the plan they face."""

    def __init__(self, looks):
        self.looks = looks
        self.solid = shapes.Builder()

    def walls(self, rect, low, high, look):
        left, top, right, bottom = rect
        self.solid.box(site.at(left, bottom, low), site.at(right, top, high), self.looks[look])

    def hip_roof(self, rect, eaves, pitch, look, over=0.55, gables=()):
        """A roof whose ridge runs along the longer side; sides in `gables` ("low", "high") stand upright."""
        left, top, right, bottom = (rect[0] - over, rect[1] - over, rect[2] + over, rect[3] + over)
        long_x = right - left >= bottom - top
        half = (bottom - top if long_x else right - left) / 2
        ridge = eaves + half * pitch

        def corner(along, across, z):
            return site.at(along, across, z) if long_x else site.at(across, along, z)

        a0, a1 = (left, right) if long_x else (top, bottom)
        c0, c1 = (top, bottom) if long_x else (left, right)
        middle = (c0 + c1) / 2
        r0 = a0 if "low" in gables else a0 + half
        r1 = a1 if "high" in gables else a1 - half
        near = [corner(a0, c0, eaves), corner(a1, c0, eaves), corner(r1, middle, ridge), corner(r0, middle, ridge)]
        far = [corner(a1, c1, eaves), corner(a0, c1, eaves), corner(r0, middle, ridge), corner(r1, middle, ridge)]
        low = [corner(a0, c1, eaves), corner(a0, c0, eaves), corner(r0, middle, ridge)]
        high = [corner(a1, c0, eaves), corner(a1, c1, eaves), corner(r1, middle, ridge)]
        for kind, face in (("roof", near), ("roof", far), ("low", low), ("high", high)):
            if kind not in gables:
                self._slab(face, self.looks[look], 0.16)
        for kind, along in (("low", a0 + over), ("high", a1 - over)):
            if kind in gables:
                self.solid.face([corner(along, c0 + over, eaves - 0.1), corner(along, c1 - over, eaves - 0.1),
                                 corner(along, c1 - over, eaves + over * pitch - 0.17), corner(along, middle, ridge - 0.17),
                                 corner(along, c0 + over, eaves + over * pitch - 0.17)], self.looks["timber"])
        self.solid.tube([corner(r0, middle, ridge + 0.04), corner(r1, middle, ridge + 0.04)], [0.13, 0.13], self.looks[look], 8)
        for end, points in (("low", low), ("high", high)):
            if end not in gables:
                for foot in points[:2]:
                    self.solid.tube([foot, points[2]], [0.1, 0.1], self.looks[look], 6)
        for p, q in ((near[0], near[1]), (far[0], far[1]), *(((low[0], low[1]),) if "low" not in gables else ()),
                     *(((high[0], high[1]),) if "high" not in gables else ())):
            self.solid.tube([(p[0], p[1], p[2] - 0.06), (q[0], q[1], q[2] - 0.06)], [0.08, 0.08], self.looks["trim"], 8)
        self.solid.face([corner(a0, c1, eaves - 0.02), corner(a1, c1, eaves - 0.02), corner(a1, c0, eaves - 0.02),
                         corner(a0, c0, eaves - 0.02)], self.looks["frame"])

    def _slab(self, points, look, thick):
        """A roof face with its edge; it always looks up, whichever way round its corners came."""
        p = [Vector(c) for c in points]
        normal = (p[1] - p[0]).cross(p[-1] - p[0]).normalized()
        if normal.z < -0.001:
            p = [p[1], p[0]] + p[:1:-1]
        self.solid.face(p, look)
        under = [c - Vector((0, 0, thick)) for c in p]
        for i in range(len(p)):
            n = (i + 1) % len(p)
            self.solid.face([under[i], under[n], p[n], p[i]], self.looks["trim"])

    def opening(self, side, fixed, along, z, width, height, pane="pane", bars=(2, 3), frame=0.09, sill=True):
        """A window or glazed door; `fixed` is the wall's x or y, `along` its middle along the wall."""
        out = {"south": (0, 1), "north": (0, -1), "east": (1, 0), "west": (-1, 0)}[side]

        def part(a0, a1, z0, z1, depth, back, look):
            if out[0]:
                x0, x1 = fixed + out[0] * back, fixed + out[0] * depth
                self.solid.box(site.at(x0, along + a0, z0), site.at(x1, along + a1, z1), self.looks[look])
            else:
                y0, y1 = fixed + out[1] * back, fixed + out[1] * depth
                self.solid.box(site.at(along + a0, y0, z0), site.at(along + a1, y1, z1), self.looks[look])

        w = width / 2
        part(-w, w, z, z + height, 0.015, -0.05, pane)
        for a0, a1, z0, z1 in ((-w - frame, -w, z - frame, z + height + frame), (w, w + frame, z - frame, z + height + frame),
                               (-w, w, z - frame, z), (-w, w, z + height, z + height + frame)):
            part(a0, a1, z0, z1, 0.09, -0.02, "frame")
        for i in range(1, bars[0]):
            a = -w + width * i / bars[0]
            part(a - 0.022, a + 0.022, z, z + height, 0.05, -0.02, "frame")
        for i in range(1, bars[1]):
            level = z + height * i / bars[1]
            part(-w, w, level - 0.02, level + 0.02, 0.05, -0.02, "frame")
        if sill:
            part(-w - 0.18, w + 0.18, z - frame - 0.1, z - frame, 0.2, -0.02, "stone")

    def done(self, name):
        return shapes.put(self.solid.build(name))


def build():
    looks = _looks()
    _house(looks)
    _garage(looks)
    _shed(looks)
    _gates(looks)
    for name, ((x, y), _, z) in site.CAMERAS.items():
        _wall_camera(name, x, y, z)
    _car()
    _furniture(looks)


def _house(looks):
    h = House(looks)
    left, top, right, bottom = site.HOUSE
    h.walls(site.HOUSE, 0, 5.6, "wall")
    h.walls((left - 0.06, top - 0.06, right + 0.06, bottom + 0.06), -0.2, 0.55, "stone")
    h.hip_roof(site.HOUSE, 5.6, 0.62, "tiles")
    pl, pt, pr, pb = site.PORCH
    h.walls(site.PORCH, 0, 5.6, "wall")
    h.walls((pl - 0.06, pt, pr + 0.06, pb + 0.06), -0.2, 0.55, "stone")
    h.hip_roof((pl, 31.0, pr, pb), 5.6, 0.62, "tiles", 0.5, ("low",))
    h.walls(site.SUNROOM, 0, 2.9, "stone")
    h.hip_roof(site.SUNROOM, 2.9, 0.5, "slates", 0.35)
    for i, x in enumerate((59.6, 63.4, 67.2)):
        h.opening("south", bottom, x, 0.95, 1.25, 1.75, "lit" if i == 1 else "pane")
        h.opening("south", bottom, x, 3.65, 1.15, 1.4, "pane")
    h.opening("south", bottom, 84, 3.65, 1.15, 1.4, "dim")
    for x in (71.8, 79.9):
        h.opening("south", pb, x, 0.95, 1.35, 1.75, "lit" if x < 75 else "pane")
        h.opening("south", pb, x, 3.6, 1.2, 1.4, "pane")
    h.opening("south", pb, 75.8, 3.75, 1.5, 1.25, "dim", (3, 2))
    h.opening("south", pb, 75.4, 0.12, 1.15, 2.25, "door", (1, 1), 0.16, False)
    h.opening("south", pb, 75.4, 2.55, 1.15, 0.32, "lit", (3, 1), 0.1, False)
    canopy = [(73.9, 76.9, 3.05, 3.2)]
    for a, b, z0, z1 in canopy:
        h.solid.box(site.at(a, pb + 1.2, z0), site.at(b, pb, z1), looks["trim"])
    for x in (74.05, 76.75):
        h.solid.tube([site.at(x, pb + 1.05, 0), site.at(x, pb + 1.05, 3.05)], [0.07, 0.07], looks["frame"])
    for y in (39.6, 43.6):
        h.opening("west", pl, y, 0.95, 1.2, 1.75, "pane")
        h.opening("west", pl, y, 3.6, 1.1, 1.4, "pane")
        h.opening("east", pr, y, 3.6, 1.1, 1.4, "pane")
        h.opening("east", pr, y, 0.95, 1.2, 1.75, "pane")
    for y in (25, 30, 35):
        h.opening("west", left, y, 0.95, 1.25, 1.75, "dim" if y == 30 else "pane")
        h.opening("west", left, y, 3.65, 1.15, 1.4, "pane")
        h.opening("east", right, y, 3.65, 1.15, 1.4, "pane")
    h.opening("east", right, 28.5, 0.15, 2.6, 2.3, "lit", (4, 3), 0.1, False)
    for i in range(7):
        h.opening("north", top, 60 + i * 4, 3.65, 1.15, 1.4)
        h.opening("north", top, 60 + i * 4, 0.95, 1.25, 1.75)
    for i in range(3):
        h.opening("south", site.SUNROOM[3], 87.6 + i * 2.85, 0.35, 2.3, 2.2, "lit" if i == 0 else "dim", (3, 2), 0.1)
        h.opening("east", site.SUNROOM[2], 34.5 + i * 2.5, 0.35, 2.0, 2.2, "dim", (3, 2), 0.1)
    for x, y in ((62.5, 29.2), (80.5, 29.2)):
        h.solid.box(site.at(x - 0.7, y + 0.45, 8), site.at(x + 0.7, y - 0.45, 12.4), looks["brick"])
        h.solid.box(site.at(x - 0.8, y + 0.55, 12.1), site.at(x + 0.8, y - 0.55, 12.3), looks["stone"])
        for dx in (-0.35, 0.35):
            h.solid.tube([site.at(x + dx, y, 12.3), site.at(x + dx, y, 12.95)], [0.15, 0.12], looks["brick"], 10)
    h.done("House")


def _garage(looks):
    g = House(looks)
    left, top, right, bottom = site.GARAGE
    g.walls(site.GARAGE, 0, 3.1, "stone")
    g.hip_roof(site.GARAGE, 3.1, 0.55, "tiles", 0.45, ("low", "high"))
    for y in (36.4, 42.3):
        g.opening("east", right, y, 0.05, 4.2, 2.35, "timber", (1, 1), 0.14, False)
    for x in (35.6, 44.2):
        g.opening("south", bottom, x, 1.2, 1.1, 1.1, "pane", (2, 2))
    g.opening("west", left, 39.5, 1.1, 1.3, 1.2, "pane", (2, 2))
    g.done("Garage")


def _shed(looks):
    s = House(looks)
    s.walls(site.SHED, 0, 2.1, "timber")
    s.hip_roof(site.SHED, 2.1, 0.55, "slates", 0.3)
    s.opening("west", site.SHED[0], 11.5, 0.1, 0.9, 1.85, "door", (1, 1), 0.08, False)
    s.done("Shed")


def _gates(looks):
    parts = shapes.Builder()
    _, _, right, bottom = site.BOUNDARY
    for side, middle, width in site.GATES:
        for sign in (-1, 1):
            along = middle + sign * width / 2
            x, y = (along, bottom) if side == "bottom" else (right, along)
            size, high = (0.34, 2.2) if width > 4 else (0.13, 1.35)
            parts.box(site.at(x - size, y + size, -0.1), site.at(x + size, y - size, high), looks["stone" if width > 4 else "timber"])
            if width > 4:
                parts.box(site.at(x - 0.45, y + 0.45, high), site.at(x + 0.45, y - 0.45, high + 0.14), looks["stone"])
                for i in range(9):
                    bx = x - sign * 0.36
                    by = y - 0.3 - i * 0.27
                    parts.tube([site.at(bx, by, 0.12), site.at(bx, by, 1.5 + 0.25 * math.sin(i / 8 * 3.14))], [0.022, 0.022], looks["trim"], 6)
                for z in (0.2, 1.3):
                    parts.tube([site.at(x - sign * 0.36, y - 0.2, z), site.at(x - sign * 0.36, y - 2.6, z)], [0.03, 0.03], looks["trim"], 6)
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
    sections = [(-2.34, 0.8, 0.36, 0.86), (-2.28, 0.9, 0.26, 1.0), (-2.0, 0.96, 0.2, 1.06), (-1.2, 0.99, 0.2, 1.08), (0.6, 0.99, 0.2, 1.06),
                (1.5, 0.97, 0.2, 0.97), (2.1, 0.93, 0.22, 0.86), (2.3, 0.84, 0.28, 0.76), (2.36, 0.74, 0.36, 0.66)]
    cabin = [(-2.2, 0.8, 0.86, 1.02), (-2.1, 0.82, 0.86, 1.24), (-1.75, 0.84, 0.86, 1.52), (-0.3, 0.85, 0.9, 1.58), (0.35, 0.83, 0.9, 1.52),
             (0.9, 0.84, 0.86, 1.24), (1.35, 0.86, 0.84, 0.98)]
    for name, rows, look in (("Car body", sections, paint), ("Car glass", cabin, pane)):
        verts, faces = [], []
        for x, w, low, high in rows:
            verts += [(x, -w, low), (x, -w * 1.03, (low + high) / 2), (x, -w * (0.9 if look is paint else 0.74), high), (x, w * (0.9 if look is paint else 0.74), high),
                      (x, w * 1.03, (low + high) / 2), (x, w, low)]
        for i in range(len(rows) - 1):
            for k in range(6):
                n = (k + 1) % 6
                faces.append((6 * i + k, 6 * i + n, 6 * i + 6 + n, 6 * i + 6 + k))
        faces += [tuple(range(5, -1, -1)), tuple(range(6 * len(rows) - 6, 6 * len(rows)))]
        thing = shapes.put(shapes.mesh(name, verts, faces, [look], smooth=True), name, site.at(51.6, 47.6, 0.02), math.radians(-97))
        smooth = thing.modifiers.new("Smooth", "SUBSURF")
        smooth.levels = smooth.render_levels = 2
    parts = shapes.Builder()
    parts.box((-1.75, -0.56, 1.5), (0.1, 0.56, 1.56), paint)
    for x in (-1.42, 1.42):
        for y in (-0.83, 0.83):
            parts.tube([(x, y - 0.13, 0.38), (x, y + 0.13, 0.38)], [0.4, 0.4], dark, 28)
            parts.tube([(x, y - 0.14, 0.34), (x, y + 0.14, 0.34)], [0.23, 0.23], materials.plain("Rim", (0.4, 0.41, 0.42), 0.3, 0.8), 20)
    for y in (-0.62, 0.62):
        parts.box((2.2, y - 0.17, 0.6), (2.33, y + 0.17, 0.7), materials.plain("Lamp", (0.8, 0.8, 0.78), 0.1))
        parts.box((-2.33, y - 0.15, 0.72), (-2.2, y + 0.15, 0.88), materials.plain("Tail lamp", (0.35, 0.01, 0.01), 0.2))
        parts.box((0.7, y * 1.5 - 0.1, 1.0), (0.85, y * 1.5 + 0.1, 1.14), paint)
    shapes.put(parts.build("Car parts"), None, site.at(51.6, 47.6, 0.02), math.radians(-97))


def _furniture(looks):
    """A table with four chairs and a parasol on the terrace, two benches by the paths."""
    wood = looks["timber"]
    cloth = materials.cloth("Canvas", (0.52, 0.47, 0.38), (0.43, 0.385, 0.31))
    parts = shapes.Builder()

    def slats(x, y, width, depth, z, turn_x=True, count=5):
        for i in range(count):
            off = (i + 0.5) / count * depth - depth / 2
            if turn_x:
                parts.box(site.at(x - width / 2, y + off + depth / count * 0.42, z), site.at(x + width / 2, y + off - depth / count * 0.42, z + 0.03), wood)
            else:
                parts.box(site.at(x + off - depth / count * 0.42, y + width / 2, z), site.at(x + off + depth / count * 0.42, y - width / 2, z + 0.03), wood)

    def legs(x, y, w, d, z, thick=0.035):
        for sx in (-1, 1):
            for sy in (-1, 1):
                parts.box(site.at(x + sx * w - thick, y + sy * d + thick, 0.05), site.at(x + sx * w + thick, y + sy * d - thick, z), wood)

    tx, ty = 91.4, 30.2
    slats(tx, ty, 2.0, 1.0, 0.74, True, 8)
    legs(tx, ty, 0.9, 0.4, 0.74, 0.04)
    for dx, dy in ((-0.55, 0.95), (0.55, 0.95), (-0.55, -0.95), (0.55, -0.95)):
        slats(tx + dx, ty + dy, 0.46, 0.46, 0.44)
        legs(tx + dx, ty + dy, 0.2, 0.2, 0.44, 0.022)
        back = 0.22 if dy > 0 else -0.22
        for i in range(4):
            x = tx + dx - 0.18 + i * 0.12
            parts.box(site.at(x - 0.025, ty + dy + back + 0.015, 0.44), site.at(x + 0.025, ty + dy + back - 0.015, 0.92), wood)
        parts.box(site.at(tx + dx - 0.23, ty + dy + back + 0.02, 0.86), site.at(tx + dx + 0.23, ty + dy + back - 0.02, 0.94), wood)
    for x, y in ((84.3, 65.6), (106.3, 33.6)):
        slats(x, y, 1.6, 0.45, 0.42)
        legs(x, y, 0.7, 0.18, 0.42)
        for i in range(3):
            parts.box(site.at(x - 0.8, y - 0.24, 0.55 + i * 0.13), site.at(x + 0.8, y - 0.2, 0.64 + i * 0.13), wood)
        for s in (-0.7, 0.7):
            parts.box(site.at(x + s - 0.035, y - 0.18, 0.05), site.at(x + s + 0.035, y - 0.24, 0.95), wood)
    parts.tube([site.at(tx, ty, 0), site.at(tx, ty, 2.55)], [0.03, 0.025], looks["frame"], 10)
    for k in range(8):
        a, b = k * math.pi / 4, (k + 1) * math.pi / 4
        rim = [site.at(tx + math.cos(t) * 1.5, ty + math.sin(t) * 1.5, 2.1) for t in (a, b)]
        parts.face([rim[1], rim[0], site.at(tx, ty, 2.6)], cloth)
    shapes.put(parts.build("Furniture"))
