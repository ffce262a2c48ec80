#!/usr/bin/env python3
"""Checks that classes, files and folders stay small and that no includes go in a circle.

Reports every class with too many methods, data members or .cpp files, or whose .cpp file is not beside its header, every
function, file or folder that is too long, and every circle of includes, and exits with 1 if there is one. Exceptions are
listed below with their reasons; one that is no longer needed is reported too. The sources are parsed by universal-ctags.

    check_classes.py [ROOT] [--table]

With --table the largest classes and folders are printed as well.
"""

import argparse
import json
import posixpath
import shutil
import subprocess
import sys
from collections import Counter, defaultdict
from dataclasses import dataclass, field
from pathlib import Path

# What a class, a function, a file and a folder may have at most.
METHODS = 40
MEMBERS = 25
IMPLEMENTATION_FILES = 1
FUNCTION_LINES = 40
FILE_LINES = 500
FACE_LINES = 350
FOLDER_FILES = 45

# Classes that only log and delegate, one call for each of the members that other parts of the system rely on.
FACES = {"Model", "View", "Controller", "OsziWidget", "TabOszilloscope"}
# (name of the class, function, file or folder, what it has too much of): reason
EXCEPTIONS = {
    ("Model", "methods"): "a face: other parts of the system rely on these names",
    ("View", "methods"): "a face: other parts of the system rely on these names",
    ("Controller", "methods"): "a face: other parts of the system rely on these names",
    ("OsziWidget", "methods"): "a face: other parts of the system rely on these names",
}

# A test class has one slot for each case; functions, files, folders and includes are looked at there too.
FOLDERS_WITHOUT_CLASS_LIMITS = {"tests", "benchmarks"}
SOURCE_SUFFIXES = {".h", ".cpp"}
CLASS_KINDS = {"class", "struct", "union"}
CTAGS = [
    *("ctags", "--options=NONE", "--languages=C++", "--langmap=C++:.h.cpp", "--sort=no", "--output-format=json"),
    *("--fields=+neKZapS", "--fields-C++=+{properties}", "--kinds-C++=+ph", "--extras=+r", "-D", "Q_OBJECT="),
    # Without these replacements ctags misses the first signal of a class.
    *("-D", "Q_PROPERTY(x)=", "-D", "signals=public", "-D", "Q_SIGNALS=public", "-D", "Q_SLOTS="),
    *("-L", "-", "-f", "-"),
]


@dataclass
class Class:
    """What belongs to one class, its private struct included."""

    path: str
    name: str
    methods: int = 0
    members: int = 0
    implementations: set = field(default_factory=set)


def source_files(root):
    """The project's sources, relative to the root, as texts with slashes."""
    for folder in sorted(root.iterdir()):
        if folder.is_dir() and folder.name != "build" and not folder.name.startswith("."):
            for file in sorted(folder.rglob("*")):
                if file.suffix in SOURCE_SUFFIXES and file.is_file():
                    yield file.relative_to(root).as_posix()


def read_tags(root, files):
    """All tags as ctags reports them: dictionaries with name, path, line, kind and more."""
    run = subprocess.run(CTAGS, input="\n".join(files), cwd=root, capture_output=True, text=True, check=False)
    if run.returncode != 0:
        sys.exit(f"ctags failed: {run.stderr}")
    return [json.loads(line) for line in run.stdout.splitlines()]


def qualified(tag):
    return "::".join(part for part in (tag.get("scope"), tag["name"]) if part)


def shown(name):
    """A qualified name without the names that ctags gives to what has none."""
    return "::".join(part for part in name.split("::") if not part.startswith("__anon"))


def has_class_limits(path):
    return path.split("/")[0] not in FOLDERS_WITHOUT_CLASS_LIMITS


def owners(tags):
    """Maps the qualified name of each class to that of the class that it counts for: mostly itself.

    A nested class that is defined outside of its class (struct X::Private), or is called Private, holds the state of
    its class under another name; so does a class XPrivate beside X.
    """
    definitions = {qualified(tag): tag for tag in tags if tag["kind"] in CLASS_KINDS}
    result = {}
    for name, tag in definitions.items():
        outer = definitions.get(tag.get("scope"))
        is_inside = outer and outer["path"] == tag["path"] and outer["line"] <= tag["line"] <= outer["end"]
        hides_state = outer and (not is_inside or tag["name"] == "Private")
        holder = name[:-len("Private")] if name.endswith("Private") else ""
        result[name] = tag["scope"] if hides_state else holder if holder in definitions else name
    return result


def owner_of(name, owner):
    while owner[name] != name:
        name = owner[name]
    return name


def read_classes(tags):
    tags = [tag for tag in tags if has_class_limits(tag["path"])]
    owner = owners(tags)
    classes = {}
    for tag in tags:
        if tag["kind"] in CLASS_KINDS and owner[qualified(tag)] == qualified(tag):
            classes[qualified(tag)] = Class(tag["path"], shown(qualified(tag)))
    for tag in tags:
        scope = tag.get("scope")
        if scope not in owner or tag["name"].startswith("__anon"):
            continue
        entry = classes[owner_of(scope, owner)]
        if tag["kind"] in ("prototype", "function") and "access" in tag:  # declared in the class's body
            entry.methods += 1
        elif tag["kind"] == "member" and "static" not in tag.get("properties", ""):
            entry.members += 1
        if tag["kind"] == "function" and tag["path"].endswith(".cpp"):
            entry.implementations.add(tag["path"])
    return classes


def class_faults(classes):
    """(name, what there is too much of, report)"""
    for entry in classes.values():
        place = f"{entry.path}: class {entry.name} has"
        if entry.methods > METHODS:
            yield entry.name, "methods", f"{place} {entry.methods} methods (at most {METHODS})"
        if entry.members > MEMBERS:
            yield entry.name, "members", f"{place} {entry.members} data members (at most {MEMBERS})"
        if len(entry.implementations) > IMPLEMENTATION_FILES:
            names = ", ".join(sorted(entry.implementations))
            yield entry.name, "files", f"{place} {len(entry.implementations)} .cpp files (at most 1): {names}"
        elif any(unit_of(path) != unit_of(entry.path) for path in entry.implementations):
            yield entry.name, "place", f"{place} its functions in {min(entry.implementations)}, not beside its header"


def function_faults(tags):
    for tag in tags:
        lines = tag.get("end", 0) - tag["line"] + 1
        if tag["kind"] == "function" and lines > FUNCTION_LINES:
            name = shown(qualified(tag)) or "a lambda"
            report = f"{tag['path']}: function {name} has {lines} lines (at most {FUNCTION_LINES})"
            yield name, "lines", report


def file_faults(root, files, classes):
    face_files = {entry.path for entry in classes.values() if entry.name in FACES}
    face_files |= {path for entry in classes.values() if entry.name in FACES for path in entry.implementations}
    for path in files:
        lines = len((root / path).read_bytes().splitlines())
        limit = FACE_LINES if path in face_files else FILE_LINES
        if lines > limit:
            yield path, "lines", f"{path}: file has {lines} lines (at most {limit}{' in a face' * (path in face_files)})"


def folder_sizes(files):
    return Counter(path.rpartition("/")[0] for path in files)


def folder_faults(files):
    for folder, count in sorted(folder_sizes(files).items()):
        if count > FOLDER_FILES:
            yield folder, "files", f"{folder}: folder holds {count} files (at most {FOLDER_FILES})"


def unit_of(path):
    """A header and the .cpp file beside it are one unit."""
    return path.rpartition(".")[0]


def read_includes(tags, files):
    """Maps each unit to the units that it includes."""
    known = set(files)
    result = defaultdict(set)
    for tag in tags:
        if tag["kind"] != "header":
            continue
        beside = posixpath.normpath(f"{tag['path'].rpartition('/')[0]}/{tag['name']}")
        target = next((path for path in (tag["name"], beside) if path in known), None)
        if target and unit_of(target) != unit_of(tag["path"]):
            result[unit_of(tag["path"])].add(unit_of(target))
    return result


def shortest_circle(start, includes):
    """The units on the shortest way from a unit back to itself, or nothing."""
    ways = [[start]]
    seen = set()
    for way in ways:
        for unit in sorted(includes.get(way[-1], ())):
            if unit == start:
                return way
            if unit not in seen:
                seen.add(unit)
                ways.append([*way, unit])
    return None


def include_faults(tags, files):
    includes = read_includes(tags, files)
    reported = set()
    for unit in sorted(includes):
        circle = shortest_circle(unit, includes)
        if circle and not reported & set(circle):
            reported |= set(circle)
            yield unit, "circle", f"{unit}: includes go in a circle: {' -> '.join([*circle, unit])}"


def apply_exceptions(faults, exceptions):
    """The reports that no exception covers, and one for each exception that covers nothing."""
    needed = {(name, what) for name, what, _ in faults}
    reports = [report for name, what, report in faults if (name, what) not in exceptions]
    reports += [f"{Path(__file__).name}: the exception for {name}'s {what} is no longer needed"
                for name, what in exceptions if (name, what) not in needed]
    return reports


def print_table(classes, files):
    print(f"{'methods':>8} {'members':>8} {'.cpp':>5}  class")
    for entry in sorted(classes.values(), key=lambda entry: (-entry.methods, entry.name))[:25]:
        print(f"{entry.methods:8} {entry.members:8} {len(entry.implementations):5}  {entry.name} ({entry.path})")
    print(f"{'files':>8}  folder")
    for folder, count in folder_sizes(files).most_common(25):
        print(f"{count:8}  {folder}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("root", nargs="?", type=Path, default=Path(__file__).parents[1])
    parser.add_argument("--table", action="store_true")
    arguments = parser.parse_args()
    if not shutil.which(CTAGS[0]):
        sys.exit("universal-ctags is not installed")
    files = list(source_files(arguments.root))
    if not files:
        sys.exit(f"no sources below {arguments.root}")
    tags = read_tags(arguments.root, files)
    classes = read_classes(tags)
    faults = [*class_faults(classes), *function_faults(tags), *file_faults(arguments.root, files, classes),
              *folder_faults(files), *include_faults(tags, files)]
    reports = apply_exceptions(faults, EXCEPTIONS)
    for report in sorted(reports):
        print(report)
    if arguments.table:
        print_table(classes, files)
    if reports:
        sys.exit(f"class check: {len(reports)} problem(s)")
    print(f"class check: {len(classes)} classes in {len(files)} files")


if __name__ == "__main__":
    main()
