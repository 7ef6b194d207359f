"""The light of each hour: an evening sky with thin cloud, the blue hour for the plan, a studio for the drone."""

import math

import bpy
from mathutils import Vector

import measures as site


def _world(name):
    world = bpy.data.worlds.new(name)
    bpy.context.scene.world = world
    world.use_nodes = True
    world.node_tree.nodes.clear()
    return world.node_tree


def sky(height, toward, strength, clouds=0.75, dust=2.0):
    """Sun `height` degrees high, standing in plan direction `toward` degrees; Cycles' physical sky with thin cloud.

    The camera sees the sky a little darker than it shines, as a lens with a graduated filter does.
    """
    tree = _world("Sky")
    add, link = tree.nodes.new, tree.links.new
    air = add("ShaderNodeTexSky")
    air.sky_type = "NISHITA"
    air.sun_elevation = math.radians(height)
    air.sun_rotation = math.radians(90 + toward)
    air.sun_size = math.radians(1.6)
    air.sun_intensity = 0.75
    air.dust_density, air.air_density, air.ozone_density = dust, 1.0, 1.6
    where, stretch, noise, cut, level = (add("ShaderNodeTexCoord"), add("ShaderNodeMapping"), add("ShaderNodeTexNoise"),
                                         add("ShaderNodeMapRange"), add("ShaderNodeMixRGB"))
    stretch.inputs["Scale"].default_value = (1.3, 1.3, 5.5)
    noise.inputs["Scale"].default_value = 2.1
    noise.inputs["Detail"].default_value = 9
    noise.inputs["Roughness"].default_value = 0.58
    noise.inputs["Distortion"].default_value = 0.5
    cut.inputs["From Min"].default_value, cut.inputs["From Max"].default_value = 0.45, 0.72
    cut.inputs["To Max"].default_value = clouds
    level.inputs[2].default_value = (5.2, 4.1, 3.3, 1)
    link(where.outputs["Generated"], stretch.inputs["Vector"])
    link(stretch.outputs[0], noise.inputs["Vector"])
    link(noise.outputs["Fac"], cut.inputs["Value"])
    link(cut.outputs[0], level.inputs[0])
    link(air.outputs[0], level.inputs[1])
    back, out = add("ShaderNodeBackground"), add("ShaderNodeOutputWorld")
    back.inputs["Strength"].default_value = strength
    seen, path = add("ShaderNodeMixRGB"), add("ShaderNodeLightPath")
    seen.blend_type = "MULTIPLY"
    seen.inputs[2].default_value = (0.6, 0.62, 0.66, 1)
    link(path.outputs["Is Camera Ray"], seen.inputs[0])
    link(level.outputs[0], seen.inputs[1])
    link(seen.outputs[0], back.inputs["Color"])
    link(back.outputs[0], out.inputs["Surface"])


def dusk():
    """The plan's blue hour: a wide cool sky and the last sideways light, so that shapes keep a soft shadow."""
    tree = _world("Dusk")
    back, out = tree.nodes.new("ShaderNodeBackground"), tree.nodes.new("ShaderNodeOutputWorld")
    back.inputs["Color"].default_value = (0.36, 0.62, 0.9, 1)
    back.inputs["Strength"].default_value = 0.77
    tree.links.new(back.outputs[0], out.inputs["Surface"])
    sun(31, 215, 3.0, (0.66, 0.84, 1.0), 3)


def sun(height, toward, strength, colour, size):
    lamp = bpy.data.lights.new("Sun", "SUN")
    lamp.energy, lamp.color, lamp.angle = strength, colour, math.radians(size)
    thing = bpy.data.objects.new("Sun", lamp)
    dx, dy = site.heading(toward)
    up = math.sin(math.radians(height))
    flat = math.cos(math.radians(height))
    thing.rotation_euler = (-Vector((-dx * flat, dy * flat, -up))).to_track_quat("Z", "Y").to_euler()
    bpy.context.scene.collection.objects.link(thing)


def studio():
    tree = _world("Studio")
    back, out = tree.nodes.new("ShaderNodeBackground"), tree.nodes.new("ShaderNodeOutputWorld")
    back.inputs["Color"].default_value = (0.8, 0.9, 1.0, 1)
    back.inputs["Strength"].default_value = 0.5
    tree.links.new(back.outputs[0], out.inputs["Surface"])
    for place, size, power, colour in (((0.5, 0.9, 1.1), 0.9, 14, (1, 0.95, 0.88)),
                                       ((0.9, -0.9, 0.7), 0.6, 6, (0.75, 0.9, 1)),
                                       ((-1.0, 0.1, 0.8), 0.7, 9, (0.8, 0.95, 1)),
                                       ((0.3, 0.2, -0.9), 1.2, 2.5, (0.7, 0.85, 1))):
        lamp = bpy.data.lights.new("Panel", "AREA")
        lamp.size, lamp.energy, lamp.color = size, power, colour
        thing = bpy.data.objects.new("Panel", lamp)
        thing.location = place
        thing.rotation_euler = Vector(place).to_track_quat("Z", "Y").to_euler()
        bpy.context.scene.collection.objects.link(thing)
