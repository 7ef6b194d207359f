#!/usr/bin/python3
"""Walks through the running program as a screen reader does.

Presses every control of every screen by its accessible action and waits until assistive technology sees the effect.
Needs an X server and a D-Bus daemon of its own. The argument is the program. Exits with 77 if the tools are missing.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time
import typing

try:
    from gi.repository import Gio, GLib
except ImportError:
    sys.exit(77)
if not shutil.which("openbox") or not os.path.exists("/usr/libexec/at-spi-bus-launcher"):
    sys.exit(77)

TIMEOUT = 60  # seconds for an effect on a slow machine
CARD = "Someone you don't know is at the "
LAND = "Land the drone where it is now?"
WATCHED = "Your grounds are watched."
BEHAVES = "How the drone behaves."
VISITS = ("Visitor on the driveway", "Visitor in the east garden", "Visitor crossing the front lawn")

# From the AT-SPI specification
ROOT = "/org/a11y/atspi/accessible/root"
ACCESSIBLE, ACTION, VALUE, TEXT, EDITABLE = ("org.a11y.atspi." + name for name in
                                             ("Accessible", "Action", "Value", "Text", "EditableText"))
PROPERTIES = "org.freedesktop.DBus.Properties"
ROLES = {7: "check box", 16: "dialog", 23: "frame", 27: "image", 32: "list item", 35: "menu item", 43: "push button",
         44: "radio button", 51: "slider", 61: "text", 83: "heading"}
CONTROLS = {"push button", "radio button", "check box", "slider", "text"}
ACTIVE, CHECKED, SENSITIVE, SHOWING = 1 << 1, 1 << 4, 1 << 24, 1 << 25


def wait(condition, what):
    """Returns the first true value of the condition."""
    end = time.monotonic() + TIMEOUT
    while not (value := condition()):
        assert time.monotonic() < end, "waited in vain: " + what
        time.sleep(0.05)
    return value


class Node(typing.NamedTuple):
    """What assistive technology knows of an object."""
    path: str
    name: str
    role: str
    states: int
    children: list


class Reader:
    """Finds and presses the program's controls; remembers which it saw and which it pressed."""

    def __init__(self):
        self.session = Gio.bus_get_sync(Gio.BusType.SESSION)
        address = self.session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                         Gio.DBusCallFlags.NONE, -1, None).unpack()[0]
        self.bus = Gio.DBusConnection.new_for_address_sync(
            address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        self.program = "org.a11y.atspi.Registry"
        self.program = wait(lambda: self.call(ROOT, ACCESSIBLE, "GetChildren"), "the program")[0][0]
        self.seen, self.pressed = set(), set()

    def calls(self, requests):
        """Makes all calls at once, because each reply takes long on a loaded machine; None for one that fails."""
        replies, missing = [None] * len(requests), set(range(len(requests)))

        def finish(bus, result, index):
            missing.remove(index)
            try:
                replies[index] = bus.call_finish(result).unpack()[0]
            except (GLib.Error, IndexError):  # the object has gone, or nothing is returned
                pass

        for index, request in enumerate(requests):
            self.bus.call(self.program, *request, None, Gio.DBusCallFlags.NONE, -1, None, finish, index)
        while missing:
            GLib.MainContext.default().iteration(True)
        return replies

    def call(self, path, interface, method, types=None, *arguments):
        return self.calls([(path, interface, method, types and GLib.Variant(types, arguments))])[0]

    def get(self, node, interface, name):
        return self.call(node.path, PROPERTIES, "Get", "(ss)", interface, name)

    def matches(self, name, role=None, root=None):
        """The visible objects in the root, by default the program, whose names begin with the name."""
        found, level = [], [root.path if root else ROOT]
        while level:
            replies = self.calls([(path, *what) for path in level for what in (
                (PROPERTIES, "Get", GLib.Variant("(ss)", (ACCESSIBLE, "Name"))), (ACCESSIBLE, "GetRole", None),
                (ACCESSIBLE, "GetState", None), (ACCESSIBLE, "GetChildren", None))])
            known = [item for item in zip(level, *(replies[i::4] for i in range(4))) if None not in item]
            nodes = [Node(path, title, ROLES.get(kind, ""), states[0], children)
                     for path, title, kind, states, children in known if states[0] & SHOWING or path == ROOT]
            found += nodes
            level = [path for node in nodes for _, path in node.children]
        self.seen |= {(node.role, node.name) for node in found if node.role in CONTROLS and node.states & SENSITIVE}
        return [node for node in found if node.name.startswith(name) and role in (None, node.role)]

    def find(self, name, role=None, root=None, states=SHOWING):
        return wait(lambda: next((node for node in self.matches(name, role, root) if node.states & states), None),
                    f"{role or 'anything'} “{name}”")

    def gone(self, name, role=None):
        wait(lambda: not self.matches(name, role), f"“{name}” to go")

    def has(self, node, state):
        states = self.call(node.path, ACCESSIBLE, "GetState")
        return bool(states and states[0] & state)

    def use(self, node):
        self.pressed.add((node.role, node.name))
        self.call(node.path, ACTION, "DoAction", "(i)", 0)

    def press(self, name, effect=None, role="push button", root=None):
        """Presses the control and waits until something that begins with `effect` is visible."""
        control = self.find(name, role, root, SENSITIVE)
        self.use(control)
        if effect:
            self.find(effect)
        return control

    def open(self, section, heading):
        self.press(section, role="radio button")
        self.find(heading, "heading")

    def answer(self, name, effect):
        """Presses until the card goes: presses shortly after it opened do not count."""
        self.find(CARD, "dialog")
        button = self.find(name, "push button")
        while self.has(button, SHOWING):
            self.use(button)
            time.sleep(0.3)
        self.find(effect)

    def toggle_all(self):
        for box in 2 * self.matches("", "check box"):
            before = self.has(box, CHECKED)
            self.use(box)
            wait(lambda: self.has(box, CHECKED) != before, f"“{box.name}” to change")

    def choose_all(self, *options):
        for option in options:
            radio = self.press(option, role="radio button")
            wait(lambda: self.has(radio, CHECKED), f"“{option}” to be chosen")

    def choose_in_menu(self, button, *options):
        """Chooses each option in the menu of the button, which then has the option's name."""
        for option in options:
            self.press(button)
            self.press(option, role="menu item")
            self.gone(option, "menu item")
            self.find(option, "push button")
            button = option

    def choose_command(self, menu, command, effect=None):
        self.press(menu, role="menu item")
        self.press(command, effect, role="menu item")

    def type(self, field, text):
        node = self.find(field, "text")
        self.pressed.add((node.role, node.name))
        self.call(node.path, EDITABLE, "SetTextContents", "(s)", text)
        wait(lambda: self.call(node.path, TEXT, "GetText", "(ii)", 0, -1) == text, f"“{text}” in “{field}”")

    def move(self, slider, value):
        self.pressed.add((slider.role, slider.name))
        self.call(slider.path, PROPERTIES, "Set", "(ssv)", VALUE, "CurrentValue", GLib.Variant("d", value))
        wait(lambda: self.get(slider, VALUE, "CurrentValue") == value, f"“{slider.name}” to move")

    def slide_all(self):
        for slider in self.matches("", "slider"):
            before, said = self.get(slider, VALUE, "CurrentValue"), self.get(slider, ACCESSIBLE, "Description")
            self.move(slider, before + (1 if before < self.get(slider, VALUE, "MaximumValue") else -1))
            assert not said or self.get(slider, ACCESSIBLE, "Description") != said, slider.name
            self.move(slider, before)


def is_row(control):
    """Whether it is a row of a list that grows, or a link that tells how many visits a part of the week had."""
    role, name = control  # a visit's name has a comma, a notice's begins with the time
    return role == "push button" and (", " in name or name[2:3] == ":" or " between " in name)


def walk_welcome(reader):
    reader.press("Connect to velmora", BEHAVES)
    reader.press("Show welcome again", "Welcome to Velmora")
    reader.press("Explore in demo mode", BEHAVES)


def walk_overview(reader):
    reader.open("Overview", WATCHED)
    reader.press("Disarm", "Arm system")
    reader.press("Arm system", "Disarm")
    reader.press("All activity", "Every visit, on record.")
    for row in ("Visitor left your grounds", "You sent the drone home", "You ignored the alert"):
        reader.open("Overview", WATCHED)
        reader.press(row)
        reader.find(row, "heading")
    reader.open("Overview", WATCHED)
    reader.press(VISITS[0], CARD)
    reader.press("Enlarge the picture", "Show the picture smaller")
    reader.press("Show the picture smaller", "Enlarge the picture")
    reader.answer("Ignore", WATCHED)
    for visit in VISITS[1:]:
        reader.press(visit, CARD)
        reader.answer("Ignore", WATCHED)


def walk_cameras(reader):
    reader.open("Cameras", "What sets off an alert.")
    assert len(reader.matches("Picture of ", "image")) == 3
    reader.toggle_all()


def walk_patterns(reader):
    """Each kind of row, square and link sets a filter, and a button ends it."""
    def buttons(*parts):
        return [node for node in reader.matches("", "push button") if all(part in node.name for part in parts)]

    def remove(*parts):
        chip = wait(lambda: [node for node in buttons(*parts) if ", " not in node.name], f"a filter {parts}")[0]
        reader.use(chip)

    reader.choose_all("Patterns")
    reader.find("By camera", "heading")
    camera = buttons(" visit")[0].name
    reader.press(camera)
    reader.gone("All cameras", "push button")
    reader.press(camera, "All cameras")
    reader.press("You ignored the alert, ")
    remove("You ignored the alert")
    wait(lambda: len(buttons(" visit")) > 3, "the rows to come back")
    for link, *filtered in ((":00, ", ":00"), (" between ", ":00 to ")):
        for node in buttons(link)[:1]:
            reader.use(node)
            reader.gone("By camera", "heading")
            remove(*filtered)
            reader.choose_all("Patterns")
            reader.find("By camera", "heading")
    reader.choose_all("Visits")


def walk_history(reader):
    reader.open("History", "Every visit, on record.")
    count = len(reader.matches("", "list item"))
    reader.type("Search the history", "front lawn")
    wait(lambda: len(reader.matches("", "list item")) < count, "the list to shrink")
    reader.type("Search the history", "")
    reader.choose_all("Flown", "Stayed docked", "All")
    reader.choose_in_menu("All cameras", "Driveway", "East garden", "Front lawn", "All cameras")
    reader.choose_in_menu("With demo", "Only demo", "No demo")
    reader.choose_in_menu("No demo", "With demo")
    reader.choose_in_menu("All time", "7 days", "30 days", "A year", "All time")
    walk_patterns(reader)
    reader.type("Search the history", "nobody")
    reader.press("Show all", "You sent the drone home")
    for row in reader.matches("You sent", "list item") + reader.matches("Visitor left", "list item"):
        reader.use(row)
        reader.find(row.name.split(",")[0], "heading")
    position = reader.find("Replay time", "slider")
    for notice in [node for node in reader.matches("", "push button") if node.name[2:3] == ":"]:
        reader.move(position, 1)
        reader.use(notice)
        wait(lambda: reader.get(position, VALUE, "CurrentValue") != 1, "the replay to go to the notice")
    reader.slide_all()
    reader.move(position, 1)  # a replay near its end would be over at once
    reader.press("Play", "Pause")
    reader.press("Pause", "Play")
    reader.choose_all("2×", "4×", "8×", "1×")
    seen = set(reader.seen)  # without what is Qt's in the dialog
    for export in ("Record as JSON", "Paths and notices as CSV", "Map as a picture", "The list as CSV"):
        reader.press("Export")
        reader.press(export, role="menu item")
        dialog = reader.find(export)
        reader.press("Cancel", root=dialog)
        reader.gone(export)
    reader.seen = seen
    reader.press("Delete this visit", "Visit deleted.")
    reader.press("Undo")
    reader.gone("Undo")
    reader.press("Clear demo history", "Clear the demo history?")
    reader.press("Keep it")
    reader.gone("Clear the demo history?")
    reader.press("Clear demo history")
    reader.press("Clear demo history", root=reader.find("Clear the demo history?", "dialog"))
    reader.gone("Clear the demo history?")
    while not reader.matches("No visit to replay yet"):
        for button in reader.matches("Delete this visit", "push button"):
            reader.use(button)
    reader.press("Simulate a visitor", CARD)
    reader.answer("Ignore", "You ignored the alert")


def walk_flight(reader):
    reader.open("Live flight", "The drone is on its pad")
    reader.press("Simulate a visitor", CARD)
    reader.answer("Launch drone", "Step 4 of 6")
    reader.press("Hold position", "Resume following")
    reader.press("Resume following", "Hold position")
    reader.open("Overview", "Your drone ")
    reader.press("Open live flight", "Controls")
    reader.press("Land now", LAND)
    reader.press("Keep flying")
    reader.gone(LAND)
    reader.press("Return home", "Step 5 of 6")
    reader.press("Land now", LAND)
    reader.press("Land now", "Step 6 of 6", root=reader.find(LAND, "dialog"))
    reader.find("The drone is on its pad")


def walk_menus(reader):
    reader.choose_command("Velmora", "About Velmora")
    reader.press("Close", root=reader.find("About Velmora", "dialog"))
    reader.gone("About Velmora", "dialog")
    reader.open("Overview", WATCHED)
    reader.choose_command("Demo", VISITS[0], CARD)
    reader.answer("Launch (approve)", "Step 4 of 6")
    reader.choose_command("Drone", "Hold position", "Resume following")
    reader.choose_command("Drone", "Return home", "Step 5 of 6")
    reader.choose_command("Demo", "Show welcome", "Welcome to Velmora")
    reader.press("Explore in demo mode")


def walk_settings(reader, opened):
    reader.open("Settings", BEHAVES)
    reader.toggle_all()
    reader.slide_all()
    reader.choose_all("DJI tracking hand-over", "Guided by this computer", "velmora on my network")
    reader.type("Host", "127.0.0.1")
    reader.type("Port", "9")
    reader.type("Phone (ntfy topic)", "my-visits")
    reader.press("Open data folder")
    wait(lambda: os.path.exists(opened), "the data folder to open")
    reader.press("Overview", role="radio button")
    reader.press("Connection settings", BEHAVES)
    reader.choose_all("Demo mode")


def walk_window(reader, program):
    frame = reader.find("Velmora", "frame")
    reader.press("Maximise", "Restore")
    reader.press("Restore", "Maximise")
    reader.press("Minimise")
    wait(lambda: not reader.has(frame, ACTIVE), "the window to be minimised")
    reader.session.call_sync("org.velmora.Velmora", "/org/velmora/Velmora", "org.freedesktop.Application", "Activate",
                             GLib.Variant("(a{sv})", ({},)), None, Gio.DBusCallFlags.NONE, -1, None)
    wait(lambda: reader.has(frame, ACTIVE), "the window to come back")
    missed = sorted(control for control in reader.seen - reader.pressed if not is_row(control))
    assert not missed, f"never pressed: {missed}"
    reader.press("Close", root=frame)
    wait(lambda: program.poll() is not None or not reader.has(frame, SHOWING), "the window to close")


def main():
    with tempfile.TemporaryDirectory() as home:
        opened = os.path.join(home, "opened")
        with open(os.path.join(home, "xdg-open"), "w", encoding="utf-8") as opener:
            opener.write(f'#!/bin/sh\necho "$1" > {opened}\n')
        os.chmod(opener.name, 0o700)
        os.environ.update(HOME=home, XDG_CONFIG_HOME=home, XDG_DATA_HOME=home, XDG_CACHE_HOME=home, LANGUAGE="en",
                          PATH=home + ":" + os.environ["PATH"], QT_QPA_PLATFORM="xcb",
                          QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        with subprocess.Popen(["openbox", "--startup", "echo ready"], stdout=subprocess.PIPE) as manager:
            manager.stdout.readline()
            with subprocess.Popen(sys.argv[1]) as program:
                try:
                    reader = Reader()
                    for walk in (walk_welcome, walk_overview, walk_cameras, walk_history, walk_flight, walk_menus):
                        print(walk.__name__, flush=True)
                        walk(reader)
                    walk_settings(reader, opened)
                    walk_window(reader, program)
                finally:
                    program.kill()
                    manager.kill()


main()
