#!/usr/bin/env bash
# Kills programs that change an element file at their system calls, fills the disk under them, takes
# away rights and files, and checks that nothing is lost but what was being written.
#   safety.sh VYN_ELD EDIT_OBJECT [--long]
# It kills at every system call from the first one that touches the file on; the long run also lets
# every one of them fail instead.
set -uo pipefail
vyn_eld=$1
edit_object=$2
long=${3:-}
command -v strace >/dev/null || { echo "strace is missing" >&2; exit 2; }
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
failures=0
interruptions=0
faults=0

fail() {
  echo "FAILED: $*" >&2
  failures=$((failures + 1))
}

# record KIND IDENTIFIER TEXT: one record, CR LF included.
record() { printf '%-188s%-15s%-211s \r\n' "$1  $3" "$2" ''; }

# object IDENTIFIER PAGES TEXT
object() {
  record C "$1" "$3"
  for ((page = 1; page < $2; page++)); do record + "$1" "$3"; done
}

# The object in work is called B; what is checked is all the others. Placeholders are no objects.
others() { grep -av -e '^N ' -e 'B              ' "$1"; }

# With `alone` there are no others.
alone=
objects_before() {
  [[ $alone ]] || object A 2 old
  object B "$1" old
  [[ $alone ]] || { object C 3 old; object D 1 old; }
}

# prepare PAGES: the target with object B of so many pages, and the sources.
prepare() {
  rm -rf run
  mkdir run
  objects_before "$1" >run/t.eld
}
object B 3 new >grown.eld
object B 1 new >shrunk.eld
object E 1 new >added.eld
object F 1 new >f.eld

# The system calls from the first one that names the target on, as "name occurrence".
calls_of() {
  strace -f -qq -o trace "$@" >/dev/null 2>&1
  sed -E 's/^[0-9]+ +//' trace | awk -F'(' '
    $1 ~ /^[a-z0-9_]+$/ { seen[$1]++; if (/t\.eld/ && $1 != "execve") begun = 1; if (begun) print $1, seen[$1] }' |
    grep -v '^exit'
}

# check_after NAME: the next operation finds all other objects and leaves nothing behind.
check_after() {
  "$vyn_eld" import added.eld run/t.eld >/dev/null 2>err || fail "$1: the next operation: $(<err)"
  { others <(objects_before 1); cat added.eld; } >expected
  others run/t.eld >found
  cmp -s expected found || fail "$1: other objects are not what they were"
  LC_ALL=C awk '!/^N/ { id = substr($0, 189, 15); if (/^[+]/ && id != before) exit 1; before = id }' \
    run/t.eld || fail "$1: a record is given to another object"
  [[ -e 'run/t.$$E' ]] && fail "$1: a temporary file is left"
  (($(stat -c %s run/t.eld) % 417 == 0)) || fail "$1: the file does not end at a record"
}

# sweep NAME PAGES COMMAND...
sweep() {
  local name=$1 pages=$2 call occurrence injection
  shift 2
  prepare "$pages"
  calls_of "$@" >calls
  while read -r call occurrence; do
    for injection in signal=SIGKILL ${long:+error=EIO}; do
      prepare "$pages"
      # The shell tells of every kill; nobody wants to know.
      { strace -f -qq -o /dev/null -e inject="$call:$injection:when=$occurrence" "$@"; } \
        >/dev/null 2>&1
      interruptions=$((interruptions + 1))
      check_after "$name with $injection at $call $occurrence"
    done
  done <calls
}

# fault NAME PAGES INJECTION MESSAGE COMMAND...: the message is told, and, unless records were
# already shifted, the file is as it was.
fault() {
  local name=$1 pages=$2 injection=$3 message=$4
  shift 4
  prepare "$pages"
  strace -f -qq -o /dev/null -e inject="$injection" "$@" >/dev/null 2>err
  local status=$?
  faults=$((faults + 1))
  ((status == 1)) || fail "$name: exit status $status"
  grep -q "$message" err || fail "$name: says \"$(<err)\""
  [[ $injection == rename* || ! -e 'run/t.$$E' ]] || fail "$name: a temporary file is left"
  check_after "$name"
}

overwrite=(--duplicate overwrite)
grow=("$vyn_eld" import grown.eld run/t.eld "${overwrite[@]}")
shrink=("$vyn_eld" import shrunk.eld run/t.eld "${overwrite[@]}")
sweep 'growing import' 1 "${grow[@]}"
sweep 'shrinking import' 3 "${shrink[@]}"
sweep 'deletion' 2 "$vyn_eld" delete run/t.eld B
alone=yes
sweep 'deletion of the only object' 2 "$vyn_eld" delete run/t.eld B
alone=
sweep 'growing edit' 1 "$edit_object" run/t.eld 2 3
sweep 'shrinking edit' 3 "$edit_object" run/t.eld 2 1

# A full disk at every write, and at what follows the writes.
writes=$(prepare 1; calls_of "${grow[@]}" | grep -c pwrite64)
for ((i = 1; i < writes; i++)); do
  fault "disk full at write $i" 1 "pwrite64:error=ENOSPC:when=$i" '一時ファイルへのデータの書き込み' "${grow[@]}"
done
fault 'disk full at the last write' 1 "pwrite64:error=ENOSPC:when=$writes" '書き込みに失敗しました(1)' "${grow[@]}"
fault 'disk full at the sync' 1 'fsync:error=ENOSPC:when=1' '書き込みに失敗しました(3)' "${grow[@]}"
fault 'failing second sync' 1 'fsync:error=EIO:when=2' '書き込みに失敗しました(3)' "${grow[@]}"
fault 'file that cannot be deleted' 1 'unlink:error=EACCES:when=1' '現在の軌道要素ファイルを削除できません' "${grow[@]}"
fault 'file that cannot be renamed' 1 'rename:error=EACCES' '読み込みオープンに失敗しました(3)' "${grow[@]}"
fault 'disk full while an object is added' 1 'pwrite64:error=ENOSPC' '書き込みに失敗しました(1)' \
  "$vyn_eld" import f.eld run/t.eld
prepare 1
strace -f -qq -o trace "${grow[@]}" >/dev/null 2>&1
temporary=$(grep -a openat trace | grep -an '\$\$E.*O_CREAT' | head -1 | cut -d: -f1)
fault 'temporary file that cannot be made' 1 "openat:error=EACCES:when=$temporary" \
  '一時ファイルの書き込みオープン' "${grow[@]}"

# refused NAME MESSAGE COMMAND...: without rights; the file and its folder are as they were.
refused() {
  local name=$1 message=$2
  shift 2
  faults=$((faults + 1))
  cp run/t.eld before
  as_user "$@" >/dev/null 2>err && fail "$name: it is done"
  grep -q "$message" err || fail "$name: says \"$(<err)\""
  cmp -s run/t.eld before || fail "$name: the file is changed"
  [[ $(ls run) == t.eld ]] || fail "$name: a temporary file is left"
}

# The system's administrator may write everywhere.
as_user() {
  if ((EUID == 0)); then
    setpriv --reuid 65534 --regid 65534 --clear-groups -- "$@"
  else
    "$@"
  fi
}
chmod 755 .
prepare 1
chmod 666 run/t.eld
chmod 555 run
refused 'read-only folder' '一時ファイルの書き込みオープンに失敗しました' "${grow[@]}"
as_user "$vyn_eld" import shrunk.eld run/t.eld "${overwrite[@]}" >/dev/null ||
  fail 'read-only folder: an object cannot be written in its place'
chmod 777 run
prepare 1
chmod 444 run/t.eld
chmod 777 run
refused 'read-only file' '現在の軌道要素ファイルを削除できません' "${grow[@]}"
refused 'read-only file, added object' '読み込みオープンに失敗しました(3)' \
  "$vyn_eld" import f.eld run/t.eld

# A file that is gone.
prepare 1
rm run/t.eld
for command in 'import f.eld run/t.eld' 'delete run/t.eld B'; do
  faults=$((faults + 1))
  # shellcheck disable=SC2086
  "$vyn_eld" $command >/dev/null 2>&1 && fail "vanished file: $command is done"
  [[ -z $(ls run) ]] || fail "vanished file: $command leaves $(ls run)"
done

# Two programs that change the file at the same time.
prepare 1
for i in 1 2 3 4 5 6; do object "P$i" 2 new >"p$i.eld"; done
add_some() { for i in "$@"; do "$vyn_eld" import "p$i.eld" run/t.eld >/dev/null || echo bad; done; }
change_b() {
  for pages in 3 1 2 3 1; do "$edit_object" run/t.eld 2 "$pages" || echo bad; done
}
{ add_some 1 2 3 & add_some 4 5 6 & change_b & wait; } >out 2>&1
[[ -s out ]] && fail "two programs: $(<out)"
[[ $("$vyn_eld" count run/t.eld) == 10 ]] || fail "two programs: $("$vyn_eld" list run/t.eld)"
{ objects_before 1; cat p?.eld; } >expected
cmp -s <(others expected | sort) <(others run/t.eld | sort) || fail 'two programs: objects are changed'

echo "$interruptions interruptions, $faults faults, $failures failures"
((failures == 0))
