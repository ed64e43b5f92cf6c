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
from app_folder import PROJECT, STEP_2, AppFolder, Failure, copying, require, saving


def killed(command, seconds, lines=()):
    """Runs the command and kills it after so many seconds; returns its whole lines and whether it was killed."""
    process = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    try:
        out, err = process.communicate("\n".join(lines).encode(), max(seconds, 0.001))
    except subprocess.TimeoutExpired:
        process.send_signal(signal.SIGKILL)
        out, err = process.communicate()
    require(process.returncode in (0, -signal.SIGKILL),
            f"{command} ended with {process.returncode}: {err.decode(errors='replace')}")
    lines = out.decode(errors="replace").split("\n")[:-1]  # a line that was cut off has told nothing
    return lines, process.returncode != 0


def seconds_of(work):
    start = time.monotonic()
    work()
    return time.monotonic() - start


class Run:
    """A killed run leaves the store, the settings and, after the next run, the very pages of an undisturbed one."""

    def __init__(self, app):
        self.app = app
        self.length = seconds_of(lambda: app.run(app.generating()))
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
    """Every word that was told is in the store, once; the next import adds the rest. Typed words are told one by one."""

    words = 60

    def __init__(self, app):
        self.app = app
        self.number = 0
        self.length = seconds_of(lambda: app.play(self.lines(typed=False)))

    def lines(self, typed):
        self.number += 1
        self.new = [f"imported word {self.number} {i + 1}" for i in range(self.words)]
        if typed:
            word = f"imported word {self.number} {{i}}"
            return [*STEP_2, f"repeat {self.words} enter Text1 = {word} then tell keyword {word}"]
        with open(self.app.file("words.exp"), "w", encoding="ascii") as out:
            out.writelines(f" {i + 1}.= {word}\n Subkeyword 1.= below {word}\n" for i, word in enumerate(self.new))
        return [*STEP_2, "click cmd_import & op_imp(0)", "mark File2 = words.exp", "click Command20"]

    def once(self, seconds):
        typed = random.random() < 0.5
        before = self.app.rows()["keyword"]
        lines = self.lines(typed)
        told, was_killed = killed(self.app.player(), seconds, lines)
        told = [line.removeprefix("keyword ") for line in told if line.startswith("keyword ")]
        rows = self.app.rows()
        require(rows["keyword"][: len(before)] == before, "an older keyword is lost")
        new = rows["keyword"][len(before):]
        require(new == self.new[: len(new)], f"stored {new}")
        require(not typed or len(told) <= len(new) <= len(told) + 1, f"told {told}, stored {new}")
        # A subkeyword follows its keyword, so that all but the last one have theirs.
        for word in [] if typed else new[:-1]:
            require(f"{word}/below {word}" in rows["subkeyword"], f"the subkeyword of {word} is lost")
        self.number -= 1
        if not typed:
            self.app.play(self.lines(typed))
            require(self.app.rows()["keyword"][len(before):] == self.new, "the next import lacks words")
        self.number += 1
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
        self.length = seconds_of(lambda: app.play(saving(self.rounds)))
        self.sizes = {kind: len(app.read(name)) for kind, name in self.names.items()}

    def round_of(self, kind):
        text = self.app.read(self.names[kind])
        require(abs(len(text) - self.sizes[kind]) < 40, f"{self.names[kind]} has {len(text)} bytes")
        require(text.endswith(self.ends[kind]), f"{self.names[kind]} is cut off")
        at = text.index(b"round ") + len(b"round ")
        return int(text[at:at + 1])

    def once(self, seconds):
        lines, was_killed = killed(self.app.player(), seconds, saving(self.rounds))
        self.app.rows()
        told = dict(line.split() for line in lines if line[:4] in ("dat ", "exp ", "fnm "))
        for kind in self.names:
            found = self.round_of(kind)
            if told:  # nothing told: the file is that of the time before, in its last round, or the first new one
                require(kind not in told or found in (int(told[kind]), int(told[kind]) + 1),
                        f"{kind}: round {found}, told {told}")
            require(1 <= found <= self.rounds, f"{kind}: round {found}")
        self.app.play(saving(self.rounds))
        for kind in self.names:
            require(self.round_of(kind) == self.rounds, f"{kind} was not saved again")
        return was_killed


class Copy:
    """A copy that was told is complete; the others, and the project itself, are as they were."""

    rounds = 3

    def __init__(self, app):
        self.app = app
        self.length = seconds_of(lambda: app.play(copying(self.rounds)))
        self.whole = self.projects()[PROJECT]
        self.app.deliver_hive()

    def projects(self):
        return dict(line.split(",", 1) for line in self.app.rows()["project"])

    def once(self, seconds):
        lines, was_killed = killed(self.app.player(), seconds, copying(self.rounds))
        told = [line.removeprefix("copy ") for line in lines if line.startswith("copy ")]
        found = self.projects()
        for name in [PROJECT, *told]:
            require(found.get(name) == self.whole, f"{name}: {found.get(name)}, whole is {self.whole}")
        require(len(found) <= len(told) + 2, f"told {told}, found {list(found)}")
        self.app.deliver_hive()
        self.app.play(copying(self.rounds))
        require(list(self.projects().values()) == [self.whole] * (self.rounds + 1), "the next copies are not whole")
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
