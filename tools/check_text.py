#!/usr/bin/env python3
"""check_text.py: what no tracked text file may contain.

- paths into somebody's home or work folder: the tree must work wherever it stands;
- addresses of web hosts other than the few below: nothing is fetched, and links rot;
- the marks of a merge that was not finished;
- tabs (but in .tsv files), blanks at the end of a line, carriage returns, a last line without its end.
"""
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
HOSTS = {"www.w3.org"}
HOME = re.compile(r"(?<![\w.$}/])/(?:home|root|work|Users|mnt)/[\w.-]+")
URL = re.compile(r"\b(?:https?|ftp)://([\w.-]+)")
MARK = re.compile(r"(?:<{7}|>{7}) ")
PICTURES = {".png", ".jpg", ".ico"}


def complaints(text):
    for number, line in enumerate(text.split("\n"), 1):
        for match in HOME.finditer(line):
            yield number, f"a path of one machine: {match.group()}"
        for match in URL.finditer(line):
            if match.group(1) not in HOSTS:
                yield number, f"the address of a host: {match.group(1)}"
        if MARK.match(line):
            yield number, "the mark of a merge"
        if line != line.rstrip():
            yield number, "blanks at the end of the line"
        if "\t" in line:
            yield number, "a tab"
    if text and not text.endswith("\n"):
        yield text.count("\n") + 1, "the last line does not end"


def main():
    listed = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, check=True, capture_output=True, text=True).stdout
    paths = [p for p in map(pathlib.Path, filter(None, listed.split("\0"))) if p.suffix not in PICTURES]
    count = 0
    for path in paths:
        if not (ROOT / path).is_file():
            continue
        try:
            text = (ROOT / path).read_bytes().decode("utf-8")
        except UnicodeDecodeError:
            print(f"{path}: not UTF-8", file=sys.stderr)
            count += 1
            continue
        for number, what in complaints(text):
            if what == "a tab" and path.suffix == ".tsv":
                continue
            print(f"{path}:{number}: {what}", file=sys.stderr)
            count += 1
    print(f"{len(paths)} files, {count} errors")
    return 1 if count or not paths else 0


sys.exit(main())
