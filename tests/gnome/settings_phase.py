"""Without the extension: a lock that loses it falls back to windows, a lock that starts without
it does not wait for it, and the Lock section of the settings window (driven over AT-SPI as a
screen reader does) says it is off and offers "Enable the GNOME Shell extension"; pressing it
enables the extension, which the running Shell loads at once."""
import datetime
import os
import subprocess
import time

UUID = 'lock@tarvanel.velmora.com'
NAME = 'com.velmora.tarvanel.Shell'


def run(binary, out, env, procs, has_owner, wait, check):
    import pyatspi

    home = env['HOME']
    os.makedirs(home + '/.tarvanel', exist_ok=True)
    with open(home + '/.tarvanel/config.json', 'w') as f:
        f.write('{"locationName":"London","latitude":51.5074,"longitude":-0.1278}')
    open(home + '/.tarvanel/.show-settings', 'w').close()
    # Paused for a day, so no prayer lock starts while the window is tested.
    os.makedirs(env['XDG_CONFIG_HOME'] + '/com.velmora.tarvanel', exist_ok=True)
    until = datetime.datetime.now(datetime.timezone.utc) + datetime.timedelta(days=1)
    with open(env['XDG_CONFIG_HOME'] + '/com.velmora.tarvanel/settings.ini', 'w') as f:
        f.write('[General]\npausedUntil=' + until.strftime('%Y-%m-%dT%H:%M:%S.000Z') + '\n')

    lock_env = dict(env, QT_QPA_PLATFORM='wayland')

    def test_lock(seconds, log):
        p = subprocess.Popen([binary, '--test-lock', str(seconds)], env=lock_env,
                             stdout=subprocess.DEVNULL, stderr=open(log, 'w'))
        procs.append(p)
        return p

    first = test_lock(8, out + '/agent-disabled-mid-lock.log')
    check(wait(lambda: 'the GNOME Shell extension covered' in
               open(out + '/agent-disabled-mid-lock.log').read(), 10), 'a lock with the extension')
    subprocess.run(['gnome-extensions', 'disable', UUID], env=env, check=True)
    check(wait(lambda: not has_owner(NAME), 5), 'gnome-extensions disable unloads it at once')
    check(wait(lambda: 'extension failed (the GNOME Shell extension left the session bus); '
               'locking with ordinary windows' in open(out + '/agent-disabled-mid-lock.log').read(),
               3), 'the agent falls back to windows when the extension goes mid-lock')
    first.wait(timeout=20)
    started = time.monotonic()
    second = test_lock(2, out + '/agent-without-extension.log')
    second.wait(timeout=20)
    check('locking with ordinary windows' in open(out + '/agent-without-extension.log').read(),
          'without the extension a lock uses windows')
    print(f'measured: a 2 s lock without the extension took {time.monotonic() - started:.1f} s '
          '(no wait for the extension)')
    app_env = dict(env, QT_QPA_PLATFORM='wayland', XDG_CURRENT_DESKTOP='GNOME',
                   QT_LINUX_ACCESSIBILITY_ALWAYS_ON='1', QT_ACCESSIBILITY='1',
                   TARVANEL_AGENT='com.velmora.tarvanel')
    procs.append(subprocess.Popen([binary], env=app_env, stdout=subprocess.DEVNULL,
                                  stderr=open(out + '/settings.log', 'w')))

    def app():
        desktop = pyatspi.Registry.getDesktop(0)
        for i in range(desktop.childCount):
            a = desktop.getChildAtIndex(i)
            if a is not None and a.name and 'tarvanel' in a.name.lower():
                return a
        return None

    def named(prefix, roles=None):
        def match(node):
            return node is not None and (node.name or '').startswith(prefix) and (
                roles is None or node.getRole() in roles)
        a = app()
        return a and pyatspi.findDescendant(a, match, breadth_first=True)

    off = 'The GNOME Shell extension is off'
    if not check(wait(lambda: named(off), 30, step=0.5), 'the Lock section says: ' + off):
        return
    label = 'Enable the GNOME Shell extension'
    button = named(label, (pyatspi.ROLE_PUSH_BUTTON,))
    if not check(button and button.name == label, 'a button whose accessible name is its label'):
        return
    action = button.queryAction()
    action.doAction(0)
    started = time.monotonic()
    check(wait(lambda: has_owner(NAME), 10), 'pressing it enables the extension; the Shell '
          'loads it at once')
    print(f'measured: extension on the bus {time.monotonic() - started:.2f} s after the press')
    check(wait(lambda: named('The GNOME Shell extension is on.'), 10, step=0.5),
          'the section then says the extension is on')
