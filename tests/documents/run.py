#!/usr/bin/env python3
"""Runs what README.md and docs/*.md ask their readers to do: every fenced block, in order, in one folder.

    ```sh                      runs and succeeds
    ```console                 each "$ command" prints exactly the lines below it
    ```cpp NAME.cpp            is the program ./NAME, built as README.md builds its host
    ```LANGUAGE FOLDER/FILE    is written there
    ```LANGUAGE not run: WHY   is skipped, and so is ```text
"""
import re
import shutil
import subprocess
import sys
from pathlib import Path

source, build, scratch, version, qt = (*map(Path, sys.argv[1:4]), *sys.argv[4:6])
fence = re.compile(r"^```(\w*) ?(.*)\n((?s:.*?))^```$", re.M)


def run(place, command, expected=None):
    done = subprocess.run(["bash", "-euo", "pipefail", "-c", command], cwd=scratch, text=True, timeout=240,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    printed = done.stdout.replace("This plugin does not support propagateSizeHints()\n", "")  # from the offscreen platform
    if printed != expected if expected is not None else done.returncode:
        sys.exit(f"{place}: {command}\nprinted:\n{printed}expected:\n{expected or 'success'}")


def blocks_of(document):
    text = document.read_text()
    if qt == "6":  # the names that docs/host-guide.md lists
        text = text.replace("find_package(tiv_echotable ", "find_package(tiv_echotable_qt6 ")
        text = text.replace("${tiv_echotable_VERSION", "${tiv_echotable_qt6_VERSION")
        text = text.replace("libtiv_echotable.so", "libtiv_echotable-qt6.so")
    prose = fence.sub("", text)
    for unfenced in re.findall(r"^\n {4}\S.*", prose, re.M):
        sys.exit(f"{document}: no fence around {unfenced.strip()}")
    for link in re.findall(r"\]\(([^)#:]+)\)", prose):
        if not (document.parent / link).exists():
            sys.exit(f"{document}: nothing at {link}")
    for block in fence.finditer(text):
        line = text.count("\n", 0, block.start()) + 1
        yield f"{document.relative_to(source)}:{line}", *block.groups()


def follow(blocks):
    for place, language, info, code in blocks:
        if language == "sh" and not info:
            run(place, code)
        elif language == "console" and not info:
            for command, output in re.findall(r"^\$ (.*)\n((?:(?!\$ ).*\n)*)", code, re.M):
                run(place, command, output)
        elif language != "text" and not info:
            sys.exit(f"{place}: a block ```{language} needs a file name, or `not run: WHY`")


readme = list(blocks_of(source / "README.md"))
guides = [block for document in sorted(source.glob("docs/*.md")) for block in blocks_of(document)]
files = {info: code for _, _, info, code in readme + guides if info and not info.startswith("not run: ")}
programs = [name[:-4] for name in files if re.fullmatch(r"\w+\.cpp", name)]
beginning, target = re.split("(?=^add_executable)", files["host/CMakeLists.txt"], 1, re.M)
files["CMakeLists.txt"] = beginning + "".join(target.replace("host", name) for name in programs)
# What was built before stays, and is built again only where a file has changed.
kept = {"build", *programs, *(name.split("/")[0] for name in files)}
scratch.mkdir(mode=0o700, exist_ok=True)
for entry in scratch.iterdir():
    if entry.name not in kept:
        shutil.rmtree(entry) if entry.is_dir() else entry.unlink()
(scratch / "build").mkdir(exist_ok=True)
if not (scratch / "build/release").is_symlink():
    (scratch / "build/release").symlink_to(build)
for name, code in files.items():
    (scratch / name).parent.mkdir(exist_ok=True)
    if not (scratch / name).exists() or (scratch / name).read_text() != code:
        (scratch / name).write_text(code)

follow(readme)
run("programs", "cmake -G Ninja -S . -B build/programs -D CMAKE_PREFIX_PATH=\"$PWD/build/installed\""
                " -D CMAKE_RUNTIME_OUTPUT_DIRECTORY=\"$PWD\" -D CMAKE_COMPILE_WARNING_AS_ERROR=ON"
                " && cmake --build build/programs")
follow(guides)
if f"\n## [{version}]" not in (source / "CHANGELOG.md").read_text():
    sys.exit(f"CHANGELOG.md: version {version} is missing")
