"""Every surface of the scene. Ground surfaces take world metres, made things texture coordinates in metres."""

import bpy

import measures as site


class Nodes:
    """Short names for the few shader nodes in use."""

    def __init__(self, name):
        self.material = bpy.data.materials.new(name)
        self.material.use_nodes = True
        self.tree = self.material.node_tree
        self.tree.nodes.clear()
        self.output = self.add("ShaderNodeOutputMaterial")

    def add(self, kind, **values):
        node = self.tree.nodes.new(kind)
        for key, value in values.items():
            setattr(node, key, value)
        return node

    def link(self, source, target):
        self.tree.links.new(source, target)

    def feed(self, target, value):
        if isinstance(value, bpy.types.NodeSocket):
            self.link(value, target)
        elif isinstance(value, (tuple, list)) and len(value) == 3 and target.type == "RGBA":
            target.default_value = (*value, 1)
        else:
            target.default_value = value

    def world(self):
        return self.add("ShaderNodeNewGeometry").outputs["Position"]

    def uv(self):
        return self.add("ShaderNodeTexCoord").outputs["UV"]

    def noise(self, where, scale, detail=4, rough=0.55):
        node = self.add("ShaderNodeTexNoise")
        self.link(where, node.inputs["Vector"])
        node.inputs["Scale"].default_value = scale
        node.inputs["Detail"].default_value = detail
        node.inputs["Roughness"].default_value = rough
        return node.outputs["Fac"]

    def span(self, value, low, high, to_low=0.0, to_high=1.0):
        node = self.add("ShaderNodeMapRange")
        for key, number in zip(("From Min", "From Max", "To Min", "To Max"), (low, high, to_low, to_high)):
            node.inputs[key].default_value = number
        self.link(value, node.inputs["Value"])
        return node.outputs["Result"]

    def maths(self, operation, a, b=0.0):
        node = self.add("ShaderNodeMath", operation=operation)
        self.feed(node.inputs[0], a)
        self.feed(node.inputs[1], b)
        return node.outputs[0]

    def mix(self, factor, a, b, how="MIX"):
        node = self.add("ShaderNodeMixRGB", blend_type=how)
        for socket, value in zip(node.inputs, (factor, a, b)):
            self.feed(socket, value)
        return node.outputs[0]

    def bump(self, height, distance, strength=1.0):
        node = self.add("ShaderNodeBump")
        node.inputs["Distance"].default_value = distance
        node.inputs["Strength"].default_value = strength
        self.link(height, node.inputs["Height"])
        return node.outputs["Normal"]

    def brightened(self, colour):
        factor = _brightness.get(self.material.name, 1.0)
        return colour if factor == 1.0 else self.mix(1.0, colour, (factor, factor, factor), "MULTIPLY")

    def surface(self, colour, rough=0.8, metal=0.0, specular=0.3, normal=None, **extra):
        node = self.add("ShaderNodeBsdfPrincipled")
        self.feed(node.inputs["Base Color"], self.brightened(colour))
        self.feed(node.inputs["Roughness"], rough)
        self.feed(node.inputs["Metallic"], metal)
        self.feed(node.inputs["Specular"], specular)
        for key, value in extra.items():
            self.feed(node.inputs[key.replace("_", " ")], value)
        if normal:
            self.link(normal, node.inputs["Normal"])
        return self.finish(node.outputs[0])

    def finish(self, shader):
        self.link(shader, self.output.inputs["Surface"])
        return self.material


_made = {}
_brightness = {}


def once(make):
    """Each surface is made on first use and shared after that."""

    def get(*args):
        key = (make.__name__, *args)
        if key not in _made:
            _made[key] = make(*args)
        return _made[key]

    return get


def forget():
    """For a new scene: surfaces do not outlive the file they were made in."""
    _made.clear()
    _brightness.clear()


def brighten(factors):
    """Sets colour factors by surface name for this scene. Call it before the surfaces are made."""
    _brightness.update(factors)


@once
def plain(name, colour, rough=0.6, metal=0.0):
    return Nodes(name).surface(colour, rough, metal, 0.4)


@once
def grass(name):
    """Grass with the marks of the mower inside the hedge."""
    n = Nodes(name)
    where = n.world()
    broad, patch, fine = n.noise(where, 0.035), n.noise(where, 0.45, 6), n.noise(where, 9, 8, 0.7)
    colour = n.mix(n.span(broad, 0.35, 0.65), (0.058, 0.098, 0.022), (0.088, 0.118, 0.03))
    colour = n.mix(n.span(patch, 0.38, 0.7, 0, 0.55), colour, (0.125, 0.13, 0.045))
    colour = n.mix(n.span(n.noise(where, 1.7, 6, 0.65), 0.5, 0.75, 0, 0.5), colour, (0.035, 0.072, 0.014))
    place = n.add("ShaderNodeSeparateXYZ")
    n.link(where, place.inputs[0])
    slant = n.maths("ADD", n.maths("MULTIPLY", place.outputs[0], 1.05),
                    n.maths("MULTIPLY", place.outputs[1], 0.62))
    wobble = n.maths("MULTIPLY", n.noise(where, 0.12), 1.6)
    wave = n.maths("SINE", n.maths("MULTIPLY", n.maths("ADD", slant, wobble), 1.15))
    left, top, right, bottom = site.BOUNDARY
    across = n.maths("ABSOLUTE", n.maths("SUBTRACT", place.outputs[0], (left + right) / 2))
    along = n.maths("ABSOLUTE", n.maths("ADD", place.outputs[1], (top + bottom) / 2))
    garden = n.maths("MULTIPLY", n.maths("LESS_THAN", across, (right - left) / 2),
                     n.maths("LESS_THAN", along, (bottom - top) / 2))
    colour = n.mix(n.maths("MULTIPLY", n.span(wave, -0.35, 0.35, 0, 0.5), garden), colour, (0.1, 0.155, 0.042))
    colour = n.mix(n.span(fine, 0.3, 0.72, 0.0, 0.75), colour, n.mix(0.55, colour, (0.0, 0.008, 0.0)))
    height = n.maths("ADD", fine, n.maths("MULTIPLY", n.noise(where, 40, 3, 0.8), 0.5))
    return n.surface(colour, 0.85, 0, 0.15, n.bump(height, 0.09, 0.9))


@once
def gravel(name, light, dark):
    n = Nodes(name)
    where = n.world()
    stones = n.add("ShaderNodeTexVoronoi")
    n.link(where, stones.inputs["Vector"])
    stones.inputs["Scale"].default_value = 26
    grain = n.span(stones.outputs["Distance"], 0, 0.7)
    colour = n.mix(n.span(n.noise(where, 0.5, 5), 0.35, 0.7), light, dark)
    each = n.add("ShaderNodeSeparateRGB")
    n.link(stones.outputs["Color"], each.inputs[0])
    colour = n.mix(0.5, colour, n.span(each.outputs[0], 0, 1, 0.15, 0.85), "SOFT_LIGHT")
    colour = n.mix(n.span(n.noise(where, 12, 5, 0.7), 0.4, 0.7, 0, 0.5), colour,
                   n.mix(0.5, colour, (0.03, 0.025, 0.02)))
    height = n.maths("SUBTRACT", n.noise(where, 8, 6, 0.7), grain)
    return n.surface(colour, 0.9, 0, 0.2, n.bump(height, 0.03, 0.8))


def _bricks(n, width, height, gap, a, b, mortar, where=None, offset=0.5):
    node = n.add("ShaderNodeTexBrick", offset=offset)
    n.link(where or n.uv(), node.inputs["Vector"])
    for key, value in (("Color1", a), ("Color2", b), ("Mortar", mortar), ("Scale", 1), ("Mortar Size", gap),
                       ("Mortar Smooth", 0.3), ("Bias", -0.1), ("Brick Width", width), ("Row Height", height)):
        n.feed(node.inputs[key], value)
    return node


@once
def masonry(name, width, height, gap, a, b, mortar):
    n = Nodes(name)
    where = n.world()
    bricks = _bricks(n, width, height, gap, a, b, mortar)
    colour = n.mix(n.span(n.noise(where, 0.6, 6), 0.3, 0.75, 0, 0.45), bricks.outputs["Color"],
                   n.mix(0.6, bricks.outputs["Color"], (0.05, 0.045, 0.04)))
    high = n.maths("SUBTRACT", n.noise(where, 14, 5), n.maths("MULTIPLY", bricks.outputs["Fac"], 1.2))
    return n.surface(colour, 0.85, 0, 0.2, n.bump(high, 0.015, 0.8))


@once
def tiles(name, a, b):
    """Overlapping roof tiles: the lower edge of each course stands proud of the one below."""
    n = Nodes(name)
    uv, where = n.uv(), n.world()
    courses = _bricks(n, 0.34, 0.3, 0.012, a, b, (0.015, 0.013, 0.012), uv)
    place = n.add("ShaderNodeSeparateXYZ")
    n.link(uv, place.inputs[0])
    step = n.maths("SUBTRACT", 1.0, n.maths("FRACT", n.maths("DIVIDE", place.outputs[1], 0.3)))
    colour = n.mix(n.span(n.noise(where, 0.35, 6), 0.35, 0.7, 0, 0.6), courses.outputs["Color"],
                   n.mix(0.55, courses.outputs["Color"], (0.07, 0.075, 0.04)))
    colour = n.mix(n.span(step, 0.0, 0.16, 0.75, 0), colour, (0.012, 0.01, 0.01))
    high = n.maths("SUBTRACT", step, n.maths("MULTIPLY", courses.outputs["Fac"], 0.6))
    return n.surface(colour, 0.75, 0, 0.3, n.bump(high, 0.05, 1.0))


@once
def boards(name, colour, dark, width=0.16):
    n = Nodes(name)
    stretch = n.add("ShaderNodeMapping")
    n.link(n.uv(), stretch.inputs["Vector"])
    stretch.inputs["Scale"].default_value = (9, 0.7, 1)
    planks = _bricks(n, width, 40, 0.012, colour, dark, (0.008, 0.007, 0.006), None, 0)
    grain = n.noise(stretch.outputs[0], 2.5, 6, 0.65)
    mixed = n.mix(n.span(grain, 0.3, 0.75, 0, 0.6), planks.outputs["Color"], dark)
    return n.surface(mixed, 0.7, 0, 0.25, n.bump(n.maths("SUBTRACT", grain, planks.outputs["Fac"]), 0.01, 0.7))


@once
def render_coat(name, colour, shade):
    n = Nodes(name)
    where = n.world()
    mixed = n.mix(n.span(n.noise(where, 0.7, 7), 0.35, 0.75), colour, shade)
    return n.surface(mixed, 0.9, 0, 0.15, n.bump(n.noise(where, 30, 5), 0.006, 0.6))


@once
def glass(name, glow):
    """A window by evening: it mirrors the sky, and some rooms are lit."""
    n = Nodes(name)
    return n.surface((0.012, 0.016, 0.02), 0.06, 0, 0.9, None, Emission=(1.0, 0.43, 0.11), Emission_Strength=glow)


@once
def glow(name, colour, strength):
    n = Nodes(name)
    node = n.add("ShaderNodeEmission")
    n.feed(node.inputs["Color"], colour)
    n.feed(node.inputs["Strength"], strength)
    return n.finish(node.outputs[0])


@once
def foliage(name, dark, light, shine=0.35):
    """Leaves let a part of the light through and differ from plant to plant and within one."""
    n = Nodes(name)
    info = n.add("ShaderNodeObjectInfo")
    colour = n.mix(info.outputs["Random"], dark, light)
    colour = n.mix(n.span(n.noise(n.world(), 1.6, 3), 0.3, 0.7), n.mix(0.35, colour, (0, 0.004, 0)), colour)
    colour = n.brightened(n.mix(n.span(n.noise(n.world(), 17, 1), 0.4, 0.7, 0, 0.4), colour, light))
    front, through, both = (n.add("ShaderNodeBsdfDiffuse"), n.add("ShaderNodeBsdfTranslucent"),
                            n.add("ShaderNodeMixShader"))
    n.link(colour, front.inputs["Color"])
    n.link(n.mix(0.5, colour, (0.16, 0.2, 0.02)), through.inputs["Color"])
    both.inputs[0].default_value = shine
    n.link(front.outputs[0], both.inputs[1])
    n.link(through.outputs[0], both.inputs[2])
    return n.finish(both.outputs[0])


@once
def veil(name, colour, cover):
    """What a spinning rotor shows: a disc that mostly lets the view through."""
    n = Nodes(name)
    clear, seen, both = n.add("ShaderNodeBsdfTransparent"), n.add("ShaderNodeBsdfDiffuse"), n.add("ShaderNodeMixShader")
    n.feed(seen.inputs["Color"], colour)
    both.inputs[0].default_value = cover
    n.link(clear.outputs[0], both.inputs[1])
    n.link(seen.outputs[0], both.inputs[2])
    return n.finish(both.outputs[0])


@once
def bark(name):
    n = Nodes(name)
    where = n.world()
    colour = n.mix(n.noise(where, 5, 6), (0.05, 0.036, 0.025), (0.12, 0.095, 0.07))
    return n.surface(colour, 0.95, 0, 0.1, n.bump(n.noise(where, 14, 5), 0.04))


@once
def cloth(name, colour, shade):
    n = Nodes(name)
    where = n.world()
    mixed = n.mix(n.span(n.noise(where, 7, 3), 0.35, 0.7), colour, shade)
    return n.surface(mixed, 0.9, 0, 0.1, n.bump(n.noise(where, 12, 3), 0.012), Sheen=0.25)
