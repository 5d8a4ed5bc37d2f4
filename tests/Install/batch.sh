#!/bin/sh
# batch.sh BIN: uses the installed batch programs in the folder BIN, on copies of the examples that are installed with them.
# The package's own test and the test of "cmake --install" share it.
set -eu
bin=$(CDPATH= cd -- "$1" && pwd)
root=$(CDPATH= cd -- "$(dirname -- "$0")/../.." && pwd)
shipped=$(dirname "$(dirname "$(readlink -f "$bin/nalvo-asm")")")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
  echo "FAILED: $*" >&2
  exit 1
}

release=$(sh "$root/tools/release-notes" version)
for program in nalvo-asm nalvo-sim nalvo-import nalvo-prove; do
  shown=$("$bin/$program" --version)
  case "$shown" in
    *" $release") echo "$shown" ;;
    *) fail "$program shows \"$shown\", the release is $release" ;;
  esac
done

cp -R "$shipped/examples/." "$work"
uart=$work/uart_monitor
"$bin/nalvo-asm" --event button1 "$uart/uart_monitor.nalvo" || fail "the UART monitor is not assembled"
for kind in hex mem vhd v; do
  [ -s "$uart/output/uart_monitor_rom.$kind" ] || fail "no output file of the kind $kind"
done
"$bin/nalvo-asm" --explain errSyntax | grep -q . || fail "no explanation of a message"

"$bin/nalvo-sim" -n 2000 --trace "$work/trace" "$work/motor_control/motor_control.nalvo" || fail "the simulation failed"
[ "$(wc -l <"$work/trace")" -ge 2000 ] || fail "the trace is too short"

"$bin/nalvo-import" -o "$work/console" --reference "$work/import/kcpsm6/console.log" "$work/import/kcpsm6/console.psm" ||
  fail "the import does not come to the words of the reference"
"$bin/nalvo-asm" "$(echo "$work"/console/*.nalvo)" || fail "what was imported is not assembled"

"$bin/nalvo-prove" -n 500 --core "$root/tests/cores/kcpsm6.v" "$work/motor_control/motor_control.nalvo" ||
  fail "the proof on a core failed"
echo "The batch programs work."
