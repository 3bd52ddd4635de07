"""Performs scenes: does the steps of each shot, sees that the program shows what it should,
and takes the picture."""

import contextlib
import time
from dataclasses import dataclass, field

from display import Failure, wait_for
from organizer import NAME, Organizer
from picture import Picture
from texts import Texts

# Parts of the main window as it is opened here, in pixels before scaling.
REGIONS = {
    "folders": (0, 64, 230, 360),
    "tags": (0, 366, 230, 680),
    "searches": (0, 684, 230, -24),
    "grid": (238, 104, 1028, -24),
    "bar": (238, 64, 1040, 130),
    "properties": (1048, 64, 1280, 290),
    "chips": (1048, 294, 1280, 580),
    "threads": (1048, 600, 1280, -24),
    "status": (0, -22, 600, -1),
}
PAUSE = 0.15  # seconds for the program to take a key in


@dataclass
class Look:
    """How the program is looked at."""

    name: str
    language: str = "en"
    dark: bool = False
    scale: float = 1

    @property
    def suffix(self):
        """What it adds to the names of pictures."""
        return "" if self.name == "light" else f"-{self.name}"


LOOKS = [
    Look("light"),
    Look("dark", dark=True),
    Look("de", language="de"),
    Look("zh-CN", language="zh-CN"),
    Look("at-1.25", scale=1.25),
    Look("at-1.5", scale=1.5),
    Look("at-2", scale=2),
]


@dataclass
class Dialog:
    """Dialogs with these titles, as the sources have them, stand before the main window,
    the last of them before the others."""

    titles: tuple

    def __init__(self, *titles):
        self.titles = titles

    def found(self, windows, texts):
        wanted = [texts.of(title).replace("%1", NAME) for title in self.titles]
        return len(wanted) == len(windows) and all(
            window.managed and window.title.startswith(title)
            for window, title in zip(windows, wanted)
        )


@dataclass
class Popup:
    """So many windows of this kind, such as menus or a tool tip, and nothing else stand
    before the main window."""

    kind: str
    count: int = 1

    def found(self, windows, _):
        return len(windows) == self.count and all(
            not window.managed and window.kind == self.kind for window in windows
        )


@dataclass
class Main:
    """Nothing stands before the main window."""

    def found(self, windows, _):
        return not windows


@dataclass
class Shot:
    """`steps` are done, then the program must show what `shows` says. `over` takes the
    picture with the main window behind. Each region in `differs` or `same`, of which "all"
    is the whole picture, must look other than, or as, in the shot of this name that was
    taken before in the scene. `then` leads on from what was photographed. A `moving`
    picture need not come to rest."""

    name: str
    steps: list = field(default_factory=list)
    shows: object = field(default_factory=Main)
    over: bool = False
    differs: dict = field(default_factory=dict)
    same: dict = field(default_factory=dict)
    then: list = field(default_factory=list)
    moving: bool = False


@dataclass
class Scene:
    """Shots of one run of the program. `begin` is called with the stage and starts it;
    `everywhere` is for every look, other scenes for the first alone."""

    begin: object
    shots: list
    everywhere: bool = True

    def names(self, look):
        return [shot.name + look.suffix for shot in self.shots]


class Stage:
    """One scene in one look. Steps are methods of it, "press F5" calls press("F5"), or
    functions that are called with it."""

    def __init__(self, display, home, programs, look):
        self.display, self.home, self.programs, self.look = display, home, programs, look
        self.designs = home / "Designs"
        self.texts = Texts(look.language)
        self.organizer = Organizer(display, home, programs, look)
        self._taken = {}
        self._surroundings = contextlib.ExitStack()

    def close(self):
        self.organizer.stop()
        self._surroundings.close()

    def enter(self, surrounding):
        """Lets a stand-in be there until the scene ends."""
        return self._surroundings.enter_context(surrounding)

    # Steps

    def press(self, keys):
        for key in keys.split():
            self.display.press(key)
            time.sleep(PAUSE)

    def type(self, text):
        self.display.type(text)
        time.sleep(PAUSE)

    def point(self, place):
        """In the newest window, in pixels before scaling."""
        managed = [window for window in self.organizer.windows() if window.managed]
        window = managed[-1] if managed else self.organizer.window
        x, y = (int(float(number) * self.look.scale) for number in place.split())
        self.display.point(window.x + x, window.y + y)
        time.sleep(PAUSE)

    def click(self, place):
        self.point(place)
        self.display.click()
        time.sleep(PAUSE)
        self.display.point_away()

    def right_click(self, place):
        self.point(place)
        self.display.click(3)
        time.sleep(PAUSE)

    def menu(self, path):
        """As in "&File > &Backups...", by the letters of the language. With " >" at the
        end the last menu is only opened."""
        entries = path.split(" > ")
        opened = entries if path.endswith(" >") else entries[:-1]
        for depth, entry in enumerate(opened):
            letter = self.texts.letter(entry.removesuffix(" >"))
            self.press(letter if depth else f"alt+{letter}")
            if not wait_for(lambda count=depth + 1: len(self.organizer.windows()) == count):
                raise Failure(f"the menu {entry} does not open")
        if opened is not entries:
            self.press(self.texts.letter(entries[-1]))

    def to_right_edge(self, _):
        """Where a wide popup has to keep to the window to stay on the screen."""
        self.organizer.move_to_right_edge()

    def wait(self, seconds):
        time.sleep(float(seconds))

    # Pictures

    def take(self, shot):
        """The picture, or a Failure that says why it is not what it should be."""
        self._do(shot.steps)
        windows = wait_for(lambda: self._windows_for(shot), 15)
        if windows is None:
            there = ", ".join(f"{w.kind} “{w.title}”" for w in self.organizer.windows())
            raise Failure(f"{shot.shows} is not shown, but {there or 'no other window'}")
        picture = self._settled(shot, windows)
        self._compare(shot, picture)
        self._taken[shot.name] = picture
        self._do(shot.then)
        return picture

    def _do(self, steps):
        for step in steps:
            if callable(step):
                step(self)
            else:
                verb, _, rest = step.partition(" ")
                getattr(self, verb)(rest)

    def _windows_for(self, shot):
        windows = self.organizer.windows()
        return windows if shot.shows.found(windows, self.texts) else None

    def _within_main(self):
        return all(self.organizer.window.holds(window) for window in self.organizer.windows())

    def _settled(self, shot, windows):
        over = shot.over or isinstance(shot.shows, Popup)
        if over and not wait_for(self._within_main, 3):
            raise Failure("what stands before the main window is cut off")
        window = self.organizer.window if over or not windows else windows[-1]
        picture = Picture.of(self.display, window, over)
        for _ in range(30):
            if shot.moving:
                break
            time.sleep(0.3)
            before, picture = picture, Picture.of(self.display, window, over)
            if picture.stands_as(before):
                break
        else:
            raise Failure("the window does not come to rest")
        if picture.is_blank():
            raise Failure("the picture is blank")
        return picture

    def _compare(self, shot, picture):
        for expected, regions in ((False, shot.differs), (True, shot.same)):
            for region, name in regions.items():
                one, other = (self._region(whole, region) for whole in (picture, self._taken[name]))
                if one.stands_as(other) != expected:
                    word = "differs from" if expected else "is the same as"
                    raise Failure(f"the region “{region}” {word} that of {name}")

    def _region(self, picture, name):
        if name == "all":
            return picture
        return picture.part(*(int(value * self.look.scale) for value in REGIONS[name]))
