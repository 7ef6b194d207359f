"""Many copies of a few plants: one mesh of points for each bed of them, multiplied by geometry nodes."""

import bpy

import shapes


def library(name, things):
    """A collection of objects that only serves as a source of copies; it never shows itself."""
    group = bpy.data.collections.new(name)
    for i, data in enumerate(things):
        group.objects.link(bpy.data.objects.new(f"{name}.{i:02}", data))
    return group


def spread(name, group, spots):
    """`spots`: (place, (tilt x, tilt y, turn) in radians, size, index within the group)."""
    if not spots:
        return None
    points = shapes.mesh(name, [s[0] for s in spots], [])
    for key, kind, field, values in (
        ("turning", "FLOAT_VECTOR", "vector", [c for s in spots for c in s[1]]),
        ("sizing", "FLOAT", "value", [s[2] for s in spots]),
        ("choice", "INT", "value", [s[3] for s in spots]),
    ):
        points.attributes.new(key, kind, "POINT").data.foreach_set(field, values)
    thing = shapes.put(points, name)
    thing.modifiers.new("Copies", "NODES").node_group = _copies(name, group)
    return thing


def _copies(name, group):
    tree = bpy.data.node_groups.new(name, "GeometryNodeTree")
    tree.inputs.new("NodeSocketGeometry", "Geometry")
    tree.outputs.new("NodeSocketGeometry", "Geometry")
    entry, leave = tree.nodes.new("NodeGroupInput"), tree.nodes.new("NodeGroupOutput")
    source = tree.nodes.new("GeometryNodeCollectionInfo")
    source.inputs["Collection"].default_value = group
    source.inputs["Separate Children"].default_value = True
    source.inputs["Reset Children"].default_value = True
    copies = tree.nodes.new("GeometryNodeInstanceOnPoints")
    copies.inputs["Pick Instance"].default_value = True

    def attribute(key, kind, output):
        node = tree.nodes.new("GeometryNodeInputNamedAttribute")
        node.data_type = kind
        node.inputs["Name"].default_value = key
        return next(o for o in node.outputs if o.enabled and o.type == output)

    tree.links.new(entry.outputs[0], copies.inputs["Points"])
    tree.links.new(source.outputs[0], copies.inputs["Instance"])
    tree.links.new(attribute("choice", "INT", "INT"), copies.inputs["Instance Index"])
    tree.links.new(attribute("turning", "FLOAT_VECTOR", "VECTOR"), copies.inputs["Rotation"])
    tree.links.new(attribute("sizing", "FLOAT", "VALUE"), copies.inputs["Scale"])
    tree.links.new(copies.outputs[0], leave.inputs[0])
    return tree
