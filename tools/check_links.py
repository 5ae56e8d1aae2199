#!/usr/bin/env python3
"""check_links.py: the links of the documents lead somewhere.

In every tracked *.md the target of [text](target) is a tracked file or a folder of them, from the document's own place on, and
what follows a # is a heading of that document, spelt as repository browsers do: in lower case, blanks as hyphens, and
other signs left out. The text of a link stands on one line, or doxygen doesn't know it. Whole addresses are not looked
at, nor is code.
"""
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
CODE = re.compile(r"^```.*?^```$|`[^`\n]*`", re.M | re.S)
LINK = re.compile(r"\[[^\]]*\]\(([^)\s]+)\)")
HEADING = re.compile(r"^#+ (.*)$", re.M)


def anchors(text):
    seen = {}
    for title in HEADING.findall(re.sub(r"^```.*?^```$", "", text, flags=re.M | re.S)):
        plain = re.sub(r"[^\w\- ]", "", title.strip().lower()).replace(" ", "-")
        number = seen[plain] = seen.get(plain, -1) + 1
        yield f"{plain}-{number}" if number else plain


def main():
    listed = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, check=True, capture_output=True, text=True).stdout
    files = {(ROOT / name).resolve() for name in listed.split("\0") if name}
    places = files | {folder for file in files for folder in file.parents}
    links = errors = 0
    for document in sorted(file for file in files if file.suffix == ".md" and file.is_file()):
        text = document.read_text()
        blanked = CODE.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), text)
        for found in LINK.finditer(blanked):
            target = found.group(1)
            if re.match(r"[a-z]+:", target):
                continue
            links += 1
            path, _, anchor = target.partition("#")
            aim = (document.parent / path).resolve() if path else document
            complaint = None
            if aim not in places or not aim.is_relative_to(ROOT):
                complaint = "no such file"
            elif anchor and (not aim.is_file() or anchor not in anchors(aim.read_text())):
                complaint = "no such heading"
            elif "\n" in found.group():
                complaint = "a link on two lines"
            if complaint:
                line = text.count("\n", 0, found.start()) + 1
                print(f"{document.relative_to(ROOT)}:{line}: {complaint}: {target}", file=sys.stderr)
                errors += 1
    print(f"{links} links, {errors} errors")
    return 1 if errors or not links else 0


sys.exit(main())
