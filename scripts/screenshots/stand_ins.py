"""What surrounds the program: the maker's server, the machine's drive, other designs."""

import contextlib
import datetime
import gzip
import http.server
import os
import re
import shutil
import subprocess
import threading
import time
from pathlib import Path

from display import Failure, wait_for

SAMPLES = Path(__file__).resolve().parents[2] / "samples"
FEED_PORT = 18765
DRIVES = Path("/media")
FEED = b"""<rss xmlns:sparkle="https://www.hoopline.example/feed"><channel><item>
<title>Hoopline Organizer 1.2.0</title>
<sparkle:releaseNotesLink>https://www.hoopline.example/notes</sparkle:releaseNotesLink>
<enclosure url="https://www.hoopline.example/download" sparkle:version="1.2.0"/>
</item></channel></rss>"""
BUS = """<busconfig><type>system</type><listen>unix:tmpdir=/tmp</listen><policy context="default">
<allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy></busconfig>"""


class _Feed(http.server.BaseHTTPRequestHandler):
    def do_POST(self):
        self.send_response(200)
        self.end_headers()
        self.wfile.write(FEED)

    def log_message(self, *_):
        pass


@contextlib.contextmanager
def maker_server():
    """The maker's server, which knows a newer version."""
    server = http.server.HTTPServer(("127.0.0.1", FEED_PORT), _Feed)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    try:
        yield
    finally:
        server.shutdown()
        server.server_close()


@contextlib.contextmanager
def machine_drive(environment, programs, home):
    """The machine's drive, and a service that could eject it. Nobody else sees it:
    scripts/screenshots.sh has mounts of its own."""
    image, config = home / ".drive", home / ".bus.conf"
    drive = DRIVES / home.name / "MACHINE"
    quiet = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
    with contextlib.ExitStack() as ended:

        def start(*command, **options):
            process = subprocess.Popen(command, **options)
            ended.callback(process.wait)
            ended.callback(process.terminate)
            return process

        subprocess.run(["mount", "-t", "tmpfs", "none", DRIVES], check=True)
        ended.callback(subprocess.run, ["umount", "-l", DRIVES], check=False)
        drive.mkdir(parents=True)
        with open(image, "wb") as file:
            file.truncate(4 << 30)
        path = os.environ["PATH"] + ":/usr/sbin"
        subprocess.run(["mkfs.vfat", image], env={"PATH": path}, check=True, **quiet)
        start("fusefat", "-f", "-o", "rw+", image, drive, **quiet)
        if not wait_for(lambda: os.path.ismount(drive)):
            raise Failure("the drive cannot be mounted")
        config.write_text(BUS)
        options = {"stdout": subprocess.PIPE, "stderr": subprocess.DEVNULL, "text": True}
        bus = start(
            "dbus-daemon", f"--config-file={config}", "--nofork", "--print-address", **options
        )
        environment["DBUS_SYSTEM_BUS_ADDRESS"] = bus.stdout.readline().strip()
        ended.callback(environment.pop, "DBUS_SYSTEM_BUS_ADDRESS")
        start(programs / "drive-service", env=environment)
        time.sleep(0.5)
        yield


def copies_of_designs(folder, animals):
    """A folder that holds some of the designs once more, one of them in another format."""
    folder.mkdir(parents=True, exist_ok=True)
    flowers = [f"Flowers/{name}" for name in ("rose.dst", "tulip.dst", "fern.dst", "rose.jef")]
    for path in [SAMPLES / name for name in flowers] + list(animals.iterdir()):
        shutil.copy(path, folder)


def large_folder(folder, count=4000):
    """So many designs that one can watch them being read."""
    folder.mkdir()
    rose = (SAMPLES / "Flowers/rose.dst").read_bytes()
    for number in range(count):
        (folder / f"rose {number:04}.dst").write_bytes(rose + b"%04d" % number)


def earlier_backups(catalogue):
    """Backups of other days, on which fewer designs had tags and notes."""
    folder = catalogue.parent / "backups"
    folder.mkdir(exist_ok=True)
    head, *designs = catalogue.read_text().split("<file>")
    for days, remarked in ((0, 21), (1, 19), (3, 16), (8, 9), (23, 4)):
        without = [re.sub("(?s)<(notes|tags)>.*</\\1>", "", text) for text in designs[remarked:]]
        text = "<file>".join([head] + designs[:remarked] + without)
        day = datetime.date.today() - datetime.timedelta(days)
        with gzip.open(folder / f"hoopline-organizer-{day}.xml.gz", "wt") as backup:
            backup.write(text)
