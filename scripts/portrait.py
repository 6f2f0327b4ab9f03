#!/usr/bin/env python3
"""Starts the program with a project on a virtual screen of its own, waits until its main window
shows the project, takes a picture and closes the program the way an author does.

Ends with 0 when all of that went well: the window came up, the picture is not blank, and the
program ended by itself with 0.
"""

import argparse
import os
import signal
import subprocess
import sys
import tempfile
import time

import framebuffer
import x11

SETTLING = 4  # seconds that a window gets to finish drawing


class Failure(Exception):
    pass


def start_screen(size, folder):
    """Starts Xvfb; returns the process and the number of its display."""
    readable, writable = os.pipe()
    screen = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writable), "-screen", "0", size + "x24", "-fbdir", folder,
         "-nolisten", "tcp", "-nocursor", "-noreset"],
        pass_fds=[writable], stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writable)
    with os.fdopen(readable) as pipe:
        number = pipe.readline().strip()
    if not number:
        raise Failure("Xvfb did not start")
    return screen, number


def wait_for_window(display, program, title, seconds):
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if program.poll() is not None:
            raise Failure(f"the program ended with {program.returncode} before its window came up")
        if any(name.startswith(title) for _, name in display.windows()):
            return
        time.sleep(0.25)
    seen = [name for _, name in display.windows() if name]
    raise Failure(f'no window "{title}..." within {seconds:g} s; windows on the screen: {seen}')


def settled_picture(screen_file):
    """The picture once two in a row are equal; an animation never rests, so not for ever."""
    before = framebuffer.read_screen(screen_file)
    deadline = time.monotonic() + SETTLING
    while True:
        time.sleep(0.75)
        now = framebuffer.read_screen(screen_file)
        if now.rows == before.rows or time.monotonic() > deadline:
            return now
        before = now


def close(display, program, seconds):
    """Closes the top window, again and again, until the program has ended."""
    deadline = time.monotonic() + seconds
    while program.poll() is None and time.monotonic() < deadline:
        try:
            named = [window for window, name in display.windows() if name]
            if named:
                display.ask_to_close(named[-1])
        except ConnectionError:
            pass
        try:
            program.wait(timeout=1)
        except subprocess.TimeoutExpired:
            continue
    if program.poll() is None:
        raise Failure(f"the program did not end within {seconds:g} s of being closed")
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
    screen, number = start_screen(options.screen, folder)
    try:
        environment = dict(os.environ, DISPLAY=":" + number, QT_QPA_PLATFORM="xcb")
        environment.pop("WAYLAND_DISPLAY", None)
        display = x11.Display(number)
        program = subprocess.Popen([options.program, options.project], env=environment,
                                   stdin=subprocess.DEVNULL)
        screen_file = os.path.join(folder, "Xvfb_screen0")
        try:
            try:
                wait_for_window(display, program, options.title, options.timeout)
            finally:
                # What stands on the screen is the best account of a failure, too.
                picture = settled_picture(screen_file)
                picture.save(options.picture)
            if picture.is_blank():
                raise Failure("the picture is blank")
            others = [name for _, name in display.windows()
                      if name and not name.startswith(options.title)]
            if others:
                print(f"    also on the screen: {others}")
            close(display, program, options.closing)
        finally:
            end(program)
            display.close()
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
