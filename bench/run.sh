#!/usr/bin/env bash
# Builds the benchmarks in release mode and runs them; one figure per line.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DPELVANE_TESTS=OFF >/dev/null
cmake --build build-bench --target store_bench exchange_bench list_bench groups_bench valuation_bench \
  reference_bench import_screen_bench report_bench backup_bench statistics_bench list_table_bench \
  scale_bench journal_bench originals_bench >/dev/null
export QT_QPA_PLATFORM=offscreen
# The benchmarks' collections, and anything a stopped one leaves, go into one folder that goes
# with the run.
scratch=$(mktemp -d "${TMPDIR:-/tmp}/pelvane-bench.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
export TMPDIR="$scratch"
./build-bench/bench/store_bench
./build-bench/bench/exchange_bench
# The list with accessibility on goes through the platform's bridge where a desktop session can
# be made: with the bridge on and nobody listening, then with a reader listening on the bus.
if command -v xvfb-run >/dev/null && command -v dbus-run-session >/dev/null &&
  [ -x /usr/libexec/at-spi-bus-launcher ] && /usr/bin/python3 -c 'import pyatspi' 2>/dev/null; then
  PELVANE_NO_READER=1 bench/with-reader.sh ./build-bench/bench/list_bench
  bench/with-reader.sh ./build-bench/bench/list_bench
else
  ./build-bench/bench/list_bench
fi
./build-bench/bench/list_table_bench
./build-bench/bench/valuation_bench
./build-bench/bench/reference_bench
./build-bench/bench/groups_bench
./build-bench/bench/import_screen_bench
./build-bench/bench/report_bench
./build-bench/bench/backup_bench
./build-bench/bench/statistics_bench
./build-bench/bench/scale_bench
./build-bench/bench/journal_bench
./build-bench/bench/originals_bench
