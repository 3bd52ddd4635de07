"""The check of the floors, on a small tree of its own: test_floors.py CHECK"""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CHECK = sys.argv.pop()

TREE = {
    "docs/architecture.md": """
| Library | Folder | What it knows | Qt besides `Core` | Never includes |
|---|---|---|---|---|
| `l_base` | `src/base` | the ground | | anything else of ours |
| `l_files` | `src/base/files` | files | `Network` | |
| `l_model` | `src/model` | the model | `Gui` | `base/files` `Network` |
| `l_views` | `src/views` | the views | `Gui` `Widgets` | |
""",
    "src/CMakeLists.txt": "set(floors\n    base\n    base/files\n    model\n    views)\n",
    "src/base/CMakeLists.txt": "hoopline_library(l_base SOURCES Log.cpp DEPENDS Qt::Core)",
    "src/base/Log.h": "#include <QString>\n",
    "src/base/files/CMakeLists.txt": "hoopline_library(l_files DEPENDS l_base Qt::Network)",
    "src/base/files/Reader.h": '#include "base/Log.h"\n#include <QTcpSocket>\n',
    "src/model/CMakeLists.txt": "hoopline_library(l_model DEPENDS l_base Qt::Gui)",
    "src/model/Model.h": '#include "base/Log.h"\n#include <QColor>\n',
    "src/views/CMakeLists.txt": "hoopline_library(l_views DEPENDS l_model l_files Qt::Widgets)",
    "src/views/View.cpp": '#include "model/Model.h"\n#include "views/View.h"\n#include <QLabel>\n',
    "src/views/View.ui": "<header>views/View.h</header>\n",
}

# What is added to which file, and what is said of it.
VIOLATIONS = [
    ("src/base/Log.h", '#include "model/Model.h"', "model stands no higher"),
    ("src/base/Log.h", "#include <QColor>", "l_base includes QColor of Qt's Gui"),
    ("src/model/Model.h", '#include "base/files/Reader.h"', "base/files is not linked"),
    ("src/model/Model.h", "#include <QTcpSocket>", "QTcpSocket of Qt's Network"),
    ("src/model/View.ui", "<header>views/View.h</header>", "views stands no higher"),
    ("src/else/Else.h", "", "no library of the table has this folder"),
    ("src/model/CMakeLists.txt", "target_link_libraries(l_model PUBLIC l_views)", "no higher"),
    ("src/model/CMakeLists.txt", "target_link_libraries(l_model PUBLIC Qt::Svg)", "Qt's Svg"),
    ("src/model/CMakeLists.txt", "target_link_libraries(l_model PUBLIC l_files)",
     "must never reach base/files"),
    ("src/model/CMakeLists.txt", "target_link_libraries(l_model PUBLIC l_files)",
     "must never reach Qt's Network by way of l_files"),
    ("src/CMakeLists.txt", "set(floors base model base/files views)", "the order differs"),
]


class FloorsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        for name, text in TREE.items():
            self.write(name, text)

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def check(self):
        result = subprocess.run([sys.executable, CHECK, self.root], capture_output=True, text=True)
        return result.returncode, result.stdout + result.stderr

    def test_good_tree(self):
        self.assertEqual(self.check(), (0, ""))

    def test_violations(self):
        for name, text, said in VIOLATIONS:
            with self.subTest(name=name, text=text):
                before = TREE.get(name)
                self.write(name, text + "\n" + (before or ""))
                status, output = self.check()
                self.assertEqual(status, 1)
                self.assertIn(said, output)
                self.write(name, before) if before else (self.root / name).unlink()


if __name__ == "__main__":
    unittest.main()
