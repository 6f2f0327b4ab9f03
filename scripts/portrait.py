#!/usr/bin/env python3
"""Starts the program with a project on a virtual screen of its own, waits until its main window
shows the project, takes a picture and asks the program to end.

Ends with 0 when all of that went well: the window came up, the picture is not blank, and the
program closed the project and ended with 0.
"""

import argparse
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

SETTLING = 4  # seconds that a window gets to finish drawing


class Failure(Exception):
    pass


def start_screen(size):
    """Starts Xvfb; returns the process and the number of its display."""
    readable, writable = os.pipe()
    screen = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writable), "-screen", "0", size + "x24", "-nolisten", "tcp",
         "-nocursor", "-noreset"],
        pass_fds=[writable], stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writable)
    with os.fdopen(readable) as pipe:
        number = pipe.readline().strip()
    if not number:
        raise Failure("Xvfb did not start")
    return screen, number


def ask(command, environment, may_fail=False):
    """What a tool writes; one that hangs or fails is a failure of the picture."""
    try:
        result = subprocess.run(command, env=environment, stdin=subprocess.DEVNULL,
                                capture_output=True, encoding="utf-8", errors="replace",
                                timeout=30, check=False)
    except subprocess.TimeoutExpired as late:
        raise Failure(f"{command[0]} did not end within {late.timeout:g} s") from late
    if result.returncode != 0 and not may_fail:
        raise Failure(f"{command[0]} ended with {result.returncode}: {result.stderr.strip()}")
    return result.stdout


def window_names(environment):
    """The names of the visible windows that have one."""
    # xdotool fails when there is no window, and when one goes while it is asked for its name.
    names = ask(["xdotool", "search", "--onlyvisible", "--maxdepth", "1", "--name", ".",
                 "getwindowname", "%@"], environment, may_fail=True)
    return [name for name in names.splitlines() if name]


def wait_for_window(environment, program, title, seconds):
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if program.poll() is not None:
            raise Failure(f"the program ended with {program.returncode} before its window came up")
        if any(name.startswith(title) for name in window_names(environment)):
            return
        time.sleep(0.25)
    seen = window_names(environment)
    raise Failure(f'no window "{title}..." within {seconds:g} s; windows on the screen: {seen}')


def take_picture(file, environment):
    """Writes what is on the screen; returns a text that equal pictures have in common."""
    ask(["import", "-window", "root", "png:" + file], environment)
    return ask(["identify", "-format", "%#", "png:" + file], environment)


def take_settled_picture(file, environment):
    """Takes pictures until two in a row are equal; an animation never rests, so not for ever."""
    before = take_picture(file, environment)
    deadline = time.monotonic() + SETTLING
    while True:
        time.sleep(0.75)
        now = take_picture(file, environment)
        if now == before or time.monotonic() > deadline:
            return
        before = now


def is_blank(file, environment):
    """True when there is next to nothing to see: few colours, or nearly all of one."""
    # A line for each colour, which begins with the number of its pixels.
    histogram = ask(["convert", "png:" + file, "-format", "%c", "histogram:info:-"], environment)
    counts = [int(line.split(":")[0]) for line in histogram.splitlines() if line.strip()]
    return len(counts) < 100 or max(counts) > 0.95 * sum(counts)


def resident_megabytes(program):
    """The most memory that the program has held so far, as the system counts it."""
    with open(f"/proc/{program.pid}/status", encoding="ascii", errors="replace") as status:
        for line in status:
            if line.startswith("VmHWM:"):
                return int(line.split()[1]) / 1024
    raise Failure("the system does not say how much memory the program holds")


def close(program, seconds):
    """Asks the program to end, which it does as if its window were closed."""
    program.send_signal(signal.SIGTERM)
    try:
        program.wait(timeout=seconds)
    except subprocess.TimeoutExpired as late:
        raise Failure(f"the program did not end within {seconds:g} s of being asked to") from late
    if program.returncode != 0:
        raise Failure(f"the program ended with {program.returncode}")


def end(process):
    """Ends a process that is still there; only the way out of a failure gets here with one."""
    if process.poll() is None:
        process.send_signal(signal.SIGTERM)
        try:
            process.wait(timeout=5)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


def take_portrait(options, folder):
    screen, number = start_screen(options.screen)
    try:
        environment = dict(os.environ, DISPLAY=":" + number, QT_QPA_PLATFORM="xcb")
        environment.pop("WAYLAND_DISPLAY", None)
        program = subprocess.Popen([options.program, options.project], env=environment,
                                   stdin=subprocess.DEVNULL)
        try:
            # ImageMagick reads more than a path into some names of files, so it gets a plain one.
            picture = os.path.join(folder, "picture.png")
            try:
                wait_for_window(environment, program, options.title, options.timeout)
            finally:
                # What stands on the screen is the best account of a failure, too.
                take_settled_picture(picture, environment)
                shutil.copyfile(picture, options.picture)
            if is_blank(picture, environment):
                raise Failure("the picture is blank")
            if options.memory:
                held = resident_megabytes(program)
                if held > options.memory:
                    raise Failure(f"the program holds {held:.1f} MB, the limit is "
                                  f"{options.memory:g} MB")
                print(f"    memory: {held:.1f} MB resident (limit {options.memory:g} MB)")
            others = [name for name in window_names(environment)
                      if not name.startswith(options.title)]
            if others:
                print(f"    also on the screen: {others}")
            close(program, options.closing)
        finally:
            end(program)
    finally:
        end(screen)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--program", required=True)
    parser.add_argument("--project", required=True)
    parser.add_argument("--screen", default="1280x800", help="width x height in pixels")
    parser.add_argument("--picture", required=True, help="the PNG file to write")
    parser.add_argument("--title", default="Quorvel - ", help="how the window's title begins")
    parser.add_argument("--timeout", type=float, default=40, help="seconds to wait for the window")
    parser.add_argument("--memory", type=float, help="MB that it may hold with the window open")
    parser.add_argument("--closing", type=float, default=15, help="seconds it may take to end")
    options = parser.parse_args()
    if os.path.exists(options.picture):
        os.remove(options.picture)  # a picture of an earlier start must not pass for this one's
    with tempfile.TemporaryDirectory(prefix="quorvel-screen-") as folder:
        try:
            take_portrait(options, folder)
        except (Failure, OSError, ValueError) as failure:
            print(f"error: {failure}", file=sys.stderr)
            if os.path.exists(options.picture):
                print(f"what the screen showed is in {options.picture}", file=sys.stderr)
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
