#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Kills the program at random moments of a run, an import, a save and a copy, and looks at what is left.

After every kill both stores open and are sound, every row is there whose insertion had been told, every file that
stood before stands whole in its old or its new text, and the same work is then done to its end.
"""

import random
import signal
import subprocess
import time

import app_folder
from app_folder import PROJECT, AppFolder, Failure, require


def killed(command, seconds):
    """Runs the command and kills it after so many seconds; returns its whole lines and whether it was killed."""
    process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    try:
        out, err = process.communicate(timeout=max(seconds, 0.001))
    except subprocess.TimeoutExpired:
        process.send_signal(signal.SIGKILL)
        out, err = process.communicate()
    require(process.returncode in (0, -signal.SIGKILL),
            f"{command} ended with {process.returncode}: {err.decode(errors='replace')}")
    lines = out.decode(errors="replace").split("\n")[:-1]  # a line that was cut off has told nothing
    return lines, process.returncode != 0


def seconds_of(app, command):
    start = time.monotonic()
    app.run(command)
    return time.monotonic() - start


class Run:
    """A killed run leaves the store, the settings and, after the next run, the very pages of an undisturbed one."""

    def __init__(self, app):
        self.app = app
        self.length = seconds_of(app, app.generating())
        self.settings = app.read(PROJECT + ".dat")
        self.rows = app.rows()
        self.pages = app.pages()
        require(len(self.pages) > 20, "the sample project has few pages")

    def once(self, seconds):
        _, was_killed = killed(self.app.generating(), seconds)
        require(self.app.rows() == self.rows, "rows have changed")
        require(self.app.read(PROJECT + ".dat") == self.settings, "the settings file has changed")
        self.app.run(self.app.generating())
        require(self.app.pages() == self.pages, "the next run writes other pages")
        return was_killed


class Import:
    """Every word that was told is in the store, once; the next import adds the rest."""

    words = 60

    def __init__(self, app):
        self.app = app
        self.before = app.rows()["keyword"]
        self.number = 0
        self.length = seconds_of(app, self.command(self.write(".txt")))

    def write(self, ending):
        self.number += 1
        self.new = [f"imported word {self.number} {i}" for i in range(self.words)]
        path = self.app.file("words" + ending)
        with open(path, "w", encoding="ascii") as out:
            for i, word in enumerate(self.new):
                out.write(f" {i + 1}.= {word}\n" if ending == ".exp" else word + "\n")
                if ending == ".exp":
                    out.write(f" Subkeyword 1.= below {word}\n")
        return path

    def command(self, path):
        return self.app.driver("import", PROJECT, path)

    def once(self, seconds):
        ending = random.choice((".txt", ".exp"))
        before = self.app.rows()["keyword"]
        path = self.write(ending)
        lines, was_killed = killed(self.command(path), seconds)
        rows = self.app.rows()
        told = [line.removeprefix("keyword ") for line in lines if line.startswith("keyword ")]
        new = [word for word in rows["keyword"] if word not in before]
        require([word for word in before if word not in rows["keyword"]] == [], "an older keyword is lost")
        require(new[: len(told)] == told, f"told {told}, stored {new}")
        require(len(new) <= len(told) + 1, "more is stored than was told and one word")
        # A subkeyword follows its keyword, so that all but the last one have theirs.
        if ending == ".exp":
            for word in told[:-1]:
                require(f"{word}/below {word}" in rows["subkeyword"], f"the subkeyword of {word} is lost")
        self.app.run(self.command(path))
        require(sorted(set(self.app.rows()["keyword"]) - set(before)) == sorted(self.new), "the next import lacks words")
        if self.number % 10 == 0:
            self.app.deliver_hive()  # Step 2 loads all keywords, and takes its time with too many
        return was_killed


class Save:
    """Settings, exported keywords and page names stand whole under their names, in the round told last or later."""

    rounds = 6
    ends = {"dat": b"#\r\n", "exp": b"#\r\n", "fnm": b"even when you change the keywords.\r\n#\r\n"}
    names = {"dat": PROJECT + ".dat", "exp": "kept.exp", "fnm": "kept.fnm"}

    def __init__(self, app):
        self.app = app
        self.length = seconds_of(app, self.command())
        self.sizes = {kind: len(app.read(name)) for kind, name in self.names.items()}

    def command(self):
        return self.app.driver("save", PROJECT, str(self.rounds))

    def round_of(self, kind):
        text = self.app.read(self.names[kind])
        require(abs(len(text) - self.sizes[kind]) < 40, f"{self.names[kind]} has {len(text)} bytes")
        require(text.endswith(self.ends[kind]), f"{self.names[kind]} is cut off")
        at = text.index(b"round ") + len(b"round ")
        return int(text[at:at + 1])

    def once(self, seconds):
        lines, was_killed = killed(self.command(), seconds)
        self.app.rows()
        told = dict(line.split() for line in lines if line != "saved")
        for kind in self.names:
            found = self.round_of(kind)
            if told:  # nothing told: the file is that of the time before, in its last round, or the first new one
                require(kind not in told or found in (int(told[kind]), int(told[kind]) + 1),
                        f"{kind}: round {found}, told {told}")
            require(1 <= found <= self.rounds, f"{kind}: round {found}")
        self.app.run(self.command())
        for kind in self.names:
            require(self.round_of(kind) == self.rounds, f"{kind} was not saved again")
        return was_killed


class Copy:
    """A copy that was told is complete; the others, and the project itself, are as they were."""

    rounds = 3

    def __init__(self, app):
        self.app = app
        self.length = seconds_of(app, self.command())
        self.whole = self.projects()[PROJECT]
        self.app.deliver_hive()

    def command(self):
        return self.app.driver("copy", PROJECT, str(self.rounds))

    def projects(self):
        return dict(line.split(" ", 1) for line in self.app.rows()["project"])

    def once(self, seconds):
        lines, was_killed = killed(self.command(), seconds)
        told = [line.removeprefix("copy ") for line in lines if line.startswith("copy ")]
        found = self.projects()
        for name in [PROJECT, *told]:
            require(found.get(name) == self.whole, f"{name}: {found.get(name)}, whole is {self.whole}")
        require(len(found) <= len(told) + 2, f"told {told}, found {list(found)}")
        self.app.run(self.command())
        require(sum(row == self.whole for row in self.projects().values()) >= len(told) + self.rounds + 1,
                "the next copies are not whole")
        self.app.deliver_hive()
        return was_killed


def main():
    parser = app_folder.arguments(__doc__)
    parser.add_argument("--kills", type=int, default=200, help="kills of each kind (200)")
    parser.add_argument("--seed", type=int, help="of the moments")
    parser.add_argument("--only", choices=("run", "import", "save", "copy"))
    options = parser.parse_args()
    seed = options.seed if options.seed is not None else random.randrange(2**32)
    random.seed(seed)
    print(f"seed {seed}", flush=True)
    for kind in (Run, Import, Save, Copy):
        name = kind.__name__.lower()
        if options.only not in (None, name):
            continue
        with AppFolder(options) as app:
            work = kind(app)
            hits = number = 0
            # A run that ends before its moment is looked at like the others, but does not count.
            while hits < options.kills and number < options.kills * 4:
                number += 1
                moment = random.uniform(0, work.length)
                try:
                    hits += work.once(moment)
                except Failure as failure:
                    app.kept = True
                    raise Failure(f"{name} {number}, killed after {moment:.3f} s: {failure}\nleft in {app.base}")
            print(f"{name}: {number} rounds, {hits} killed before they ended", flush=True)
            require(hits > 0, f"{name}: no round was killed")
    return 0


if __name__ == "__main__":
    app_folder.main(main)
