#!/usr/bin/env python3
"""check_snippets.py BUILD: compiles the code in the documents, so that it cannot rot, and runs the tests in it.

In README.md, CONTRIBUTING.md and docs/**/*.md a block marked ```cpp compile``` is one of:
- a program or a piece of file scope, when a line of it starts with #include: it is compiled as it stands;
- statements, else: they are compiled in a function, after `using namespace vexel;`, with every public header at hand.
  What the text around takes for granted stands in a comment above the block, as the function's parameters:
      <!-- given: CVisualElement* parent, int width -->
A block marked ```cpp test``` is a piece of a test program, at file scope. The pieces of a document stand in a namespace of
its own, in their order, after every public header, GoogleTest and gmock, with `using namespace` for vexel and vexel::test. Their
#include lines move to the top, those of files without a folder (the document's own) go. The program is linked with the
libraries in BUILD/lib, which must have been built, and all its tests must pass.
A block after the line <!-- file: PATH --> is the text of that file, to the letter.

The flags are those that the folder BUILD has for examples/hello/main.cpp.
"""
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

ROOT = pathlib.Path(__file__).resolve().parent.parent
BLOCK = re.compile(r"^((?:<!--[^\n]*-->\n+)*)```(\w*)([^\n]*)\n(.*?)^```$", re.M | re.S)
GIVEN = re.compile(r"<!-- given: (.*?) -->")
FILE = re.compile(r"<!-- file: (.*?) -->")
INCLUDE = re.compile(r"^#(?:include\b|pragma once)")
OWN_FILE = re.compile(r'#include "[^/"]+"|#pragma once')
LIBRARIES = ["-lvexel_testing", "-lvexel_memory", "-lvexel", "-lgmock_main", "-lgmock", "-lgtest", "-pthread"]


def compile_command(build):
    for entry in json.loads((build / "compile_commands.json").read_text()):
        if entry["file"].endswith("examples/hello/main.cpp"):
            words = shlex.split(entry["command"])
            break
    else:
        sys.exit(f"{build} knows no examples/hello/main.cpp")
    while "=" in words[0] or words[0] == "-E" or words[0].endswith(("cmake", "ccache")) or words[0] == "env":
        words.pop(0)
    kept, skip = [], False
    for word in words:
        if skip:
            skip = False
        elif word in ("-o", "-c", "-MT", "-MF"):
            skip = True
        elif word != "-MD":
            kept.append(word)
    return kept + ["-Wno-unused-variable", "-Wno-unused-but-set-variable"]


def blocks():
    for document in [ROOT / "README.md", ROOT / "CONTRIBUTING.md", *sorted((ROOT / "docs").rglob("*.md"))]:
        if document.exists():
            text = document.read_text()
            for match in BLOCK.finditer(text):
                yield document.relative_to(ROOT), text.count("\n", 0, match.start(4)) + 1, *match.groups()


class Tests:
    """The test program that is gathered from the documents."""

    def __init__(self, headers):
        self.includes = [f'#include "{header}"' for header in headers]
        self.pieces = []
        self.document = None

    def add(self, document, line, code):
        if document != self.document:
            self.close()
            self.document = document
            name = re.sub(r"\W", "_", str(document))
            self.pieces.append(f"namespace {name}\n{{\nusing namespace vexel;\nusing namespace vexel::test;\n")
        lines = code.splitlines()
        self.includes += [text for text in lines if INCLUDE.match(text) and not OWN_FILE.match(text)]
        rest = "\n".join("" if INCLUDE.match(text) else text for text in lines)
        self.pieces.append(f'#line {line} "{document}"\n{rest}\n')

    def close(self):
        if self.document:
            self.pieces.append("}\n")

    def run(self, command, build):
        """What is wrong, or None."""
        self.close()
        text = "\n".join([*self.includes, "#include <gmock/gmock.h>", "#include <gtest/gtest.h>", *self.pieces])
        with tempfile.TemporaryDirectory() as folder:
            program = f"{folder}/snippets"
            libraries = [f"-L{build.resolve()}/lib", f"-Wl,-rpath,{build.resolve()}/lib", *LIBRARIES]
            done = subprocess.run([*command, "-O0", "-g0", "-x", "c++", "-", "-x", "none", "-o", program, *libraries],
                                  input=text, capture_output=True, text=True, cwd=build)
            if done.returncode:
                return done.stderr
            done = subprocess.run([program, "--gtest_brief=1"], capture_output=True, text=True, timeout=300)
            return done.stdout + done.stderr if done.returncode else None


def main():
    build = pathlib.Path(sys.argv[1])
    command = compile_command(build)
    errors, files = [], []
    headers = sorted(p.relative_to(ROOT) for p in (ROOT / "vexel").rglob("*.h") if "detail" not in p.parts)
    tests = Tests(headers)
    statements = [f'#include "{header}"\n' for header in headers] + ["using namespace vexel;\n"]
    count = tested = 0
    for document, line, before, language, marks, code in blocks():
        for path in FILE.findall(before):
            if (ROOT / path).read_text() != code:
                errors.append(f"{document}:{line}: differs from {path}")
        if language == "cpp" and "test" in marks.split():
            tested += 1
            tests.add(document, line, code)
        if language != "cpp" or "compile" not in marks.split():
            continue
        count += 1
        place = f'#line {line} "{document}"\n'
        if re.search(r"^#include", code, re.M):
            files.append(place + code)
        else:
            given = ", ".join(GIVEN.findall(before))
            statements.append(f"[[maybe_unused]] static void Snippet{count}({given})\n{{\n{place}{code}}}\n")
    if len(statements) > len(headers) + 1:
        files.append("".join(statements))

    def check(text):
        done = subprocess.run([*command, "-fsyntax-only", "-x", "c++", "-"], input=text, capture_output=True, text=True,
                              cwd=build)
        return done.stderr if done.returncode else None

    with ThreadPoolExecutor(os.cpu_count()) as pool:
        program = pool.submit(tests.run, command, build) if tested else None
        errors += filter(None, pool.map(check, files))
        if program and program.result():
            errors.append(program.result())
    for line in errors:
        print(line, file=sys.stderr)
    print(f"{count} snippets in {len(files)} compilations, {tested} pieces of a test program, {len(errors)} errors")
    return 1 if errors or not count + tested else 0


sys.exit(main())
