#!/usr/bin/env bash
# Compares vyn-eld with grep and sqlite3 on an element file of 1.4 million objects, and times the
# same import through the dialogs' path.
#   elements_bench.sh BUILD_FOLDER ELEMENT_FILE MPCORB_FILE
# BUILD_FOLDER is a release build; the large files are made by repeating the two small ones, in
# ${TMPDIR:-/tmp}, where they take 3 GB; MPCORB_FILE has its heading. Each figure is the best of three.
set -euo pipefail
build=$1
elements=$(realpath "$2")
mpcorb=$(realpath "$3")
vyn_eld=$(realpath "$build/tools/vyn-eld/vyn-eld")
make_large_file=$(realpath "$build/bench/make_large_file")
import_run=$(realpath "$build/bench/import_run")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"

# best NAME PREPARATION COMMAND...: seconds and peak memory.
best() {
  local name=$1 preparation=$2 shortest='' memory='' figures
  shift 2
  for _ in 1 2 3; do
    $preparation
    figures=$(/usr/bin/time -o figures -f '%e %M' "$@" >out 2>&1 && cat figures)
    if [[ -z $shortest ]] || awk "BEGIN { exit !(${figures% *} < $shortest) }"; then
      shortest=${figures% *} memory=${figures#* }
    fi
  done
  printf '%-52s %6.2f s %7d KB\n' "$name" "$shortest" "$memory"
}

as_rows() {
  LC_ALL=C awk '{ id = substr($0, 189, 15); sub(/ +$/, "", id); sub(/\r$/, "")
                  printf "%s\037%s\036", id, $0 }' "$1"
}

echo 'Making the files ...'
"$make_large_file" elements "$elements" 1400000 large.eld
"$make_large_file" elements "$elements" 100000 source.eld 1350000
sed '1,/^-----/d' "$mpcorb" >lines.dat
"$make_large_file" lines lines.dat 1400000 mpcorb.dat
as_rows source.eld >source.rows
as_rows large.eld | sqlite3 large.db \
  'CREATE TABLE objects(identifier TEXT COLLATE NOCASE PRIMARY KEY, record TEXT);' \
  '.mode ascii' '.import /dev/stdin objects'
cat >upsert.sql <<'SQL'
.mode ascii
CREATE TEMP TABLE source(identifier TEXT, record TEXT);
.import source.rows source
INSERT INTO objects SELECT identifier, record FROM source WHERE true
  ON CONFLICT(identifier) DO UPDATE SET record = excluded.record;
SQL
upsert() { sqlite3 work.db <upsert.sql; }
export -f upsert
fresh_file() { cp large.eld work.eld && sync; }
fresh_database() { cp large.db work.db && sync; }
no_output() { rm -f converted.eld; }

best 'grep -c, 1.4 million records' true grep -c '^[CM]' large.eld
best 'vyn-eld count' true "$vyn_eld" count large.eld
best 'sqlite3, 100,000 upserts' fresh_database bash -c upsert
best 'vyn-eld import, 100,000 objects, half of them new' fresh_file \
  "$vyn_eld" import source.eld work.eld --duplicate overwrite
best "vyn-eld convert mpcorb, $(stat -c %s mpcorb.dat) bytes" no_output \
  "$vyn_eld" convert mpcorb mpcorb.dat converted.eld
echo 'The same import by the dialogs:'
fresh_file
QT_QPA_PLATFORM=offscreen "$import_run" source.eld work.eld 2>/dev/null
