#!/usr/bin/env bash
# Runs a command in a desktop session a screen reader listens to: a virtual display, a session
# bus, the accessibility bus, and a listener that asks every event's object for its name and
# role over AT-SPI, as a reader does. The command runs on the X11 platform there, so the
# program's accessibility bridge is the one a reader talks to. With PELVANE_NO_READER set, the
# bridge is on (QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 in the command) but nobody listens.
# The session's daemons talk on standard error; only the command's own errors are shown.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
exec 3>&2
exec xvfb-run -a -s "-screen 0 1280x1024x24" dbus-run-session -- bash -c '
  here=$1; shift
  /usr/libexec/at-spi-bus-launcher --launch-immediately >/dev/null & launcher=$!
  sleep 1
  reader=
  if [ -z "${PELVANE_NO_READER:-}" ]; then
    /usr/bin/python3 "$here/reader.py" 2>/dev/null & reader=$!
    export PELVANE_READER_LISTENING=1
  fi
  sleep 2
  status=0
  QT_QPA_PLATFORM=xcb "$@" 2>&3 || status=$?
  if [ -n "$reader" ]; then kill -TERM "$reader" 2>/dev/null; wait "$reader" 2>/dev/null || true; fi
  kill "$launcher" 2>/dev/null || true
  exit $status' bash "$here" "$@" 2>/dev/null
