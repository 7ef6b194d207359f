"""From a negative in full range to the picture: exposure, contrast and colour of each, JPEG or PNG."""

import os

import bpy

CLEAR = {"drone-render"}

# exposure in stops, contrast curve, saturation, gain of red, green and blue
LOOKS = {
    "plan-base": (-0.18, "Medium Contrast", 0.6, (0.78, 0.98, 1.17)),
    "snapshot-driveway": (0.75, "Medium High Contrast", 1.06, (1.04, 1.0, 0.95)),
    "snapshot-front": (0.65, "Medium High Contrast", 1.06, (1.03, 1.0, 0.96)),
    "snapshot-garden": (0.3, "Medium High Contrast", 1.06, (1.02, 1.0, 0.97)),
    "drone-render": (0.35, "Medium High Contrast", 1.0, (1.0, 1.0, 1.0)),
    "welcome-hero": (0.85, "Medium High Contrast", 1.02, (1.04, 1.0, 0.97)),
}


def develop(name, negative, folder):
    exposure, look, saturation, gain = LOOKS[name]
    bpy.ops.wm.read_factory_settings(use_empty=True)
    scene = bpy.context.scene
    picture = bpy.data.images.load(negative)
    scene.render.resolution_x, scene.render.resolution_y = picture.size
    scene.render.resolution_percentage = 100
    scene.use_nodes = True
    tree = scene.node_tree
    tree.nodes.clear()
    source, colour, cast, out = (tree.nodes.new(kind) for kind in (
        "CompositorNodeImage", "CompositorNodeHueSat", "CompositorNodeMixRGB", "CompositorNodeComposite"))
    source.image = picture
    colour.inputs["Saturation"].default_value = saturation
    cast.blend_type = "MULTIPLY"
    cast.inputs[2].default_value = (*gain, 1)
    tree.links.new(source.outputs["Image"], colour.inputs["Image"])
    tree.links.new(colour.outputs[0], cast.inputs[1])
    tree.links.new(cast.outputs[0], out.inputs["Image"])
    tree.links.new(source.outputs["Alpha"], out.inputs["Alpha"])
    scene.view_settings.view_transform, scene.view_settings.look = "Filmic", look
    scene.view_settings.exposure = exposure
    clear = name in CLEAR
    image = scene.render.image_settings
    image.file_format, image.color_mode = ("PNG", "RGBA") if clear else ("JPEG", "RGB")
    image.color_depth, image.quality, image.compression = "8", 88, 100
    scene.render.filepath = os.path.join(folder, name + (".png" if clear else ".jpg"))
    bpy.ops.render.render(write_still=True)
