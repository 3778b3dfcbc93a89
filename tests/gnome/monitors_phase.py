"""A monitor plugged in and one taken away during a lock. The headless Shell's own monitors are
fixed, but Mutter's screen cast of a virtual monitor adds a monitor for as long as a PipeWire
client reads it (pipewire, wireplumber and gst-launch-1.0 are needed; skipped without them)."""
import shutil
import subprocess
import time

SC = 'org.gnome.Mutter.ScreenCast'
LOCK = ('com.velmora.tarvanel.Shell', '/com/velmora/tarvanel/Shell',
        'com.velmora.tarvanel.ShellLock')
EXTRA = (1024, 768)  # the size the reading client asks for


def available():
    return all(shutil.which(t) for t in ('pipewire', 'wireplumber', 'gst-launch-1.0'))


def start_pipewire(env, procs):
    for tool in ('pipewire', 'wireplumber'):
        procs.append(subprocess.Popen([tool], env=env, stdout=subprocess.DEVNULL,
                                      stderr=subprocess.DEVNULL))
        time.sleep(0.3)


def run(agent, out, env, procs, call, locked, wait, check, screenshot, text_in):
    from gi.repository import Gio, GLib
    if not available():
        print('not tested: monitors added during a lock (needs pipewire, wireplumber, '
              'gst-launch-1.0)')
        return
    width, height = 1280, 800

    def monitors():
        return call(*LOCK, 'Monitors', None, '(a(iid))').unpack()[0]

    started = time.monotonic()
    first = agent(30, out + '/agent-monitors.log')
    if not check(wait(locked, 15), 'lock up for the monitor test'):
        return
    session = call(SC, '/org/gnome/Mutter/ScreenCast', SC, 'CreateSession',
                   GLib.Variant('(a{sv})', ({},)), '(o)').unpack()[0]
    stream = call(SC, session, SC + '.Session', 'RecordVirtual',
                  GLib.Variant('(a{sv})', ({},)), '(o)').unpack()[0]
    nodes = []
    bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
    bus.signal_subscribe(None, SC + '.Stream', 'PipeWireStreamAdded', stream, None, 0,
                         lambda *a: nodes.append(a[5].unpack()[0]))
    call(SC, session, SC + '.Session', 'Start')
    end = time.monotonic() + 5
    while not nodes and time.monotonic() < end:
        GLib.MainContext.default().iteration(False)
        time.sleep(0.01)
    if not check(bool(nodes), 'a virtual monitor stream'):
        return
    reader = subprocess.Popen(
        ['gst-launch-1.0', 'pipewiresrc', f'path={nodes[0]}', '!',
         f'video/x-raw,max-framerate=10/1,width={EXTRA[0]},height={EXTRA[1]}', '!', 'fakesink'],
        env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    procs.append(reader)
    added = time.monotonic()
    check(wait(lambda: len(monitors()) == 3, 10), 'a third monitor appears during the lock')

    def third_covered():
        shot = screenshot(out, '6-three-monitors', env)
        return 'Screen unlocks in' in text_in(shot, 2 * width, EXTRA[0], EXTRA[1])

    check(wait(third_covered, 10, step=0.5), 'the new monitor shows the lock view')
    print(f'measured: new monitor showing the lock view {time.monotonic() - added:.1f} s after '
          'it was added (screenshot and OCR included)')
    check(locked(), 'still locked with three monitors')
    call(SC, session, SC + '.Session', 'Stop')
    reader.kill()
    check(wait(lambda: len(monitors()) == 2, 10), 'the third monitor goes away')
    time.sleep(1.5)
    shot = screenshot(out, '6-two-monitors-again', env)
    check(all('Screen unlocks in' in text_in(shot, m * width, width, height) for m in (0, 1)),
          'both remaining monitors still show the lock view')
    check(locked(), 'still locked after the monitor went away')
    for line in open(out + '/agent-monitors.log').read().splitlines():
        if 'after they changed' in line:
            print('measured (agent log): ' + line)
    check(wait(lambda: first.poll() is not None and not locked(), 40), 'the lock ends on time')
    print(f'(monitor test: {time.monotonic() - started:.0f} s)')
