#!/usr/bin/env python3
"""Checks that every file includes only what its layer may use.

Layers and their files are read from the ventaro_layer() calls in the CMakeLists.txt files; what a layer may include is
the table below. In some layers every folder is a feature, and features do not include each other. Reports every
include, link or file that breaks a rule and exits with 1 if there is one.

    check_layers.py [ROOT]
"""

import re
import sys
from pathlib import Path

# Layer: (layers it may include, Qt modules whose headers it may include)
RULES = {
    "ventaro_theme": ([], ["Core", "Gui"]),
    "ventaro_types": ([], ["Core", "Gui"]),
    "ventaro_model": (["types"], ["Core", "Gui"]),
    "ventaro_protocol": (["types"], ["Core"]),
    "ventaro_device": (["protocol", "types"], ["Core", "Network"]),
    "ventaro_plotmath": (["types"], ["Core"]),
    "ventaro_kit": ([], ["Core", "Gui", "Widgets"]),
    "ventaro_plots": (["plotmath", "model", "types", "kit", "theme"], ["Core", "Gui", "Widgets"]),
    "ventaro_evaluation": (["plots", "plotmath", "model", "types", "kit", "theme"], ["Core", "Gui", "Widgets"]),
    "ventaro_view": (["evaluation", "plots", "plotmath", "model", "types", "kit", "theme"], ["Core", "Gui", "Widgets"]),
    "ventaro_recording": (["model", "device", "protocol", "types"], ["Core", "Network"]),
    "ventaro_controller": (
        [
            *("recording", "view", "evaluation", "plots", "plotmath", "model", "types", "kit", "theme", "device"),
            "protocol",
        ],
        ["Core", "Gui", "Widgets", "Network"],
    ),
    "ventaro_startup": (
        [
            *("controller", "recording", "view", "evaluation", "plots", "plotmath", "model", "types", "kit", "theme"),
            *("device", "protocol"),
        ],
        ["Core", "Gui", "Widgets", "Network"],
    ),
    "ventaro_simulator": (["protocol", "types"], ["Core", "Network"]),
}
# Single files that may include more layers than the rest of theirs.
EXCEPTIONS = {"view/box/updatedialog.cpp": ["device"]}
# Folders of features: (folders that every feature may include, folders that may include every feature)
FEATURES = {
    "view": ({"common"}, {"window"}),
    "plots/evaluation": ({"common"}, set()),
}
# Folders whose programs are not layers: they may include everything, but no layer may include them.
PROGRAM_FOLDERS = {"tests", "benchmarks", "tools"}
SOURCE_SUFFIXES = {".h", ".cpp"}
QT_FOLDER = Path("usr/include")

INCLUDE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|<([^>]+)>)', re.MULTILINE)
LAYER_CALL = re.compile(r"ventaro_layer\s*\(\s*(\w+)([^)]*)\)")
PROGRAM_CALL = re.compile(r"add_executable\s*\(\s*[\w-]+([^)]*)\)")
QT_MODULES = ["Core", "Gui", "Widgets", "Network", "Test"]


def sections(arguments):
    """The words behind SOURCES and LINK of a ventaro_layer() call."""
    result = {"SOURCES": [], "LINK": []}
    current = None
    for word in re.sub(r"#.*", "", arguments).split():
        if word in result:
            current = word
        elif current:
            result[current].append(word)
    return result


def cmake_lists(root):
    """The CMakeLists.txt files of the layers, which may lie in a folder of a folder."""
    for folder in root.iterdir():
        if folder.is_dir() and folder.name not in PROGRAM_FOLDERS | {"build"}:
            yield from folder.rglob("CMakeLists.txt")


def read_layers(root):
    """Maps each listed file to its layer, and each layer to the targets it links; also the files of programs."""
    layer_of, links, programs = {}, {}, set()
    for cmake in sorted(cmake_lists(root)):
        text = cmake.read_text(encoding="utf-8")
        folder = cmake.parent.relative_to(root).as_posix()
        for target, arguments in LAYER_CALL.findall(text):
            parts = sections(arguments)
            links[target] = parts["LINK"]
            for source in parts["SOURCES"]:
                layer_of[f"{folder}/{source}"] = target
        for arguments in PROGRAM_CALL.findall(text):
            programs.update(f"{folder}/{word}" for word in arguments.split() if Path(word).suffix in SOURCE_SUFFIXES)
    return layer_of, links, programs


def qt_headers():
    """Maps each Qt header to its module; empty where Qt is not installed in a known place."""
    headers = {}
    for base in Path("/").joinpath(QT_FOLDER).glob("**/qt5"):
        for module in QT_MODULES:
            for header in base.joinpath(f"Qt{module}").glob("*"):
                headers.setdefault(header.name, module)
    return headers


def allowed(layer, path):
    names = RULES[layer][0] + EXCEPTIONS.get(path, [])
    return {layer} | {f"ventaro_{name}" for name in names}


def feature_of(path):
    """The folder of features that a file is in, and its feature; None for any other file."""
    for root in FEATURES:
        if path.startswith(root + "/") and path.count("/") > root.count("/") + 1:
            return root, path[len(root) + 1:].split("/")[0]
    return None


def crosses_features(path, quoted):
    own, other = feature_of(path), feature_of(quoted)
    if not own or not other or own[0] != other[0] or own[1] == other[1]:
        return False
    free, may_include_all = FEATURES[own[0]]
    return other[1] not in free and own[1] not in may_include_all


def check_include(path, layer, quoted, system, layer_of, headers):
    """What is wrong with one include of a layer's file, or nothing."""
    if system in layer_of or system.split("/")[0] in PROGRAM_FOLDERS:
        quoted = system  # the project's own file, although in angle brackets
    if quoted:
        if quoted.split("/")[0] in PROGRAM_FOLDERS:
            return f"includes {quoted}, which belongs to no layer"
        if quoted.endswith(".moc"):
            return None
        target = layer_of.get(quoted)
        if target is None:
            return f"includes {quoted}, which no layer lists"
        if target not in allowed(layer, path):
            return f"({layer}) includes {quoted} ({target})"
        if crosses_features(path, quoted):
            return f"includes {quoted} of another feature"
        return None
    module = headers.get(system.split("/")[-1])
    if module and system.startswith(("Q", "q")) and module not in RULES[layer][1]:
        return f"({layer}) includes <{system}> of Qt {module}"
    return None


def check_files(root, layer_of, headers):
    for path, layer in sorted(layer_of.items()):
        if path.rpartition("/")[0] in FEATURES:
            yield f"{path}: belongs to no feature, so that it could join features"
        file = root / path
        if not file.is_file():
            yield f"{path}: listed by {layer}, but not there"
            continue
        for quoted, system in INCLUDE.findall(file.read_text(encoding="utf-8")):
            problem = check_include(path, layer, quoted, system, layer_of, headers)
            if problem:
                yield f"{path}: {problem}"


def check_links(links):
    for layer, targets in sorted(links.items()):
        if layer not in RULES:
            yield f"{layer}: a layer without a rule"
            continue
        may_link = allowed(layer, "") | {f"Qt5::{module}" for module in RULES[layer][1]}
        may_link |= {f"ventaro_{name}" for path, names in EXCEPTIONS.items() if path.startswith(layer[8:] + "/")
                     for name in names}
        may_link |= {"ventaro_resources"} if layer == "ventaro_startup" else set()
        for target in targets:
            if target.startswith(("ventaro_", "Qt5::")) and target not in may_link:
                yield f"{layer}: links {target}"


def check_unlisted(root, layer_of, programs):
    folders = {path.split("/")[0] for path in layer_of}
    for folder in sorted(folders):
        for file in sorted((root / folder).rglob("*")):
            path = file.relative_to(root).as_posix()
            if file.suffix in SOURCE_SUFFIXES and path not in layer_of and path not in programs:
                yield f"{path}: listed by no target"


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parent.parent).resolve()
    layer_of, links, programs = read_layers(root)
    if not layer_of:
        sys.exit(f"no ventaro_layer() call found below {root}")
    problems = [*check_links(links)]
    if not problems:
        problems += check_files(root, layer_of, qt_headers())
    problems += check_unlisted(root, layer_of, programs)
    for problem in problems:
        print(problem)
    if problems:
        sys.exit(f"layer check: {len(problems)} problem(s)")
    print(f"layer check: {len(layer_of)} files in {len(links)} layers")


if __name__ == "__main__":
    main()
