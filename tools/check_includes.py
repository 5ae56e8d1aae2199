#!/usr/bin/env python3
"""check_includes.py: do the folders include only what tools/include_table.txt opens to them?

Checks in vexel/ and in gallery/pages:
- "vexel/..." includes name a file that exists, in the own folder or in one that the table opens;
- headers in a detail/ folder are included by sources of the same folder only, since they are not installed;
- other quoted includes do not occur in vexel/: every include starts at the root;
- <...> includes are the standard library's, or open to the folder;
- a source includes its own header first; a header starts with #pragma once;
- headers do not include each other in a circle.
"""
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
TABLE = ROOT / "tools/include_table.txt"
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)
STANDARD = set("""
algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes climits
clocale cmath compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib
cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list fstream functional future
initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource mutex new
numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex
source_location span sstream stack stdexcept stop_token streambuf string string_view strstream syncstream system_error
thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector version
cxxabi.h emmintrin.h
""".split())  # the last two come with the compilers: names of types, and vector instructions for the painting of pixels

errors = []


def error(where, what):
    errors.append(f"{where}: {what}")


def read_table():
    folders, externals = {}, {}
    for number, line in enumerate(TABLE.read_text().splitlines(), 1):
        line = line.split("#")[0].strip()
        if not line or line == "----":
            continue
        if " < " in line:
            folder, names = line.split(" < ")
            externals[folder.strip()] = names.split()
            continue
        folder, names = line.split(":")
        for name in names.split():
            if name not in folders and not name.endswith(".h"):
                error(f"tools/include_table.txt:{number}", f"{folder} names {name}, which does not stand above it")
        folders[folder.strip()] = set(names.split())
    return folders, externals


def folder_of(path, folders):
    """The table's folder that a file belongs to, by its path from the root; None if it has none."""
    parent = path.parent
    if parent.name == "detail":
        parent = parent.parent
    name = str(parent.relative_to("vexel")) if parent.parts and parent.parts[0] == "vexel" else str(parent)
    return name if name in folders else None


def external_allowed(name, names):
    first = name.split("/")[0]
    return any(first == n or (n == "Qt" and re.match(r"Q[A-Za-z]", first)) for n in names)


def check_file(path, folders, externals, graph):
    text = (ROOT / path).read_text()
    folder = folder_of(path, folders)
    if folder is None:
        if str(path) != "vexel/export.h":
            error(path, "its folder is not in the table")
        return
    if path.suffix == ".h" and not re.match(r"(\s|//[^\n]*\n)*#pragma once", text):
        error(path, "does not start with #pragma once")
    includes = [(m.group(1), m.group(2), text.count("\n", 0, m.start()) + 1) for m in INCLUDE.finditer(text)]
    own = path.with_suffix(".h")
    if path.suffix == ".cpp" and (ROOT / own).exists() and (not includes or includes[0][1] != str(own)):
        error(path, f"does not include its own header {own} first")
    graph[str(path)] = set()
    for kind, name, line in includes:
        where = f"{path}:{line}"
        if kind == "<":
            if name not in STANDARD and not external_allowed(name, externals.get(folder, [])):
                error(where, f"<{name}> is not open to {folder}")
            continue
        # The gallery also shows what the examples are made of.
        if not name.startswith("vexel/") and not (path.parts[0] == "gallery" and name.startswith(("gallery/", "examples/"))):
            error(where, f'"{name}" does not start at the root')
            continue
        target = pathlib.Path(name)
        if not (ROOT / target).exists():
            error(where, f'"{name}" does not exist')
            continue
        graph[str(path)].add(name)
        if name == "vexel/export.h" or not name.startswith("vexel/"):
            continue
        other = folder_of(target, folders)
        if other != folder and not folders[folder] & {other, name.removeprefix("vexel/")}:
            error(where, f"{folder} may not include {other} ({name})")
        if target.parent.name == "detail":
            if other != folder:
                error(where, f"{name} belongs to {other} alone")
            elif path.suffix == ".h" and path.parent.name != "detail":
                error(where, f"{name} is not installed, but this header is")


def check_circles(graph):
    done, trail = set(), []

    def visit(name):
        if name in trail:
            error(name, "includes itself through " + " -> ".join(trail[trail.index(name) + 1:] + [name]))
            return
        if name in done:
            return
        trail.append(name)
        for other in sorted(graph.get(name, ())):
            visit(other)
        trail.pop()
        done.add(name)

    for name in sorted(graph):
        visit(name)


def main():
    folders, externals = read_table()
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", "vexel", "gallery/pages"], cwd=ROOT,
                            check=True, capture_output=True, text=True).stdout.split("\n")
    paths = [pathlib.Path(p) for p in listed if p.endswith((".h", ".cpp")) and (ROOT / p).exists()]
    graph = {}
    for path in paths:
        check_file(path, folders, externals, graph)
    check_circles(graph)
    for line in errors:
        print(line, file=sys.stderr)
    print(f"{len(paths)} files, {sum(map(len, graph.values()))} includes between them, {len(errors)} errors")
    return 1 if errors or not paths else 0


sys.exit(main())
