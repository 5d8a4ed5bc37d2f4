#!/bin/sh
# window.sh BIN: opens the installed window without a display, with the settings of a new user, and lets it check itself.
# The package's own test and the test of "cmake --install" share it.
set -eu
bin=$(CDPATH= cd -- "$1" && pwd)
here=$(CDPATH= cd -- "$(dirname -- "$0")" && pwd)
release=$(sh "$here/../../tools/release-notes" version)
shipped=$(dirname "$(dirname "$(readlink -f "$bin/nalvo")")")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
  echo "FAILED: $*" >&2
  exit 1
}

shown=$("$bin/nalvo" --version)
case "$shown" in
  *" $release") echo "$shown" ;;
  *) fail "nalvo shows \"$shown\", the release is $release" ;;
esac

mkdir "$work/examples"
cp -R "$shipped/examples/." "$work/examples"
mkdir -m 700 "$work/home" "$work/runtime"
env -u XDG_CONFIG_HOME -u XDG_CACHE_HOME -u XDG_DATA_HOME HOME="$work/home" XDG_RUNTIME_DIR="$work/runtime" \
  QT_QPA_PLATFORM=offscreen timeout 120 "$bin/nalvo" "$work/examples/uart_monitor/uart_monitor.nalvo" -s "$here/window.js" \
  >"$work/log" || fail "the window ended with $?: $(cat "$work/log")"
cat "$work/log"
if grep -q '^BAD: ' "$work/log"; then
  fail "the window found a fault"
fi
grep -q '^The window works.$' "$work/log" || fail "the window did not come to the end of its check"
for style in "" -Bold -Oblique -BoldOblique; do
  grep -qxF "Loading font: $shipped/fonts/DejaVuSansMono$style.ttf" "$work/log" || fail "the font DejaVuSansMono$style is not loaded"
done
# The help is read from a copy of what was found.
copy=$(find "$work/home/.cache" -name hlpCollection.qhc)
[ -n "$copy" ] || fail "the help was not found"
cmp -s "$(dirname "$copy")/nalvo.qch" "$shipped/hlp/nalvo.qch" || fail "the help is not that of the installation"
# What draws its pages is loaded when one is seen: it and all that it needs must be there.
view="$(dirname "$(readlink -f "$bin/nalvo")")/nalvo-help-view.so"
missing=$(ldd -r "$view" 2>&1) || fail "the library that draws the help can not be loaded: $missing"
case "$missing" in
  *"not found"* | *"undefined symbol"*) fail "the library that draws the help lacks something: $missing" ;;
esac
