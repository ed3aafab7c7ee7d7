#!/usr/bin/env bash
# Runs the libFuzzer targets for MINUTES each, side by side, and prints their execution counts.
#   scripts/fuzz.sh MINUTES [merge|picture|both]
# Builds them first (clang, in build-fuzz/). Corpora grow in fuzz-corpus/, seeded from
# tests/data/; a finding is written to fuzz-findings/ and the script exits with 1.
set -euo pipefail
cd "$(dirname "$0")/.."
minutes=${1:?usage: scripts/fuzz.sh MINUTES [merge|picture|both]}
which=${2:-both}
case "$which" in merge) targets=(merge) ;; picture) targets=(picture) ;; both) targets=(merge picture) ;;
  *) echo "usage: scripts/fuzz.sh MINUTES [merge|picture|both]" >&2; exit 2 ;; esac

if [ ! -f build-fuzz/build.ninja ]; then
  cmake -S . -B build-fuzz -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DPELVANE_FUZZ=ON -DPELVANE_TESTS=OFF >/dev/null
fi
cmake --build build-fuzz --target fuzz_merge fuzz_picture >/dev/null

# A small quarantine and short allocation stacks: most of an input's time is allocation.
export ASAN_OPTIONS=quarantine_size_mb=1:malloc_context_size=2
export QT_QPA_PLATFORM=offscreen
mkdir -p fuzz-findings
pids=()
for t in "${targets[@]}"; do
  mkdir -p "fuzz-corpus/$t"
  seeds=tests/data/exchange; args=(-max_len=1024)
  [ "$t" = picture ] && { seeds=tests/data/pictures; args=(); }
  ./build-fuzz/fuzz_"$t" "${args[@]}" -max_total_time=$((minutes * 60)) -print_final_stats=1 \
    -close_fd_mask=3 -artifact_prefix=fuzz-findings/"$t"- "fuzz-corpus/$t" "$seeds" \
    >"fuzz-findings/$t.log" 2>&1 &
  pids+=($!)
done
status=0
for i in "${!targets[@]}"; do
  wait "${pids[$i]}" || status=1
  log="fuzz-findings/${targets[$i]}.log"
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
  rate=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log" | tail -1)
  echo "fuzz_${targets[$i]}: ${runs:-0} executions, ${rate:-0} a second"
done
if [ "$status" -ne 0 ]; then
  echo "a finding: see fuzz-findings/" >&2
fi
exit "$status"
