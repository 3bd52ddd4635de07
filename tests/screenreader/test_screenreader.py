#!/usr/bin/python3
"""Uses the organizer as a screen reader does: test_screenreader.py ORGANIZER CLI SAMPLES

Over the accessibility bus of a session of its own, where Qt's tree of objects shows what
has really come out of it, and with the keys of a real keyboard.
"""

import os
import re
import shutil
import subprocess
import sys
import time
import unittest
from pathlib import Path

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 30  # seconds
NAMES = ["butterfly.dst", "cat.dst", "fern.dst", "fish.dst", "rose.dst", "whale.dst"]
TAGGED = NAMES[:2]
LISTS = {"list", "tree", "table"}  # whose items come in numbers


def until(what, told):
    """What `what` returns as soon as that is something; what the bus tells is taken meanwhile."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            if found := what():
                return found
        except GLib.Error:  # gone meanwhile
            pass
        time.sleep(0.01)
    raise AssertionError(told)


def has(node, state):
    return node.get_state_set().contains(state)


def children(node):
    return filter(None, (node.get_child_at_index(i) for i in range(node.get_child_count())))


def walk(node):
    yield node
    for child in children(node):
        if has(child, Atspi.StateType.SHOWING) or node.get_role_name() not in LISTS:
            yield from walk(child)


def find(root, role, name=""):
    def first():
        return next(
            (n for n in walk(root) if n.get_role_name() == role and re.match(name, n.get_name())),
            None,
        )

    return until(first, f"there is no {role} {name}")


def act(node, action):
    names = [Atspi.Action.get_action_name(node, i) for i in range(node.get_n_actions())]
    node.do_action(names.index(action))


def keys(*names):
    subprocess.run(["xdotool", "key", *names], check=True)


class ScreenReader(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        organizer, cli, samples = sys.argv[1:4]
        designs = Path(os.environ["HOME"], "designs")
        designs.mkdir()
        for name in NAMES:
            shutil.copy(next(Path(samples).glob(f"*/{name}")), designs)
        for words in (["scan", designs], ["tag", "add", "a<b", *(designs / n for n in TAGGED)]):
            subprocess.run([cli, *words], check=True, stdout=subprocess.DEVNULL)

        cls.heard = []  # names of what has got the focus or was announced
        cls.listener = Atspi.EventListener.new(cls.hear)
        for event in ("object:state-changed:focused", "object:state-changed:showing"):
            cls.listener.register(event)
        Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)
        cls.organizer = subprocess.Popen(
            [organizer], env=dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        )
        cls.addClassCleanup(cls.end)
        cls.window = until(lambda: cls.find_window("Hoopline Organizer"), "no window")
        cls.grid = find(cls.window, "list", "Designs")
        until(lambda: cls.grid.get_child_count() == len(NAMES), "the cards are not there")
        until(lambda: has(cls.window, Atspi.StateType.ACTIVE), "the window is not active")

    @classmethod
    def end(cls):
        cls.organizer.kill()
        cls.organizer.wait()

    @classmethod
    def hear(cls, event):
        try:
            name, role = event.source.get_name(), event.source.get_role_name()
        except GLib.Error:  # gone meanwhile
            return
        if event.detail1 and (event.type.endswith("focused") or role == "notification"):
            cls.heard.append(name)

    @classmethod
    def find_window(cls, name):
        for program in children(Atspi.get_desktop(0)):
            if program.get_process_id() == cls.organizer.pid:
                for window in children(program):
                    if window.get_role_name() == "frame" and name in window.get_name():
                        return window
        return None

    def card(self, name):
        return self.grid.get_child_at_index(NAMES.index(name))

    def setUp(self):
        act(self.card(NAMES[0]), "SetFocus")
        act(self.card(NAMES[0]), "Press")
        self.expect_selected(NAMES[0])
        self.heard.clear()

    def expect_heard(self, *names):
        """As the last of what is heard."""
        try:
            until(lambda: tuple(self.heard[-len(names):]) == names, "")
        except AssertionError:
            self.fail(f"{self.heard}, not {names}")

    def expect_selected(self, *names):
        def selected():
            shown = [n.get_name() for n in children(self.grid) if has(n, Atspi.StateType.SELECTED)]
            return shown == list(names)

        until(selected, f"it is not {names} that is selected")

    def expect_clear(self, window):
        """No markup, no control without a name, no frame that tells nothing."""
        faults, count = [], 0
        for node in walk(window):
            role, name, words = node.get_role_name(), node.get_name(), node.get_description()
            count += 1
            if re.search(r"</?\w+>|&\w+;", words):
                faults.append(f"{role} {name}: {words}")
            if has(node, Atspi.StateType.FOCUSABLE) and not name.strip():
                faults.append(f"{role} without a name: {words}")
            if role == "frame" and node != window:
                faults.append(f"a mere frame: {name}")
        self.assertEqual(faults, [])
        self.assertGreater(count, 40)

    def test_cards(self):
        self.assertEqual([card.get_name() for card in children(self.grid)], NAMES)
        self.assertRegex(
            self.card("cat.dst").get_description(),
            r"^40mm x 54mm, [\d,]+ stitches, \d colors, tags: a<b$",
        )
        act(self.card("cat.dst"), "Favorite")
        until(lambda: self.card("cat.dst").get_description().endswith(", favorite"), "no favorite")

    def test_selection(self):
        act(self.card("fish.dst"), "Toggle")
        self.expect_selected(NAMES[0], "fish.dst")
        self.expect_heard("2 selected")
        self.assertEqual(list(self.grid.get_selected_rows()), [0, NAMES.index("fish.dst")])
        self.grid.add_row_selection(1)
        self.grid.remove_row_selection(0)
        self.expect_selected("cat.dst", "fish.dst")
        # A program that is behind the times is answered, too.
        self.assertFalse(self.grid.add_row_selection(99))
        self.assertIsNotNone(self.grid.get_n_selected_rows())
        keys("ctrl+a")
        self.expect_heard("6 selected")

    def test_focus(self):
        keys("Right")
        self.expect_heard("cat.dst")
        keys("shift+Tab")
        until(lambda: self.heard[-1] != "cat.dst", "the focus stays")
        keys("Tab")
        self.expect_heard("cat.dst")

    def test_results(self):
        search = find(self.window, "text", "Search text")
        search.set_text_contents("rose")
        self.expect_heard("1 design, 0 selected")
        search.set_text_contents("stitches:x")
        until(lambda: any("stitches" in words for words in self.heard), "the mistake is not said")
        search.set_text_contents("")
        self.expect_heard("6 designs")

    def test_properties(self):
        value = find(self.window, "label", "Design size: 52")
        relation = value.get_relation_set()[0]
        self.assertEqual(relation.get_relation_type(), Atspi.RelationType.LABELLED_BY)
        self.assertEqual(relation.get_target(0).get_name(), "Design size:")
        self.expect_clear(self.window)

    def test_chips(self):
        chip = find(self.window, "check box", "a<b")
        self.assertTrue(has(chip, Atspi.StateType.CHECKED))
        self.grid.add_row_selection(NAMES.index("fish.dst"))
        until(lambda: has(chip, Atspi.StateType.INDETERMINATE), "the chip is not mixed")
        self.assertFalse(has(chip, Atspi.StateType.CHECKED))
        act(chip, "Toggle")
        until(lambda: "a<b" in self.card("fish.dst").get_description(), "the tag is not set")
        until(lambda: has(chip, Atspi.StateType.CHECKED), "the chip is still mixed")
        self.expect_clear(self.window)

    def test_design_window(self):
        act(self.card("fern.dst"), "Open")
        window = until(lambda: self.find_window("fern.dst"), "no design window")
        slider = find(window, "slider", "Sewing progress")
        until(lambda: re.match(r"([\d,]+) of \1", slider.get_description()), "nothing is sewn")
        until(lambda: has(window, Atspi.StateType.ACTIVE), "the window is not active")
        keys("comma")
        until(lambda: re.match(r"[\d,]+ of [\d,]+, .*\w", self.heard[-1:][0]), "no position is said")
        self.expect_clear(window)
        keys("Escape")
        until(lambda: has(self.window, Atspi.StateType.ACTIVE), "the design window stays")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[4:]])
