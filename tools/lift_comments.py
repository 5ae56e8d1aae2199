#!/usr/bin/env python3
"""lift_comments.py FILE...: a doc comment behind a declaration moves above it where it makes the line too long.

clang-format would break the declaration instead, which then reads badly.
"""
import pathlib
import re
import sys

LIMIT = 120
BEHIND = re.compile(r"^(\s*)(\S.*?;|\S.*?\}|\S.*?,|\S.*?\w)\s*///<\s?(.*)$")


def lift(text):
    lines = []
    for line in text.split("\n"):
        match = BEHIND.match(line) if len(line) > LIMIT else None
        if match:
            indent, code, comment = match.groups()
            words, row = comment.split(" "), indent + "///"
            for word in words:
                if len(row) + 1 + len(word) > LIMIT:
                    lines.append(row)
                    row = indent + "///"
                row += " " + word
            lines += [row, indent + code]
        else:
            lines.append(line)
    return "\n".join(lines)


for name in sys.argv[1:]:
    path = pathlib.Path(name)
    before = path.read_text()
    after = lift(before)
    if after != before:
        path.write_text(after)
