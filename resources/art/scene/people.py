"""A visitor in mid-stride: jacket, trousers, shoes, head and a rucksack, grown over a skeleton."""

import math

import bpy

import materials
import measures as site
import shapes


def _limbs(name, joints, bones, material, levels=2):
    """A skin over a stick figure; joints are (place, radius across, radius deep)."""
    data = shapes.mesh(name, [j[0] for j in joints], [], [material])
    data.edges.add(len(bones))
    data.edges.foreach_set("vertices", [i for bone in bones for i in bone])
    data.update()
    thing = shapes.put(data)
    thing.modifiers.new("Skin", "SKIN").use_smooth_shade = True
    smooth = thing.modifiers.new("Smooth", "SUBSURF")
    smooth.levels = smooth.render_levels = levels
    for vertex, (_, wide, deep) in zip(data.skin_vertices[0].data, joints):
        vertex.radius = (wide, deep)
    data.skin_vertices[0].data[0].use_root = True
    return thing


def _cloth(name, colour):
    return materials.cloth(f"{name} {colour}", colour, tuple(c * 0.6 for c in colour))


def walker(x, y, toward, z=0.02, jacket=(0.075, 0.105, 0.18), trousers=(0.05, 0.055, 0.065),
           shoes=(0.3, 0.29, 0.27), size=1.0):
    """Someone 1.8 m tall at plan place (x, y), walking towards `toward` degrees. The figure faces +x."""
    coat = _cloth("Jacket", jacket)
    jeans = _cloth("Trousers", trousers)
    skin = materials.plain("Skin", (0.48, 0.27, 0.18), 0.55)
    hair = materials.plain("Hair", (0.025, 0.016, 0.011), 0.7)
    shoe = materials.plain(f"Shoes {shoes}", shoes, 0.6)
    parts = _dress(coat, jeans, skin) + _round_parts(coat, skin, hair, shoe)
    group = bpy.data.objects.new("Visitor", None)
    bpy.context.scene.collection.objects.link(group)
    for part in parts:
        part.parent = group
    group.location = site.at(x, y, z)
    group.rotation_euler = (0, 0, -math.radians(toward))
    group.scale = (size,) * 3
    return group


def _dress(coat, jeans, skin):
    return [
        _limbs("Trousers",
               [((0, 0, 0.95), 0.1, 0.1), ((0.01, 0.095, 0.84), 0.09, 0.085), ((0.2, 0.1, 0.52), 0.07, 0.072),
                ((0.29, 0.1, 0.06), 0.055, 0.055), ((0.01, -0.095, 0.84), 0.09, 0.085),
                ((-0.06, -0.1, 0.5), 0.07, 0.072),
                ((-0.36, -0.1, 0.17), 0.054, 0.054)],
               [(0, 1), (1, 2), (2, 3), (0, 4), (4, 5), (5, 6)], jeans),
        _limbs("Jacket",
               [((0.0, 0, 0.92), 0.135, 0.185), ((0.01, 0, 1.12), 0.125, 0.17), ((0.03, 0, 1.32), 0.135, 0.19),
                ((0.035, 0, 1.45), 0.085, 0.13), ((0.045, 0, 1.53), 0.06, 0.065),
                ((0.03, 0.2, 1.43), 0.075, 0.075), ((-0.07, 0.26, 1.17), 0.058, 0.058),
                ((-0.075, 0.27, 0.93), 0.05, 0.05),
                ((0.03, -0.2, 1.43), 0.075, 0.075), ((0.1, -0.26, 1.18), 0.058, 0.058),
                ((0.31, -0.25, 1.02), 0.05, 0.05)],
               [(0, 1), (1, 2), (2, 3), (3, 4), (3, 5), (5, 6), (6, 7), (3, 8), (8, 9), (9, 10)], coat),
        _limbs("Neck", [((0.045, 0, 1.5), 0.055, 0.055), ((0.055, 0, 1.63), 0.055, 0.055)], [(0, 1)], skin),
    ]


def _round_parts(coat, skin, hair, shoe):
    pack = materials.cloth("Rucksack", (0.24, 0.08, 0.03), (0.15, 0.05, 0.02))
    table = (
        ("Head", (0.1, 0.078, 0.125), (0.085, 0, 1.68), skin), ("Hair", (0.105, 0.086, 0.115), (0.068, 0, 1.715), hair),
        ("Nose", (0.02, 0.014, 0.02), (0.185, 0, 1.665), skin),
        ("Left ear", (0.02, 0.012, 0.03), (0.08, 0.08, 1.675), skin),
        ("Right ear", (0.02, 0.012, 0.03), (0.08, -0.08, 1.675), skin),
        ("Hem", (0.138, 0.18, 0.205), (0.01, 0, 0.97), coat),
        ("Hood", (0.09, 0.13, 0.07), (-0.03, 0, 1.51), coat),
        ("Left hand", (0.05, 0.03, 0.075), (-0.07, 0.27, 0.91), skin),
        ("Right hand", (0.06, 0.03, 0.06), (0.33, -0.25, 1.01), skin),
        ("Left shoe", (0.145, 0.052, 0.06), (0.33, 0.1, 0.055), shoe),
        ("Right shoe", (0.13, 0.05, 0.06), (-0.34, -0.1, 0.1), shoe),
        ("Rucksack", (0.12, 0.16, 0.23), (-0.17, 0, 1.25), pack),
    )
    parts = [shapes.put(shapes.ellipsoid(name, radii, look), name, place) for name, radii, place, look in table]
    raised, planted = parts[-2], parts[-3]
    raised.rotation_euler = (0, math.radians(48), 0)
    planted.rotation_euler = (0, math.radians(-10), 0)
    return parts
