"""Prints how many lines of each floor the tests have reached, from gcovr's summary.

usage: coverage.py SUMMARY.json
"""

import json
import sys
from collections import defaultdict
from pathlib import PurePosixPath


def floor_of(name):
    """The folder that a source belongs to: src/store, or player."""
    parts = PurePosixPath(name).parts
    return "/".join(parts[:2]) if parts[0] == "src" and len(parts) > 2 else parts[0]


def lines_by_floor(summary):
    """Lines reached and lines there are, by floor."""
    floors = defaultdict(lambda: [0, 0])
    for file in summary["files"]:
        floor = floors[floor_of(file["filename"])]
        floor[0] += file["line_covered"]
        floor[1] += file["line_total"]
    return floors


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    with open(sys.argv[1], encoding="utf-8") as file:
        floors = lines_by_floor(json.load(file))
    if not floors:
        sys.exit("    The summary names no file.")
    floors["all"] = [sum(counts) for counts in zip(*floors.values())]
    for floor, (reached, total) in floors.items():
        print(f"    {floor:16} {reached:6} of {total:6} lines, {100 * reached / total:5.1f} %")


if __name__ == "__main__":
    main()
