"""A running program with its child processes, as the operating system sees it."""
import os
import re
import signal
import time
from pathlib import Path

SETTLING = 1.5  # seconds after a pause, until the program has caught up


class Subject:
    def __init__(self, process):
        self.process = process

    def processes(self):
        """Process ids of the program and all its descendants."""
        children = {}
        for stat in Path("/proc").glob("[0-9]*/stat"):
            try:
                fields = stat.read_text().rpartition(")")[2].split()
            except OSError:
                continue
            children.setdefault(int(fields[1]), []).append(int(stat.parent.name))
        found = [self.process.pid]
        for pid in found:
            found += children.get(pid, [])
        return found

    def send(self, number):
        for pid in self.processes():
            os.kill(pid, number)

    def pause(self):
        self.send(signal.SIGSTOP)

    def resume(self):
        self.send(signal.SIGCONT)

    def stop(self):
        self.resume()
        self.process.terminate()
        self.process.wait(10)

    def cpu_time(self):
        """Nanoseconds of processor time of each thread so far."""
        times = {}
        for pid in self.processes():
            for thread in Path(f"/proc/{pid}/task").iterdir():
                try:
                    times[thread.name] = int((thread / "schedstat").read_text().split()[0])
                except OSError:
                    pass  # it has ended
        return times

    def cpu(self, seconds):
        """Percent of a core used while so much time passes."""
        before, started = self.cpu_time(), time.perf_counter()
        time.sleep(seconds)
        used = sum(time - before.get(thread, 0) for thread, time in self.cpu_time().items())
        return used / (time.perf_counter() - started) / 1e7

    def sum_of(self, file, pattern):
        total = 0
        for pid in self.processes():
            total += sum(map(int, re.findall(pattern, Path(f"/proc/{pid}/{file}").read_text(), re.M)))
        return total

    def memory(self):
        """Proportional set size in MB."""
        return self.sum_of("smaps_rollup", r"^Pss:\s+(\d+)") / 1024

    def touched(self, seconds):
        """MB of memory that the program reads or writes while so much time passes."""
        for pid in self.processes():
            Path(f"/proc/{pid}/clear_refs").write_text("1")
        time.sleep(seconds)
        return self.sum_of("smaps_rollup", r"^Referenced:\s+(\d+)") / 1024


def interleaved(subjects, seconds, rounds):
    """Percent of a core of each subject in each round; while one runs, the others are paused."""
    shares = [[] for _ in subjects]
    for subject in subjects:
        subject.pause()
    for number in range(rounds):
        turns = list(zip(subjects, shares))
        for subject, found in turns[::-1] if number % 2 else turns:
            subject.resume()
            time.sleep(SETTLING)
            found.append(subject.cpu(seconds))
            subject.pause()
    for subject in subjects:
        subject.resume()
    return shares
