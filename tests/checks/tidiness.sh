#!/usr/bin/env bash
# clang-tidy over every source that is compiled; those that the build joins are looked at together. What was clean is not
# looked at again until it or something that it includes has changed.
# Tests and fuzz targets go without the path-sensitive checks: GoogleTest's macros make those take half a minute for a file.
#
#   tidiness.sh SOURCE_FOLDER BUILD_FOLDER [--deep]
#
# The analysis of paths looks at every function for itself, not only as its callers use it, and ends in each behind 20000
# nodes, new lines first: the formulas have more paths than anybody waits for at every change. --deep looks at the paths alone,
# as far as clang goes by itself, best in a build that joins no sources.
cd "$1" || exit 2
top=$PWD
build=$2
depth=${3:-}
stamps=$build/tidy/clean$depth
mkdir -p "$stamps"
export top build depth stamps

# look_at UNIT SUM
look_at() {
  local checks=-readability-duplicate-include # Of joined sources; house_rules holds it.
  local paths=(--extra-arg={-Xclang,-analyzer-inlining-mode=all,-Xclang,-analyzer-config,-Xclang,max-nodes=20000})
  [ ! -e "$stamps/$2" ] || return 0
  echo "$1" >>"$build/tidy/looked_at"
  [ "$depth" != --deep ] || { checks='-*,clang-analyzer-*,-clang-analyzer-cplusplus.NewDeleteLeaks' && paths=(); }
  case "$1" in
    "$top"/tests/* | "$top"/fuzz/* | "$build"/tidy/tests/* | "$build"/tidy/fuzz/*)
      checks+=',-clang-analyzer-*,-bugprone-*,-cert-*,-misc-*,-modernize-raw-string-literal,-modernize-use-nodiscard' ;;
  esac
  clang-tidy-14 --quiet --checks="$checks" --config-file=.clang-tidy -p "$build/tidy" "${paths[@]}" "$1" 2>/dev/null |
    perl tests/checks/tidiness_units.pl --findings "$1"
  [ "${PIPESTATUS[0]}" -eq 0 ] || return 1
  [ "$2" = unknown ] || touch "$stamps/$2"
}
export -f look_at

units=$(perl tests/checks/tidiness_units.pl "$top" "$build") || exit 1
[ "$depth" != --deep ] || units=$(grep -vE '/(tests|fuzz)/' <<<"$units")
[ -n "$units" ] || { echo "no source to look at"; exit 1; }
: >"$build/tidy/looked_at"
tr '\t' '\n' <<<"$units" | xargs -r -P "$(nproc)" -n 2 bash -c 'look_at "$@"' _
status=$?
echo "looked at $(wc -l <"$build/tidy/looked_at") of $(wc -l <<<"$units") sources"
exit "$status"
