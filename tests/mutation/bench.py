"""Builds and tests a copy of the tree below build/mutation, so that no fault ever reaches the checkout."""

import fcntl
import os
import re
import resource
import shutil
import signal
import subprocess
import tempfile
import time

# The tests that must notice a fault in a folder. Language, X11 and the program have no tests of their own: texts are
# tested through the screens, the other two by tests that start the program.
TESTS = {"src/model": "model", "src/sim": "sim", "src/link": "link", "src/store": "store", "src/desktop": "desktop",
         "src/language": "ui", "src/ui": "ui", "src/x11": "desktop", "src/app": "desktop"}
# Minutes of real key presses, system calls one by one, and hostile texts in every screen.
TOO_SLOW = {"desktop": ["DeliberateAnswerTest.*", "ConfinementTest.*"], "ui": ["HostileTextTest.*"]}
BUILD_LIMIT = 1200  # seconds, not counting those in which this script is stopped
STOPPED = 5  # seconds between two looks at the clock, after which this script must have been stopped
MEMORY_LIMIT = 6 << 30
FILE_LIMIT = 2 << 30
CPU_LIMIT = 3600  # seconds, for what outlives this script


def folder_of(file):
    return "/".join(file.split("/")[:2])


def code_of(process):
    """The exit status or signal, None while it runs. It is not reaped, so that its number stays its own."""
    ended = os.waitid(os.P_PID, process.pid, os.WEXITED | os.WNOHANG | os.WNOWAIT)
    return ended.si_status if ended else None


class Paused(Exception):
    """A test failed, but this script was stopped meanwhile, which may be the reason."""


def prepare():
    """Limits a test process, and undoes what nohup and background shells ignore."""
    for number in (signal.SIGHUP, signal.SIGINT, signal.SIGQUIT):
        signal.signal(number, signal.SIG_DFL)
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY_LIMIT, MEMORY_LIMIT))
    resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_LIMIT, FILE_LIMIT))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_CPU, (CPU_LIMIT, CPU_LIMIT))


class Bench:
    def __init__(self, top, jobs):
        self.top, self.jobs = top, jobs
        self.home = top / "build" / "mutation"
        self.tree, self.build = self.home / "tree", self.home / "build"
        self.baseline = {}  # seconds that the unchanged tests of a layer take
        self.suites = {}  # names of the test suites of a layer
        self.home.mkdir(parents=True, exist_ok=True)
        self.lock = open(self.home / "lock", "w")
        try:
            fcntl.flock(self.lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except OSError:
            raise SystemExit("scripts/mutate already runs in this checkout.") from None

    def copy_tree(self):
        """Copies what differs, so that the rest is not compiled again."""
        listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=self.top,
                                check=True, capture_output=True, text=True).stdout
        files = {f for f in listed.split("\0") if f and (self.top / f).is_file()}
        for file in files:
            source, copy = self.top / file, self.tree / file
            if not copy.is_file() or copy.read_bytes() != source.read_bytes():
                copy.parent.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(source, copy)
                shutil.copymode(source, copy)
        for copy in [c for c in self.tree.rglob("*") if c.is_file()]:
            if str(copy.relative_to(self.tree)) not in files:
                copy.unlink()

    def configure(self):
        command = ["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja", "-Wno-dev", "-DVELMORA_TOOLS=ON",
                   "-DVELMORA_TESTS=ON", "-DCMAKE_UNITY_BUILD=ON", "-DCMAKE_BUILD_TYPE=None",
                   "-DCMAKE_CXX_FLAGS=-O0 -g0"]
        if self.run([command], BUILD_LIMIT, "configure") is not None:
            raise SystemExit(f"cmake failed; see {self.home}/configure.0.log")

    def builds(self, layer):
        command = ["cmake", "--build", self.build, "-j", str(self.jobs), "--target", f"velmora_{layer}_tests"]
        return self.run([command], BUILD_LIMIT, "build") is None

    def measure(self, layer):
        """Builds the unchanged tests of a layer and runs them."""
        if not self.builds(layer):
            raise SystemExit(f"The unchanged tree does not build; see {self.home}/build.0.log")
        listed = subprocess.run([self.build / f"velmora_{layer}_tests", "--gtest_list_tests"], check=True,
                                capture_output=True, text=True, env=self.environment("/tmp")).stdout
        self.suites[layer] = re.findall(r"^(\S+)\.", listed, re.MULTILINE)
        started = time.monotonic()
        if failed := self.failing_test(layer, "", 3600):
            raise SystemExit(f"{failed} of {layer} fails without a fault; see {self.home}/tests.*.log")
        self.baseline[layer] = time.monotonic() - started

    def failing_test(self, layer, file, limit=None):
        """The first test that fails, or None. Suites whose names resemble the file's run first."""
        limit = limit or 60 + 5 * self.baseline[layer]
        parts = file.removesuffix(".cpp").removesuffix(".h").split("/")[2:]
        words = [word.removesuffix("s") for word in re.findall(r"[a-z]{3,}", " ".join(parts))]
        near = [s for s in self.suites[layer] if any(w in s.lower() for w in words)]
        slow = TOO_SLOW.get(layer, [])
        patterns = [f"{s}.*" for s in near]
        if near and (failed := self.shards(layer, f"{':'.join(patterns)}-{':'.join(slow)}", limit)):
            return failed
        return self.shards(layer, f"*-{':'.join(slow + patterns)}", limit)

    def shards(self, layer, pattern, limit):
        command = [self.build / f"velmora_{layer}_tests", f"--gtest_filter={pattern}", "--gtest_fail_fast"]
        for _ in range(3):
            try:
                failed = self.run([command] * self.jobs, limit, "tests")
            except Paused:
                continue
            if failed is None:
                return None
            log = (self.home / f"tests.{failed}.log").read_text(errors="replace")
            found = re.findall(r"\[  FAILED  \] ([\w/]+\.[\w/]+)", log) or re.findall(r"\[ RUN      \] (\S+)", log)
            return found[-1] if found else "start"
        raise SystemExit("The tests were stopped three times while they ran.")

    @staticmethod
    def environment(home):
        """No fault may reach the owner's files and desktop."""
        names = ("HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR")
        desktop = ("DBUS_SESSION_BUS_ADDRESS", "DISPLAY", "WAYLAND_DISPLAY")
        kept = {name: value for name, value in os.environ.items() if name not in desktop}
        return {**kept, **dict.fromkeys(names, home), "QT_QPA_PLATFORM": "offscreen", "QT_SCALE_FACTOR": "1"}

    def run(self, commands, limit, name):
        """Runs all commands at once, as the shards of a test. Returns the index of the first that fails or takes too
        long, or None. Its output is in NAME.INDEX.log."""
        with tempfile.TemporaryDirectory(prefix="mutate-", ignore_cleanup_errors=True) as home:
            running = []
            try:
                for index, command in enumerate(commands):
                    shard = {"GTEST_TOTAL_SHARDS": str(len(commands)), "GTEST_SHARD_INDEX": str(index)}
                    environment = {**(self.environment(home) if name == "tests" else os.environ), **shard}
                    with open(self.home / f"{name}.{index}.log", "wb") as log:
                        running.append(subprocess.Popen(
                            command, stdin=subprocess.DEVNULL, stdout=log, stderr=subprocess.STDOUT, env=environment,
                            start_new_session=True, preexec_fn=prepare if name == "tests" else None))
                return self.wait(running, limit, name)
            finally:
                for process in running:
                    try:
                        os.killpg(process.pid, signal.SIGKILL)  # with what it started
                    except ProcessLookupError:
                        pass
                    process.wait()

    @staticmethod
    def wait(running, limit, name):
        used, paused, before = 0.0, False, time.monotonic()
        while used < limit:
            codes = [code_of(process) for process in running]
            failed = next((i for i, code in enumerate(codes) if code), None)
            if failed is not None and paused and name == "tests":
                raise Paused
            if failed is not None:
                return failed
            if all(code == 0 for code in codes):
                return None
            time.sleep(0.02)
            now = time.monotonic()
            paused = paused or now - before > STOPPED
            used += min(now - before, STOPPED)
            before = now
        return next((i for i, process in enumerate(running) if code_of(process) != 0), None)
