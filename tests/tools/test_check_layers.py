"""What tools/check_layers.py must find, each fault planted in a small tree that is otherwise right."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).parents[2] / "tools" / "check_layers.py"

SOUND = {
    "model/CMakeLists.txt": """
ventaro_layer(ventaro_types
    SOURCES value.h value.cpp # a comment
    LINK Qt5::Core)
ventaro_layer(ventaro_model SOURCES model.h LINK ventaro_types Qt5::Gui)
""",
    "model/value.h": "#pragma once\n#include <QColor>\n",
    "model/value.cpp": '#include "model/value.h"\n#include <vector>\n',
    "model/model.h": '#include "model/value.h"\n#include <QObject>\n',
    "view/CMakeLists.txt": "ventaro_layer(ventaro_view SOURCES window/view.h box/updatedialog.cpp box/updatedialog.h common/look.h LINK ventaro_model ventaro_device)",
    "view/window/view.h": '#include "model/model.h"\n#include "view/box/updatedialog.h"\n#include <QWidget>\n',
    "view/common/look.h": "",
    "view/box/updatedialog.h": "",
    "view/box/updatedialog.cpp": '#include "device/link.h"\n#include "view/common/look.h"\n',
    "device/CMakeLists.txt": "ventaro_layer(ventaro_device SOURCES link.h LINK Qt5::Network)",
    "device/link.h": "#include <QTcpSocket>\n",
}

# Name: (file, its text, words of the report)
FAULTS = {
    "upwards": ("model/value.cpp", '#include "model/model.h"\n', "model/value.cpp: (ventaro_types) includes model/model.h"),
    "sideways": ("view/window/view.h", '#  include "device/link.h"\n', "view/window/view.h: (ventaro_view) includes device/link.h"),
    "another feature": ("view/box/updatedialog.cpp", '#include "view/window/view.h"\n', "view/window/view.h of another feature"),
    "from the common folder": ("view/common/look.h", '#include "view/window/view.h"\n', "view/window/view.h of another feature"),
    "beside the features": (
        "view/CMakeLists.txt",
        "ventaro_layer(ventaro_view SOURCES all.h window/view.h box/updatedialog.cpp box/updatedialog.h common/look.h)",
        "view/all.h: belongs to no feature",
    ),
    "upwards in angle brackets": ("model/value.cpp", "#include <model/model.h>\n", "(ventaro_types) includes model/model.h"),
    "widget in the model": ("model/model.h", "#include <QWidget>\n", "includes <QWidget> of Qt Widgets"),
    "widget by module": ("model/model.h", "#include <QtWidgets/QLabel>\n", "of Qt Widgets"),
    "socket in the view": ("view/window/view.h", "#include <QTcpSocket>\n", "of Qt Network"),
    "file of no layer": ("view/window/view.h", '#include "view/ghost.h"\n', "view/ghost.h, which no layer lists"),
    "test code": ("view/window/view.h", '#include "tests/support/box.h"\n', "belongs to no layer"),
    "not listed": ("view/other.cpp", "", "view/other.cpp: listed by no target"),
    "unknown layer": ("kit/CMakeLists.txt", "ventaro_layer(ventaro_toys SOURCES toy.h)", "ventaro_toys: a layer without"),
    "link": ("device/CMakeLists.txt", "ventaro_layer(ventaro_device SOURCES link.h LINK ventaro_view)", "links ventaro_view"),
}


def check(files):
    """Exit status and report for a tree of files."""
    with tempfile.TemporaryDirectory() as root:
        for path, text in files.items():
            file = Path(root) / path
            file.parent.mkdir(exist_ok=True)
            file.write_text(text, encoding="utf-8")
        result = subprocess.run([sys.executable, SCRIPT, root], capture_output=True, text=True, check=False)
        return result.returncode, result.stdout + result.stderr


class CheckLayers(unittest.TestCase):
    def test_sound_tree_passes(self):
        status, report = check(SOUND)
        self.assertEqual(status, 0, report)

    def test_faults_are_found(self):
        for name, (path, text, words) in FAULTS.items():
            with self.subTest(name):
                status, report = check({**SOUND, path: text})
                self.assertEqual(status, 1, report)
                self.assertIn(words, report)


if __name__ == "__main__":
    unittest.main()
