"""Starts Orca with a log that is written line by line."""
import builtins
import runpy
import shutil
import sys

open_file = builtins.open


def open_lines(file, mode="r", *more, **named):
    if mode == "w" and not more:
        named.setdefault("buffering", 1)
    return open_file(file, mode, *more, **named)


builtins.open = open_lines
sys.argv[0] = shutil.which("orca")
runpy.run_path(sys.argv[0], run_name="__main__")
