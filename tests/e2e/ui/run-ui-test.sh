#!/usr/bin/env bash
# Runs one UI driver script of this folder against the real application and
# the virtual instrument: run-ui-test.sh NAME. The sandbox is new for each
# test. NAME.seed.sql, when present, is applied to the database of a first
# start before the script runs (methods/instrument.seed.sql for a script with
# a method of its own), and methods/base.json changed by methods/NAME.json is installed after it;
# NAME.args holds extra options of scripts/run.
# NAME.setup SANDBOX, when present, prepares the sandbox before the start,
# and NAME.check SANDBOX looks at it (and at driver.log, the driver's
# output) after a passing script.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../../.." && pwd)
name="$1"
unset DISPLAY
export KESTRUM_NO_BUILD=1
sandbox=$(mktemp -d "${TMPDIR:-/tmp}/kestrum-ui.XXXXXX")
trap 'rm -rf "$sandbox"' EXIT
export KESTRUM_SANDBOX="$sandbox"
shots="$root/build/ui-shots/$name"
mkdir -p "$shots"
cd "$shots"

seed="$here/$name.seed.sql"
# A script with a method of its own runs on an instrument that is set up.
if [ ! -f "$seed" ] && [ -f "$here/methods/$name.json" ]; then seed="$here/methods/instrument.seed.sql"; fi
if [ -f "$seed" ]; then
  # A first start makes the tables; the seed then sets the instrument up.
  "$root/scripts/run" --drive "$here/boot.ui" >/dev/null
  sed "s/@INSTRUMENT@/Bench 1/" "$seed" | sqlite3 "$sandbox/var/KestrumDB"
fi
# methods/NAME.json, a method file, goes on the instrument as a user would
# put it there without a USB disk.
# The file is methods/base.json with what methods/NAME.json changes in it
# (table, row, column).
if [ -f "$here/methods/$name.json" ]; then
  python3 - "$here/methods/base.json" "$here/methods/$name.json" "$sandbox/method.json" <<'PY'
import json, sys
def merge(a, o):
    if isinstance(a, dict) and isinstance(o, dict):
        return {**a, **{k: merge(a.get(k), v) for k, v in o.items()}}
    return o
base, overlay = (json.load(open(f, encoding="utf-8")) for f in sys.argv[1:3])
json.dump(merge(base, overlay), open(sys.argv[3], "w", encoding="utf-8"))
PY
  "$root/build/bin/vantor-cli" method install "$sandbox/method.json" --sandbox "$sandbox"
fi
if [ -f "$here/$name.setup" ]; then bash "$here/$name.setup" "$sandbox"; fi
args=()
if [ -f "$here/$name.args" ]; then read -r -a args <"$here/$name.args"; fi
# The driver's output (the `texts` dumps among it) stays beside the pictures
# for NAME.check, which runs there.
"$root/scripts/run" "${args[@]}" --drive "$here/$name.ui" | tee driver.log
if [ -f "$here/$name.check" ]; then bash "$here/$name.check" "$sandbox"; fi
