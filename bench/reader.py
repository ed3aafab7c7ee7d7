# Listens on the accessibility bus as a screen reader does: for each event, the object's name
# and role are asked for over the bus. Prints how many events it answered when stopped.
import os
import signal

import pyatspi
from gi.repository import GLib

answered = 0
verbose = bool(os.environ.get("READER_VERBOSE"))


def on_event(event):
    global answered
    try:
        source = event.source
        if source is not None:
            source.name
            source.getRoleName()
            answered += 1
            if verbose:
                print(event.type, source.getRoleName(), source.name[:40], flush=True)
    except Exception:
        pass


def stop(*_):
    pyatspi.Registry.stop()
    return False


GLib.unix_signal_add(GLib.PRIORITY_HIGH, signal.SIGTERM, stop)
pyatspi.Registry.registerEventListener(
    on_event, "focus:", "window:activate", "object:state-changed", "object:children-changed",
    "object:active-descendant-changed", "object:property-change", "object:text-changed",
    "object:selection-changed", "object:visible-data-changed")
pyatspi.Registry.start()
print(f"  (a reader on the accessibility bus answered {answered} events)", flush=True)
