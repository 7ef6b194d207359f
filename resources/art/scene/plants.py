"""Trees, hedge, shrubs, flowers and grass, each grown from its own random numbers so that no two agree."""

import math
import random

from mathutils import Quaternion, Vector

import ground
import materials
import measures as site
import scatter
import shapes

GREENS = {
    "oak": ((0.045, 0.082, 0.014), (0.085, 0.125, 0.022)),
    "lime": ((0.07, 0.115, 0.02), (0.13, 0.165, 0.028)),
    "copper": ((0.12, 0.105, 0.018), (0.2, 0.135, 0.025)),
    "fir": ((0.02, 0.048, 0.02), (0.035, 0.07, 0.026)),
    "hedge": ((0.03, 0.07, 0.016), (0.055, 0.1, 0.022)),
    "shrub": ((0.045, 0.09, 0.024), (0.09, 0.135, 0.04)),
}


def _leaves(chance, centres, size, verts, faces):
    """One folded leaf about each (place, outward direction)."""
    for place, out in centres:
        facing = (Vector(out) + Vector([chance.gauss(0, 0.75) for _ in range(3)])).normalized()
        side = facing.orthogonal().normalized()
        side.rotate(Quaternion(facing, chance.uniform(0, 6.283)))
        length = facing.cross(side)
        s = size * chance.uniform(0.65, 1.3)
        first = len(verts)
        verts.extend([tuple(place - length * s), tuple(place + side * s * 0.55 + facing * s * 0.18),
                      tuple(place + length * s), tuple(place - side * s * 0.55 + facing * s * 0.18)])
        faces.extend([(first, first + 1, first + 2), (first, first + 2, first + 3)])


def _ball(chance, middle, radii, count):
    """Places in a ball of leaves, dense towards its skin, with their directions outwards."""
    result = []
    for _ in range(count):
        out = Vector([chance.gauss(0, 1) for _ in range(3)]).normalized()
        depth = chance.random() ** 0.45
        result.append((Vector(middle) + Vector([out[k] * radii[k] * depth for k in range(3)]), out))
    return result


def _with_wood(name, wood, verts, faces, leaf):
    first = len(wood.verts)
    data = shapes.mesh(name, wood.verts + verts, wood.faces + [tuple(i + first for i in f) for f in faces],
                       [materials.bark("Bark"), leaf], None, [0] * len(wood.faces) + [1] * len(faces))
    return data


def tree(seed, kind, height=9.0, spread=3.6, leaf_size=0.17, density=1.0):
    """A broad tree: a forking trunk and balls of leaves at its branch ends."""
    chance = random.Random(seed)
    wood, verts, faces = shapes.Builder(), [], []
    bark = materials.bark("Bark")
    crown = height * 0.32
    lean = Vector((chance.uniform(-0.4, 0.4), chance.uniform(-0.4, 0.4), 0))
    trunk = [Vector((0, 0, -0.2)) + lean * t * t + Vector((0, 0, height * 0.72 * t)) for t in (0, 0.08, 0.3, 0.6, 1)]
    wood.tube(trunk, [0.04 * height, 0.029 * height, 0.023 * height, 0.017 * height, 0.006 * height], bark)
    balls = []
    for i in range(chance.randint(15, 19)):
        around = i * 2.4 + chance.uniform(-0.4, 0.4)
        level = (i + chance.random()) / 18
        reach = spread * (0.93 - 0.75 * abs(level - 0.33) ** 1.35) * chance.uniform(0.72, 1.05)
        tip = Vector((math.cos(around) * reach, math.sin(around) * reach, crown + (height - crown) * (0.1 + 0.8 * level)))
        start = trunk[2].lerp(trunk[4], min(0.9, level))
        bend = start.lerp(tip, 0.5) + Vector((0, 0, -0.25))
        wood.tube([start, bend, tip], [0.009 * height, 0.006 * height, 0.002 * height], bark, 6)
        balls.append((tip, chance.uniform(0.9, 1.45) * spread * 0.34))
        balls.append((start.lerp(tip, 0.55) + Vector((0, 0, 0.5)), spread * 0.3))
    balls.append((trunk[-1] + Vector((0, 0, height * 0.1)), spread * 0.42))
    for middle, radius in balls:
        count = int(300 * density * (radius / 1.2) ** 2 * (0.17 / leaf_size) ** 2)
        _leaves(chance, _ball(chance, middle, (radius, radius, radius * 0.72), count), leaf_size, verts, faces)
    return _with_wood(f"{kind} {seed}", wood, verts, faces, materials.foliage(f"Leaves of {kind}", *GREENS[kind]))


def conifer(seed, height=11.0):
    chance = random.Random(seed)
    wood, verts, faces = shapes.Builder(), [], []
    wood.tube([(0, 0, -0.2), (0, 0, height * 0.95)], [0.2, 0.03], materials.bark("Bark"))
    for i in range(130):
        level = 0.08 + 0.9 * (i / 130)
        reach = (1 - level) * height * 0.24 + 0.12
        around = i * 2.4 + chance.uniform(-0.3, 0.3)
        reach *= chance.uniform(0.8, 1.1)
        for k in range(9):
            t = (k + 1) / 9
            middle = Vector((math.cos(around) * reach * t, math.sin(around) * reach * t,
                             height * level - 0.35 * reach * t * t))
            _leaves(chance, _ball(chance, middle, (0.24, 0.24, 0.12), 8), 0.12, verts, faces)
    return _with_wood(f"fir {seed}", wood, verts, faces, materials.foliage("Leaves of fir", *GREENS["fir"], 0.15))


def shrub(seed, kind="shrub", radii=(0.75, 0.7, 0.6), count=1700, size=0.06):
    chance = random.Random(seed)
    verts, faces = [], []
    for i in range(5):
        away = Vector((chance.uniform(-0.5, 0.5) * radii[0], chance.uniform(-0.5, 0.5) * radii[1],
                       radii[2] * chance.uniform(0.55, 0.95)))
        scale = chance.uniform(0.55, 0.8)
        _leaves(chance, _ball(chance, away, [r * scale for r in radii], count // 5), size, verts, faces)
    return shapes.mesh(f"{kind} {seed}", verts, faces, [materials.foliage(f"Leaves of {kind}", *GREENS[kind])])


def hedge_piece(seed, length=2.4, depth=1.5, height=2.1):
    """A clipped stretch of hedge: a dark core so that nothing shines through, leaves all over it."""
    chance = random.Random(seed)
    core = shapes.Builder()
    leaf = materials.foliage("Leaves of hedge", *GREENS["hedge"], 0.25)
    core.box((-length / 2, -depth / 2 + 0.22, 0), (length / 2, depth / 2 - 0.22, height - 0.22), materials.plain("Hedge core", (0.008, 0.016, 0.006), 1.0))
    verts, faces, spots = [], [], []
    for _ in range(5200):
        x, u = chance.uniform(-length / 2 - 0.15, length / 2 + 0.15), chance.random() * (2 * height + depth)
        if u < height:
            place, out = Vector((x, -depth / 2, u)), (0, -1, 0.2)
        elif u < 2 * height:
            place, out = Vector((x, depth / 2, u - height)), (0, 1, 0.2)
        else:
            place, out = Vector((x, u - 2 * height - depth / 2, height)), (0, 0, 1)
        swell = 0.1 * math.sin(x * 2.1 + seed) + 0.07 * math.sin(x * 5.3 + 2 * seed)
        spots.append((place + Vector(out) * (swell * 0.6 + chance.gauss(-0.07, 0.08)), out))
    _leaves(chance, spots, 0.07, verts, faces)
    first = len(core.verts)
    return shapes.mesh(f"Hedge {seed}", core.verts + verts, core.faces + [tuple(i + first for i in f) for f in faces],
                       [core.materials[0], leaf], None, [0] * len(core.faces) + [1] * len(faces))


def grass_tuft(seed, height=0.07, blades=34, width=0.16):
    chance = random.Random(seed)
    verts, faces = [], []
    for _ in range(blades):
        x, y = chance.gauss(0, width / 2), chance.gauss(0, width / 2)
        around, tall = chance.uniform(0, 6.283), height * chance.uniform(0.55, 1.25)
        dx, dy = math.cos(around), math.sin(around)
        bend, w = tall * chance.uniform(0.15, 0.7), 0.0035 + tall * 0.025
        first = len(verts)
        verts += [(x - dy * w, y + dx * w, -0.01), (x + dy * w, y - dx * w, -0.01),
                  (x + dx * bend * 0.4, y + dy * bend * 0.4, tall * 0.65),
                  (x + dx * bend, y + dy * bend, tall)]
        faces += [(first, first + 1, first + 2), (first + 2, first + 1, first + 3)]
    return shapes.mesh(f"Tuft {seed}", verts, faces, [materials.foliage("Blades", (0.055, 0.1, 0.02), (0.105, 0.14, 0.04))])


def flowers(seed, colour):
    """A low mound of leaves with blossoms of one colour standing out of it."""
    chance = random.Random(seed)
    verts, faces = [], []
    _leaves(chance, _ball(chance, (0, 0, 0.14), (0.34, 0.34, 0.26), 420), 0.045, verts, faces)
    green = len(faces)
    for place, out in _ball(chance, (0, 0, 0.2), (0.34, 0.34, 0.3), 150):
        if out.z > -0.1:
            _leaves(chance, [(place + out * 0.05, Vector((0, 0, 1)))], 0.035, verts, faces)
    return shapes.mesh(f"Flowers {seed}", verts, faces,
                       [materials.foliage("Leaves of shrub", *GREENS["shrub"]), materials.plain(f"Blossom {colour}", colour, 0.7)],
                       None, [0] * green + [1] * (len(faces) - green))


# place and height in metres; kinds repeat with other turns and sizes
TREES = [
    (19, 28, 10, "oak"), (26, 14, 9, "lime"), (45, 14, 10, "oak"), (13, 48, 8, "lime"), (100, 13.5, 9, "copper"),
    (121, 36, 10, "oak"), (134, 44, 8, "lime"), (133, 72, 10, "oak"), (118, 90.8, 7, "lime"), (48, 87.3, 6.5, "copper"),
    (19, 57, 5.5, "lime"), (60, 12.5, 8, "lime"), (117, 12.5, 8, "oak"), (12.5, 70, 8, "oak"), (102, 62, 6, "copper"),
    (30, 88.5, 7, "lime"), (72, 88.5, 7, "oak"), (90, 88.5, 6, "lime"), (14, 14, 10, "oak"), (136, 29, 7, "copper"),
    (41, 71, 5.5, "lime"), (118, 69, 6.5, "lime"),
]
FIRS = [(12.5, 37, 10), (16, 39.5, 8.5), (76, 12, 10), (80.5, 13.5, 8), (137, 88, 8)]


def plant_trees():
    chance = random.Random(11)
    kinds = {}
    models = []
    for kind, seeds in (("oak", 3), ("lime", 3), ("copper", 2)):
        kinds[kind] = range(len(models), len(models) + seeds)
        models += [tree(100 + len(models) + i, kind, 9.0, 3.5) for i in range(seeds)]
    firs = range(len(models), len(models) + 2)
    models += [conifer(7), conifer(8)]
    group = scatter.library("Trees", models)
    spots = [(site.at(x, y), (0, 0, chance.uniform(0, 6.28)), h / 9.0 * chance.uniform(0.95, 1.05), chance.choice(kinds[k]))
             for x, y, h, k in TREES]
    spots += [(site.at(x, y), (0, 0, chance.uniform(0, 6.28)), h / 11.0, chance.choice(firs)) for x, y, h in FIRS]
    for x, y in _woodland(chance):
        mixed = chance.random()
        kind = firs if mixed < 0.14 else kinds["oak" if mixed < 0.55 else "lime" if mixed < 0.86 else "copper"]
        spots.append((site.at(x, y, ground.height_at(x, y)), (0, 0, chance.uniform(0, 6.28)), chance.uniform(0.85, 1.5), chance.choice(kind)))
    scatter.spread("Tree places", group, spots)


def _woodland(chance):
    """Country trees beyond the hedge: a belt near it, copses further out, the drive and the view to the south kept open."""
    places = []
    tries = 0
    while len(places) < 1000 and tries < 20000:
        tries += 1
        x, y = chance.uniform(-170, 330), chance.uniform(-190, 300)
        away = max(-x, x - site.SIZE[0], -y, y - site.SIZE[1])
        if away < 3 or chance.random() > (0.95 if away < 22 else 0.28 + 0.5 * math.sin(x * 0.045 + 1) * math.sin(y * 0.06)):
            continue
        if site.distance_to_line(site.DRIVE, x, y) < 7 or (y > 95 and away < 9 and x < 110):
            continue
        if any(math.hypot(x - a, y - b) < 5.2 for a, b in places):
            continue
        places.append((x, y))
    return places


def plant_hedge():
    chance = random.Random(5)
    group = scatter.library("Hedges", [hedge_piece(i) for i in range(5)])
    left, top, right, bottom = site.BOUNDARY
    spots = []
    for side, fixed, low, high in (("top", top, left, right), ("bottom", bottom, left, right),
                                   ("left", left, top, bottom), ("right", right, top, bottom)):
        solid = [(low, high)]
        for where, middle, width in site.GATES:
            if where == side:
                solid = [p for a, b in solid for p in ((a, middle - width / 2), (middle + width / 2, b))]
        for a, b in solid:
            count = max(1, round((b - a) / 2.3))
            for i in range(count):
                along = a + (i + 0.5) * (b - a) / count
                place = (along, fixed) if side in ("top", "bottom") else (fixed, along)
                turn = (0 if side in ("top", "bottom") else math.pi / 2) + chance.choice((0, math.pi))
                spots.append((site.at(*place), (chance.gauss(0, 0.012), 0, turn + chance.gauss(0, 0.015)),
                              chance.uniform(0.94, 1.06), chance.randrange(5)))
    scatter.spread("Hedge places", group, spots)


def plant_beds():
    """Shrubs along the walls and flower beds at terrace, porch and pad path."""
    chance = random.Random(21)
    shrubs = scatter.library("Shrubs", [shrub(i) for i in range(3)] + [shrub(9, "hedge", (0.55, 0.55, 0.65)), shrub(10, "lime", (0.9, 0.8, 0.7))])
    colours = [(0.5, 0.06, 0.1), (0.55, 0.5, 0.42), (0.24, 0.12, 0.42), (0.6, 0.32, 0.04)]
    beds = scatter.library("Flowers", [flowers(i, c) for i, c in enumerate(colours)])
    bushes, blooms = [], []
    rows = [((58, 39), (69, 39)), ((83, 43), (94.5, 43)), ((33.5, 32), (46, 32)), ((58, 21), (72, 21)),
            ((32, 34), (32, 45)), ((70.6, 48), (73.4, 48)), ((79, 48.2), (81.6, 48.2)), ((97, 24), (97, 27))]
    for (ax, ay), (bx, by) in rows:
        count = max(2, int(math.dist((ax, ay), (bx, by)) / 1.15))
        for i in range(count + 1):
            t = i / count
            x, y = ax + (bx - ax) * t + chance.gauss(0, 0.15), ay + (by - ay) * t + chance.gauss(0, 0.15)
            bushes.append((site.at(x, y), (0, 0, chance.uniform(0, 6.28)), chance.uniform(0.75, 1.35), chance.randrange(5)))
            for _ in range(3):
                blooms.append((site.at(x + chance.gauss(0, 0.6), y + 0.7 + chance.gauss(0, 0.25)), (0, 0, chance.uniform(0, 6.28)),
                               chance.uniform(0.6, 1.1), chance.randrange(4)))
    for middle, radii in (((104.5, 50.5), (3.0, 1.6)), ((110, 22.5), (3.6, 1.7)), ((62, 65.5), (2.2, 1.2)), ((91.8, 68.6), (2.4, 1.3)),
                          ((36.5, 52.5), (2.2, 1.1)), ((122.5, 47.5), (2.4, 1.6))):
        for _ in range(int(radii[0] * radii[1] * 11)):
            a, d = chance.uniform(0, 6.28), chance.random() ** 0.5
            spot = site.at(middle[0] + math.cos(a) * d * radii[0], middle[1] + math.sin(a) * d * radii[1])
            if chance.random() < 0.1:
                bushes.append((spot, (0, 0, a), chance.uniform(0.6, 1.0), chance.randrange(5)))
            else:
                blooms.append((spot, (0, 0, a), chance.uniform(0.65, 1.2), chance.randrange(4)))
    for _ in range(46):
        side = chance.choice(("top", "bottom", "left", "right"))
        left, top, right, bottom = site.BOUNDARY
        x = chance.uniform(left + 2, right - 2) if side in ("top", "bottom") else (left + 2 if side == "left" else right - 2)
        y = chance.uniform(top + 2, bottom - 2) if side in ("left", "right") else (top + 2 if side == "top" else bottom - 2)
        if not site.trodden(x, y, 2.2):
            bushes.append((site.at(x, y), (0, 0, chance.uniform(0, 6.28)), chance.uniform(0.9, 2.0), chance.randrange(5)))
    scatter.spread("Shrub places", shrubs, bushes)
    scatter.spread("Flower places", beds, blooms)


def plant_lawn(eye, heading, opening, reach):
    """Blades where a camera at `eye` is near enough to see them; thinner and larger with the distance."""
    chance = random.Random(31)
    group = scatter.library("Tufts", [grass_tuft(i) for i in range(4)])
    spots = []
    step = 0.55
    distance = 1.5
    while distance < reach:
        across = 2 * distance * math.tan(math.radians(opening / 2))
        each = max(0.075, 0.0085 * distance)
        for _ in range(int(across * step / (each * each))):
            d = distance + chance.random() * step
            angle = math.radians(heading) + math.radians(opening / 2) * chance.uniform(-1, 1)
            x, y = eye[0] + math.cos(angle) * d, eye[1] + math.sin(angle) * d
            if chance.random() < (d - 0.55 * reach) / (0.45 * reach) or site.trodden(x, y, 0.05):
                continue
            spots.append((site.at(x, y), (0, 0, chance.uniform(0, 6.28)), chance.uniform(0.75, 1.2) * max(0.75, each / 0.13),
                          chance.randrange(4)))
        distance += step
    scatter.spread("Tuft places", group, spots)

