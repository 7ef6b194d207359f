"""Renders the artwork: blender -b -P render.py -- [--draft] [--develop] [NAME...]

Negatives in full range go to build/art; --develop makes the pictures again from those that are there.
"""

import os
import sys

import bpy

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import belongings  # noqa: E402
import buildings  # noqa: E402
import cameras  # noqa: E402
import develop  # noqa: E402
import drone  # noqa: E402
import ground  # noqa: E402
import light  # noqa: E402
import materials  # noqa: E402
import measures as site  # noqa: E402
import people  # noqa: E402
import planting  # noqa: E402


def grounds():
    ground.lay()
    buildings.build()
    belongings.place()
    planting.plant_trees()
    planting.plant_hedge()
    planting.plant_beds()


# Colour factors by surface. On the plan, roofs and paths must stand out from the lawn, and the lawn from the trees.
PLAN_BRIGHTNESS = {
    "Tiles": 1.94, "Slates": 2.2, "Gravel": 0.89, "Path": 0.93, "Flags": 1.2, "Grass": 0.53,
    "Leaves of oak": 0.68, "Leaves of lime": 0.68, "Leaves of copper": 0.72, "Leaves of fir": 0.9,
    "Leaves of hedge": 0.85, "Leaves of shrub": 0.85,
}


def plan_base():
    materials.brighten(PLAN_BRIGHTNESS)
    grounds()
    light.dusk()
    cameras.plan()
    return (1800, 1200)


def snapshot(name, height, toward, **clothes):
    grounds()
    (x, y), step = site.VISITORS[name]
    people.walker(x, y, step, **clothes)
    light.sky(height, toward, 0.16)
    cameras.wall(name)
    planting.plant_lawn(site.CAMERAS[name][0], site.CAMERAS[name][1], 76, 48)
    return (1280, 720)


def snapshot_driveway():
    return snapshot("driveway", 20, 196)


def snapshot_front():
    """The low sun lights the visitor's front; only dark clothes stand out from the gravel."""
    return snapshot("front", 13, 190, jacket=(0.022, 0.032, 0.06), trousers=(0.024, 0.026, 0.031),
                    shoes=(0.05, 0.048, 0.045))


def snapshot_garden():
    return snapshot("garden", 26, 75)


def drone_render():
    """Shown at most 264 pixels wide: 88 on a screen of scale 3. Larger ones would delay the program's start."""
    drone.build()
    light.studio()
    cameras.free((0.8, -0.33, 0.31), (0.012, 0.045, -0.012), 42)
    return (360, 240)


def welcome_hero():
    """The drone keeps its distance behind a visitor who walks up to the door; all of it lies in the middle band,
    because the window shows a strip as low as an eighth of its width."""
    grounds()
    people.walker(78.6, 57.6, -105, 0.02, (0.1, 0.03, 0.03))
    flyer = drone.build(spinning=True)
    flyer.scale = (2.7, 2.7, 2.7)
    flyer.location = site.at(64.25, 84.45, 8.62)
    flyer.rotation_euler = (0.03, -0.14, 1.12)
    light.sky(6.5, 160, 0.2)
    cameras.free(site.at(60, 90, 9.6), site.at(72, 48, 3.5), 86)
    return (2720, 900)


PICTURES = {
    "plan-base": plan_base,
    "snapshot-driveway": snapshot_driveway,
    "snapshot-front": snapshot_front,
    "snapshot-garden": snapshot_garden,
    "drone-render": drone_render,
    "welcome-hero": welcome_hero,
}


# Samples per pixel; 320 for the other pictures. The plan's light is even, and the app shows it under a veil. On the
# front lawn direct sun leaves little noise.
SAMPLES = {"plan-base": 96, "snapshot-front": 128}


def take(name, negative, draft):
    """Renders one picture in full range to the file `negative`."""
    bpy.ops.wm.read_factory_settings(use_empty=True)
    materials.forget()
    size = PICTURES[name]()
    scene = bpy.context.scene
    scene.render.engine = "CYCLES"
    scene.render.resolution_x, scene.render.resolution_y = size
    scene.render.resolution_percentage = 40 if draft else 100
    cycles = scene.cycles
    cycles.device, cycles.samples = "CPU", 30 if draft else SAMPLES.get(name, 320)
    cycles.use_denoising = False
    cycles.use_adaptive_sampling, cycles.adaptive_threshold = True, 0.1 if draft else 0.03
    cycles.max_bounces, cycles.diffuse_bounces, cycles.glossy_bounces, cycles.transmission_bounces = 4, 2, 2, 2
    cycles.sample_clamp_indirect, cycles.caustics_reflective, cycles.caustics_refractive = 3.0, False, False
    scene.render.film_transparent = name in develop.CLEAR
    image = scene.render.image_settings
    image.file_format, image.color_mode, image.color_depth, image.exr_codec = "OPEN_EXR", "RGBA", "16", "ZIP"
    scene.render.filepath = negative
    bpy.ops.render.render(write_still=True)


def main():
    wishes = sys.argv[sys.argv.index("--") + 1:] if "--" in sys.argv else []
    here = os.path.dirname(os.path.abspath(__file__))
    negatives = os.path.abspath(os.path.join(here, "../../../build/art"))
    for name in [w for w in wishes if w in PICTURES] or PICTURES:
        negative = os.path.join(negatives, name + ".exr")
        if "--develop" not in wishes:
            take(name, negative, "--draft" in wishes)
        develop.develop(name, negative, os.path.abspath(os.path.join(here, "..")))


if __name__ == "__main__":
    main()
