"""Trees, hedge, shrubs, flowers and grass as models, each grown from its own random numbers so that no two agree."""

import math
import random

from mathutils import Quaternion, Vector

import materials
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
        tip = Vector((math.cos(around) * reach, math.sin(around) * reach,
                      crown + (height - crown) * (0.1 + 0.8 * level)))
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
    core.box((-length / 2, -depth / 2 + 0.22, 0), (length / 2, depth / 2 - 0.22, height - 0.22),
             materials.plain("Hedge core", (0.008, 0.016, 0.006), 1.0))
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
    return shapes.mesh(f"Tuft {seed}", verts, faces,
                       [materials.foliage("Blades", (0.055, 0.1, 0.02), (0.105, 0.14, 0.04))])


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
                       [materials.foliage("Leaves of shrub", *GREENS["shrub"]),
                        materials.plain(f"Blossom {colour}", colour, 0.7)],
                       None, [0] * green + [1] * (len(faces) - green))
