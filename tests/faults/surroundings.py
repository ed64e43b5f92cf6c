#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Lets the program meet a full disk, folders and files that it may not touch, a locked store and files held open.

Each time it tells what is wrong and leaves stores, settings and lists sound; when the obstacle is gone, a run writes
the pages of an undisturbed one. Parts that need the rights of root say so and are skipped without them.
"""

import os
import shutil
import subprocess
import tempfile
import time

import app_folder
from app_folder import PROJECT, STEP_2, AppFolder, copying, require, saving

NOBODY = 65534
AS_NOBODY = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]


def is_root():
    return os.geteuid() == 0


def why_not_nobody(options):
    """Why the program cannot be run as a user without rights; None when it can."""
    if not is_root():
        return "needs root to give files to another user"
    if shutil.which("setpriv") is None:
        return "needs setpriv"
    done = subprocess.run([*AS_NOBODY, options.cli, "--help"], capture_output=True, check=False)
    return None if done.returncode == 0 else "another user cannot reach the program"


def give_away(path, owner=NOBODY):
    os.chmod(os.path.dirname(path), 0o755)
    for folder, _, names in os.walk(path):
        for entry in [folder, *(os.path.join(folder, name) for name in names)]:
            os.chown(entry, owner, owner)


def modes(path, folder_mode, file_mode):
    for folder, _, names in os.walk(path, topdown=False):
        for name in names:
            os.chmod(os.path.join(folder, name), file_mode)
        os.chmod(folder, folder_mode)


def fingerprint(path):
    found = {}
    for folder, _, names in os.walk(path):
        found[folder] = b""
        for name in names:
            if not name.endswith("-shm"):  # the store's index of its log, made anew by every reader
                with open(os.path.join(folder, name), "rb") as stream:
                    found[os.path.join(folder, name)] = stream.read()
    return found


class Undisturbed:
    """What a run without obstacles writes."""

    def __init__(self, app):
        app.run(app.generating())
        self.pages = app.pages()
        self.rows = app.rows()

    def check_again(self, app, prefix=()):
        app.run(app.generating(), prefix=prefix)
        require(app.rows() == self.rows, "rows have changed")
        require(app.pages() == self.pages, "the run after the obstacle writes other pages")


def full_disk(options):
    if not is_root():
        return "needs root to mount a small disk"
    mount = tempfile.mkdtemp(prefix="tarnwick-small-")
    done = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=16m", "tmpfs", mount], capture_output=True)
    if done.returncode != 0:
        os.rmdir(mount)
        return f"a small disk cannot be mounted: {done.stderr.decode().strip()}"
    try:
        app = AppFolder(options, parent=mount)
        whole = Undisturbed(app)
        app.play(saving(1))
        kept = {name: app.read(name) for name in (PROJECT + ".dat", "kept.exp", "kept.fnm")}
        filler = os.path.join(mount, "filler")
        with open(app.file("words.txt"), "w", encoding="ascii") as out:
            out.writelines(f"word on a full disk {i}\n" for i in range(400))
        for free in (0, 4, 8, 12, 16, 24, 40, 80):  # KB
            shutil.rmtree(app.file("Projects"), ignore_errors=True)
            with open(filler, "wb") as out:
                space = os.statvfs(mount).f_bavail * os.statvfs(mount).f_frsize
                out.write(b"x" * max(0, space - free * 1024))
            text = app.run(app.generating(), expected=None)
            require("Run-time error '61'" in text, f"{free} KB left, no word of a full disk: {text}")
            text = app.play(saving(2), expected=None)
            for name, before in kept.items():
                # A list that is not saved is the old one; one that still had room is whole.
                now = app.read(name)
                require(now == before or abs(len(now) - len(before)) < 20,
                        f"{free} KB left: {name} has {len(now)} bytes, {len(before)} before\n{text}")
            before = whole.rows["keyword"]
            app.play([*STEP_2, "click op_imp(1)", "mark File2 = words.txt", "click Command20"], expected=None)
            os.remove(filler)
            words = app.rows()["keyword"]
            require(words == (before + [f"word on a full disk {i}" for i in range(400)])[: len(words)], f"{free} KB left")
            app.deliver_hive()
            for name, old in kept.items():
                with open(app.file(name), "wb") as out:
                    out.write(old)
            for name in os.listdir(app.path):
                if name.endswith("aux"):
                    os.remove(app.file(name))
            os.remove(app.file(PROJECT + ".dat"))
            whole.check_again(app)
            app.play(saving(1))
    finally:
        subprocess.run(["umount", mount], check=True)
        os.rmdir(mount)
    return None


def read_only_folder(options):
    prefix = []
    if is_root():
        prefix = AS_NOBODY
        if why := why_not_nobody(options):
            return why
    with AppFolder(options) as app:
        whole = Undisturbed(app)
        os.chmod(app.base, 0o755)
        modes(app.path, 0o555, 0o444)
        before = fingerprint(app.path)
        text = app.run([options.cli, "--app", app.path, "list"], prefix=prefix)
        require(PROJECT in text, f"the projects are not listed: {text}")
        text = app.run(app.generating(), expected=1, prefix=prefix)
        require("Run-time error '70'" in text, f"no word of the missing permission: {text}")
        text = app.play(copying(1), expected=None, prefix=prefix)
        require("Run-time error '70'" in text, f"no word of the missing permission: {text}")
        require(fingerprint(app.path) == before, "something in the folder has changed")
        modes(app.path, 0o755, 0o644)
        whole.check_again(app)
        # Only the output may not be erased: the run stops before a page is written.
        if is_root():
            give_away(app.path)
            os.chown(app.file("Projects", PROJECT), 0, 0)
            before = app.pages()
            text = app.run(app.generating(), expected=1, prefix=prefix)
            require("Run-time error '70'" in text and "create or delete the directory" in text, text)
            require(set(app.pages()) <= set(before), "pages were written")
            give_away(app.path)
            whole.check_again(app, prefix)
    return None


def unreadable_picture(options):
    if why := why_not_nobody(options):
        return why
    with AppFolder(options) as app:
        whole = Undisturbed(app)
        give_away(app.path)
        for name in os.listdir(app.file("Images")):
            if os.path.isfile(app.file("Images", name)):
                os.chmod(app.file("Images", name), 0)
        text = app.run(app.generating(), expected=1, prefix=AS_NOBODY)
        require("Run-time error '70'" in text and "Page: " in text, text)
        give_away(app.path)
        modes(app.path, 0o755, 0o644)
        whole.check_again(app, AS_NOBODY)
    return None


def locked_store(options):
    with AppFolder(options) as app:
        whole = Undisturbed(app)
        locker = subprocess.Popen(app.player(), stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        try:
            locker.stdin.write(b"lock\n")
            locker.stdin.flush()
            require(locker.stdout.readline() == b"locked\n", "the store could not be locked")
            start = time.monotonic()
            text = app.run(app.generating(), expected=1)
            waited = time.monotonic() - start
            require("Run-time error '3260'" in text, text)
            require(5 <= waited < 60, f"waited {waited:.1f} s")
        finally:
            locker.communicate()
        whole.check_again(app)
    return None


def files_held_open(options):
    """Also a folder that stands where the settings should be saved."""
    held = []
    with AppFolder(options) as app:
        whole = Undisturbed(app)
        for name in whole.pages:
            held.append(open(app.file("Projects", PROJECT, name), "rb"))
        held.append(open(app.file(PROJECT + ".dat"), "rb"))
        whole.check_again(app)
        os.remove(app.file(PROJECT + ".dat"))
        os.mkdir(app.file(PROJECT + ".dat"))
        text = app.run(app.generating())
        require("File wasn't saved." in text, text)
        require(app.pages() == whole.pages, "other pages")
        require(os.listdir(app.file(PROJECT + ".dat")) == [], "the folder has changed")
        for stream in held:
            stream.close()
    return None


def main():
    options = app_folder.arguments(__doc__).parse_args()
    for case in (full_disk, read_only_folder, unreadable_picture, locked_store, files_held_open):
        skipped = case(options)
        print(f"{case.__name__}: {'SKIPPED: ' + skipped if skipped else 'ok'}", flush=True)
    return 0


if __name__ == "__main__":
    app_folder.main(main)
