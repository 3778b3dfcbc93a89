"""The Lock section of the settings window on GNOME, driven over AT-SPI as a screen reader does:
with the extension switched off it says so and offers "Enable the GNOME Shell extension";
pressing it enables the extension, which the running Shell loads at once."""
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

    subprocess.run(['gnome-extensions', 'disable', UUID], env=env, check=True)
    check(wait(lambda: not has_owner(NAME), 5), 'gnome-extensions disable unloads it at once')
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
