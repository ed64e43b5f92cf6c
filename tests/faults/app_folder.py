# SPDX-License-Identifier: MIT
"""An application folder for the fault scripts: made from the delivered files, looked into through fault_driver."""

import argparse
import os
import shutil
import subprocess
import sys
import tempfile

PROJECT = "garden-sample"
SEED = ["--seed", "7", "--now", "2026-11-24 10:18:05"]


def arguments(text):
    parser = argparse.ArgumentParser(description=text)
    parser.add_argument("--driver", required=True, help="the program fault_driver")
    parser.add_argument("--cli", required=True, help="the program tarnwick-cli")
    parser.add_argument("--data", required=True, help="folder of the delivered files")
    parser.add_argument("--stores", required=True, help="folder of the delivered stores")
    return parser


class Failure(Exception):
    pass


def require(condition, text):
    if not condition:
        raise Failure(text)


class AppFolder:
    kept = False  # for somebody to look into

    def __init__(self, options, parent=None):
        self.options = options
        self.base = tempfile.mkdtemp(prefix="tarnwick-fault-", dir=parent)
        self.path = os.path.join(self.base, "app")
        os.mkdir(self.path)
        for name in ("twk.dat", "TIPOFDAY.TXT", "help.htm"):
            shutil.copy(os.path.join(options.data, name), self.path)
        for name in ("Images", "swf"):
            shutil.copytree(os.path.join(options.data, name), self.file(name))
        shutil.copy(os.path.join(options.stores, "synonyms.mdb"), self.path)
        self.deliver_hive()
        self.synonyms = self.rows()["synonyms"]

    def deliver_hive(self):
        """Puts the delivered project store in the place of the one that is there."""
        for name in os.listdir(self.path):
            if name.startswith("hive.mdb"):
                os.remove(self.file(name))
        shutil.copy(os.path.join(self.options.stores, "hive.mdb"), self.path)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if not self.kept:
            shutil.rmtree(self.base, ignore_errors=True)

    def file(self, *names):
        return os.path.join(self.path, *names)

    def read(self, *names):
        with open(self.file(*names), "rb") as stream:
            return stream.read()

    def driver(self, *words):
        return [self.options.driver, self.path, *words]

    def generating(self):
        return [self.options.cli, "--app", self.path, "generate", PROJECT, *SEED]

    def run(self, command, expected=0, prefix=()):
        done = subprocess.run([*prefix, *command], capture_output=True, timeout=300)
        text = done.stdout.decode(errors="replace") + done.stderr.decode(errors="replace")
        require(expected is None or done.returncode == expected,
                f"{' '.join(command)} ended with {done.returncode}:\n{text}")
        return text

    def rows(self):
        """What the stores hold, by name; a fault when one of them does not open or is not sound."""
        rows = {}
        for line in self.run(self.driver("rows")).splitlines():
            name, _, value = line.partition(": ")
            rows.setdefault(name, []).append(value)
        for store in ("hive", "synonyms"):
            require(rows[f"{store} integrity"] == ["ok"], f"{store}: {rows[f'{store} integrity']}")
        require("broken page" not in rows, f"broken pages: {rows.get('broken page')}")
        require(rows.get("synonyms") == getattr(self, "synonyms", rows.get("synonyms")), "synonyms have gone")
        return rows

    def pages(self):
        """Every file of the project's folder by its path, with its bytes."""
        found = {}
        top = self.file("Projects", PROJECT)
        for folder, _, names in os.walk(top):
            for name in names:
                with open(os.path.join(folder, name), "rb") as stream:
                    found[os.path.relpath(os.path.join(folder, name), top)] = stream.read()
        return found


def main(work):
    try:
        sys.exit(work())
    except Failure as failure:
        print(f"FAILED: {failure}", file=sys.stderr)
        sys.exit(1)
