"""Takes the pictures of the program; scripts/screenshots.sh prepares everything for it.

screenshots [--manual] [--look LOOK] [--list] PROGRAMS HOME OUTDIR [NAME...]

PROGRAMS is the folder of the programs, HOME that of the user whom the pictures show, with
designs in "Designs". Of the scenes, which scenes.py has, those are performed that have a
picture of one of these NAMEs, which may hold * and ?; all when there is none.
"""

import argparse
import fnmatch
import os
import signal
import subprocess
import sys
from pathlib import Path

from display import Display, Failure
from picture import Picture
from scenes import SCENES
from stage import LOOKS, Stage

DOCS = Path(__file__).resolve().parents[2] / "docs"


def arguments():
    parser = argparse.ArgumentParser(add_help=False)
    parser.add_argument("--manual", action="store_true")
    parser.add_argument("--look", choices=[look.name for look in LOOKS])
    parser.add_argument("--list", action="store_true")
    parser.add_argument("programs", type=Path)
    parser.add_argument("home", type=Path)
    parser.add_argument("out", type=Path)
    parser.add_argument("names", nargs="*")
    return parser.parse_args()


def plan(names, chosen):
    """Each scene with a look, and the pictures of it that are wanted."""
    for look in LOOKS:
        for scene in SCENES:
            if chosen in (None, look.name) and (look is LOOKS[0] or scene.everywhere):
                wanted = [
                    name
                    for name in scene.names(look)
                    if not names or any(fnmatch.fnmatch(name, pattern) for pattern in names)
                ]
                if wanted:
                    yield scene, look, wanted


def perform(scene, stage, wanted, save):
    """Yields what went wrong."""
    name = "the start of " + wanted[0]
    try:
        scene.begin(stage)
        for shot in scene.shots:
            name = shot.name + stage.look.suffix
            picture = stage.take(shot)
            if name in wanted:
                save(name, picture)
            if name == wanted[-1]:
                break
    except (Failure, KeyError, OSError, subprocess.SubprocessError) as failure:
        yield f"{name}: {failure}"
        save("failed-" + name.replace(" ", "-"), Picture.of(stage.display))
    finally:
        stage.close()
    said = stage.organizer.said()
    if said:
        yield f"{name}: the program said: {said}"


def environment(home):
    """Nothing of the caller's desktop but where programs are."""
    temporary = os.environ.get("TMPDIR", "/tmp")
    return {
        "PATH": os.environ["PATH"],
        "HOME": str(home),
        "USER": home.name,
        "LANG": "C.UTF-8",
        "TMPDIR": temporary,
        "XDG_RUNTIME_DIR": temporary,
        "QT_QPA_PLATFORM": "xcb",
    }


def main():
    options = arguments()
    names = options.names
    if options.manual and not names:
        names = [path.stem for path in (DOCS / "images").glob("*.png")]
    planned = list(plan(names, options.look))
    if options.list or not planned:
        print("\n".join(name for _, _, wanted in planned for name in wanted))
        return 0 if planned else 2

    def save(name, picture):
        picture.save(options.out / f"{name}.png", small=options.manual)
        print(name, flush=True)

    failures = 0
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    with Display(environment(options.home)) as display:
        for scene, look, wanted in planned:
            stage = Stage(display, options.home, options.programs, look)
            for failure in perform(scene, stage, wanted, save):
                failures += 1
                print(failure, file=sys.stderr, flush=True)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
