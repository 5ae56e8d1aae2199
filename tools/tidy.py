#!/usr/bin/env python3
"""tidy.py BUILD [FILE...]: runs clang-tidy on the sources of the libraries and of the gallery, or on those named.

BUILD is a build folder of clang. A file that was found clean is not looked at again until it, what it includes, the
checks or the tool change: such results are kept, by hash, in the cache folder of the user.
"""
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys
import time
from concurrent.futures import ThreadPoolExecutor

ROOT = pathlib.Path(__file__).resolve().parent.parent
CACHE = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "vexel-tidy"
FOLDERS = ("vexel", "gallery")


def key(entry, constant):
    """The hash of all that the result depends on."""
    words = shlex.split(entry["command"])
    while "=" in words[0] or words[0] in ("env", "-E") or words[0].endswith(("cmake", "ccache")):
        words.pop(0)
    kept, skip = [], False
    for word in words:
        if skip:
            skip = False
        elif word in ("-o", "-MT", "-MF"):
            skip = True
        elif word not in ("-c", "-MD"):
            kept.append(word)
    # With comments, for some of them silence a check; without line marks, for these have the paths of this clone.
    text = subprocess.run(kept + ["-E", "-C", "-P"], cwd=entry["directory"], capture_output=True)
    if text.returncode:
        return None
    return hashlib.sha256(constant + b"\0" + text.stdout).hexdigest()


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    named = {str(pathlib.Path(f).resolve()) for f in sys.argv[2:]}
    entries = json.loads((build / "compile_commands.json").read_text())
    places = tuple(f"{ROOT / f}/" for f in FOLDERS)
    entries = [e for e in entries if (e["file"] in named if named else e["file"].startswith(places))]
    version = subprocess.run(["clang-tidy", "--version"], check=True, capture_output=True).stdout
    constant = version + (ROOT / ".clang-tidy").read_bytes()
    CACHE.mkdir(parents=True, exist_ok=True)
    timings = []

    def check(entry):
        name = os.path.relpath(entry["file"], ROOT)
        known = key(entry, constant + name.encode())
        if known and (CACHE / known).exists():
            os.utime(CACHE / known)
            return None
        start = time.monotonic()
        done = subprocess.run(["clang-tidy", "-p", build, "--quiet", entry["file"]], cwd=ROOT, capture_output=True,
                              text=True)
        timings.append((time.monotonic() - start, name))
        if done.returncode or "warning:" in done.stdout:
            return done.stdout + done.stderr
        if known:
            (CACHE / known).touch()
        return None

    with ThreadPoolExecutor(os.cpu_count()) as pool:
        complaints = [c for c in pool.map(check, entries) if c]
    for text in complaints:
        print(text, file=sys.stderr)
    for old in CACHE.iterdir():
        if old.stat().st_mtime < time.time() - 30 * 86400:
            old.unlink()
    slowest = max(timings, default=(0, "none"))
    print(f"{len(entries)} files, {len(timings)} looked at, {len(complaints)} with complaints; "
          f"the slowest took {slowest[0]:.0f} s: {slowest[1]}")
    return 1 if complaints or not entries else 0


sys.exit(main())
