"""Pictures of windows, compared before they are saved."""

import shutil
import subprocess

from display import Failure

# Rows that may differ where nothing does: the text cursor blinks.
CURSOR_ROWS = 40


class Picture:
    """Part of the screen, as rows of RGB bytes."""

    def __init__(self, width, height, pixels):
        self.width, self.height = width, height
        self.rows = [pixels[y * width * 3 : (y + 1) * width * 3] for y in range(height)]

    @classmethod
    def of(cls, display, window=None, over=False):
        """A window by itself, with `over` the part of the screen where it stands; or all."""
        target = ["-window", window.id if window else "root"]
        if over:
            place = f"{window.width}x{window.height}+{window.x}+{window.y}"
            target = ["-window", "root", "-crop", place, "+repage"]
        done = subprocess.run(
            ["import", *target, "-depth", "8", "ppm:-"],
            env=display.environment,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            check=False,
        )
        parts = done.stdout.split(maxsplit=4)
        if done.returncode != 0 or not parts or parts[0] != b"P6":
            raise Failure("the window cannot be photographed")
        width, height = int(parts[1]), int(parts[2])
        # A single blank ends the header; further ones are pixels.
        return cls(width, height, done.stdout[-width * height * 3 :])

    def part(self, left, top, right, bottom):
        """A rectangle of it, in pixels; negative numbers count from the right and below."""
        x = [value if value >= 0 else self.width + value for value in (left, right)]
        y = [value if value >= 0 else self.height + value for value in (top, bottom)]
        pixels = b"".join(row[x[0] * 3 : x[1] * 3] for row in self.rows[y[0] : y[1]])
        return Picture(x[1] - x[0], y[1] - y[0], pixels)

    def differing_rows(self, other):
        if (self.width, self.height) != (other.width, other.height):
            return max(self.height, other.height)
        return sum(ours != theirs for ours, theirs in zip(self.rows, other.rows))

    def stands_as(self, other):
        """The same, but for a blinking cursor."""
        return self.differing_rows(other) <= min(CURSOR_ROWS, self.height // 4)

    def is_blank(self):
        return all(row == self.rows[0][:3] * self.width for row in self.rows)

    def save(self, path, small=False):
        """Writes a PNG file; `small` takes some seconds and 256 colours for it."""
        header = f"P6\n{self.width} {self.height}\n255\n".encode()
        subprocess.run(
            ["convert", "ppm:-", "-strip", f"png24:{path}"],
            input=header + b"".join(self.rows),
            check=True,
        )
        if small:
            compress(path)


def compress(path):
    if shutil.which("pngquant"):
        # 98 and 99: it would not be smaller, or not be as good, and stays as it is.
        done = subprocess.run(
            ["pngquant", "--force", "--speed=1", "--strip", "--skip-if-larger"]
            + ["--quality=85-100", "--output", path, path],
            check=False,
        )
        if done.returncode not in (0, 98, 99):
            raise Failure(f"pngquant fails at {path}")
    if shutil.which("optipng"):
        subprocess.run(["optipng", "-quiet", "-o4", "-strip", "all", path], check=True)
