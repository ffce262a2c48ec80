"""What tools/check_translations.py must find, each fault planted in a small tree that is otherwise right.

test_check_translations.py [LUPDATE]
"""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).parents[2] / "tools" / "check_translations.py"
LUPDATE = ["--lupdate", sys.argv.pop()] if len(sys.argv) > 1 else []

HEADER = '#include <QWidget>\nclass Page : public QWidget\n{\n    Q_OBJECT\n    void fill();\n};\n'
SOURCE = """#include "view/page.h"
void Page::fill()
{
    setToolTip(tr("&Datei \\"%1\\" öffnen")); // „größer“
    setStatusTip(tr(" geladen: %1 und "
                    "%2"));
    setObjectName(QStringLiteral("pageFile")); /* die Werte */
}
"""
ENTRIES = [
    ("&amp;Datei &quot;%1&quot; öffnen", "<translation>Open &amp;file &quot;%1&quot;</translation>"),
    (" geladen: %1 und %2", "<translation> loaded: %1 and %2</translation>"),
]


def catalogue(entries):
    messages = "".join(f"<message><source>{source}</source>{translation}</message>" for source, translation in entries)
    return f'<?xml version="1.0"?><TS version="2.1"><context><name>Page</name>{messages}</context></TS>'


def translated(translation):
    return catalogue([(ENTRIES[0][0], translation), ENTRIES[1]])


# Name: (source, catalogue, words of the report)
FAULTS = {
    "text not collected": (SOURCE, catalogue(ENTRIES[:1]), "is not in"),
    "text gone": (SOURCE.replace("geladen", "kopiert"), catalogue(ENTRIES), "is in no source any more"),
    "unfinished": (SOURCE, translated('<translation type="unfinished">Open</translation>'), "is unfinished"),
    "vanished": (SOURCE, translated('<translation type="vanished">Open</translation>'), "is vanished"),
    "empty": (SOURCE, translated("<translation></translation>"), "is untranslated"),
    "place holder": (SOURCE, translated("<translation>Open &amp;file %2</translation>"), "place holders"),
    "mnemonic": (SOURCE, translated("<translation>Open file %1</translation>"), "mnemonics"),
    "blank": (SOURCE, translated("<translation>Open &amp;file %1 </translation>"), "blanks at the ends"),
    "literal": (SOURCE.replace('"pageFile"', '"Größe"'), catalogue(ENTRIES), "page.cpp:7: text outside tr()"),
    "raw literal": (SOURCE.replace('"pageFile"', 'R"(die Werte)"'), catalogue(ENTRIES), "text outside tr()"),
    "shown literal": (SOURCE.replace("setObjectName", "setToolTip"), catalogue(ENTRIES), "text outside tr()"),
}


def check(source, ts_text):
    """Exit status and report for a page with a catalogue."""
    with tempfile.TemporaryDirectory() as root:
        files = {"view/page.h": HEADER, "view/page.cpp": source, "resources/translations/ventaro-en.ts": ts_text}
        for path, text in files.items():
            file = Path(root) / path
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text, encoding="utf-8")
        result = subprocess.run(
            [sys.executable, SCRIPT, root, *LUPDATE], capture_output=True, text=True, check=False
        )
        return result.returncode, result.stdout + result.stderr


class CheckTranslations(unittest.TestCase):
    def test_sound_tree_passes(self):
        status, report = check(SOURCE, catalogue(ENTRIES))
        self.assertEqual(status, 0, report)

    def test_faults_are_found(self):
        for name, (source, ts_text, words) in FAULTS.items():
            with self.subTest(name):
                status, report = check(source, ts_text)
                self.assertEqual(status, 1, report)
                self.assertIn(words, report)


if __name__ == "__main__":
    unittest.main()
