#!/usr/bin/python3
"""The GNOME 45+ variant of the extension on Debian 13's gnome-shell 48, inside a Debian 13 root
(built with `debootstrap --variant=minbase trixie ROOT`, then `apt-get install
--no-install-recommends gnome-shell gnome-screenshot python3-gi dbus-daemon` inside it).
Tarvanel itself is built for Debian 12, so this test drives the extension over the bus as the
agent does: Lock with two pictures, keys typed through Mutter's remote desktop, Unlock.

Usage (as root): gnome_shell48_lock_test.py EXTENSION_DIR, with TARVANEL_DEBIAN13_ROOT=ROOT.
Exit 77 when no such root is given or it has no gnome-shell.
"""
import os
import shutil
import subprocess
import sys
import time

UUID = 'lock@tarvanel.velmora.com'
USER = 'tarvanel-gnome-test'
LOCK = ('com.velmora.tarvanel.Shell', '/com/velmora/tarvanel/Shell',
        'com.velmora.tarvanel.ShellLock')
failures = []


def check(condition, what):
    print(('ok   ' if condition else 'FAIL ') + what, flush=True)
    if not condition:
        failures.append(what)
    return condition


def outer(extension):
    root = os.environ.get('TARVANEL_DEBIAN13_ROOT', '')
    if not root or not os.path.exists(root + '/usr/bin/gnome-shell') or os.geteuid() != 0:
        print('SKIP: needs root and TARVANEL_DEBIAN13_ROOT, a Debian 13 root with gnome-shell')
        sys.exit(77)
    mounted = []
    for m in ('proc', 'sys', 'dev', 'dev/pts', 'dev/shm'):
        if subprocess.call(['mountpoint', '-q', f'{root}/{m}']) != 0:
            subprocess.run(['mount', '--bind', '/' + m, f'{root}/{m}'], check=True)
            mounted.append(f'{root}/{m}')
    try:
        if subprocess.call(['chroot', root, 'id', USER], stdout=subprocess.DEVNULL) != 0:
            subprocess.run(['chroot', root, 'useradd', '-m', USER], check=True)
        work = f'{root}/tmp/tarvanel-shell48'
        shutil.rmtree(work, ignore_errors=True)
        home = work + '/home'
        shutil.copytree(extension, f'{home}/.local/share/gnome-shell/extensions/{UUID}')
        os.makedirs(work + '/runtime', mode=0o700)
        shutil.copy(os.path.abspath(__file__), work + '/test.py')
        subprocess.run(['chroot', root, 'chown', '-R', USER, '/tmp/tarvanel-shell48'], check=True)
        inside = '/tmp/tarvanel-shell48'
        status = subprocess.call([
            'chroot', root, 'runuser', '-u', USER, '--', 'env', '-i', 'PATH=/usr/bin:/bin',
            f'HOME={inside}/home', f'XDG_RUNTIME_DIR={inside}/runtime', 'dbus-run-session', '--',
            'python3', f'{inside}/test.py', '--inner', inside])
        print('screenshots and logs: ' + work)
        sys.exit(status)
    finally:
        for m in reversed(mounted):
            subprocess.call(['umount', m])


def inner(out):
    import gi
    gi.require_version('GdkPixbuf', '2.0')
    from gi.repository import Gio, GLib, GdkPixbuf
    env = dict(os.environ)
    system_bus = subprocess.run(
        ['dbus-daemon', '--session', '--fork', '--print-address=1', '--print-pid=1'],
        capture_output=True, text=True, check=True).stdout.split()
    env['DBUS_SYSTEM_BUS_ADDRESS'] = system_bus[0]
    version = subprocess.run(['gnome-shell', '--version'], capture_output=True, text=True)
    print(version.stdout.strip())
    check(subprocess.run(['gnome-extensions', 'enable', UUID], env=env,
                         stderr=subprocess.DEVNULL).returncode == 0, 'gnome-extensions enable')
    started = time.monotonic()
    shell = subprocess.Popen(['gnome-shell', '--headless', '--wayland', '--no-x11',
                              '--virtual-monitor', '1280x800', '--virtual-monitor', '1280x800'],
                             env=env, stdout=open(out + '/gnome-shell.log', 'w'),
                             stderr=subprocess.STDOUT)
    bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)

    def call(dest, path, iface, method, args=None, reply=None):
        return bus.call_sync(dest, path, iface, method, args,
                             GLib.VariantType(reply) if reply else None, 0, 10000, None)

    def prop(dest, path, iface, name):
        return call(dest, path, 'org.freedesktop.DBus.Properties', 'Get',
                    GLib.Variant('(ss)', (iface, name)), '(v)').unpack()[0]

    def owned():
        return call('org.freedesktop.DBus', '/org/freedesktop/DBus', 'org.freedesktop.DBus',
                    'NameHasOwner', GLib.Variant('(s)', (LOCK[0],)), '(b)').unpack()[0]

    def overview():
        return prop('org.gnome.Shell', '/org/gnome/Shell', 'org.gnome.Shell', 'OverviewActive')

    try:
        while time.monotonic() - started < 30 and not owned():
            time.sleep(0.1)
        if not check(owned(), 'the extension loads and owns ' + LOCK[0]):
            return
        print(f'measured: extension on the bus {time.monotonic() - started:.2f} s after start')
        rd = call('org.gnome.Mutter.RemoteDesktop', '/org/gnome/Mutter/RemoteDesktop',
                  'org.gnome.Mutter.RemoteDesktop', 'CreateSession', None, '(o)').unpack()[0]
        session = ('org.gnome.Mutter.RemoteDesktop', rd, 'org.gnome.Mutter.RemoteDesktop.Session')
        call(*session, 'Start')

        def tap(*symbols):
            for s in symbols:
                call(*session, 'NotifyKeyboardKeysym', GLib.Variant('(ub)', (s, True)))
                time.sleep(0.05)
            for s in reversed(symbols):
                call(*session, 'NotifyKeyboardKeysym', GLib.Variant('(ub)', (s, False)))
            time.sleep(0.3)

        tap(0xffe1)  # the first key only wakes the virtual device
        # The Shell opens the overview shortly after it starts; Super closes it.
        closed = 0
        end = time.monotonic() + 15
        while closed < 3 and time.monotonic() < end:
            closed = 0 if overview() else closed + 1
            if overview():
                tap(0xffeb)
            time.sleep(0.7)
        check(closed >= 3, 'control: Super closes the overview when nothing is locked')

        pictures = []
        for name, colour in (('red', 0xc03030ff), ('blue', 0x3030c0ff)):
            pixbuf = GdkPixbuf.Pixbuf.new(GdkPixbuf.Colorspace.RGB, False, 8, 1280, 800)
            pixbuf.fill(colour)
            pixbuf.savev(f'{out}/{name}.png', 'png', [], [])
            pictures.append(f'{out}/{name}.png')
        keys = []
        bus.signal_subscribe(None, LOCK[2], 'Key', LOCK[1], None, 0,
                             lambda *a: keys.append(tuple(a[5].unpack())))
        call(*LOCK, 'Lock', GLib.Variant('(asx)', (pictures, int(time.time() * 1000) + 60000)))
        check(prop(*LOCK, 'Locked'), 'Lock with two pictures')
        for symbol in (0x31, 0x32, 0xff1b, 0xff08):  # 1, 2, Escape, BackSpace
            tap(symbol)
        tap(0xffeb)  # Super
        tap(0xffeb, ord('s'))
        end = time.monotonic() + 1.5
        while time.monotonic() < end:
            GLib.MainContext.default().iteration(False)
            time.sleep(0.01)
        check(keys[:4] == [('Text', '1'), ('Text', '2'), ('Escape', ''), ('BackSpace', '')],
              f'typed keys reach the caller of Lock: {keys}')
        check(not overview(), 'Super and Super+S do not open the overview during the lock')

        def colours(name):
            path = f'{out}/{name}.png'
            subprocess.run(['gnome-screenshot', '-f', path], env=env, stderr=subprocess.DEVNULL)
            shot = GdkPixbuf.Pixbuf.new_from_file(path)
            px, n, stride = shot.get_pixels(), shot.get_n_channels(), shot.get_rowstride()
            return [tuple(px[400 * stride + x * n:400 * stride + x * n + 3]) for x in (640, 1920)]

        check(colours('locked') == [(192, 48, 48), (48, 48, 192)],
              'each monitor shows its picture')
        call(*LOCK, 'Unlock')
        check(not prop(*LOCK, 'Locked'), 'Unlock lets go')
        check((192, 48, 48) not in colours('unlocked'), 'the pictures are gone after Unlock')
    finally:
        shell.kill()
        shell.wait()
        os.kill(int(system_bus[1]), 9)


if __name__ == '__main__':
    if sys.argv[1] == '--inner':
        inner(sys.argv[2])
        print('FAILED: ' + '; '.join(failures) if failures else 'PASSED')
        sys.exit(1 if failures else 0)
    outer(os.path.abspath(sys.argv[1]))
