#!/usr/bin/env python3
"""Checks that the program can be used in English from end to end.

Reports every text of the sources that the translation lacks or leaves unfinished, every translation that no source has
any more, every translation whose place holders, mnemonics or file patterns differ from the source's, and every literal
that bypasses the translation: German ones, and what is handed straight to a widget. Exits with 1 if there is one.

    check_translations.py [ROOT] [--lupdate PROGRAM]
"""

import argparse
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

TRANSLATION = Path("resources/translations/ventaro-en.ts")
FOLDERS = ["app", "controller", "device", "kit", "model", "plots", "view"]  # as the target update_ts
LUPDATE_PLACES = ["lupdate", "lupdate-qt5", "/usr/lib/qt5/bin/lupdate"]

TRANSLATING_CALLS = {"tr", "translate", "QT_TR_NOOP", "QT_TRANSLATE_NOOP"}
GERMAN = re.compile(
    r"[äöüÄÖÜß]|\b(?:[Aa]bbrechen|[Aa]lle[nrs]?|Auswertung|[Bb]itte|[Dd]atei(?:en)?|[Dd]er|[Dd]ie|[Dd]as|[Ee]ine?[nrs]?"
    r"|Einstellung(?:en)?|Fehler|[Gg]esperrt|[Kk]eine?[nrs]?|Kalibrierung|Messung(?:en)?|Mittelwert|[Nn]icht|[Oo]der"
    r"|Ordner|Projekt(?:s|e)?|Raster|Schuss|Schwelle|Sensoren|[Ss]peichern|[Uu]nd|Verbindung|[Vv]on|Werte?|Werkzeug"
    r"|[Ww]ird|[Ww]erden|Zeit(?:en)?)\b"
)
# Calls whose literals the user reads, so that a text without a telltale word is found too.
SHOWING_CALLS = {
    *("QAction", "QLabel", "QMessageBox", "QPushButton", "addAction", "addItem", "addMenu", "addRow", "addTab", "ask"),
    *("inform", "setAccessibleDescription", "setAccessibleName", "setPlaceholderText", "setStatusTip", "setTabText"),
    *("setTabToolTip", "setText", "setTitle", "setToolTip", "setWhatsThis", "setWindowTitle", "showMessage"),
    *("showProgress", "showStatus", "warn"),
}
WORD = re.compile(r"[^\W\d_]{3}")
# Literals that are no texts of the program: file and literal.
ALLOWED = {("model/project/csvexport.cpp", "Projekt: "), ("plots/oscilloscope/mousemarker.cpp", "OOOOOOOOO")}

TOKEN = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(?P<mark>[^()\s]*)\((?P<raw>.*?)\)(?P=mark)"'
    r"|\"(?P<text>(?:[^\"\\\n]|\\.)*)\"|'(?:[^'\\\n]|\\.)'|(?P<name>[A-Za-z_]\w*)|(?P<other>[()])|(?P<gap>\s+)|.",
    re.DOTALL,
)


def messages(ts_file):
    """(context, source, comment) -> message element, of all messages that are not obsolete."""
    result = {}
    for context in ElementTree.parse(ts_file).getroot().iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment") or "")
            result[key] = message
    return result


def collect(root, lupdate):
    """The messages that the sources hold now."""
    with tempfile.TemporaryDirectory() as folder:
        ts_file = Path(folder) / "fresh.ts"
        present = [name for name in FOLDERS if (root / name).is_dir()]
        command = [lupdate, "-silent", "-I", ".", "-source-language", "de", "-target-language", "en", *present]
        run = subprocess.run([*command, "-ts", str(ts_file)], cwd=root, capture_output=True, text=True, check=False)
        if run.returncode != 0 or not ts_file.exists():
            sys.exit(f"{lupdate} failed: {run.stderr}")
        return messages(ts_file), run.stderr.splitlines()


def translations(message):
    """All forms of a message's translation; empty texts where something is missing."""
    element = message.find("translation")
    if element is None:
        return [""]
    forms = element.findall("numerusform")
    return [form.text or "" for form in forms] if forms else [element.text or ""]


def marks(text):
    """What a translation has to have in common with its source."""
    mnemonics = len(re.findall(r"&(?=[^&\s])", text.replace("&&", "")))
    return {
        "place holders": sorted(re.findall(r"%(?:n|L?\d+)", text)),
        "mnemonics": mnemonics,
        "file patterns": re.findall(r"\*\.\w+", text),
        "line breaks at the ends": (text.startswith("\n"), text.endswith("\n")),
        "blanks at the ends": (text.startswith(" "), text.endswith(" ")),
    }


def message_faults(key, message):
    context, source, _ = key
    kind = message.find("translation").get("type") if message.find("translation") is not None else "unfinished"
    if kind:
        yield f"{context}: {source!r} is {kind}"
        return
    for text in translations(message):
        if not text:
            yield f"{context}: {source!r} is untranslated"
        yield from (
            f"{context}: {text!r} differs from {source!r} in its {name}"
            for name, value in marks(source).items()
            if text and value != marks(text)[name]
        )


def catalogue_faults(root, lupdate):
    known = messages(root / TRANSLATION)
    fresh, complaints = collect(root, lupdate)
    yield from complaints
    for key in fresh.keys() - known.keys():
        yield f"{key[0]}: {key[1]!r} is not in {TRANSLATION} (build update_ts, then translate)"
    for key in known.keys() - fresh.keys():
        yield f"{key[0]}: {key[1]!r} is in no source any more (build update_ts)"
    for key, message in known.items():
        yield from message_faults(key, message)


def literals(source):
    """(line, the calls around it, text) of every string literal."""
    calls, name = [], ""
    for token in TOKEN.finditer(source):
        text = token["text"] if token["text"] is not None else token["raw"]
        if text is not None:
            yield source.count("\n", 0, token.start()) + 1, set(calls), text
        elif token["other"] == "(":
            calls.append(name)
        elif token["other"] == ")" and calls:
            calls.pop()
        if not token["gap"]:
            name = token["name"] or ""


def literal_faults(root):
    files = sorted(file for folder in FOLDERS for suffix in ("*.h", "*.cpp") for file in (root / folder).rglob(suffix))
    for file in files:
        path = file.relative_to(root).as_posix()
        for line, calls, text in literals(file.read_text(encoding="utf-8")):
            if calls & TRANSLATING_CALLS or (path, text) in ALLOWED:
                continue
            if GERMAN.search(text) or (calls & SHOWING_CALLS and "toString" not in calls and WORD.search(text)):
                yield f"{path}:{line}: text outside tr(): {text!r}"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("root", nargs="?", type=Path, default=Path(__file__).parents[1])
    parser.add_argument("--lupdate", default=next(filter(shutil.which, LUPDATE_PLACES), None))
    arguments = parser.parse_args()
    if not arguments.lupdate:
        sys.exit("lupdate is not installed")
    faults = [*catalogue_faults(arguments.root, arguments.lupdate), *literal_faults(arguments.root)]
    for fault in sorted(faults):
        print(fault)
    print(f"{len(faults)} faults" if faults else "all texts are translated")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
