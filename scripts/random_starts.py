#!/usr/bin/env python3
"""Starts the program again and again on a virtual screen, each time in a new home, and ends it at a
random moment of its life: by SIGTERM, by closing its window, or by a kill. The machine is kept busy
meanwhile.

Ends with 0 when all went well: whoever was asked to end did so with 0 within the time, nothing but
the program's own windows was seen, nothing crashed, and a project of which the start was killed
opens the next time. What went wrong is told with the number of the round; the same seed plays the
same moments again.
"""

import argparse
import collections
import ctypes
import os
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time

import portrait

WAYS = ("signal", "close", "kill")
KILLED = -signal.SIGKILL
# What stands in the way of nobody: the program without and with a project, its splash, its tips.
OWN_WINDOWS = ("Quorvel", "Tip of the Day")


class ClientMessage(ctypes.Structure):
    """An event of the X library, padded to the room that any event may take."""
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message", ctypes.c_ulong), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5), ("padding", ctypes.c_long * 24)]


def ask_to_close(display_name, window):
    """What a window manager sends when the author clicks on the cross in a window's frame."""
    x = ctypes.CDLL("libX11.so.6")
    x.XOpenDisplay.restype = ctypes.c_void_p
    x.XInternAtom.restype = ctypes.c_ulong
    x.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
    x.XSendEvent.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_long,
                             ctypes.POINTER(ClientMessage)]
    x.XCloseDisplay.argtypes = [ctypes.c_void_p]
    # A window that is gone already is no reason to end.
    handler = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda *_: 0)
    x.XSetErrorHandler(handler)
    display = x.XOpenDisplay(display_name.encode())
    if not display:
        raise portrait.Failure("the virtual screen does not answer")
    client_message = 33
    event = ClientMessage(type=client_message, window=window, format=32,
                          message=x.XInternAtom(display, b"WM_PROTOCOLS", 0))
    event.data[0] = x.XInternAtom(display, b"WM_DELETE_WINDOW", 0)
    x.XSendEvent(display, window, 0, 0, ctypes.byref(event))
    x.XCloseDisplay(display)  # sends what is waiting


class Load:
    """Processes that do nothing but work, as long as this lives."""

    def __init__(self, count):
        self.workers = [subprocess.Popen([sys.executable, "-c", "while True: pass"])
                        for _ in range(count)]

    def __enter__(self):
        return self

    def __exit__(self, *failure):
        for worker in self.workers:
            worker.kill()
            worker.wait()


def new_home(folder, sample):
    """An author who has never run the program, with a game; returns environment and project."""
    home = os.path.join(folder, "home")
    for name in ("config", "data", "cache", "run"):
        os.makedirs(os.path.join(home, name), mode=0o700)
    environment = dict(os.environ, HOME=home, TMPDIR=os.path.join(home, "run"),
                       QT_QPA_PLATFORM="xcb")
    environment.pop("WAYLAND_DISPLAY", None)
    for variable, name in (("XDG_CONFIG_HOME", "config"), ("XDG_DATA_HOME", "data"),
                           ("XDG_CACHE_HOME", "cache"), ("XDG_RUNTIME_DIR", "run")):
        environment[variable] = os.path.join(home, name)
    project = None
    if sample:
        game = os.path.join(home, "game")
        shutil.copytree(sample, game)
        project = next(os.path.join(game, name) for name in sorted(os.listdir(game))
                       if name.endswith(".qvl"))
    return environment, project


def windows_of(environment):
    """Numbers and names of the visible windows that have a name."""
    found = portrait.ask(["xdotool", "search", "--onlyvisible", "--maxdepth", "1", "--name", "."],
                         environment, may_fail=True).split()
    named = []
    for number in found:
        name = portrait.ask(["xdotool", "getwindowname", number], environment, may_fail=True)
        named.append((number, name.strip()))
    return [(number, name) for number, name in named if name]


def strangers(environment):
    """Windows that should not be there, such as a box."""
    return [name for _, name in windows_of(environment)
            if not any(name == own or name.startswith(own + " - ") for own in OWN_WINDOWS)]


def close_windows(environment):
    """Asks each window of the program to close; those that another one stands before do not."""
    for number, _ in reversed(windows_of(environment)):
        ask_to_close(environment["DISPLAY"], int(number))


def end(program, how, environment, seconds, seen):
    """Ends the program; returns the seconds that took. Puts windows that should not be there into
    `seen`."""
    begin = time.monotonic()
    if how == "kill":
        program.kill()
        program.wait()
    elif how == "signal":
        program.send_signal(signal.SIGTERM)
        program.wait(timeout=seconds)
    else:
        # The window may not be there yet, and there may be one before it.
        while program.poll() is None:
            if time.monotonic() - begin > seconds:
                raise subprocess.TimeoutExpired(how, seconds)
            seen.update(strangers(environment))
            close_windows(environment)
            time.sleep(0.1)
    return time.monotonic() - begin


def one_start(options, environment, project, moment, how):
    """One life of the program; returns what was wrong with it and the seconds that its end took."""
    command = [options.program] + ([project] if project else [])
    with tempfile.TemporaryFile() as errors:
        program = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=errors)
        wrong = []
        seen = set()
        took = 0.0
        try:
            try:
                program.wait(timeout=moment)
                wrong.append(f"ended by itself with {program.returncode}")
            except subprocess.TimeoutExpired:
                seen.update(strangers(environment))
                took = end(program, how, environment, options.closing, seen)
        except subprocess.TimeoutExpired:
            wrong.append(f"did not end within {options.closing:g} s; windows: "
                         f"{windows_of(environment)}")
            program.kill()
            program.wait()
        finally:
            portrait.end(program)
        if seen:
            wrong.append(f"windows: {sorted(seen)}")
        # A signal that comes before the program is able to hear it ends it all the same.
        expected = {KILLED} if how == "kill" else {0}
        if how == "signal" and moment < options.deaf:
            expected.add(-signal.SIGTERM)
        if not wrong and program.returncode not in expected:
            wrong.append(f"ended with {program.returncode}")
        errors.seek(0)
        lines = errors.read().decode("utf-8", "replace").strip()
        # Fonts and sounds of a machine without either are not the program's business here.
        told = [line for line in lines.splitlines() if line.startswith("quorvel: ")]
        if told:
            wrong.append(f"said: {told}")
    return wrong, took


def opens_again(options, environment, project):
    """What is wrong with a project after a kill: nothing when the program opens it."""
    program = subprocess.Popen([options.program, project], env=environment,
                               stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    try:
        portrait.wait_for_window(environment, program, "Quorvel - ", options.opening)
        portrait.close(program, options.closing)
        return []
    except portrait.Failure as failure:
        return [f"after the kill: {failure}"]
    finally:
        portrait.end(program)


def play(options):
    moments = random.Random(options.seed)
    figures = collections.Counter()
    ends = []
    failures = 0
    screen, number = portrait.start_screen("1280x800")
    try:
        with Load(options.load):
            for round_number in range(1, options.count + 1):
                moment = moments.uniform(0, options.latest)
                how = moments.choice(options.ways)
                with_project = options.sample is not None and moments.random() < 0.5
                with tempfile.TemporaryDirectory(prefix="quorvel-start-") as folder:
                    environment, project = new_home(folder,
                                                    options.sample if with_project else None)
                    environment["DISPLAY"] = ":" + number
                    wrong, took = one_start(options, environment, project, moment, how)
                    if how == "kill" and project and not wrong:
                        wrong = opens_again(options, environment, project)
                figures[how] += 1
                if how != "kill":
                    ends.append(took)
                if wrong:
                    failures += 1
                    print(f"round {round_number}: {how} after {moment:.2f} s, "
                          f"{'with' if with_project else 'without'} a project: {wrong}",
                          flush=True)
    finally:
        portrait.end(screen)
    ways = ", ".join(f"{figures[how]} by {how}" for how in options.ways)
    slowest = max(ends, default=0)
    print(f"{options.count} starts (seed {options.seed}): {ways}; {failures} failed; "
          f"the slowest end took {slowest:.2f} s, the middle one "
          f"{sorted(ends)[len(ends) // 2] if ends else 0:.2f} s")
    return failures


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--program", required=True)
    parser.add_argument("--sample", help="the folder of a game; half of the starts open a copy")
    parser.add_argument("--count", type=int, default=200)
    parser.add_argument("--seed", type=int, default=random.randrange(10 ** 6))
    parser.add_argument("--load", type=int, default=2, help="processes that keep the machine busy")
    parser.add_argument("--latest", type=float, default=9,
                        help="seconds of a life at most; the splash alone takes about six")
    parser.add_argument("--ways", nargs="+", choices=WAYS, default=WAYS, help="ways to end it")
    parser.add_argument("--closing", type=float, default=30, help="seconds that an end may take")
    parser.add_argument("--opening", type=float, default=60,
                        help="seconds that opening may take after a kill")
    parser.add_argument("--deaf", type=float, default=1.5,
                        help="seconds in which the program cannot hear a signal yet")
    options = parser.parse_args()
    try:
        return 1 if play(options) else 0
    except (portrait.Failure, OSError) as failure:
        print(f"error: {failure}", file=sys.stderr)
        return 1


if __name__ == "__main__":
    sys.exit(main())
