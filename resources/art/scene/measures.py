"""The demo site in metres: x to the right and y downwards on the plan, as the app's own record of it says.

Angles are degrees from +x towards +y. Blender's y points the other way; `at` is the only place that turns it.
"""

import math

SIZE = (150.0, 100.0)
BOUNDARY = (7.4, 6.6, 142.6, 90.6)  # left, top, right, bottom: the hedge stands on it
PAD = (74.0, 70.7)

# name: place, heading, height on its wall
CAMERAS = {
    "driveway": ((40.0, 46.0), 120.0, 3.3),
    "front": ((77.0, 47.0), 70.0, 3.5),
    "garden": ((86.0, 24.0), 10.0, 3.9),
}

# Where each visitor stands in the picture of the camera that sees them, and which way they walk.
VISITORS = {
    "driveway": ((31.0, 66.0), -39.0),
    "front": ((79.95, 58.4), -125.0),
    "garden": ((103.0, 30.0), 68.0),
}

DRIVE = [(2, 102), (8, 94.6), (14, 88), (22, 79), (31, 66), (41, 58), (53, 54)]
LAWN_PATH = [(53, 54), (66, 61), (90, 74), (112, 80), (133, 84), (152, 86)]
FRONT_PATH = [(105.5, 91.5), (104, 88), (95, 78), (82, 63), (61, 73), (43, 84), (38, 99), (36.6, 103)]
GARDEN_PATH = [(137.1, 11.8), (137, 17), (120, 21), (103, 30), (110, 47), (129, 57), (152, 60)]

DOOR_PATH = [(76, 49.5), (77.5, 55), (82, 63)]
PAD_PATH = [(69.6, 62.9), (72.5, 66), (74, 70)]
TERRACE_PATH = [(95, 28.5), (99, 29.5), (103, 30)]

# name, line, width in metres
WAYS = [
    ("Drive", DRIVE, 3.8),
    ("Lawn path", LAWN_PATH, 1.5),
    ("Front path", FRONT_PATH, 1.5),
    ("Garden path", GARDEN_PATH, 1.5),
    ("Door path", DOOR_PATH, 1.6),
    ("Pad path", PAD_PATH, 1.3),
    ("Terrace path", TERRACE_PATH, 1.5),
]

# Paved rectangles: forecourt, garden terrace, porch step
FORECOURT = (48.0, 35.0, 57.0, 56.5)
TERRACE = (86.0, 23.0, 96.0, 33.0)
PORCH_STEP = (72.5, 46.9, 79.0, 50.0)

# left, top, right, bottom of each part of the buildings
HOUSE = (57.0, 22.0, 86.0, 38.0)
PORCH = (70.0, 37.0, 82.0, 46.9)
SUNROOM = (86.0, 33.0, 95.0, 41.0)
GARAGE = (33.0, 33.0, 47.0, 45.9)
SHED = (137.8, 9.6, 140.8, 13.4)

# Openings in the hedge: side, middle along that side, width
GATES = [
    ("bottom", 11.6, 5.4),
    ("bottom", 40.6, 2.2),
    ("bottom", 105.3, 2.2),
    ("right", 85.0, 2.2),
    ("right", 58.8, 2.2),
]


def at(x, y, z=0.0):
    return (x, -y, z)


def heading(degrees, length=1.0):
    angle = math.radians(degrees)
    return (math.cos(angle) * length, math.sin(angle) * length)


def inside(rect, x, y, margin=0.0):
    left, top, right, bottom = rect
    return left - margin < x < right + margin and top - margin < y < bottom + margin


def curve(points, step=1.0, pull=0.22):
    """A smooth line through `points`, about `step` metres between places; it stays close to the straight route."""
    result = []
    ends = [points[0]] + list(points) + [points[-1]]
    for p0, p1, p2, p3 in zip(ends, ends[1:], ends[2:], ends[3:]):
        count = max(2, int(math.dist(p1, p2) / step))
        for i in range(count):
            t = i / count
            place = []
            for a, b, c, d in zip(p0, p1, p2, p3):
                m1, m2 = (c - a) * pull, (d - b) * pull
                place.append((2 * t**3 - 3 * t**2 + 1) * b + (t**3 - 2 * t**2 + t) * m1
                             + (-2 * t**3 + 3 * t**2) * c + (t**3 - t**2) * m2)
            result.append(tuple(place))
    result.append(tuple(points[-1]))
    return result


def distance_to_line(points, x, y):
    """Distance in metres from (x, y) to the polyline through `points`."""
    best = math.inf
    for (ax, ay), (bx, by) in zip(points, points[1:]):
        dx, dy = bx - ax, by - ay
        t = max(0.0, min(1.0, ((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy)))
        best = min(best, math.hypot(x - ax - t * dx, y - ay - t * dy))
    return best


def _worn():
    for _, points, width in WAYS:
        line = curve(points, 2.0)
        xs, ys = [p[0] for p in line], [p[1] for p in line]
        yield line, width / 2, (min(xs), min(ys), max(xs), max(ys))


_WORN = list(_worn())


def trodden(x, y, margin=0.0):
    """Whether nothing grows at (x, y): a way, a paved place, a building or the pad."""
    built = (HOUSE, PORCH, SUNROOM, GARAGE, SHED, FORECOURT, TERRACE, PORCH_STEP)
    return (any(inside(r, x, y, margin) for r in built) or math.hypot(x - PAD[0], y - PAD[1]) < 2.25 + margin
            or any(inside(around, x, y, half + margin) and distance_to_line(line, x, y) < half + margin
                   for line, half, around in _WORN))
