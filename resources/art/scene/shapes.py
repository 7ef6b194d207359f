"""Meshes from lists, and the few solids the scene is made of."""

import math

import bpy
from mathutils import Matrix, Vector


def mesh(name, verts, faces, materials=(), uvs=None, indices=None, smooth=False):
    """A mesh; `uvs` holds one pair per face corner, `indices` the material of each face."""
    data = bpy.data.meshes.new(name)
    data.from_pydata(verts, [], faces)
    for material in materials:
        data.materials.append(material)
    if indices:
        data.polygons.foreach_set("material_index", indices)
    if smooth:
        data.polygons.foreach_set("use_smooth", [True] * len(data.polygons))
    if uvs:
        layer = data.uv_layers.new(name="UVMap")
        layer.data.foreach_set("uv", [c for uv in uvs for c in uv])
    data.update()
    return data


def put(data, name=None, place=(0, 0, 0), turn=0.0, scale=1.0, collection=None):
    """An object that shows `data`; `turn` is in radians about z."""
    thing = bpy.data.objects.new(name or data.name, data)
    thing.location = place
    thing.rotation_euler = (0, 0, turn)
    thing.scale = (scale,) * 3 if isinstance(scale, (int, float)) else scale
    (collection or bpy.context.scene.collection).objects.link(thing)
    return thing


class Builder:
    """Collects faces of several materials with texture coordinates in metres."""

    def __init__(self):
        self.verts, self.faces, self.uvs, self.indices, self.materials = [], [], [], [], []

    def face(self, corners, material, origin=None, along=None):
        """A flat face; texture u runs along its first edge unless `along` says otherwise."""
        points = [Vector(c) for c in corners]
        normal = (points[1] - points[0]).cross(points[-1] - points[0])
        u = (Vector(along) if along else points[1] - points[0]).normalized()
        v = normal.normalized().cross(u) if normal.length else Vector((0, 0, 1))
        origin = Vector(origin) if origin else points[0]
        first = len(self.verts)
        self.verts += [tuple(p) for p in points]
        self.faces.append(tuple(range(first, first + len(points))))
        self.uvs += [((p - origin).dot(u), (p - origin).dot(v)) for p in points]
        if material not in self.materials:
            self.materials.append(material)
        self.indices.append(self.materials.index(material))

    def box(self, low, high, material):
        (a, b, c), (d, e, f) = low, high
        a, d = sorted((a, d))
        b, e = sorted((b, e))
        c, f = sorted((c, f))
        self.face([(a, b, f), (d, b, f), (d, e, f), (a, e, f)], material)
        self.face([(a, e, c), (d, e, c), (d, b, c), (a, b, c)], material)
        self.face([(a, b, c), (d, b, c), (d, b, f), (a, b, f)], material)
        self.face([(d, b, c), (d, e, c), (d, e, f), (d, b, f)], material)
        self.face([(d, e, c), (a, e, c), (a, e, f), (d, e, f)], material)
        self.face([(a, e, c), (a, b, c), (a, b, f), (a, e, f)], material)

    def tube(self, path, radii, material, sides=10):
        """A closed tube through `path`, flat shaded but fine enough for its size on screen."""
        rings = []
        for i, p in enumerate(path):
            p = Vector(p)
            ahead = Vector(path[min(i + 1, len(path) - 1)]) - Vector(path[max(i - 1, 0)])
            frame = ahead.to_track_quat("Z", "Y").to_matrix()
            rings.append([
                p + frame @ Vector((math.cos(t) * radii[i], math.sin(t) * radii[i], 0))
                for t in (2 * math.pi * k / sides for k in range(sides))
            ])
        for low, high in zip(rings, rings[1:]):
            for k in range(sides):
                n = (k + 1) % sides
                self.face([low[k], low[n], high[n], high[k]], material)
        self.face(list(reversed(rings[0])), material)
        self.face(rings[-1], material)

    def build(self, name, smooth=False):
        return mesh(name, self.verts, self.faces, self.materials, self.uvs, self.indices, smooth)


def ellipsoid(name, radii, material, segments=24, rings=14):
    verts, faces = [], []
    for i in range(rings + 1):
        polar = math.pi * i / rings
        for k in range(segments):
            around = 2 * math.pi * k / segments
            verts.append((radii[0] * math.sin(polar) * math.cos(around),
                          radii[1] * math.sin(polar) * math.sin(around), radii[2] * math.cos(polar)))
    for i in range(rings):
        for k in range(segments):
            n = (k + 1) % segments
            a, b = i * segments, (i + 1) * segments
            faces.append((a + k, b + k, b + n, a + n))
    return mesh(name, verts, faces, [material], smooth=True)


def rounded(thing, width, segments=3):
    """Softens the edges of an object, as every made thing has them."""
    thing.modifiers.new("Join", "WELD").merge_threshold = 0.00005
    thing.data.use_auto_smooth, thing.data.auto_smooth_angle = True, math.radians(50)
    thing.data.polygons.foreach_set("use_smooth", [True] * len(thing.data.polygons))
    bevel = thing.modifiers.new("Edges", "BEVEL")
    bevel.width, bevel.segments, bevel.limit_method = width, segments, "ANGLE"
    return thing


def turned(axis, degrees):
    return Matrix.Rotation(math.radians(degrees), 4, axis)
