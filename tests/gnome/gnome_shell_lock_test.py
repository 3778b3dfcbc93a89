#!/usr/bin/python3
"""The lock on GNOME, end to end: the real gnome-shell 43 running headless with two virtual
monitors, Tarvanel's Shell extension loaded from the build tree, and `tarvanel --test-lock`.

Usage: gnome_shell_lock_test.py TARVANEL_BINARY EXTENSION_SHARE_DIR
Run as root it creates a test user (the Shell refuses nothing as root, but Mutter wants a
normal session) and runs itself again as that user inside `dbus-run-session`. Exit 77 when
gnome-shell is not installed. Screenshots are kept in the folder printed at the end.
"""
import base64
import os
import pwd
import shutil
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import monitors_phase  # noqa: E402
import settings_phase  # noqa: E402
from shots import both, colour_at, screenshot, text_in, text_on  # noqa: E402

UUID = 'lock@tarvanel.velmora.com'
NAME = 'com.velmora.tarvanel.Shell'
PATH = '/com/velmora/tarvanel/Shell'
IFACE = 'com.velmora.tarvanel.ShellLock'
TEST_USER = 'tarvanel-gnome-test'
WIDTH, HEIGHT = 1280, 800
failures = []


def check(condition, what):
    print(('ok   ' if condition else 'FAIL ') + what, flush=True)
    if not condition:
        failures.append(what)
    return condition


def outer(binary, share):
    # The session bus starts D-Bus services (dconf) with its own environment: a scratch home
    # and runtime folder are set before it starts, so every program of the test shares them.
    out = tempfile.mkdtemp(prefix='tarvanel-gnome-lock-')
    home, runtime = out + '/home', out + '/runtime'
    os.mkdir(home)
    os.mkdir(runtime, 0o700)
    command = ['env', '-u', 'WAYLAND_DISPLAY', '-u', 'DISPLAY', 'PATH=/usr/bin:/bin', 'HOME=' + home, 'XDG_RUNTIME_DIR=' + runtime,
               'XDG_CONFIG_HOME=' + home + '/.config', 'XDG_DATA_HOME=' + home + '/.local/share',
               'XDG_DATA_DIRS=' + share + ':/usr/share',
               'dbus-run-session', '--', '/usr/bin/python3', os.path.abspath(__file__),
               '--inner', binary, out]
    if os.geteuid() == 0:
        try:
            pwd.getpwnam(TEST_USER)
        except KeyError:
            subprocess.run(['useradd', '-m', TEST_USER], check=True)
        for folder in (out, home, runtime):
            shutil.chown(folder, TEST_USER)
        command = ['runuser', '-u', TEST_USER, '--'] + command
    status = subprocess.call(command)
    print('screenshots and logs: ' + out)
    sys.exit(status)


# ---- everything below runs as the test user, inside its own session bus ----

def inner(binary, out):
    from gi.repository import Gio, GLib
    bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)

    def call(dest, path, iface, method, args=None, reply=None):
        return bus.call_sync(dest, path, iface, method, args,
                             GLib.VariantType(reply) if reply else None, 0, 10000, None)

    def has_owner(name):
        return call('org.freedesktop.DBus', '/org/freedesktop/DBus', 'org.freedesktop.DBus',
                    'NameHasOwner', GLib.Variant('(s)', (name,)), '(b)').unpack()[0]

    def prop(dest, path, iface, name):
        return call(dest, path, 'org.freedesktop.DBus.Properties', 'Get',
                    GLib.Variant('(ss)', (iface, name)), '(v)').unpack()[0]

    def locked():
        return bool(prop(NAME, PATH, IFACE, 'Locked'))

    def overview():
        return bool(prop('org.gnome.Shell', '/org/gnome/Shell', 'org.gnome.Shell',
                         'OverviewActive'))

    def wait(condition, seconds, step=0.05):
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            if condition():
                return True
            time.sleep(step)
        return condition()

    env = dict(os.environ)
    runtime = env['XDG_RUNTIME_DIR']
    system_bus = subprocess.run(['dbus-daemon', '--session', '--fork', '--print-address=1',
                                 '--print-pid=1'], capture_output=True, text=True,
                                check=True).stdout.split()
    env['DBUS_SYSTEM_BUS_ADDRESS'] = system_bus[0]
    procs = []

    # Four fixed workspaces and a red window on the first: a workspace switch shows.
    for schema, key, value in (('org.gnome.mutter', 'dynamic-workspaces', 'false'),
                               ('org.gnome.desktop.wm.preferences', 'num-workspaces', '4')):
        subprocess.run(['gsettings', 'set', schema, key, value], env=env, check=True)
    check(subprocess.run(['gnome-extensions', 'enable', UUID], env=env).returncode == 0,
          'gnome-extensions enable ' + UUID)

    if monitors_phase.available():
        monitors_phase.start_pipewire(env, procs)
    shell_log = open(out + '/gnome-shell.log', 'w')
    started = time.monotonic()
    shell = subprocess.Popen(
        ['gnome-shell', '--headless', '--wayland', '--no-x11',
         '--virtual-monitor', f'{WIDTH}x{HEIGHT}', '--virtual-monitor', f'{WIDTH}x{HEIGHT}'],
        env=env, stdout=shell_log, stderr=subprocess.STDOUT)
    procs.append(shell)
    try:
        if not check(wait(lambda: has_owner(NAME), 30), 'the extension loads and owns ' + NAME):
            return
        print(f'measured: extension on the bus {time.monotonic() - started:.2f} s after '
              'gnome-shell started')
        check(prop(NAME, PATH, IFACE, 'Version') >= 1, 'the extension tells its version')
        sockets = [n for n in os.listdir(runtime) if n.startswith('wayland-') and
                   not n.endswith('.lock')]
        env['WAYLAND_DISPLAY'] = sockets[0]
        agent = run_tests(binary, out, env, procs, call, locked, overview, wait, shell.pid)
        monitors_phase.run(agent, out, env, procs, call, locked, wait, check, screenshot, text_in)
        settings_phase.run(binary, out, env, procs, has_owner, wait, check)
    finally:
        for p in reversed(procs):
            if p.poll() is None:
                p.kill()
                p.wait()
        os.kill(int(system_bus[1]), 9)


def window():
    import gi
    gi.require_version('Gtk', '3.0')
    from gi.repository import Gtk, Gdk
    css = Gtk.CssProvider()
    css.load_from_data(b'window { background: #ff0000; }')
    Gtk.StyleContext.add_provider_for_screen(Gdk.Screen.get_default(), css, 800)
    w = Gtk.Window(title='red')
    w.set_decorated(False)
    w.connect('destroy', Gtk.main_quit)
    w.show_all()
    w.fullscreen_on_monitor(Gdk.Screen.get_default(), 0)
    Gtk.main()


def run_tests(binary, out, env, procs, call, locked, overview, wait, shell_pid):
    from gi.repository import GLib

    # Keys as a person types them, through Mutter's remote desktop, on this one connection.
    rd = call('org.gnome.Mutter.RemoteDesktop', '/org/gnome/Mutter/RemoteDesktop',
              'org.gnome.Mutter.RemoteDesktop', 'CreateSession', None, '(o)').unpack()[0]
    session = ('org.gnome.Mutter.RemoteDesktop', rd, 'org.gnome.Mutter.RemoteDesktop.Session')
    call(*session, 'Start')

    def key(symbol, down):
        call(*session, 'NotifyKeyboardKeysym', GLib.Variant('(ub)', (symbol, down)))

    def chord(*symbols):
        for s in symbols:
            key(s, True)
            time.sleep(0.03)
        for s in reversed(symbols):
            key(s, False)
        time.sleep(0.2)

    def type_digits(digits):
        for d in digits:
            chord(ord(d))

    def set_overview(shown):
        call('org.gnome.Shell', '/org/gnome/Shell', 'org.freedesktop.DBus.Properties', 'Set',
             GLib.Variant('(ssv)', ('org.gnome.Shell', 'OverviewActive', GLib.Variant('b', shown))))

    def red_window(path):
        return colour_at(path, WIDTH // 2, HEIGHT // 2) == (255, 0, 0)

    procs.append(subprocess.Popen(['/usr/bin/python3', os.path.abspath(__file__), '--window'],
                                  env=dict(env, GDK_BACKEND='wayland')))
    # Control: without a lock the keys reach the Shell (the first key only wakes the device).
    chord(0xffe1)
    time.sleep(0.5)

    def desktop_with_window():
        if overview():  # GNOME starts in the overview while no window is open
            chord(0xff1b)
            return False
        return red_window(screenshot(out, '0-window', env))

    check(wait(desktop_with_window, 15, step=0.5),
          'control: a red window on the first workspace, no overview')
    chord(0xffeb, ord('s'))
    check(wait(overview, 3), 'control: Super+S opens the overview when nothing is locked')
    chord(0xff1b)
    check(wait(lambda: not overview(), 3), 'control: Escape closes it')
    chord(0xffeb, 0xff56)
    time.sleep(1)
    check(not red_window(screenshot(out, '0-workspace-2', env)),
          'control: Super+PageDown switches workspace when nothing is locked')
    chord(0xffeb, 0xff55)
    time.sleep(1)
    check(red_window(screenshot(out, '0-desktop', env)), 'control: Super+PageUp back')

    # A guardian secret, as the settings window would save it.
    secret = os.urandom(20)
    os.makedirs(env['HOME'] + '/.tarvanel', exist_ok=True)
    guardian = env['HOME'] + '/.tarvanel/.guardian'
    with open(guardian, 'w') as f:
        f.write(base64.b64encode(secret).decode())
    os.chmod(guardian, 0o600)
    agent_env = dict(env, QT_QPA_PLATFORM='wayland')

    def agent(seconds, log):
        p = subprocess.Popen([binary, '--test-lock', str(seconds)], env=agent_env,
                             stdout=subprocess.DEVNULL, stderr=open(log, 'w'))
        procs.append(p)
        return p

    # 1. A lock with the extension, on both monitors.
    t0 = time.monotonic()
    first = agent(90, out + '/agent-1.log')
    check(wait(locked, 15), 'the agent locks through the extension')
    print(f'measured: locked (extension covering) {time.monotonic() - t0:.2f} s after the '
          'agent started')
    time.sleep(1.5)
    log = open(out + '/agent-1.log').read()
    check('locking with the GNOME Shell extension' in log, 'the agent logs the mechanism')
    for line in log.splitlines():
        if 'covered every monitor' in line:
            print('measured (agent log): ' + line)
    shot = screenshot(out, '1-locked', env)
    check(both(shot, 'Screen unlocks in'), 'the lock view (countdown) is on both monitors')
    check(both(shot, 'Emergency?'), 'the lock view (guardian line) is on both monitors')

    def cpu_seconds(pid):
        fields = open(f'/proc/{pid}/stat').read().rsplit(')', 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf('SC_CLK_TCK')

    # A new picture per monitor each second: what it costs the agent and the Shell.
    before = cpu_seconds(first.pid), cpu_seconds(shell_pid)
    time.sleep(5)
    after = cpu_seconds(first.pid), cpu_seconds(shell_pid)
    print(f'measured: during a lock the agent uses {(after[0] - before[0]) / 5:.0%} of a core, '
          f'gnome-shell {(after[1] - before[1]) / 5:.0%}')

    # Another program of the same user can neither end the lock nor take it over.
    for method, args in (('Unlock', None), ('Lock', GLib.Variant('(asx)', ([], 0)))):
        try:
            call(NAME, PATH, IFACE, method, args)
            refused = False
        except GLib.Error:
            refused = True
        check(refused, f'{method} from another program is refused while the agent runs')
    check(locked(), 'still locked after those calls')

    # 2. The Shell's own keys do nothing while locked.
    chord(0xffeb)  # Super
    chord(0xffeb, ord('s'))  # Super+S
    check(not wait(overview, 1), 'Super and Super+S do not open the overview during the lock')
    chord(0xffe9, 0xff09)  # Alt+Tab
    chord(0xffeb, 0xff56)  # Super+Page_Down
    for arrow in (0xff54, 0xff52, 0xff51, 0xff53):  # Ctrl+Alt+Down, Up, Left, Right
        chord(0xffe3, 0xffe9, arrow)
    chord(0xffeb, 0xff09)  # Super+Tab
    check(locked() and not overview(), 'after Alt+Tab, Super+PageDown, Ctrl+Alt+arrows: locked')
    shot = screenshot(out, '2-after-shortcuts', env)
    check(both(shot, 'Screen unlocks in'), 'screenshot after the shortcuts: still the lock view')

    # 3. Digits reach the agent: the guardian line turns into dots, a wrong code is refused.
    type_digits('12')
    chord(0xffb3)  # keypad 3 (Num Lock decides: either its digit or Page Down, both a digit)
    shot = screenshot(out, '3-three-digits', env)
    check(not both(shot, 'Emergency?'), 'typed digits replace the guardian line (dots)')
    chord(0xff1b)  # Escape clears
    time.sleep(1.2)
    check(both(screenshot(out, '3-escape', env), 'Emergency?'), 'Escape clears the digits')
    code = subprocess.run(['oathtool', '--totp', secret.hex()], capture_output=True,
                          text=True, check=True).stdout.strip()
    wrong = f'{(int(code) + 500000) % 1000000:06d}'
    type_digits(wrong)
    time.sleep(1.2)
    check(both(screenshot(out, '3-wrong-code', env), "code didn't work"),
          'a wrong code is refused on the lock view')

    # Arabic-Indic digits, typed with the Arabic keyboard layout, reach the lock as digits.
    chord(0xff1b)
    layout = ['gsettings', 'set', 'org.gnome.desktop.input-sources', 'sources']
    subprocess.run(layout + ["[('xkb', 'ara')]"], env=env, check=True)
    time.sleep(1.5)
    check(both(screenshot(out, '3-prompt-again', env), 'Emergency?'), 'Escape: the prompt again')
    for digit in (1, 2):
        chord(0x1000660 + digit)  # ARABIC-INDIC DIGIT ONE, TWO
    time.sleep(1.2)
    check(not both(screenshot(out, '3-arabic-indic', env), 'Emergency?'),
          'Arabic-Indic digits replace the guardian line (dots)')
    chord(0xff1b)
    subprocess.run(layout + ["[('xkb', 'us')]"], env=env, check=True)
    time.sleep(1.5)

    # 4. The right code ends the lock.
    code = subprocess.run(['oathtool', '--totp', secret.hex()], capture_output=True,
                          text=True, check=True).stdout.strip()
    type_digits(code)
    check(wait(lambda: not locked(), 5), "the guardian's code ends the lock")
    check(wait(lambda: first.poll() is not None, 5), 'the test lock exits after the code')
    shot = screenshot(out, '4-after-code', env)
    check('Screen unlocks' not in text_on(shot, 0), 'no lock view after the code')
    check(not overview() and red_window(shot),
          'no shortcut typed during the lock took effect (same workspace, no overview)')

    # 5. Killed mid-lock: the cover stays until the end, a restarted agent takes it over.
    second = agent(25, out + '/agent-2.log')
    check(wait(locked, 15), 'second lock up')
    # A program that opens the overview over the bus during the lock gets its grab taken back.
    set_overview(True)
    time.sleep(0.5)  # less than the extension's one-second check
    chord(0xffeb, 0xff56)  # Super+Page_Down: works in the overview's own action mode
    type_digits('1')
    time.sleep(1.2)
    check(not both(screenshot(out, '5-overview-opened', env), 'Emergency?'),
          'after the overview was opened over the bus, digits still reach the lock')
    second.kill()
    second.wait()
    time.sleep(2)
    check(locked(), 'the cover stays after the agent is killed with -9')
    check(both(screenshot(out, '5-agent-killed', env), 'Screen unlocks in'),
          'screenshot after kill -9: still the lock view')
    third = agent(8, out + '/agent-3.log')  # as systemd would restart it
    gap = not wait(lambda: not locked(), 3, step=0.01)
    check(gap, 'a new agent takes the cover over with no gap')
    third.wait(timeout=30)
    check(not locked(), 'released when the new agent ends its lock')
    ends = time.monotonic() + 12
    fourth = agent(12, out + '/agent-4.log')
    check(wait(locked, 15), 'third lock up')
    time.sleep(1.5)
    fourth.kill()
    fourth.wait()
    check(locked(), 'killed again: still covered')
    check(wait(lambda: not locked(), ends - time.monotonic() + 3, step=0.1) and
          time.monotonic() >= ends - 1, 'released by the extension at the end time, not before')
    released = time.monotonic() - ends
    print(f'measured: released {released:+.2f} s from the end time after kill -9')
    check('Screen unlocks' not in text_on(screenshot(out, '5-released', env), 1),
          'no lock view after the end time')
    set_overview(False)
    check(wait(lambda: red_window(screenshot(out, '5-overview-closed', env)), 5, step=0.5),
          'the workspace key typed while the overview was open during the lock did nothing')
    return agent


if __name__ == '__main__':
    if not shutil.which('gnome-shell'):
        print('SKIP: gnome-shell is not installed')
        sys.exit(77)
    if sys.argv[1] == '--window':
        sys.exit(window())
    if sys.argv[1] == '--inner':
        inner(*sys.argv[2:4])
        print('FAILED: ' + '; '.join(failures) if failures else 'PASSED')
        sys.exit(1 if failures else 0)
    outer(os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2]))
