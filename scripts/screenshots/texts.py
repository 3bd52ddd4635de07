"""The texts of the program in the languages that it speaks."""

import re
import xml.etree.ElementTree as ElementTree
from pathlib import Path

FOLDER = Path(__file__).resolve().parents[2] / "src/resources/translations"


class Texts:
    """Translates what the sources say; `language` is en, de or zh-CN."""

    def __init__(self, language):
        self._translations = {}
        for path in FOLDER.glob(f"*_{language.replace('-', '_')}.ts"):
            for message in ElementTree.parse(path).iter("message"):
                translation = message.findtext("translation")
                if translation and message.find("translation").get("type") is None:
                    self._translations[message.findtext("source")] = translation

    def of(self, source):
        return self._translations.get(source, source)

    def letter(self, source):
        """The key that chooses a menu's entry, in small."""
        found = re.search("&(.)", self.of(source))
        if not found:
            raise KeyError(f"{self.of(source)} has no letter")
        return found[1].lower()
