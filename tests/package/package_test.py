#!/usr/bin/env python3
"""package_test.py CASE BUILD COMPILER: one test of the installed library.

BUILD is a build folder of vexel; the case `install` installs it and moves the installed tree elsewhere, the others use
that moved tree. Everything is written below BUILD/package-test.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time

CASE, BUILD, COMPILER = sys.argv[1], pathlib.Path(sys.argv[2]), sys.argv[3]
ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
HERE = ROOT / "tests/package"
HELLO = ROOT / "examples/hello"
WORK = BUILD / "package-test"
PREFIX = WORK / "moved"
LIBRARIES = ["vexel", "vexel_memory", "vexel_testing", "vexel_qt"]

# What a user has: no path to this tree, and nothing preset for a library.
ENVIRONMENT = {k: v for k, v in os.environ.items() if k not in ("LD_LIBRARY_PATH", "CMAKE_PREFIX_PATH", "CXXFLAGS")}
ENVIRONMENT.update(CCACHE_BASEDIR=str(ROOT), CCACHE_NOHASHDIR="1")
ENVIRONMENT["QT_QPA_PLATFORM"] = "offscreen"


def run(*command, **more):
    command = [str(c) for c in command]
    print("+", *command, flush=True)
    environment = {**ENVIRONMENT, **more.pop("env", {})}
    return subprocess.run(command, check=True, env=environment, text=True, **more)


def output(*command, **more):
    return run(*command, stdout=subprocess.PIPE, **more).stdout


def expect(condition, what):
    if not condition:
        sys.exit(f"FAILED: {what}")


def fresh(name):
    folder = WORK / name
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    return folder


def library_folder():
    found = list(PREFIX.rglob("libvexel.so"))
    expect(len(found) == 1, f"one libvexel.so below {PREFIX}")
    return found[0].parent


def build(source, folder, *options):
    if shutil.which("ccache"):
        options += ("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache",)
    run("cmake", "-S", source, "-B", folder, "-G", "Ninja", f"-DCMAKE_CXX_COMPILER={COMPILER}", *options)
    # What the program needs, and no more.
    run("cmake", "--build", folder, "--target", "hello" if source == HERE / "subdirectory" else source.name)


def stays_alive(program):
    """A program with a window runs until it is closed: it must be there after two seconds, and end when told to."""
    print("+", program, "(for two seconds)", flush=True)
    process = subprocess.Popen([program], env=ENVIRONMENT)
    try:
        code = process.wait(timeout=2)
        sys.exit(f"FAILED: {program} ended by itself with {code}")
    except subprocess.TimeoutExpired:
        print("alive after two seconds")
    finally:
        process.terminate()
        process.wait(timeout=20)


def uses_moved_tree(program):
    for line in output("ldd", program).splitlines():
        if "libvexel" in line:
            expect(str(PREFIX) in line, f"{program} loads vexel from {PREFIX}: {line.strip()}")


def case_install():
    folder = fresh("installed-first")
    shutil.rmtree(PREFIX, ignore_errors=True)
    run("cmake", "--install", BUILD, "--prefix", folder, stdout=subprocess.DEVNULL)
    folder.rename(PREFIX)
    for path in PREFIX.rglob("*"):
        expect("detail" not in path.parts, f"{path} is private and must not be installed")
        if path.suffix in (".cmake", ".pc"):
            text = path.read_text()
            for other in (folder, ROOT, BUILD):
                expect(str(other) not in text, f"{path} names {other}")
    for name in LIBRARIES:
        dynamic = output("readelf", "-d", library_folder() / f"lib{name}.so")
        expect(re.search(rf"soname: \[lib{name}\.so\.\d+\.\d+\]", dynamic), f"lib{name}.so has a versioned soname")
        paths = re.findall(r"(?:runpath|rpath): \[(.*?)\]", dynamic)
        expect(paths in ([], ["$ORIGIN"]), f"lib{name}.so looks beside itself only: {paths}")


def case_find_package():
    examples = sorted(path.parent for path in (ROOT / "examples").glob("*/main.cpp"))
    expect(HELLO in examples, "the examples are found")
    for source in examples:
        folder = fresh(f"find_package_{source.name}")
        build(source, folder, f"-DCMAKE_PREFIX_PATH={PREFIX}")
        uses_moved_tree(folder / source.name)
        stays_alive(folder / source.name)


def case_pkg_config():
    folder = fresh("pkg_config")
    environment = {"PKG_CONFIG_PATH": str(library_folder() / "pkgconfig")}
    for name in LIBRARIES:
        run("pkg-config", "--exists", "--print-errors", name.replace("_", "-"), env=environment)
    flags = output("pkg-config", "--cflags", "--libs", "vexel-qt", env=environment).split()
    run(COMPILER, "-std=c++20", "-fPIC", HELLO / "main.cpp", "-o", folder / "hello", *flags,
        f"-Wl,-rpath,{library_folder()}")
    uses_moved_tree(folder / "hello")
    stays_alive(folder / "hello")


def case_subdirectory():
    folder = fresh("subdirectory")
    build(HERE / "subdirectory", folder, f"-DVEXEL_SOURCE={ROOT}", "-DCMAKE_CXX_FLAGS=-O0")
    for path in folder.rglob("*"):
        expect(not re.search(r"_tests$|vexel-gallery|_bench$", path.name), f"{path} is none of a user's business")
    stays_alive(folder / "hello")


def case_core_only():
    folder = fresh("core_only")
    build(HERE / "core_only", folder, f"-DCMAKE_PREFIX_PATH={PREFIX}", "-DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON")
    run(folder / "core_only")
    expect("Qt" not in output("ldd", folder / "core_only"), "a program without windows loads no Qt")


def case_missing_component():
    folder = fresh("missing_component")
    (folder / "CMakeLists.txt").write_text(
        "cmake_minimum_required(VERSION 3.25)\nproject(p LANGUAGES CXX)\n"
        "find_package(vexel COMPONENTS core nonsense)\nif(vexel_FOUND)\n  message(FATAL_ERROR \"found\")\nendif()\n"
        "find_package(vexel 0.1 REQUIRED COMPONENTS testing memory)\n"
        "if(NOT TARGET vexel::testing OR TARGET vexel::qt)\n  message(FATAL_ERROR \"targets\")\nendif()\n"
        "find_package(vexel 0.2 QUIET)\nif(vexel_FOUND)\n  message(FATAL_ERROR \"another version\")\nendif()\n")
    run("cmake", "-S", folder, "-B", folder / "b", "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={PREFIX}",
        f"-DCMAKE_CXX_COMPILER={COMPILER}")


def case_headers():
    """The installed headers need nothing that is not installed, and compile with the flags that pkg-config gives."""
    environment = {"PKG_CONFIG_PATH": str(library_folder() / "pkgconfig")}
    include = PREFIX / "include"
    headers = sorted(p.relative_to(include) for p in (include / "vexel").rglob("*.h"))
    expect(headers, "headers are installed")
    for package, chosen in (("vexel-qt", True), ("vexel-testing", False)):
        flags = output("pkg-config", "--cflags", package, env=environment).split()
        text = "".join(f"#include <{h}>\n" for h in headers if ("qt" in h.parts) == chosen)
        run(COMPILER, "-std=c++20", "-fPIC", "-fsyntax-only", "-x", "c++", "-", *flags, input=text)


def case_symbols():
    """What is exported carries the version, and a class that is exported brings its type information along."""
    for name in LIBRARIES:
        lines = output("nm", "-D", "--defined-only", "--with-symbol-versions",
                       library_folder() / f"lib{name}.so").splitlines()
        symbols = [line.split()[-1] for line in lines]
        bare = [s for s in symbols if "@@VEXEL_" not in s and not s.startswith("VEXEL_")]
        expect(not bare, f"lib{name}.so exports symbols without a version: {bare[:10]}")
        own = [s for s in symbols if re.search(r"5vexel|9vexelbase|6plinth|12antialiasing", s)]
        expect(own, f"lib{name}.so exports something")
        tables = {s[4:] for s in own if s.startswith("_ZTV")}
        types = {s[4:] for s in own if s.startswith("_ZTI")}
        expect(tables <= types, f"lib{name}.so exports type information with its tables: {sorted(tables - types)[:10]}")
        print(f"lib{name}.so: {len(symbols)} symbols, {len(own)} of the project's own, {len(tables)} tables")


cases = {k[5:]: v for k, v in globals().items() if k.startswith("case_")}
cases[CASE]()
