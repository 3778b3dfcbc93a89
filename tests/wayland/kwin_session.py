"""A headless KWin session for black-box tests: a copy of kwin_wayland --virtual, screenshots
through spectacle read as "locked" or not, keys through kwin_keys, the program and a witness
window as child processes. Standard library only; run inside a session bus of its own."""
import base64
import os
import shutil
import subprocess
import sys
import tempfile
import time

OUTPUT_WIDTH, OUTPUT_HEIGHT = 1280, 800
SOCKET = "tarvanel-kwin"


def skip(why):
    print("kwin_lock_e2e: skipped: " + why)
    sys.exit(77)


def need(program, what):
    if shutil.which(program) is None:
        skip(what + " is not installed")


class Image:
    """An RGB picture as read from a binary PPM."""

    def __init__(self, ppm):
        fields, pos = [], 0
        while len(fields) < 4:  # magic, width, height, maximum, with comments allowed
            while ppm[pos:pos + 1].isspace():
                pos += 1
            if ppm[pos:pos + 1] == b"#":
                pos = ppm.index(b"\n", pos)
                continue
            end = pos
            while not ppm[end:end + 1].isspace():
                end += 1
            fields.append(ppm[pos:end])
            pos = end
        if fields[0] != b"P6" or fields[3] != b"255":
            raise ValueError("not an 8-bit binary PPM")
        self.width, self.height = int(fields[1]), int(fields[2])
        self.data = ppm[pos + 1:pos + 1 + self.width * self.height * 3]
        self.ppm = ppm

    def pixel(self, x, y):
        i = (y * self.width + x) * 3
        return self.data[i], self.data[i + 1], self.data[i + 2]

    def save(self, path):
        with open(path, "wb") as f:
            f.write(self.ppm)


def locked_looking(image, rect, step=4):
    """The lock view: mostly dark, some bright text, a green glow in the upper-left corner
    (a fifth of the height, a quarter of the width). The X11 tests read screenshots alike."""
    x0, y0, w, h = rect
    x1, y1 = min(x0 + w, image.width), min(y0 + h, image.height)
    total = bright = dark = green = 0
    for y in range(y0, y1, step):
        glow_row = y < y0 + h // 5
        for x in range(x0, x1, step):
            r, g, b = image.pixel(x, y)
            total += 1
            bright += r > 200 and g > 200 and b > 200
            dark += max(r, g, b) < 140
            green += glow_row and x < x0 + w // 4 and g > r + 30
    if total == 0:
        return False
    return (dark / total > 0.85 and 0.001 < bright / total < 0.08 and green > total / 100)


class Child:
    """A child process whose standard output and error go to a file."""

    def __init__(self, command, env, log_path):
        self.log_path = log_path
        with open(log_path, "wb") as log:
            self.process = subprocess.Popen(command, env=env, stdout=log, stderr=log,
                                            stdin=subprocess.DEVNULL)

    def log(self):
        with open(self.log_path, errors="replace") as f:
            return f.read()

    def running(self):
        return self.process.poll() is None

    def wait_log(self, text, timeout):
        end = time.monotonic() + timeout
        while time.monotonic() < end and text not in self.log() and self.running():
            time.sleep(0.05)
        return text in self.log()

    def finish(self, timeout):
        try:
            return self.process.wait(timeout)
        except subprocess.TimeoutExpired:
            return None

    def stop(self):
        if self.running():
            self.process.terminate()
            try:
                self.process.wait(5)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()


class Witness(Child):
    """key_witness.py: a bright window that notes each key it receives."""

    def __init__(self, script, env, folder):
        self.keys_path = os.path.join(folder, "witness-keys.txt")
        open(self.keys_path, "w").close()
        env = dict(env, GDK_BACKEND="wayland", NO_AT_BRIDGE="1")
        super().__init__(["/usr/bin/python3", script, self.keys_path], env,
                         os.path.join(folder, "witness.log"))

    def keys(self):
        with open(self.keys_path) as f:
            return f.read().split()


class KWin:
    def __init__(self, outputs=2):
        self.outputs = outputs
        self.children = []
        self.shot_seconds = 0.0
        self.last = None

    def __enter__(self):
        self.dir = tempfile.mkdtemp(prefix="kwin-session-")
        runtime = os.path.join(self.dir, "runtime")
        os.mkdir(runtime, 0o700)
        home = os.path.join(self.dir, "home")
        os.mkdir(home)
        env = {k: v for k, v in os.environ.items()
               if k not in ("DISPLAY", "WAYLAND_DISPLAY", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
                            "XDG_CACHE_HOME", "QT_QPA_PLATFORM", "XAUTHORITY")}
        env.update(XDG_RUNTIME_DIR=runtime, HOME=home, WAYLAND_DISPLAY=SOCKET)
        self.env = env
        # The installed binary carries a file capability that sandboxes refuse; a copy has none.
        kwin = os.path.join(self.dir, "kwin_wayland")
        shutil.copy(shutil.which("kwin_wayland"), kwin)
        kwin_env = dict(env, KWIN_WAYLAND_NO_PERMISSION_CHECKS="1",
                        KWIN_SCREENSHOT_NO_PERMISSION_CHECKS="1")
        self.kwin = self.start([kwin, "--virtual", "--width", str(OUTPUT_WIDTH), "--height",
                                str(OUTPUT_HEIGHT), "--output-count", str(self.outputs),
                                "--socket", SOCKET], kwin_env, "kwin.log")
        ok = self.wait(lambda: os.path.exists(os.path.join(runtime, SOCKET)), 20)
        ok = ok and self.wait(lambda: self.qdbus("/KWin", "org.kde.KWin.currentDesktop") != "",
                              20)
        if not ok:
            self.__exit__(None, None, None)
            raise RuntimeError("kwin_wayland did not start: " + self.kwin.log()[-800:])
        return self

    def __exit__(self, *exc):
        for child in reversed(self.children):
            child.stop()
        if os.environ.get("KWIN_E2E_KEEP"):
            print("kept " + self.dir)
        else:
            shutil.rmtree(self.dir, ignore_errors=True)

    def start(self, command, env, log_name):
        child = Child(command, env, os.path.join(self.dir, log_name))
        self.children.append(child)
        return child

    def start_witness(self, script):
        witness = Witness(script, self.env, self.dir)
        self.children.append(witness)
        if not witness.wait_log("ready", 20):
            raise RuntimeError("the witness window did not open: " + witness.log()[-800:])
        return witness

    def start_program(self, program, args, log_name="program.log"):
        return self.start([program] + args, dict(self.env, QT_QPA_PLATFORM="wayland"), log_name)

    def start_monitor(self, match):
        """dbus-monitor on the session bus: every message that `match` selects."""
        monitor = self.start(["dbus-monitor", match], self.env, "monitor.log")
        if not monitor.wait_log("NameAcquired", 10):
            raise RuntimeError("dbus-monitor did not start: " + monitor.log()[-300:])
        return monitor

    def write_guardian(self, secret):
        folder = os.path.join(self.env["HOME"], ".tarvanel")
        os.makedirs(folder, 0o700, exist_ok=True)
        os.chmod(folder, 0o700)
        path = os.path.join(folder, ".guardian")
        with open(os.open(path, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600), "w") as f:
            f.write(base64.b64encode(secret).decode() + "\n")

    @staticmethod
    def wait(condition, timeout, step=0.1):
        end = time.monotonic() + timeout
        while True:
            if condition():
                return True
            if time.monotonic() >= end:
                return False
            time.sleep(step)

    def qdbus(self, path, method, *args, service="org.kde.KWin"):
        result = subprocess.run(["qdbus", service, path, method] + list(args), env=self.env,
                                capture_output=True, text=True, timeout=20)
        return result.stdout.strip() if result.returncode == 0 else ""

    def keys(self, kwin_keys, *keys):
        result = subprocess.run([kwin_keys] + list(keys), env=self.env, capture_output=True,
                                text=True, timeout=30)
        if result.returncode != 0:
            raise RuntimeError("kwin_keys failed: " + result.stderr.strip())

    def screenshot(self):
        """Every output as one picture, through spectacle (about a second behind)."""
        png = os.path.join(self.dir, "shot.png")
        for _ in range(3):
            if os.path.exists(png):
                os.remove(png)
            started = time.monotonic()
            subprocess.run(["spectacle", "-b", "-n", "-f", "-o", png],
                           env=dict(self.env, QT_QPA_PLATFORM="wayland"),
                           capture_output=True, timeout=30)
            self.shot_seconds = time.monotonic() - started
            if os.path.exists(png):
                ppm = subprocess.run(["convert", png, "-depth", "8", "ppm:-"],
                                     capture_output=True, check=True).stdout
                self.last = Image(ppm)
                return self.last
        raise RuntimeError("spectacle made no screenshot")

    @staticmethod
    def output_rect(image, index):
        """Virtual outputs sit side by side from the left, each OUTPUT_WIDTH wide."""
        return (index * OUTPUT_WIDTH, 0, OUTPUT_WIDTH, min(OUTPUT_HEIGHT, image.height))

    @staticmethod
    def output_count(image):
        return max(1, image.width // OUTPUT_WIDTH)
