"""Renders the artwork: blender -b -P render.py -- [--draft] [--out FOLDER] [NAME...]"""

import os
import sys

import bpy

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import buildings  # noqa: E402
import cameras  # noqa: E402
import drone  # noqa: E402
import ground  # noqa: E402
import light  # noqa: E402
import measures as site  # noqa: E402
import people  # noqa: E402
import plants  # noqa: E402


def grounds():
    ground.lay()
    buildings.build()
    plants.plant_trees()
    plants.plant_hedge()
    plants.plant_beds()


def plan_base():
    grounds()
    light.dusk()
    cameras.plan()
    return (1800, 1200), dict(exposure=-0.9, look="Medium Low Contrast")


def snapshot(name, height, toward, exposure):
    grounds()
    (x, y), step = site.VISITORS[name]
    people.walker(x, y, step)
    light.sky(height, toward, 0.16)
    cameras.wall(name)
    plants.plant_lawn(site.CAMERAS[name][0], site.CAMERAS[name][1], 80, 34)
    return (1440, 810), dict(exposure=exposure, look="Medium High Contrast")


def snapshot_driveway():
    return snapshot("driveway", 14, 194, 0.6)


def snapshot_front():
    return snapshot("front", 13, 190, 0.6)


def snapshot_garden():
    return snapshot("garden", 26, 75, 0.3)


def drone_render():
    drone.build()
    light.studio()
    cameras.free((0.62, -0.5, 0.27), (0.0, 0.0, -0.01), 42)
    return (1200, 800), dict(exposure=0.35, look="Medium High Contrast", clear=True)


def welcome_hero():
    grounds()
    people.walker(66.5, 70.4, 150, 0.02, (0.1, 0.03, 0.03))
    flyer = drone.build((25, 140, 70, 10))
    flyer.scale = (2.6, 2.6, 2.6)
    flyer.location = site.at(61.5, 84.0, 9.6)
    flyer.rotation_euler = (0.06, 0.1, 1.25)
    light.sky(8, 160, 0.2)
    cameras.free(site.at(55, 95, 10), site.at(71.5, 50, 4.6), 74)
    return (2720, 900), dict(exposure=0.5, look="Medium High Contrast")


PICTURES = {
    "plan-base": plan_base,
    "snapshot-driveway": snapshot_driveway,
    "snapshot-front": snapshot_front,
    "snapshot-garden": snapshot_garden,
    "drone-render": drone_render,
    "welcome-hero": welcome_hero,
}


def take(name, folder, draft):
    bpy.ops.wm.read_factory_settings(use_empty=True)
    import materials

    materials._made.clear()
    size, how = PICTURES[name]()
    scene = bpy.context.scene
    scene.render.engine = "CYCLES"
    scene.render.resolution_x, scene.render.resolution_y = size
    scene.render.resolution_percentage = 50 if draft else 100
    cycles = scene.cycles
    cycles.device, cycles.samples = "CPU", 40 if draft else 320
    cycles.use_denoising = False
    cycles.use_adaptive_sampling, cycles.adaptive_threshold = True, 0.08 if draft else 0.018
    cycles.max_bounces, cycles.diffuse_bounces, cycles.glossy_bounces, cycles.transmission_bounces = 5, 3, 3, 3
    cycles.sample_clamp_indirect, cycles.caustics_reflective, cycles.caustics_refractive = 3.0, False, False
    scene.render.film_transparent = how.get("clear", False)
    scene.view_settings.view_transform = "Filmic"
    scene.view_settings.look = how["look"]
    scene.view_settings.exposure = how["exposure"]
    image = scene.render.image_settings
    image.file_format = "PNG" if how.get("clear") else "JPEG"
    image.color_mode = "RGBA" if how.get("clear") else "RGB"
    image.quality, image.compression = 88, 100
    scene.render.filepath = os.path.join(folder, name + (".png" if how.get("clear") else ".jpg"))
    bpy.ops.render.render(write_still=True)


def main():
    wishes = sys.argv[sys.argv.index("--") + 1:] if "--" in sys.argv else []
    draft = "--draft" in wishes
    folder = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
    if "--out" in wishes:
        folder = wishes[wishes.index("--out") + 1]
    for name in [w for w in wishes if w in PICTURES] or PICTURES:
        take(name, os.path.abspath(folder), draft)


main()
