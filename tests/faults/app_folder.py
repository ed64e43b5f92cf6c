# SPDX-License-Identifier: MIT
"""An application folder for the fault scripts: made from the delivered files, played on by lines of scenarios."""

import argparse
import os
import shutil
import subprocess
import sys
import tempfile

PROJECT = "garden-sample"
# A project is told with its numbers of keywords, subkeywords, boxes, units in them, secondary directories and targets.
QUERIES = {
    "hive integrity": "PRAGMA integrity_check",
    "broken pages": "PRAGMA cipher_integrity_check",
    "synonyms integrity": "PRAGMA integrity_check -- from synonyms",
    "synonyms": "select count(*) from synonyms",
    "project": "select name, (select count(*) from keywords k where k.pid = p.pid), "
    "(select count(*) from elements e join keywords k on e.catid = k.keyid where k.pid = p.pid), "
    "(select count(*) || ' ' || coalesce(sum(length(content)), 0) from content c where c.pid = p.pid), "
    "(select count(*) from host h where h.pid = p.pid), (select count(*) from target t where t.pid = p.pid) from Projects p",
    "keyword": "select keyword from keywords where pid = 1",
    "subkeyword": "select k.keyword || '/' || element from elements join keywords k on catid = keyid where pid = 1",
}
STEP_2 = ["on Form1", f"choose combo1 = {PROJECT}", "click Command3", "click Form2!Command2", "on Form3"]
SEED = ["--seed", "7", "--now", "2026-11-24 10:18:05"]


def saving(rounds):
    """Saves settings, keywords and page names; each file bears the number of its round."""
    return [*STEP_2, f"repeat {rounds} put Form6!Text4 = round {{i}} then gives save = {{APP}}/{PROJECT}.dat then click "
            "Form6!Command4 then tell dat {i} then list List1 = round {i}|roses then gives save = {APP}/kept.exp then click Command4 "
            "then tell exp {i} then list Form17!List1 = round {i}|{200*page_#.htm|}x.htm then gives save = {APP}/kept.fnm then "
            "click Form17!Command4 then tell fnm {i}"]


def copying(rounds):
    return [f"repeat {rounds} again Form1 then choose combo1 = {PROJECT} then put Text1 = copy{{i}} then click Command6 then "
            "tell copy copy{i}"]


def arguments(text):
    parser = argparse.ArgumentParser(description=text)
    parser.add_argument("--player", required=True, help="the program test_scenarios")
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

    def player(self):
        return [self.options.player, "--play", self.path]

    def play(self, lines, expected=0, prefix=()):
        return self.run(self.player(), expected, prefix, lines)

    def generating(self):
        return [self.options.cli, "--app", self.path, "generate", PROJECT, *SEED]

    def run(self, command, expected=0, prefix=(), lines=()):
        done = subprocess.run([*prefix, *command], input="\n".join(lines).encode(), capture_output=True, timeout=300)
        text = done.stdout.decode(errors="replace") + done.stderr.decode(errors="replace")
        require(expected is None or done.returncode == expected,
                f"{' '.join(command)} ended with {done.returncode}:\n{text}")
        return text

    def rows(self):
        """What the stores hold, by name; a fault when one of them does not open or is not sound."""
        answers = self.play(f"show {query}" for query in QUERIES.values()).split("\n")
        rows = {name: answer.split("|") if answer else [] for name, answer in zip(QUERIES, answers)}
        for store in ("hive", "synonyms"):
            require(rows[f"{store} integrity"] == ["ok"], f"{store}: {rows[f'{store} integrity']}")
        require(rows["broken pages"] == [], f"broken pages: {rows['broken pages']}")
        require(rows["synonyms"] == getattr(self, "synonyms", rows["synonyms"]), "synonyms have gone")
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
