#!/usr/bin/env bash
# Plants the faults of tools/faults.txt one at a time, rebuilds and runs the whole suite:
#   CAUGHT  a test failed (the first failing test is named after the id)
#   MISSED  every test passed
#   INVALID the snippet is not found exactly once, or the fault does not compile (a bad fault, not a catch)
# and ends with "caught N of M", M counting the valid faults. The source file is restored after every fault,
# also on failure or Ctrl-C; the restored copy gets a new mtime, so the next build recompiles it.
# Usage: tools/mutate.sh [--check] [ID...]   --check only verifies that every snippet applies, no build.
# Environment: BUILD (default build-mut, configured already), FAULTS (default tools/faults.txt),
# SLOW (default tst_alarmhostserver: a test that mostly waits, run only once every other test has passed).
# A test running over 120 s counts as failed: a planted fault may loop forever.
set -u
unset CCACHE_BASEDIR # a relative __FILE__ would break the tracing test
cd "$(dirname "$0")/.." || exit 2
BUILD=${BUILD:-build-mut}
FAULTS=${FAULTS:-tools/faults.txt}
SLOW=${SLOW:-tst_alarmhostserver}
check=0
[ "${1:-}" = --check ] && { check=1; shift; }

# fault MODE [ID]: MODE "ids" lists the ids; "file" prints a fault's file; "check" and "apply" verify that its
# lines occur exactly once (exit 1 otherwise), "apply" also writes the fault into the file.
fault() {
    python3 - "$FAULTS" "$@" <<'PY'
import sys
faults, mode, ident = sys.argv[1], sys.argv[2], (sys.argv[3:] or [None])[0]
blocks, cur = {}, None
for line in open(faults, encoding='utf-8').read().split('\n'):
    if line.startswith('## '):
        _, fid, path = line.split()[:3]
        if fid in blocks: sys.exit(f'duplicate id {fid}')
        cur = blocks[fid] = (path, [], [])
    elif cur and (line[:2] in ('- ', '+ ') or line in ('-', '+')):
        cur[1 if line[0] == '-' else 2].append(line[2:])
if mode == 'ids': print('\n'.join(blocks)); sys.exit(0)
if ident not in blocks: sys.exit(f'no fault {ident}')
path, find, repl = blocks[ident]
if mode == 'file': print(path); sys.exit(0)
text = '\n' + open(path, encoding='utf-8').read()
old = '\n' + '\n'.join(find) + '\n'
new = '\n' + ''.join(l + '\n' for l in repl)
if not find or text.count(old) != 1: sys.exit(1)
if mode == 'apply':
    open(path, 'w', encoding='utf-8').write(text.replace(old, new, 1)[1:])
PY
}

ids=("$@")
[ ${#ids[@]} -eq 0 ] && mapfile -t ids < <(fault ids)
[ ${#ids[@]} -eq 0 ] && { echo "no faults in $FAULTS" >&2; exit 2; }
log=$(mktemp -d)
backup=""; target=""
restore() { [ -n "$backup" ] && cp "$backup" "$target" && rm -f "$backup"; backup=""; }
trap 'restore; rm -rf "$log"' EXIT
trap 'restore; echo interrupted >&2; exit 130' INT TERM

start=$SECONDS; caught=0; valid=0; bad=0
for id in "${ids[@]}"; do
    target=$(fault file "$id") || { echo "INVALID $id (unknown id)"; bad=1; continue; }
    if [ $check = 1 ]; then
        fault check "$id" && echo "OK $id" || { echo "INVALID $id (not found exactly once in $target)"; bad=1; }
        continue
    fi
    backup=$(mktemp); cp "$target" "$backup"
    if ! fault apply "$id"; then
        echo "INVALID $id (not found exactly once in $target)"
    elif ! cmake --build "$BUILD" >"$log/build" 2>&1; then
        echo "INVALID $id (does not compile)"
    else
        valid=$((valid + 1))
        if ctest --test-dir "$BUILD" --stop-on-failure --timeout 120 -j2 -E "^($SLOW)\$" >"$log/test" 2>&1 &&
            ctest --test-dir "$BUILD" --stop-on-failure --timeout 120 -j2 -R "^($SLOW)\$" >>"$log/test" 2>&1; then
            echo "MISSED $id"
        else
            caught=$((caught + 1))
            first=$(sed -n 's/.*Test *#[0-9]*: \([^ ]*\) .*\*\*\*.*/\1/p' "$log/test" | head -n1)
            echo "CAUGHT $id ${first:-(ctest failed)}"
        fi
    fi
    restore
done
[ $check = 1 ] && exit $bad
echo "caught $caught of $valid ($(( (SECONDS - start) / 60 )) min)"
