"""What tools/check_classes.py must find, each fault planted in a small tree that is otherwise right."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).parents[2] / "tools" / "check_classes.py"


def methods(count, text="void method{}();"):
    return "\n".join(text.format(number) for number in range(count))


def members(count):
    return "\n".join(f"int m_value{number} = {number};" for number in range(count))


def widget(body="", outside=""):
    """A class whose declarations use what a parser may stumble over."""
    return f"""#pragma once
#include <QWidget>
{outside}
class Dial : public QWidget
{{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)
public:
    explicit Dial(QWidget *parent = nullptr);
    [[nodiscard]] double value() const {{ return m_value; }}
    static constexpr std::array<int, 2> kSteps{{1, 2}};
signals:
    void valueChanged(double value);
public slots:
    void setValue(double value);
private:
{body}
    struct Step {{ int size = 0; }};
    struct Private;
    std::unique_ptr<Private> d;
    double m_value = 0.0;
}};
"""


def face(name, count=41):
    return f"class {name} {{ {methods(count)} }};"


def function(lines):
    return "int f()\n{\n" + "\n" * (lines - 4) + "    return 0;\n}\n"


FACES = "".join(face(name) for name in ("Model", "View", "Controller", "OsziWidget"))
# The sound tree is at each limit: 4 methods, 36 in the private part or the class; 2 data members, 23 in the private part.
SOUND = {
    "app/faces.h": FACES,
    "kit/dial.h": widget(),
    "kit/dial.cpp": '#include "kit/dial.h"\n#include "kit/helper.h"\n'
    f"struct Dial::Private {{ {methods(36)} {members(23)} }};\nvoid Dial::setValue(double) {{}}\n",
    "kit/helper.h": '#include "list.h"\n',
    "kit/list.h": "#pragma once\n",
    "kit/helper.cpp": '#include "kit/helper.h"\n' + function(40),
    "kit/long.cpp": "\n" * 500,
    "app/faces.cpp": "void Model::method1() {}\n" + "\n" * 349,
    "tests/tst_dial.cpp": f"class Dial {{ {methods(50)} }};\nvoid Dial::method1() {{}}\n",
    **{f"plots/file{number}.h": "" for number in range(45)},
}

# Name: (files that differ, words of the report)
FAULTS = {
    "methods": ({"kit/dial.h": widget("void method();")}, "kit/dial.h: class Dial has 41 methods (at most 40)"),
    "signals": ({"kit/dial.h": widget("signals: void sent();")}, "class Dial has 41 methods"),
    "signals without the keyword": (
        {"kit/knob.h": f"class Knob : public QObject {{\nQ_OBJECT\nQ_SIGNALS:\n{methods(41)} }};"},
        "class Knob has 41 methods",
    ),
    "slots": ({"kit/dial.h": widget("private slots: void take();")}, "class Dial has 41 methods"),
    "private struct inside": (
        {"kit/knob.h": f"class Knob {{ struct Private {{ {methods(41)} }}; }};"},
        "kit/knob.h: class Knob has 41 methods",
    ),
    "private class beside": (
        {"kit/knob.h": "class KnobPrivate;\nclass Knob { KnobPrivate *d; void turn(); };",
         "kit/knob.cpp": f"class KnobPrivate {{ {methods(40)} }};"},
        "kit/knob.h: class Knob has 41 methods",
    ),
    "nested struct": (
        {"kit/knob.h": f"class Knob {{ struct Step {{ {methods(41)} }}; }};"},
        "class Knob::Step has 41 methods",
    ),
    "local class": (
        {"kit/knob.cpp": f"namespace {{\nclass Knob {{ {methods(41)} }};\n}}"},
        "kit/knob.cpp: class Knob has 41 methods",
    ),
    "members": ({"kit/dial.h": widget("int m_more;")}, "kit/dial.h: class Dial has 26 data members (at most 25)"),
    "members of a struct": (
        {"kit/settings.h": f"struct Settings {{ {members(26)} }};"},
        "kit/settings.h: class Settings has 26 data members",
    ),
    "second .cpp": (
        {"kit/dial_paint.cpp": "Dial::Dial(QWidget *parent) : QWidget(parent) {}"},
        "class Dial has 2 .cpp files (at most 1): kit/dial.cpp, kit/dial_paint.cpp",
    ),
    "second .cpp of the private struct": (
        {"kit/dial_paint.cpp": "void Dial::Private::method1() {}"},
        "class Dial has 2 .cpp files",
    ),
    ".cpp of another class": (
        {"kit/knob.h": "class Knob { void turn(); };", "kit/helper.cpp": "void Knob::turn() {}\n"},
        "kit/knob.h: class Knob has its functions in kit/helper.cpp, not beside its header",
    ),
    "long function": ({"kit/helper.cpp": function(41)}, "kit/helper.cpp: function f has 41 lines (at most 40)"),
    "long test function": ({"tests/tst_dial.cpp": function(41)}, "tests/tst_dial.cpp: function f has 41 lines"),
    "long file": ({"kit/long.cpp": "\n" * 500 + "int last;"}, "kit/long.cpp: file has 501 lines (at most 500)"),
    "long face": (
        {"app/faces.cpp": "void Model::method1() {}\n" + "\n" * 350},
        "app/faces.cpp: file has 351 lines (at most 350 in a face)",
    ),
    "long header of a face": ({"app/faces.h": FACES + "\n" * 351}, "(at most 350 in a face)"),
    "full folder": ({"plots/one.cpp": ""}, "plots: folder holds 46 files (at most 45)"),
    "headers in a circle": (
        {"kit/list.h": '#include "kit/helper.h"\n'},
        "includes go in a circle: kit/helper -> kit/list -> kit/helper",
    ),
    "circle by way of the folder above": (
        {"kit/list.h": '#include "../kit/helper.h"\n'},
        "includes go in a circle: kit/helper -> kit/list -> kit/helper",
    ),
    "circle by way of a .cpp": (
        {"kit/list.h": '#include "kit/dial.h"\n'},
        "includes go in a circle: kit/dial -> kit/helper -> kit/list -> kit/dial",
    ),
    "needless exception": (
        {"app/faces.h": FACES.replace(face("View"), face("View", 40))},
        "the exception for View's methods is no longer needed",
    ),
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


class CheckClasses(unittest.TestCase):
    def test_sound_tree_passes(self):
        status, report = check(SOUND)
        self.assertEqual(status, 0, report)

    def test_faults_are_found(self):
        for name, (files, words) in FAULTS.items():
            with self.subTest(name):
                status, report = check({**SOUND, **files})
                self.assertEqual(status, 1, report)
                self.assertIn(words, report)
                self.assertIn("class check: 1 problem(s)", report)


if __name__ == "__main__":
    unittest.main()
