"""A virtual screen with a window manager, a keyboard and a mouse, and what is on it."""

import os
import re
import subprocess
import time
from dataclasses import dataclass

SIZE = (2720, 1720)  # the main window at 200 %, and its frame
DPI = 96
KIND = re.compile(r"_NET_WM_WINDOW_TYPE_(\w+)")


class Failure(Exception):
    """Something is not as a picture wants it; the text says what."""


def wait_for(condition, seconds=10.0, interval=0.1):
    """The first true value of condition(), or its last one when the time is over."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value or time.monotonic() > end:
            return value
        time.sleep(interval)


@dataclass
class Window:
    """A window on the screen. `kind` is NORMAL, DIALOG, DROPDOWN_MENU, POPUP_MENU, COMBO,
    TOOLTIP and the like; `managed` is whether the window manager has it. The rectangle is
    in pixels of the screen, without the frame."""

    id: str
    title: str
    kind: str
    managed: bool
    x: int
    y: int
    width: int
    height: int

    def holds(self, other):
        return (
            self.x <= other.x
            and self.y <= other.y
            and other.x + other.width <= self.x + self.width
            and other.y + other.height <= self.y + self.height
        )


class Display:
    """Started by `with`; sets DISPLAY in `environment`, which its programs run in."""

    def __init__(self, environment):
        self.environment = environment
        self._server = self._manager = None

    def __enter__(self):
        reading, writing = os.pipe()
        width, height = SIZE
        self._server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{width}x{height}x24"]
            + ["-dpi", str(DPI), "-nolisten", "tcp", "-noreset"],
            pass_fds=[writing],
            stderr=subprocess.DEVNULL,
        )
        os.close(writing)
        with os.fdopen(reading) as number:
            self.environment["DISPLAY"] = ":" + number.readline().strip()
        said = self.run("xdpyinfo")
        if f"{width}x{height} pixels" not in said or f"{DPI}x{DPI} dots per inch" not in said:
            raise Failure(f"the screen is not one of {width} x {height} pixels at {DPI} dpi")
        return self

    def __exit__(self, *_):
        for process in (self._manager, self._server):
            if process:
                process.terminate()
                process.wait()

    def start_manager(self):
        """A new window manager: one that saw its clients being killed may hang."""
        if self._manager:
            self._manager.kill()
            self._manager.wait()
        self._manager = subprocess.Popen(
            ["openbox"], env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
        )
        check = ("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
        if not wait_for(lambda: "window id" in self.run(*check), 30):
            raise Failure("the window manager does not start")

    def run(self, *command):
        """What a command prints; nothing when it fails, as a window may have gone meanwhile."""
        done = subprocess.run(
            command,
            env=self.environment,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            check=False,
            text=True,
            errors="replace",
        )
        return done.stdout if done.returncode == 0 else ""

    def windows_of(self, pid):
        """The visible windows of a process: the managed ones, oldest first, then the others."""
        clients = re.findall(r"0x[0-9a-f]+", self.run("xprop", "-root", "_NET_CLIENT_LIST"))
        others = re.findall(r"^ +(0x[0-9a-f]+)", self.run("xwininfo", "-root", "-children"), re.M)
        found = [self._window(id, pid, True) for id in clients]
        found += [self._window(id, pid, False) for id in reversed(others) if id not in clients]
        return [window for window in found if window]

    def _window(self, id, pid, managed):
        said = self.run("xprop", "-id", id, "_NET_WM_PID", "_NET_WM_NAME", "_NET_WM_WINDOW_TYPE")
        if not re.search(rf"_NET_WM_PID\(CARDINAL\) = {pid}$", said, re.M):
            return None
        place = self.run("xwininfo", "-id", id)
        if "Map State: IsViewable" not in place:
            return None
        title = re.search(r'^_NET_WM_NAME\(UTF8_STRING\) = "(.*)"$', said, re.M)
        kind = KIND.search(said)
        numbers = [
            int(re.search(rf"{label}: +(-?\d+)", place)[1])
            for label in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        ]
        return Window(
            id, title[1] if title else "", kind[1] if kind else "NORMAL", managed, *numbers
        )

    def activate(self, window):
        self.run("xdotool", "windowactivate", "--sync", window.id)

    def resize(self, window, width, height):
        self.run("xdotool", "windowsize", "--sync", window.id, str(width), str(height))

    def move_to_right_edge(self, window):
        place = (str(SIZE[0] - window.width), str(window.y))
        self.run("xdotool", "windowmove", "--sync", window.id, *place)

    def press(self, key):
        self.run("xdotool", "key", "--clearmodifiers", key)

    def type(self, text):
        self.run("xdotool", "type", "--delay", "40", text)

    def point(self, x, y):
        # Two moves: a tool tip wants to see the pointer come to rest.
        self.run("xdotool", "mousemove", str(x - 1), str(y), "mousemove", str(x), str(y))

    def click(self, button=1):
        self.run("xdotool", "click", str(button))

    def point_away(self):
        self.point(SIZE[0] - 5, SIZE[1] - 5)
