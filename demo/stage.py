# SPDX-License-Identifier: MIT
"""A place to run the program in: folders and settings of its own, and a virtual screen when it needs one."""
import contextlib
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

FOLDERS = ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR")


def window_size(scale=1):
    """A screen as large as the program's window is at first, so that a picture shows the window and nothing around it."""
    return f"{round(1040 * float(scale))}x{round(680 * float(scale))}x24"


def wait_until(condition, seconds, step=0.1):
    """Waits until the condition holds; tells whether it did within the time."""
    end = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > end:
            return False
        time.sleep(step)
    return True


def unwind_on_signals():
    """A request to end this script unwinds like any other way out, so that nothing is left behind."""
    for number in (signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, lambda *_: sys.exit(1))


class Screen:
    """A virtual screen with a free number, for as long as the `with` block lasts; `display` is its name."""

    def __init__(self, size="1280x800x24"):
        self.size = size

    def __enter__(self):
        read_end, write_end = os.pipe()
        self.process = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", self.size, "-nolisten", "tcp", "-noreset"],
            pass_fds=[write_end], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            number = pipe.readline().strip()
        if not number:
            self.__exit__()
            raise RuntimeError("Xvfb did not start")
        self.display = f":{number}"
        return self

    def __exit__(self, *_):
        self.process.terminate()
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()

    def photograph(self, path, window="root"):
        """Saves what the screen shows, or a window of that id alone, as a picture."""
        subprocess.run(["import", "-display", self.display, "-window", window, str(path)], check=True)

    def xdotool(self, *words):
        """Hands this to the command xdotool, which presses keys and finds windows; the words that it answers."""
        done = subprocess.run(["xdotool", *map(str, words)], env={**os.environ, "DISPLAY": self.display},
                              capture_output=True, text=True, check=False)
        return done.stdout.split()

    def windows(self, title):
        """The ids of all windows with this title that can be seen."""
        if title.isascii():
            return self.xdotool("search", "--onlyvisible", "--name", f"^{title}$")
        # By other letters it finds none, although it knows the names.
        return [window for window in self.xdotool("search", "--onlyvisible", "--class", ".")
                if self.xdotool("getwindowname", window) == title.split()]

    def focus(self, title, seconds=30):
        """Waits for the window with this title and gives it the keyboard; its id, None when it did not come."""
        wait_until(lambda: self.windows(title), seconds)
        window = next(iter(self.windows(title)), None)
        if window:
            self.xdotool("windowfocus", "--sync", window)
        return window


class Stage:
    """A private home with the program's settings, removed in the end."""

    def __init__(self, program, display=None):
        self.program = pathlib.Path(program)
        self.display = display
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="versewell-"))
        self.running = []
        for variable in FOLDERS:
            (self.home / variable.lower()).mkdir(mode=0o700)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in self.running:
            if process.poll() is None:
                process.kill()
                process.wait()
        shutil.rmtree(self.home, ignore_errors=True)

    @property
    def settings_path(self):
        return self.home / "xdg_config_home" / "Quillmarsh" / "Versewell.conf"

    def write_settings(self, files=(), endpoints=None, **general):
        """Writes the settings file: `files` (paths, or urls as text) is the list that the program restores."""
        urls = [path if isinstance(path, str) else path.as_uri() for path in files]
        # The welcome page of a first start is none of the business here.
        values = {"openQuillmarshSite": "false", **general}
        if urls:
            values.update(saveFilesList="true", filesList=", ".join(f'"{url}"' for url in urls))
        lines = ["[General]", *(f"{name}={value}" for name, value in values.items())]
        lines += ["", "[endpoints]", *(f"{name}={url}" for name, url in (endpoints or {}).items())]
        self.settings_path.parent.mkdir(parents=True, exist_ok=True)
        self.settings_path.write_text("\n".join(lines) + "\n", encoding="ascii")

    def environment(self, **extra):
        """The variables that the program gets: ours, with folders of its own; QMLSCENE_DEVICE only from `extra`."""
        variables = {name: value for name, value in os.environ.items() if name != "QMLSCENE_DEVICE"}
        private = {variable: str(self.home / variable.lower()) for variable in FOLDERS}
        if self.display:
            for name in ("WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XAUTHORITY"):
                variables.pop(name, None)
            variables["DISPLAY"] = self.display
        else:
            # The way to the user's display leads through the user's own folders.
            variables.setdefault("XAUTHORITY", str(pathlib.Path.home() / ".Xauthority"))
            private["XDG_RUNTIME_DIR"] = variables.get("XDG_RUNTIME_DIR", private["XDG_RUNTIME_DIR"])
        variables.update(private, HOME=str(self.home))
        # The songs have names in several alphabets.
        locale = variables.get("LC_ALL") or variables.get("LC_CTYPE") or variables.get("LANG") or ""
        if not locale.lower().replace("-", "").endswith("utf8"):
            variables["LC_ALL"] = "C.UTF-8"
        return {**variables, **extra}

    def start(self, *prefix, log=None, **extra):
        """Starts the program, `prefix` in front of it; its messages go to the file `log`, or where ours go."""
        with open(log, "ab") if log else contextlib.nullcontext() as sink:
            process = subprocess.Popen([*prefix, str(self.program)], env=self.environment(**extra),
                                       stdin=subprocess.DEVNULL, stdout=sink, stderr=sink)
        self.running.append(process)
        return process


def end(process, seconds=60):
    """Asks a program to end in order; its exit status, None when it did not within the time."""
    process.send_signal(signal.SIGTERM)
    try:
        return process.wait(seconds)
    except subprocess.TimeoutExpired:
        return None
