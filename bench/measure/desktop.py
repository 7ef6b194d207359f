"""A virtual display with a window manager and a private bus, on which programs are measured."""
import mmap
import os
import subprocess
import time

from subject import Subject

WIDTH, HEIGHT, DISPLAY = 1400, 900, ":87"


class Desktop:
    def __init__(self, home):
        self.env = os.environ | {"DISPLAY": DISPLAY, "XDG_DATA_HOME": str(home), "XDG_CONFIG_HOME": str(home),
                                 "XDG_CACHE_HOME": str(home), "QT_QPA_PLATFORM": "xcb"}
        self.running = []
        self.start("Xvfb", DISPLAY, "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-fbdir", home)
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address", stdout=subprocess.PIPE)
        self.env["DBUS_SESSION_BUS_ADDRESS"] = bus.process.stdout.readline().decode().strip()
        time.sleep(1)
        self.start("openbox", "--sm-disable")
        time.sleep(1)
        self.screen = (home / "Xvfb_screen0").open("rb")

    def start(self, *command, **options):
        subject = Subject(subprocess.Popen(command, env=self.env, stderr=subprocess.DEVNULL, **options))
        self.running.append(subject)
        return subject

    def stop(self, subject):
        self.running.remove(subject)
        subject.stop()

    def close(self):
        for subject in reversed(self.running[:]):
            self.stop(subject)

    def keys(self, *keys):
        for key in keys:
            subprocess.run(["xdotool", "key", key], env=self.env, check=True)
            time.sleep(0.5)

    def window(self, name, *command):
        subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{name}$", *command], env=self.env, check=True,
                       stdout=subprocess.DEVNULL)
        time.sleep(1.5)

    def middle_row(self):
        """The colours of the pixels in the middle row of the screen."""
        with mmap.mmap(self.screen.fileno(), 0, access=mmap.ACCESS_READ) as memory:
            row = memory[len(memory) - WIDTH * 4 * (HEIGHT // 2):][:WIDTH * 4]
        return {row[i:i + 3] for i in range(0, len(row), 4)}

    def first_frame(self, is_painted, *command):
        """Milliseconds until the middle row of the screen has the window, and the program."""
        started = time.perf_counter()
        program = self.start(*command)
        while not is_painted(self.middle_row()):
            if program.process.poll() is not None or time.perf_counter() - started > 30:
                raise SystemExit(f"{command[0]} showed no window")
            time.sleep(0.001)
        return (time.perf_counter() - started) * 1000, program
