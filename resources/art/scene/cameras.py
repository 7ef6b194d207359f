"""Where each picture is taken from."""

import math

import bpy
from mathutils import Vector

import measures as site


def _camera(name):
    data = bpy.data.cameras.new(name)
    data.clip_start, data.clip_end = 0.05, 3000
    thing = bpy.data.objects.new(name, data)
    bpy.context.scene.collection.objects.link(thing)
    bpy.context.scene.camera = thing
    return thing


def plan():
    """Straight down on the whole site, one metre as long across as along."""
    eye = _camera("Plan")
    eye.data.type, eye.data.ortho_scale = "ORTHO", site.SIZE[0]
    eye.location = site.at(site.SIZE[0] / 2, site.SIZE[1] / 2, 200)


def wall(name, opening=64.0, down=9.0):
    """The security camera `name`, a hand's breadth in front of its wall."""
    (x, y), degrees, z = site.CAMERAS[name]
    dx, dy = site.heading(degrees)
    eye = _camera(name)
    eye.data.angle = math.radians(opening)
    eye.location = site.at(x + dx * 0.35, y + dy * 0.35, z)
    look(eye, Vector(eye.location) + Vector((dx, -dy, -math.tan(math.radians(down)))))
    return eye


def free(place, target, opening, shift=0.0):
    eye = _camera("Eye")
    eye.data.angle = math.radians(opening)
    eye.data.shift_y = shift
    eye.location = place
    look(eye, target)
    return eye


def look(eye, target):
    eye.rotation_euler = (Vector(target) - Vector(eye.location)).to_track_quat("-Z", "Y").to_euler()
