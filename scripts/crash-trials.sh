#!/usr/bin/env bash
# Kills imports and exports with SIGKILL at random moments and checks that nothing saved is
# lost and nothing written is torn.
#
#   scripts/crash-trials.sh [TRIALS] [BUILD_DIR]      (default: 10 trials, ./build)
#
# Import trials: a generated file of 2,000 new coins, with an update of every coin of the
# sample among them, is imported into a store that already holds the sample and killed at a
# random moment. Afterwards: PRAGMA integrity_check is "ok"; the program reopens and exports
# the store; every earlier coin is as it was or as the file updates it; the new coins are
# exactly a leading part of the file's, each complete; the value history's last day is the
# collection's pieces and value.
# Export trials: an export over an earlier file, killed at a random moment; the file is then
# the earlier one or the whole new one, never torn.
# Backup trials: a backup over an earlier backup, killed at a random moment; the file is then the
# earlier backup or the whole new one, and the next backup leaves no half-written copy behind.
# Restore trials: a restore killed at a random moment; the collection is then the one before or
# the backup, whole. Undo trials: the undo of the whole import killed at a random moment; the
# collection is then the one with the import or the one before it, whole. Writer trials: an import started while a restore runs and killed at a
# random moment; it waited for the restore, so the store is the backup with a leading part of
# the import's coins, as in the import trials. Photo trials: coins saved one by one with their
# photos, killed at a random moment; no saved coin lacks its whole photo.
# Exits 1 when any trial fails; the failed trial's files are kept and named.
set -euo pipefail

TRIALS=${1:-10}
BUILD=$(cd "${2:-build}" && pwd)
ROOT=$(cd "$(dirname "$0")/.." && pwd)
PELVANE="$BUILD/pelvane"
CHECK="$BUILD/pelvane_integrity_check"
PHOTOS="$BUILD/pelvane_photo_saves"
SAMPLE="$ROOT/samples/Pelvane-sample.csv"
export QT_QPA_PLATFORM=offscreen

WORK=$(mktemp -d "${TMPDIR:-/tmp}/pelvane-trials.XXXXXX")
keep=0
trap '[ $keep -eq 1 ] || rm -rf "$WORK"' EXIT
# Copies, so that a build during a long run does not change the program under trial.
cp "$PELVANE" "$CHECK" "$PHOTOS" "$WORK/"
PELVANE="$WORK/pelvane"
CHECK="$WORK/pelvane_integrity_check"
PHOTOS="$WORK/pelvane_photo_saves"

# Lines of an export keyed by the import's four keys (country, denomination, mint mark, year),
# one "key<TAB>line" a line, sorted.
keyed() {
  tail -n +2 "$1" | awk -F'^' '{ print $1 "|" $2 "|" $9 "|" $19 "\t" $0 }' | LC_ALL=C sort
}

# The file: every sample coin with its quantity changed (an update), spread among 2,000 new
# coins with every field filled.
awk -F'^' -v OFS='^' 'NR > 1 && NF >= 19 { $12 = 77; print }' "$SAMPLE" > "$WORK/updates"
{
  echo "[PELVANE]"
  awk -v OFS='^' '
    BEGIN { while ((getline line < "'"$WORK/updates"'") > 0) updates[u++] = line }
    {}
    END {
      for (i = 1; i <= 2000; i++) {
        print "Trialand", "Coin " i, "Trial coin " i, "Designer " i % 7, "19.05", "Plain",
              "MS-6" i % 10, "Mint " i % 3, "T" i % 5, "Note " i "~second line", "Period",
              i % 50 + 1, "SN" i, "RD", "1.5", i % 90 ".5", (i % 9) ".25", "3.24",
              1800 + i % 200, "", ""
        if (i % 45 == 0 && n < u) print updates[n++]
      }
    }' < /dev/null
} > "$WORK/import.csv"
grep -o '^Trialand^Coin [0-9]*' "$WORK/import.csv" | cut -d'^' -f2 > "$WORK/new-order"

# The store before (the sample), its export, and the export after a whole import.
"$PELVANE" --data-dir "$WORK/base" --import "$SAMPLE" > /dev/null
"$PELVANE" --data-dir "$WORK/base" --export "$WORK/before.csv"
cp -r "$WORK/base" "$WORK/whole"
"$PELVANE" --data-dir "$WORK/whole" --import "$WORK/import.csv" > /dev/null
"$PELVANE" --data-dir "$WORK/whole" --export "$WORK/after.csv"
"$PELVANE" --data-dir "$WORK/base" --backup "$WORK/base.bak" > /dev/null
"$PELVANE" --data-dir "$WORK/whole" --backup "$WORK/whole.bak" > /dev/null
keyed "$WORK/before.csv" > "$WORK/before.keyed"
keyed "$WORK/after.csv" > "$WORK/after.keyed"
start=$(date +%s%N)
"$PELVANE" --data-dir "$WORK/timing" --import "$WORK/import.csv" > /dev/null
import_ms=$(( ($(date +%s%N) - start) / 1000000 + 50 ))
start=$(date +%s%N)
"$PELVANE" --data-dir "$WORK/whole" --export "$WORK/timing.csv"
export_ms=$(( ($(date +%s%N) - start) / 1000000 + 20 ))
start=$(date +%s%N)
"$PELVANE" --data-dir "$WORK/whole" --backup "$WORK/timing.bak" > /dev/null
backup_ms=$(( ($(date +%s%N) - start) / 1000000 + 20 ))
cp -r "$WORK/whole" "$WORK/timing-restore"
start=$(date +%s%N)
"$PELVANE" --data-dir "$WORK/timing-restore" --restore "$WORK/base.bak" > /dev/null
restore_ms=$(( ($(date +%s%N) - start) / 1000000 + 20 ))
cp -r "$WORK/whole" "$WORK/timing-undo"
start=$(date +%s%N)
"$PELVANE" --data-dir "$WORK/timing-undo" --undo > /dev/null
undo_ms=$(( ($(date +%s%N) - start) / 1000000 + 20 ))

# Starts a command, kills it with SIGKILL after a random part of `ms` milliseconds.
start=$(date +%s%N)
"$PHOTOS" "$WORK/timing-photos" 300 > /dev/null 2>&1
photos_ms=$(( ($(date +%s%N) - start) / 1000000 + 20 ))

kill_at_random() {
  local ms=$1; shift
  "$@" > /dev/null 2>&1 &
  local pid=$!
  local wait_ms=$(( (RANDOM * 32768 + RANDOM) % ms ))
  sleep "$(printf '%d.%03d' $((wait_ms / 1000)) $((wait_ms % 1000)))"
  kill -KILL "$pid" 2> /dev/null || true
  wait "$pid" 2> /dev/null || true
}

# Checks the store of one killed import; prints what is wrong, nothing when all is well.
check_import() {
  local dir=$1
  "$CHECK" "$dir/Pelvane.sqlite" > "$dir/integrity" 2>&1 || { echo "integrity: $(head -3 "$dir/integrity")"; return; }
  "$PELVANE" --data-dir "$dir" --export "$dir/out.csv" 2> "$dir/export.err" \
    || { echo "export after the kill failed: $(cat "$dir/export.err")"; return; }
  keyed "$dir/out.csv" > "$dir/out.keyed"
  # The value history adds up to the coins: a coin is never saved without its event.
  "$PELVANE" --data-dir "$dir" --stats > "$dir/stats" 2>&1 || { echo "--stats failed: $(cat "$dir/stats")"; return; }
  "$PELVANE" --data-dir "$dir" --value-history "$dir/history.csv" > /dev/null 2>&1 \
    || { echo "--value-history failed"; return; }
  local figures
  figures="$(sed -n 's/^Pieces: //p' "$dir/stats"),$(sed -n 's/^Total value: //p' "$dir/stats")"
  if [ "$(tail -n 1 "$dir/history.csv" | cut -d, -f2-)" != "$figures" ]; then
    echo "the value history ($(tail -n 1 "$dir/history.csv")) is not the collection ($figures)"; return
  fi
  # Every earlier coin: as before, or as after the whole import.
  local key line
  while IFS=$'\t' read -r key line; do
    local now
    now=$(awk -F'\t' -v k="$key" '$1 == k { print $2 }' "$dir/out.keyed")
    if [ "$now" != "$line" ] && [ "$now" != "$(awk -F'\t' -v k="$key" '$1 == k { print $2 }' "$WORK/after.keyed")" ]; then
      echo "earlier coin changed or lost: $key"; return
    fi
  done < "$WORK/before.keyed"
  # The new coins: a leading part of the file's, each exactly as after the whole import.
  grep '^Trialand|' "$dir/out.keyed" | cut -f2 | cut -d'^' -f2 > "$dir/new-found" || true
  local count
  count=$(wc -l < "$dir/new-found")
  if ! diff <(head -n "$count" "$WORK/new-order" | LC_ALL=C sort) <(LC_ALL=C sort "$dir/new-found") > /dev/null; then
    echo "the $count new coins are not the file's first $count"; return
  fi
  if [ -n "$(LC_ALL=C comm -23 <(grep '^Trialand|' "$dir/out.keyed") <(grep '^Trialand|' "$WORK/after.keyed"))" ]; then
    echo "a new coin is incomplete"; return
  fi
  echo "$count" > "$dir/saved-count"
}

# Writes with --KIND from the whole store over a copy of EARLIER, killed at a random moment;
# the file must then be EARLIER or NEW. Counts a failure and keeps the torn file otherwise.
kill_over_earlier() {
  local kind=$1 ms=$2 earlier=$3 new=$4 suffix=$5
  local target="$WORK/target.$suffix"
  cp "$earlier" "$target"
  kill_at_random "$ms" "$PELVANE" --data-dir "$WORK/whole" "--$kind" "$target"
  if ! cmp -s "$target" "$earlier" && ! cmp -s "$target" "$new"; then
    cp "$target" "$WORK/torn-$t.$suffix"
    echo "$kind trial $t failed: the file is torn (kept as $WORK/torn-$t.$suffix)"
    failed=$((failed + 1)); keep=1
  fi
}

# A store that passes the integrity check and exports to DIR/out.csv.
readable() {
  "$CHECK" "$1/Pelvane.sqlite" > /dev/null 2>&1 \
    && "$PELVANE" --data-dir "$1" --export "$1/out.csv" > /dev/null 2>&1
}

# Counts a trial of KIND on DIR: a PROBLEM is said and the folder kept; a trial that went well
# leaves nothing behind.
verdict() {
  local kind=$1 dir=$2 problem=$3
  if [ -n "$problem" ]; then
    echo "$kind trial $t failed: $problem (kept in $dir)"
    failed=$((failed + 1)); keep=1
  else
    rm -rf "$dir"
  fi
}

failed=0
saved_total=0
for ((t = 1; t <= TRIALS; t++)); do
  dir="$WORK/trial-$t"
  cp -r "$WORK/base" "$dir"
  kill_at_random "$import_ms" "$PELVANE" --data-dir "$dir" --import "$WORK/import.csv"
  problem=$(check_import "$dir")
  if [ -n "$problem" ]; then
    echo "import trial $t failed: $problem (kept in $dir)"
    failed=$((failed + 1)); keep=1
  else
    saved_total=$((saved_total + $(cat "$dir/saved-count")))
    rm -rf "$dir"
  fi
  [ $((t % 100)) -ne 0 ] || echo "... $t trials, $failed failed"

  # An export or a backup killed over an earlier file leaves the earlier file or the whole new one.
  kill_over_earlier export "$export_ms" "$WORK/before.csv" "$WORK/after.csv" csv
  kill_over_earlier backup "$backup_ms" "$WORK/base.bak" "$WORK/whole.bak" bak
  "$PELVANE" --data-dir "$WORK/whole" --backup "$WORK/target.bak" > /dev/null
  if [ -n "$(find "$WORK" -maxdepth 1 -name '.target.bak.*.part*')" ]; then
    echo "backup trial $t failed: a killed backup's copy was left behind"
    failed=$((failed + 1)); keep=1
  fi

  # A restore killed at a random moment leaves the collection as it was or the backup, whole.
  dir="$WORK/restore-$t"
  cp -r "$WORK/whole" "$dir"
  kill_at_random "$restore_ms" "$PELVANE" --data-dir "$dir" --restore "$WORK/base.bak"
  problem=""
  if ! readable "$dir" \
     || { ! cmp -s "$dir/out.csv" "$WORK/before.csv" && ! cmp -s "$dir/out.csv" "$WORK/after.csv"; } \
     || [ -n "$(find "$dir" -maxdepth 1 -name '.*.part*')" ]; then
    problem="the collection is neither the one before nor the backup, or a copy was left"
  fi
  verdict restore "$dir" "$problem"

  # An undo of the whole import killed at a random moment leaves the collection as it was before
  # the undo or before the import, whole; an undo not done is done by the next one.
  dir="$WORK/undo-$t"
  cp -r "$WORK/whole" "$dir"
  kill_at_random "$undo_ms" "$PELVANE" --data-dir "$dir" --undo
  problem=""
  if ! readable "$dir"; then
    problem="the collection cannot be read"
  elif cmp -s "$dir/out.csv" "$WORK/after.csv"; then
    "$PELVANE" --data-dir "$dir" --undo > /dev/null 2>&1 \
      && "$PELVANE" --data-dir "$dir" --export "$dir/again.csv" > /dev/null 2>&1 \
      && cmp -s "$dir/again.csv" "$WORK/before.csv" \
      || problem="the undo after the kill did not bring the collection back"
  elif ! cmp -s "$dir/out.csv" "$WORK/before.csv"; then
    problem="the collection is neither the one before the undo nor the one after"
  fi
  verdict undo "$dir" "$problem"

  # An import started during a restore waits for it; killed at a random moment, it leaves the
  # backup with a leading part of its coins.
  dir="$WORK/writer-$t"
  cp -r "$WORK/whole" "$dir"
  PELVANE_TEST_PAUSE=restore-swap:200 "$PELVANE" --data-dir "$dir" --restore "$WORK/base.bak" > /dev/null 2>&1 &
  restoring=$!
  sleep 0.05
  kill_at_random $((restore_ms + 200 + import_ms)) "$PELVANE" --data-dir "$dir" --import "$WORK/import.csv"
  wait "$restoring" || { echo "writer trial $t failed: the restore did not finish"; failed=$((failed + 1)); keep=1; }
  verdict writer "$dir" "$(check_import "$dir")"

  # Coins saved with their photos, killed at a random moment: no saved coin lacks its photo.
  # Every other trial is killed in its first tenth of a second, while the new collection is
  # being made: it is then either absent or whole, never a file the program refuses.
  dir="$WORK/photos-$t"
  kill_at_random $((t % 2 ? photos_ms : 100)) "$PHOTOS" "$dir" 300
  problem=""
  if [ ! -e "$dir/Pelvane.sqlite" ]; then
    : # killed before the collection was made: nothing was saved
  elif [ ! -s "$dir/Pelvane.sqlite" ]; then
    problem="an empty store file, which the program refuses to open"
  elif ! "$CHECK" "$dir/Pelvane.sqlite" > /dev/null 2>&1; then
    problem="the collection cannot be read"
  elif ! "$PHOTOS" --check "$dir" > "$dir/check" 2>&1; then
    problem="a coin lacks its photo: $(head -1 "$dir/check")"
  fi
  mkdir -p "$dir"
  verdict photos "$dir" "$problem"
done

echo "crash trials: $TRIALS imports, exports, backups, restores, undos, imports during a restore and saves with photos killed, $failed failed" \
     "(new coins saved before the kill: $saved_total in all; import ${import_ms} ms, export ${export_ms} ms," \
     "backup ${backup_ms} ms, restore ${restore_ms} ms, undo ${undo_ms} ms, photos ${photos_ms} ms)"
[ "$failed" -eq 0 ]
