#!/usr/bin/env python3
"""check_snippets.py BUILD: compiles the code in the documents, so that it cannot rot.

In README.md, CONTRIBUTING.md and docs/**/*.md a block marked ```cpp compile``` is one of:
- a program or a piece of file scope, when a line of it starts with #include: it is compiled as it stands;
- statements, else: they are compiled in a function, after `using namespace vexel;`, with every public header at hand.
  What the text around takes for granted stands in a comment above the block, as the function's parameters:
      <!-- given: CVisualElement* parent, int width -->
A block after the line <!-- file: PATH --> is the text of that file, to the letter.

The flags are those that the folder BUILD has for examples/hello/main.cpp; nothing is linked.
"""
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

ROOT = pathlib.Path(__file__).resolve().parent.parent
BLOCK = re.compile(r"^((?:<!--[^\n]*-->\n+)*)```(\w*)([^\n]*)\n(.*?)^```$", re.M | re.S)
GIVEN = re.compile(r"<!-- given: (.*?) -->")
FILE = re.compile(r"<!-- file: (.*?) -->")


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
    return kept + ["-fsyntax-only", "-Wno-unused-variable", "-Wno-unused-but-set-variable", "-x", "c++", "-"]


def blocks():
    for document in [ROOT / "README.md", ROOT / "CONTRIBUTING.md", *sorted((ROOT / "docs").rglob("*.md"))]:
        if document.exists():
            text = document.read_text()
            for match in BLOCK.finditer(text):
                yield document.relative_to(ROOT), text.count("\n", 0, match.start(4)) + 1, *match.groups()


def main():
    build = pathlib.Path(sys.argv[1])
    command = compile_command(build)
    errors, files = [], []
    headers = sorted(p.relative_to(ROOT) for p in (ROOT / "vexel").rglob("*.h") if "detail" not in p.parts)
    statements = [f'#include "{header}"\n' for header in headers] + ["using namespace vexel;\n"]
    count = 0
    for document, line, before, language, marks, code in blocks():
        for path in FILE.findall(before):
            if (ROOT / path).read_text() != code:
                errors.append(f"{document}:{line}: differs from {path}")
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
        done = subprocess.run(command, input=text, capture_output=True, text=True, cwd=build)
        return done.stderr if done.returncode else None

    with ThreadPoolExecutor(os.cpu_count()) as pool:
        errors += filter(None, pool.map(check, files))
    for line in errors:
        print(line, file=sys.stderr)
    print(f"{count} snippets in {len(files)} compilations, {len(errors)} of them with errors")
    return 1 if errors or not count else 0


sys.exit(main())
