"""Counts the lines of the tests and of all other code, benchmarks aside, in the tree that this file stands in.

    count_lines.py

Counted are the lines of C++ and Python files that git knows, but for blank lines, comments and directives of the
preprocessor: all whose first characters are // or # or *. Data of the tests and shell scripts are no such files.
"""
import pathlib
import re
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[1]


def main():
    listed = subprocess.run(["git", "-C", ROOT, "ls-files", "*.cpp", "*.h", "*.py"], capture_output=True, check=True,
                            text=True).stdout
    lines = {"tests": 0, "bench": 0, "others": 0}
    for path in filter(pathlib.Path.is_file, (ROOT / name for name in listed.splitlines())):
        folder = path.relative_to(ROOT).parts[0]
        lines[folder if folder in lines else "others"] += sum(
            not re.match(r"\s*(//|#|\*|$)", line) for line in path.read_text("utf-8").split("\n"))
    print(f"tests {lines['tests']}, other code {lines['others']}: {lines['tests'] / lines['others']:.1%}")


if __name__ == "__main__":
    main()
