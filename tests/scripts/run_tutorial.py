#!/usr/bin/env python3
"""Runs the commands of a tutorial and compares what they print.

    run_tutorial.py DOCUMENT FOLDER

Runs in FOLDER. A block of the document that begins with "$ " has commands, each with the lines that it prints. A block after a
line that ends with "as `NAME`:" is a file.
"""

import pathlib
import re
import subprocess
import sys


def blocks(text):
    """Returns the indented blocks, each with the line of text before it."""
    found = []
    before = ""
    for part in re.split(r"\n\n(?!    )|(?<=\S)\n\n(?=    )", text):
        if part.startswith("    "):
            found.append((before, [line[4:] for line in part.rstrip("\n").split("\n")]))
        else:
            before = part.rstrip("\n").split("\n")[-1]
    return found


def commands(lines):
    """Returns the commands of a block with the lines that they print."""
    found = []
    for line in lines:
        if line.startswith("$ "):
            found.append((line[2:], []))
        else:
            found[-1][1].append(line)
    return found


def run(command, expected, folder):
    """Runs a command. Returns whether it prints the expected lines."""
    done = subprocess.run(["bash", "-c", command], cwd=folder, text=True, capture_output=True, check=False)
    if done.stdout.splitlines() == expected and done.returncode == 0:
        return True
    print(f"{command}\nstatus {done.returncode}, {done.stderr}\nexpected:\n" + "\n".join(expected))
    print("printed:\n" + done.stdout)
    return False


def main():
    document, folder = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    folder.mkdir(parents=True, exist_ok=True)
    count = 0
    passed = True
    for before, lines in blocks(document.read_text(encoding="utf-8")):
        file = re.search(r"as `([^`]+)`:$", before)
        if lines[0].startswith("$ "):
            for command, expected in commands(lines):
                count += 1
                passed = run(command, expected, folder) and passed
        elif file:
            (folder / file.group(1)).write_text("\n".join(lines) + "\n", encoding="utf-8")
    if count == 0:
        print(f"{document} has no commands")
    return 0 if passed and count > 0 else 1


if __name__ == "__main__":
    sys.exit(main())
