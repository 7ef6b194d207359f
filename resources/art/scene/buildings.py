"""House with porch wing and sunroom, garage and shed."""

from mathutils import Vector

import materials
import measures as site
import shapes


def looks_of_walls():
    return {
        "wall": materials.render_coat("Lime wash", (0.56, 0.515, 0.44), (0.46, 0.415, 0.345)),
        "stone": materials.masonry("Stone", 0.5, 0.24, 0.012, (0.33, 0.285, 0.225), (0.25, 0.22, 0.18),
                                   (0.3, 0.27, 0.22)),
        "brick": materials.masonry("Brick", 0.24, 0.075, 0.01, (0.27, 0.1, 0.06), (0.2, 0.075, 0.05),
                                   (0.3, 0.27, 0.23)),
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
                                 corner(along, c1 - over, eaves + over * pitch - 0.17),
                                 corner(along, middle, ridge - 0.17),
                                 corner(along, c0 + over, eaves + over * pitch - 0.17)], self.looks["timber"])
        self.solid.tube([corner(r0, middle, ridge + 0.04), corner(r1, middle, ridge + 0.04)], [0.13, 0.13],
                        self.looks[look], 8)
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
        for a0, a1, z0, z1 in ((-w - frame, -w, z - frame, z + height + frame),
                               (w, w + frame, z - frame, z + height + frame),
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
    looks = looks_of_walls()
    _house(looks)
    _garage(looks)
    _shed(looks)


def _house(looks):
    h = House(looks)
    for left, top, right, bottom in (site.HOUSE, site.PORCH):
        h.walls((left, top, right, bottom), 0, 5.6, "wall")
        h.walls((left - 0.06, top - 0.06, right + 0.06, bottom + 0.06), -0.2, 0.55, "stone")
    h.hip_roof(site.HOUSE, 5.6, 0.62, "tiles")
    left, _, right, bottom = site.PORCH
    h.hip_roof((left, 31.0, right, bottom), 5.6, 0.62, "tiles", 0.5, ("low",))
    h.walls(site.SUNROOM, 0, 2.9, "stone")
    h.hip_roof(site.SUNROOM, 2.9, 0.5, "slates", 0.35)
    _main_windows(h)
    _porch_front(h)
    for i in range(3):
        h.opening("south", site.SUNROOM[3], 87.6 + i * 2.85, 0.35, 2.3, 2.2, "lit" if i == 0 else "dim", (3, 2), 0.1)
        h.opening("east", site.SUNROOM[2], 34.5 + i * 2.5, 0.35, 2.0, 2.2, "dim", (3, 2), 0.1)
    for x in (62.5, 80.5):
        _chimney(h, x, 29.2)
    h.done("House")


def _main_windows(h):
    left, top, right, bottom = site.HOUSE
    for x, pane in ((59.6, "pane"), (63.4, "lit"), (67.2, "pane")):
        h.opening("south", bottom, x, 0.95, 1.25, 1.75, pane)
        h.opening("south", bottom, x, 3.65, 1.15, 1.4)
    h.opening("south", bottom, 84, 3.65, 1.15, 1.4, "dim")
    for y in (25, 30, 35):
        h.opening("west", left, y, 0.95, 1.25, 1.75, "dim" if y == 30 else "pane")
        h.opening("west", left, y, 3.65, 1.15, 1.4)
        h.opening("east", right, y, 3.65, 1.15, 1.4)
    h.opening("east", right, 28.5, 0.15, 2.6, 2.3, "lit", (4, 3), 0.1, False)
    for i in range(7):
        h.opening("north", top, 60 + i * 4, 3.65, 1.15, 1.4)
        h.opening("north", top, 60 + i * 4, 0.95, 1.25, 1.75)


def _porch_front(h):
    """The wing with the front door; the door stands left of its middle, the security camera right of it."""
    left, _, right, front = site.PORCH
    for x, pane in ((71.8, "lit"), (79.9, "pane")):
        h.opening("south", front, x, 0.95, 1.35, 1.75, pane)
        h.opening("south", front, x, 3.6, 1.2, 1.4)
    h.opening("south", front, 75.8, 3.75, 1.5, 1.25, "dim", (3, 2))
    h.opening("south", front, 75.4, 0.12, 1.15, 2.25, "door", (1, 1), 0.16, False)
    h.opening("south", front, 75.4, 2.55, 1.15, 0.32, "lit", (3, 1), 0.1, False)
    h.solid.box(site.at(73.9, front + 1.2, 3.05), site.at(76.9, front, 3.2), h.looks["trim"])
    for x in (74.05, 76.75):
        h.solid.tube([site.at(x, front + 1.05, 0), site.at(x, front + 1.05, 3.05)], [0.07, 0.07], h.looks["frame"])
    for y in (39.6, 43.6):
        for side, wall in (("west", left), ("east", right)):
            h.opening(side, wall, y, 0.95, 1.2, 1.75)
            h.opening(side, wall, y, 3.6, 1.1, 1.4)


def _chimney(h, x, y):
    h.solid.box(site.at(x - 0.7, y + 0.45, 8), site.at(x + 0.7, y - 0.45, 12.4), h.looks["brick"])
    h.solid.box(site.at(x - 0.8, y + 0.55, 12.1), site.at(x + 0.8, y - 0.55, 12.3), h.looks["stone"])
    for pot in (x - 0.35, x + 0.35):
        h.solid.tube([site.at(pot, y, 12.3), site.at(pot, y, 12.95)], [0.15, 0.12], h.looks["brick"], 10)


def _garage(looks):
    g = House(looks)
    left, top, right, bottom = site.GARAGE
    g.walls(site.GARAGE, 0, 3.7, "stone")
    g.hip_roof(site.GARAGE, 3.7, 0.55, "tiles", 0.45, ("low", "high"))
    for y in (36.4, 42.3):
        g.opening("east", right, y, 0.05, 4.2, 2.35, "timber", (1, 1), 0.14, False)
    for x in (35.6, 44.2):
        g.opening("south", bottom, x, 1.3, 1.1, 1.2, "pane", (2, 2))
    g.opening("west", left, 39.5, 1.1, 1.3, 1.2, "pane", (2, 2))
    g.done("Garage")


def _shed(looks):
    s = House(looks)
    s.walls(site.SHED, 0, 2.1, "timber")
    s.hip_roof(site.SHED, 2.1, 0.55, "slates", 0.3)
    s.opening("west", site.SHED[0], 11.5, 0.1, 0.9, 1.85, "door", (1, 1), 0.08, False)
    s.done("Shed")
