"""The program, in the home of somebody who uses it."""

import subprocess

from display import Failure, wait_for

NAME = "Hoopline Organizer"
PROFILE = (".config", ".local", ".cache")
CATALOGUE = f".local/share/hoopline.example/{NAME}/hoopline-organizer.xml"
MAIN_WIDTH = 900  # the splash screen is narrower
# Nobody answers the question for newer versions; xdotool asks for windows that have gone.
EXPECTED = ("Update feed", "QXcbConnection")
DARK_DESKTOP = {
    "XDG_CURRENT_DESKTOP": "KDE",
    "KDE_FULL_SESSION": "true",
    "KDE_SESSION_VERSION": "5",
}
DARK_COLOURS = """
[Colors:Button]
BackgroundNormal=52,59,63
ForegroundNormal=227,232,233
[Colors:Selection]
BackgroundNormal=38,108,114
ForegroundNormal=255,255,255
[Colors:Tooltip]
BackgroundNormal=61,70,75
ForegroundNormal=241,244,244
[Colors:View]
BackgroundNormal=29,33,36
BackgroundAlternate=34,39,42
ForegroundNormal=227,232,233
ForegroundLink=127,200,205
ForegroundVisited=127,200,205
[Colors:Window]
BackgroundNormal=38,43,46
ForegroundNormal=227,232,233
"""


class Organizer:
    """One run of the program, or several one after the other, on a fresh profile."""

    def __init__(self, display, home, programs, look):
        self.display, self.home, self.programs, self.look = display, home, programs, look
        self.window = None
        self._process = None
        self.catalogue = home / CATALOGUE
        self._log = home / ".log"
        self._log.touch()
        self._environment = {"QT_SCALE_FACTOR": str(look.scale)}
        self._put_profile_aside()
        if look.dark:
            self._environment.update(DARK_DESKTOP)
            (home / ".config/kdeglobals").write_text(DARK_COLOURS)

    def _put_profile_aside(self):
        """Nothing is deleted: whoever gives another home here by mistake finds all again."""
        former = self.home / ".former"
        former.mkdir(exist_ok=True)
        place = former / str(sum(1 for _ in former.iterdir()))
        place.mkdir()
        for name in PROFILE:
            if (self.home / name).exists():
                (self.home / name).rename(place / name)
        (self.home / ".config").mkdir()

    def scan(self, *folders):
        self._run("hoopline-cli", "scan", *folders)

    def remark(self):
        """Puts the tags, notes and stars of their owner to the designs."""
        self._run("demo-notes", self.catalogue)

    def _run(self, program, *arguments):
        subprocess.run(
            [self.programs / program, *arguments],
            env=self.display.environment,
            stdout=subprocess.DEVNULL,
            check=True,
        )

    def start(self, *arguments, program="hoopline-organizer", **variables):
        """Opens its window, 1280 x 820 pixels before scaling."""
        self.display.start_manager()
        self.launch(*arguments, program=program, **variables)
        self.window = wait_for(self._main_window, 90)
        if not self.window:
            raise Failure("no main window comes up")
        size = (int(side * self.look.scale) for side in (1280, 820))
        self.display.resize(self.window, *size)
        self.display.activate(self.window)
        self.window = self._main_window()
        self.display.point_away()

    def move_to_right_edge(self):
        self.display.move_to_right_edge(self.window)
        self.window = self._main_window()

    def launch(self, *arguments, program="hoopline-organizer", **variables):
        """Starts it, whatever will come up."""
        language = [] if self.look.language == "en" else [f"--language={self.look.language}"]
        environment = {**self.display.environment, **self._environment, **variables}
        with open(self._log, "wb") as log:
            self._process = subprocess.Popen(
                [self.programs / program, *language, *arguments], env=environment, stderr=log
            )

    def _main_window(self):
        if self._process.poll() is not None:
            raise Failure(f"the program ended: {self.said()}")
        least = MAIN_WIDTH * self.look.scale
        for window in self.display.windows_of(self._process.pid):
            if window.title == NAME and window.managed and window.width >= least:
                return window
        return None

    def windows(self):
        """All of its windows but the main one."""
        main = self.window.id if self.window else None
        windows = self.display.windows_of(self._process.pid)
        return [window for window in windows if window.id != main]

    def said(self):
        """What it wrote to stderr, but for what the stage itself is the cause of."""
        lines = self._log.read_text(errors="replace").splitlines()
        return "\n".join(line for line in lines if not any(word in line for word in EXPECTED))

    def wait_until_ended(self):
        try:
            self._process.wait(20)
        except subprocess.TimeoutExpired as timeout:
            raise Failure("the program does not end") from timeout
        self._process = self.window = None

    def stop(self):
        if self._process:
            self._process.terminate()
            self._process.wait()
            self._process = self.window = None
