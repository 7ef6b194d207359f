"""The land, the drive, the paths, the terrace and the pad."""

import math
import random

import materials
import measures as site
import shapes


def height_at(x, y):
    """Level on the site, low hills far out, so that the horizon is not a ruled line."""
    away = math.hypot(max(-x, 0, x - site.SIZE[0]), max(-y, 0, y - site.SIZE[1]))
    rise = min(1.0, max(0.0, (away - 14) / 160)) ** 1.6
    return rise * (7 + 5 * math.sin(x * 0.011 + 0.6) + 4 * math.sin(y * 0.013 - 0.4))


def lay():
    _land()
    gravel = materials.gravel("Gravel", (0.3, 0.235, 0.17), (0.2, 0.155, 0.115))
    path = materials.gravel("Path", (0.26, 0.205, 0.15), (0.175, 0.14, 0.105))
    for level, (name, line, width) in enumerate(site.WAYS):
        _path(name, line, width, path if level else gravel, 0.024 - 0.002 * level)
    _forecourt(gravel)
    stone = materials.masonry("Flags", 0.9, 0.6, 0.012, (0.27, 0.24, 0.205), (0.2, 0.185, 0.165), (0.08, 0.075, 0.06))
    paving = shapes.Builder()
    for left, top, right, bottom in (site.TERRACE, site.PORCH_STEP):
        paving.box(site.at(left, bottom, -0.1), site.at(right, top, 0.06), stone)
    shapes.rounded(shapes.put(paving.build("Terrace")), 0.015)
    _pad()


def _land():
    """Fine near the site, coarse far away."""

    def lines(low, high, near_low, near_high):
        far = [low + (near_low - low) * i / 14 for i in range(14)]
        near = [near_low + (near_high - near_low) * i / 40 for i in range(41)]
        return far + near + [near_high + (high - near_high) * (i + 1) / 14 for i in range(14)]

    xs, ys = lines(-500, 650, -25, 175), lines(-500, 600, -25, 125)
    verts = [site.at(x, y, height_at(x, y)) for y in ys for x in xs]
    faces = []
    for j in range(len(ys) - 1):
        for i in range(len(xs) - 1):
            a = j * len(xs) + i
            faces.append((a, a + len(xs), a + len(xs) + 1, a + 1))
    shapes.put(shapes.mesh("Land", verts, faces, [materials.grass("Grass")], smooth=True))


def _path(name, points, width, material, lift):
    """A ribbon along the route with an edge that wanders a little, as trodden gravel does."""
    chance = random.Random(name)
    line = site.curve(points, 0.5)
    verts, faces = [], []
    drift = [0.0, 0.0]
    for i, (x, y) in enumerate(line):
        ax, ay = line[max(i - 1, 0)]
        bx, by = line[min(i + 1, len(line) - 1)]
        length = math.hypot(bx - ax, by - ay) or 1
        nx, ny = -(by - ay) / length, (bx - ax) / length
        for k, sign in enumerate((-1, 1)):
            drift[k] = drift[k] * 0.75 + chance.gauss(0, 0.035)
            w = sign * width / 2 + drift[k]
            verts.append(site.at(x + nx * w, y + ny * w, lift))
    for i in range(len(line) - 1):
        faces.append((2 * i + 1, 2 * i, 2 * i + 2, 2 * i + 3))
    shapes.put(shapes.mesh(name, verts, faces, [material]))


def _forecourt(gravel):
    """The turning place between garage and house; its corners are swept by wheels."""
    left, top, right, bottom = site.FORECOURT
    outline, radius = [], 2.6
    for cx, cy, start in ((right - radius, bottom - radius, 0), (left + radius, bottom - radius, 90),
                          (left + radius, top + radius, 180), (right - radius, top + radius, 270)):
        for k in range(9):
            a = math.radians(start + k * 90 / 8)
            outline.append(site.at(cx + radius * math.cos(a), cy + radius * math.sin(a), 0.026))
    outline.reverse()
    shapes.put(shapes.mesh("Forecourt", outline, [tuple(range(len(outline)))], [gravel]))


def _disc(name, radius, inner, z, material, sides=72):
    verts, faces = [], []
    for k in range(sides):
        a = 2 * math.pi * k / sides
        verts += [(math.cos(a) * inner, math.sin(a) * inner, z), (math.cos(a) * radius, math.sin(a) * radius, z),
                  (math.cos(a) * radius, math.sin(a) * radius, -0.05)]
    for k in range(sides):
        a, b = 3 * k, 3 * ((k + 1) % sides)
        faces += [(a, a + 1, b + 1, b), (a + 1, a + 2, b + 2, b + 1)]
    shapes.put(shapes.mesh(name, verts, faces, [material]), None, site.at(*site.PAD))


def _pad():
    slab = materials.render_coat("Pad slab", (0.17, 0.175, 0.18), (0.12, 0.125, 0.13))
    mark = materials.plain("Pad mark", (0.42, 0.46, 0.47), 0.6)
    _disc("Pad", 2.2, 0.0, 0.07, slab)
    _disc("Pad ring", 1.85, 1.7, 0.078, mark)
    _disc("Pad eye", 0.34, 0.22, 0.078, mark)
