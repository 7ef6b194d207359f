"""The quadcopter: a lofted body, folding arms, two-bladed rotors, a stabilised camera. Built in metres, nose to +x."""

import math

import bpy
from mathutils import Matrix, Vector

import materials
import shapes

ARMS = [((0.075, 0.045), (0.165, 0.165), 0.026), ((0.075, -0.045), (0.165, -0.165), 0.026),
        ((-0.085, 0.045), (-0.165, 0.165), 0.006), ((-0.085, -0.045), (-0.165, -0.165), 0.006)]


def _looks():
    return {
        "shell": materials.plain("Shell", (0.4, 0.43, 0.45), 0.34, 0.15),
        "dark": materials.plain("Shell dark", (0.06, 0.066, 0.072), 0.42, 0.1),
        "metal": materials.plain("Motor", (0.3, 0.31, 0.33), 0.28, 0.9),
        "copper": materials.plain("Accent", (0.02, 0.28, 0.27), 0.35, 0.2),
        "blade": materials.plain("Blade", (0.05, 0.055, 0.06), 0.4),
        "lens": materials.plain("Lens", (0.005, 0.006, 0.01), 0.04),
        "teal": materials.glow("Status light", (0.1, 0.85, 0.75), 6.0),
        "red": materials.glow("Port light", (1.0, 0.08, 0.05), 4.0),
    }


def _loft(name, rows, material, sides=20, power=3.2):
    """A body through superelliptic sections (x, middle z, half width, half height)."""
    verts, faces = [], []
    for x, z, wide, high in rows:
        for k in range(sides):
            t = 2 * math.pi * k / sides
            c, s = math.cos(t), math.sin(t)
            verts.append((x, wide * math.copysign(abs(c) ** (2 / power), c),
                          z + high * math.copysign(abs(s) ** (2 / power), s)))
    for i in range(len(rows) - 1):
        for k in range(sides):
            n = (k + 1) % sides
            faces.append((sides * i + k, sides * i + n, sides * i + sides + n, sides * i + sides + k)[::-1])
    faces += [tuple(range(sides)), tuple(range(sides * len(rows) - 1, sides * (len(rows) - 1) - 1, -1))]
    thing = shapes.put(shapes.mesh(name, verts, faces, [material], smooth=True), name)
    smooth = thing.modifiers.new("Smooth", "SUBSURF")
    smooth.levels = smooth.render_levels = 2
    return thing


def _tube(name, path, radii, material, sides=24):
    part = shapes.Builder()
    part.tube(path, radii, material, sides)
    thing = shapes.put(part.build(name), name)
    return shapes.rounded(thing, min(radii) * 0.3)


def _box(name, low, high, material, edge=0.003):
    part = shapes.Builder()
    part.box(low, high, material)
    return shapes.rounded(shapes.put(part.build(name), name), edge)


def _blade(name, length, material):
    """A twisted aerofoil, wide near the root and narrow at the tip."""
    verts, faces = [], []
    count, sides = 14, 8
    for i in range(count + 1):
        t = i / count
        chord = length * (0.06 + 0.13 * math.sin(math.pi * min(1, t * 1.25 + 0.12)) * (1 - 0.5 * t))
        pitch = math.radians(24 - 17 * t)
        for k in range(sides):
            a = 2 * math.pi * k / sides
            c, s = math.cos(a) * chord / 2, math.sin(a) * chord * 0.07
            sweep = -chord * 0.2 * t
            verts.append((0.006 + t * length, sweep + c * math.cos(pitch) - s * math.sin(pitch),
                          c * math.sin(pitch) + s * math.cos(pitch)))
    for i in range(count):
        for k in range(sides):
            n = (k + 1) % sides
            faces.append((sides * i + k, sides * i + sides + k, sides * i + sides + n, sides * i + n))
    faces += [tuple(range(sides)), tuple(range(sides * (count + 1) - 1, sides * count - 1, -1))]
    return shapes.mesh(name, verts, faces, [material], smooth=True)


def build(turns=(58, 140, 70, 10), spinning=False):
    looks = _looks()
    parts = []
    parts.append(_loft("Body", [(-0.135, 0.0, 0.022, 0.018), (-0.125, 0.0, 0.038, 0.028), (-0.06, 0.004, 0.049, 0.035),
                                (0.03, 0.006, 0.05, 0.036), (0.09, 0.003, 0.043, 0.031), (0.12, -0.002, 0.033, 0.022),
                                (0.128, -0.003, 0.022, 0.013)],
                       looks["shell"]))
    parts.append(_loft("Belly",
                       [(-0.12, -0.02, 0.03, 0.012), (-0.05, -0.026, 0.045, 0.014), (0.06, -0.026, 0.042, 0.014),
                        (0.105, -0.022, 0.028, 0.01)],
                       looks["dark"]))
    parts.append(_loft("Battery",
                       [(-0.128, 0.022, 0.02, 0.01), (-0.11, 0.027, 0.032, 0.013), (0.0, 0.03, 0.035, 0.015),
                        (0.03, 0.03, 0.03, 0.011)],
                       looks["dark"]))
    parts.append(_box("Stripe", (0.045, -0.004, 0.036), (0.09, 0.004, 0.0405), looks["copper"], 0.0015))
    for i in range(4):
        parts.append(_box(f"Charge {i}", (-0.06 + i * 0.012, -0.003, 0.0435), (-0.053 + i * 0.012, 0.003, 0.0462),
                          looks["teal"], 0.0006))
    parts.append(shapes.put(shapes.ellipsoid("Visor", (0.02, 0.0345, 0.0095), looks["lens"], 40, 24), None,
                            (0.1125, 0, 0.0045)))
    for y in (-0.02, 0.02):
        parts.append(_tube("Eye", [(0.12, y, 0.0045), (0.1305, y * 0.97, 0.0045)], [0.0068, 0.0062], looks["dark"]))
        parts.append(shapes.put(shapes.ellipsoid("Eye glass", (0.002, 0.0045, 0.0045), looks["lens"]), None,
                                (0.1305, y * 0.97, 0.0045)))
        parts.append(_tube("Lower eye", [(0.02, y, -0.036), (0.02, y, -0.042)], [0.008, 0.007], looks["lens"]))
    for k, (root, tip, level) in enumerate(ARMS):
        parts += _arm(k, root, tip, level, looks, turns[k], spinning)
    parts += _camera(looks)
    body = bpy.data.objects.new("Drone", None)
    bpy.context.scene.collection.objects.link(body)
    for part in parts:
        part.parent = body
    return body


def _arm(k, root, tip, level, looks, turn, spinning):
    front = k < 2
    knee = Vector((root[0], root[1], level))
    end = Vector((tip[0], tip[1], level + (0.008 if front else 0.004)))
    parts = [_tube(f"Hinge {k}", [(knee.x, knee.y, level - 0.02), (knee.x, knee.y, level + 0.016)], [0.0165, 0.0165],
                   looks["dark"]),
             _tube(f"Arm {k}", [knee, knee.lerp(end, 0.5), end], [0.0118, 0.0088, 0.0096], looks["shell"]),
             _tube(f"Cuff {k}", [knee.lerp(end, 0.16), knee.lerp(end, 0.24)], [0.0128, 0.0123], looks["copper"]),
             _tube(f"Mount {k}", [end - Vector((0, 0, 0.016)), end + Vector((0, 0, 0.008))], [0.015, 0.0165],
                   looks["shell"]),
             _tube(f"Motor {k}", [end + Vector((0, 0, 0.008)), end + Vector((0, 0, 0.026))], [0.0172, 0.0158],
                   looks["metal"], 36),
             _tube(f"Hub {k}", [end + Vector((0, 0, 0.026)), end + Vector((0, 0, 0.034))], [0.0095, 0.006],
                   looks["dark"])]
    foot = -0.058 if front else -0.052
    parts.append(_tube(f"Leg {k}", [end - Vector((0, 0, 0.012)), Vector((end.x * 1.015, end.y * 1.015, foot))],
                       [0.0075, 0.0048], looks["dark"]))
    light = shapes.ellipsoid(f"Light {k}", (0.006, 0.006, 0.004), looks["red" if front else "teal"])
    parts.append(shapes.put(light, None, end - Vector((0, 0, 0.018))))
    if spinning:
        for radius, cover in ((0.128, 0.16), (0.05, 0.2)):
            disc = shapes.ellipsoid(f"Rotor {k}", (radius, radius, 0.0015),
                                    materials.veil(f"Rotor {cover}", (0.3, 0.32, 0.34), cover), 48, 4)
            parts.append(shapes.put(disc, None, end + Vector((0, 0, 0.031))))
        return parts
    blade = _blade(f"Blade {k}", 0.128, looks["blade"])
    for side in (0, 180):
        wing = shapes.put(blade, f"Rotor {k}", end + Vector((0, 0, 0.031)), math.radians(turn + side))
        if k in (1, 2):
            wing.scale = (1, -1, 1)
        parts.append(wing)
    return parts


def _camera(looks):
    """The gimbal: yoke, roll arm and a rounded head with its lens, looking slightly down."""
    head = _box("Head", (-0.02, -0.021, -0.017), (0.02, 0.021, 0.017), looks["shell"], 0.008)
    face = _box("Face", (0.0185, -0.0175, -0.0135), (0.0225, 0.0175, 0.0135), looks["dark"], 0.004)
    barrel = _tube("Barrel", [(0.02, 0, 0), (0.03, 0, 0)], [0.0115, 0.0108], looks["metal"], 36)
    lens = shapes.put(shapes.ellipsoid("Lens", (0.004, 0.0092, 0.0092), looks["lens"]), None, (0.0292, 0, 0))
    tilt = Matrix.Translation((0.128, 0, -0.037)) @ shapes.turned("Y", 14)
    for part in (head, face, barrel, lens):
        part.matrix_basis = tilt @ part.matrix_basis
    return [head, face, barrel, lens,
            _box("Yoke", (0.1, -0.031, -0.043), (0.135, -0.0245, -0.029), looks["dark"]),
            _box("Yoke back", (0.094, -0.031, -0.043), (0.101, 0.008, -0.029), looks["dark"]),
            _tube("Roll motor", [(0.122, -0.033, -0.036), (0.122, -0.02, -0.036)], [0.012, 0.012], looks["metal"]),
            _tube("Yaw motor", [(0.092, 0, -0.04), (0.092, 0, -0.014)], [0.0135, 0.0145], looks["metal"])]
