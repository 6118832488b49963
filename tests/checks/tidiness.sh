#!/usr/bin/env bash
# clang-tidy over every source that is compiled; those that the build joins are looked at together. What was clean is not
# looked at again until it or something that it includes has changed.
# Tests and fuzz targets go without the path-sensitive checks: GoogleTest's macros make those take half a minute for a file.
cd "$1" || exit 2
top=$PWD
build=$2
stamps=$build/tidy/clean
mkdir -p "$stamps"
export top build stamps

# look_at UNIT SUM
look_at() {
  local checks=-readability-duplicate-include # Of joined sources; house_rules holds it.
  [ ! -e "$stamps/$2" ] || return 0
  echo "$1" >>"$build/tidy/looked_at"
  case "$1" in
    "$top"/tests/* | "$top"/fuzz/* | "$build"/tidy/tests/* | "$build"/tidy/fuzz/*)
      checks+=',-clang-analyzer-*,-bugprone-*,-cert-*,-misc-*,-modernize-raw-string-literal,-modernize-use-nodiscard' ;;
  esac
  # Every function is looked at for itself, not only as its callers in the same unit use it.
  clang-tidy-14 --quiet --checks="$checks" --config-file=.clang-tidy -p "$build/tidy" \
    --extra-arg=-Xclang --extra-arg=-analyzer-inlining-mode=all "$1" 2>/dev/null |
    perl tests/checks/tidiness_units.pl --findings "$1"
  [ "${PIPESTATUS[0]}" -eq 0 ] || return 1
  [ "$2" = unknown ] || touch "$stamps/$2"
}
export -f look_at

units=$(perl tests/checks/tidiness_units.pl "$top" "$build") || exit 1
[ -n "$units" ] || { echo "no source to look at"; exit 1; }
: >"$build/tidy/looked_at"
tr '\t' '\n' <<<"$units" | xargs -r -P "$(nproc)" -n 2 bash -c 'look_at "$@"' _
status=$?
echo "looked at $(wc -l <"$build/tidy/looked_at") of $(wc -l <<<"$units") sources"
exit "$status"
