"""Which plant stands where: the garden, its hedge and beds, the country around it, the blades near a camera."""

import math
import random

import ground
import measures as site
import plants
import scatter

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
        models += [plants.tree(100 + len(models) + i, kind, 9.0, 3.5) for i in range(seeds)]
    firs = range(len(models), len(models) + 2)
    models += [plants.conifer(7), plants.conifer(8)]
    group = scatter.library("Trees", models)
    spots = [(site.at(x, y), (0, 0, chance.uniform(0, 6.28)), h / 9.0 * chance.uniform(0.95, 1.05),
              chance.choice(kinds[k]))
             for x, y, h, k in TREES]
    spots += [(site.at(x, y), (0, 0, chance.uniform(0, 6.28)), h / 11.0, chance.choice(firs)) for x, y, h in FIRS]
    for x, y in _woodland(chance):
        mixed = chance.random()
        kind = firs if mixed < 0.14 else kinds["oak" if mixed < 0.55 else "lime" if mixed < 0.86 else "copper"]
        spots.append((site.at(x, y, ground.height_at(x, y)), (0, 0, chance.uniform(0, 6.28)), chance.uniform(0.85, 1.5),
                      chance.choice(kind)))
    scatter.spread("Tree places", group, spots)


def _woodland(chance):
    """Country trees beyond the hedge: a belt near it, copses further out; the drive and the south stay open."""
    places = []
    tries = 0
    while len(places) < 1000 and tries < 20000:
        tries += 1
        x, y = chance.uniform(-170, 330), chance.uniform(-190, 300)
        away = max(-x, x - site.SIZE[0], -y, y - site.SIZE[1])
        if away < 3 or chance.random() > (0.95 if away < 22
                                          else 0.28 + 0.5 * math.sin(x * 0.045 + 1) * math.sin(y * 0.06)):
            continue
        if site.distance_to_line(site.DRIVE, x, y) < 7 or (y > 95 and away < 9 and x < 110):
            continue
        if any(math.hypot(x - a, y - b) < 5.2 for a, b in places):
            continue
        places.append((x, y))
    return places


def plant_hedge():
    chance = random.Random(5)
    group = scatter.library("Hedges", [plants.hedge_piece(i) for i in range(5)])
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


BORDERS = [((58, 39), (69, 39)), ((83, 43), (94.5, 43)), ((33.5, 32), (46, 32)), ((58, 21), (72, 21)),
           ((32, 34), (32, 45)), ((70.6, 48), (73.4, 48)), ((79, 48.2), (81.6, 48.2)), ((97, 24), (97, 27))]

# middle, radii
BEDS = [((104.5, 50.5), (3.0, 1.6)), ((110, 22.5), (3.6, 1.7)), ((62, 65.5), (2.2, 1.2)), ((91.8, 68.6), (2.4, 1.3)),
        ((36.5, 52.5), (2.2, 1.1)), ((122.5, 47.5), (2.4, 1.6))]


def plant_beds():
    """Shrubs along the walls, flower beds in the lawn, single bushes before the hedge."""
    chance = random.Random(21)
    shrubs = [plants.shrub(i) for i in range(3)]
    shrubs += [plants.shrub(9, "hedge", (0.55, 0.55, 0.65)), plants.shrub(10, "lime", (0.9, 0.8, 0.7))]
    colours = [(0.5, 0.06, 0.1), (0.55, 0.5, 0.42), (0.24, 0.12, 0.42), (0.6, 0.32, 0.04)]
    bushes, blooms = [], []
    for (ax, ay), (bx, by) in BORDERS:
        count = max(2, int(math.dist((ax, ay), (bx, by)) / 1.15))
        for i in range(count + 1):
            t = i / count
            x, y = ax + (bx - ax) * t + chance.gauss(0, 0.15), ay + (by - ay) * t + chance.gauss(0, 0.15)
            bushes.append(_turned(chance, site.at(x, y), 0.75, 1.35, 5))
            for _ in range(3):
                spot = site.at(x + chance.gauss(0, 0.6), y + 0.7 + chance.gauss(0, 0.25))
                blooms.append(_turned(chance, spot, 0.6, 1.1, 4))
    for (x, y), (wide, deep) in BEDS:
        for _ in range(int(wide * deep * 11)):
            a, d = chance.uniform(0, 6.28), chance.random() ** 0.5
            spot = site.at(x + math.cos(a) * d * wide, y + math.sin(a) * d * deep)
            if chance.random() < 0.1:
                bushes.append(_turned(chance, spot, 0.6, 1.0, 5))
            else:
                blooms.append(_turned(chance, spot, 0.65, 1.2, 4))
    bushes += _before_the_hedge(chance)
    scatter.spread("Shrub places", scatter.library("Shrubs", shrubs), bushes)
    beds = scatter.library("Flowers", [plants.flowers(i, c) for i, c in enumerate(colours)])
    scatter.spread("Flower places", beds, blooms)


def _turned(chance, place, small, large, kinds):
    return (place, (0, 0, chance.uniform(0, 6.28)), chance.uniform(small, large), chance.randrange(kinds))


def _before_the_hedge(chance):
    left, top, right, bottom = site.BOUNDARY
    bushes = []
    for _ in range(46):
        side = chance.choice(("top", "bottom", "left", "right"))
        if side in ("top", "bottom"):
            x, y = chance.uniform(left + 2, right - 2), top + 2 if side == "top" else bottom - 2
        else:
            x, y = left + 2 if side == "left" else right - 2, chance.uniform(top + 2, bottom - 2)
        if not site.trodden(x, y, 2.2):
            bushes.append(_turned(chance, site.at(x, y), 0.9, 2.0, 5))
    return bushes


def plant_lawn(eye, heading, opening, reach):
    """Blades where a camera at `eye` is near enough to see them; thinner and larger with the distance."""
    chance = random.Random(31)
    group = scatter.library("Tufts", [plants.grass_tuft(i) for i in range(4)])
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
            spots.append((site.at(x, y), (0, 0, chance.uniform(0, 6.28)),
                          chance.uniform(0.75, 1.2) * max(0.75, each / 0.13),
                          chance.randrange(4)))
        distance += step
    scatter.spread("Tuft places", group, spots)

