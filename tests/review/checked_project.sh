#!/usr/bin/env bash
# gullymark-review as a script calls it: what it tells, where, with which exit status, and that it writes nothing.
#
#   checked_project.sh PROGRAM TEMPLATE FILES
set -uo pipefail

program=$1
template=$2
files=$3
work=$(mktemp -d)
trap 'chmod -R u+rwx "$work"; rm -rf "$work"' EXIT
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM

fail() {
  echo "checked_project: $1" >&2
  tail -n 20 "$work/out" "$work/err" >&2
  exit 1
}

# told STATUS ARGUMENT...: the program ends in 5 seconds with that status
told() {
  local expected=$1
  shift
  timeout 5 "$program" "$@" >"$work/out" 2>"$work/err" </dev/null
  local status=$?
  [ "$status" = "$expected" ] || fail "exit status $status, not $expected, of: $*"
}

# The last line on standard error.
last_word() { tail -n 1 "$work/err"; }

# What lies in the folder of the projects: names, times, sums.
look() { (cd "$work/road" && find . -printf '%P %T@ %m %s\n' | LC_ALL=C sort && find . -type f -exec sha256sum {} +); }

# refused WHY ARGUMENT...: nothing on standard output, and one line on standard error
refused() {
  local why=$1
  shift
  told 2 "$@"
  [ ! -s "$work/out" ] || fail "something is told before the failure of: $*"
  [ "$(wc -l <"$work/err")" = 1 ] || fail "not one line of: $*"
  [ "$(cat "$work/err")" = "gullymark-review: $why" ] || fail "not '$why'"
}

make_projects() {
  mkdir "$work/road"
  cp "$template" "$work/road/empty.gmk"
  cp "$files/metric.gmk" "$work/road/road.gmk"
  # An inlet that names one that is not there, under a name that no script would like.
  sqlite3 "$work/road/road.gmk" "UPDATE INLET SET PREINLET1 = 'NO\"WHERE\\' WHERE INLET_NUMBER = 'CB-1';
    UPDATE INLET SET INLET_NUMBER = 'C' || char(9) || 'B' || char(10) || CAST(x'ff' AS TEXT) || 'é' WHERE INLET_NUMBER = 'CB-2'"
  cp "$work/road/road.gmk" "$work/road/locked.gmk"
}

nothing_is_found() {
  told 0 --check "$work/road/empty.gmk"
  [ ! -s "$work/out" ] || fail "findings in an empty project"
  [ "$(last_word)" = "gullymark-review: 0 findings on 0 inlets: 0 wrong, 0 beyond, 0 doubtful" ] || fail "other counts"
  told 0 --json --check "$work/road/empty.gmk"
  [ "$(cat "$work/out")" = "[]" ] || fail "no empty array"
}

findings_are_lines() {
  told 1 --check "$work/road/road.gmk"
  [ -s "$work/out" ] || fail "no findings"
  awk -F'\t' 'NF != 5 || $1 !~ /^(wrong|beyond|doubtful)$/ || $2 !~ /^[a-z0-9-]+$/ || $4 == "" { exit 1 }' "$work/out" ||
    fail "a line of another form"
  LC_ALL=C grep -qP '[\x01-\x08\x0b-\x1f\x7f]' "$work/out" && fail "a control character in a line"
  grep -qF 'NO"WHERE\' "$work/out" || fail "the inlet that is not there is not told of"
  local counts
  counts="$(wc -l <"$work/out") findings on 2 inlets: $(grep -c '^wrong' "$work/out") wrong"
  [[ $(last_word) == "gullymark-review: $counts, "* ]] || fail "not the counts $counts"
}

json_tells_the_same() {
  told 1 --check "$work/road/road.gmk"
  cp "$work/out" "$work/lines"
  told 1 --check "$work/road/road.gmk" --json
  perl -MJSON::PP -e '
    local $/;
    my $findings = JSON::PP->new->utf8->decode(scalar <STDIN>);
    for my $finding (@$findings) {
        my @texts = map { $finding->{$_} // die "no $_" } qw(severity rule inlet text advice);
        die "more than five" if keys %$finding != 5;
        tr/\x00-\x1f\x7f/ / for @texts;
        my $line = join("\t", @texts) . "\n";
        utf8::encode($line);
        print $line;
    }' <"$work/out" >"$work/json_lines" || fail "no JSON"
  # The byte that is no character stands as it is in the lines.
  diff <(LC_ALL=C sed 's/\xff/\xef\xbf\xbd/g' "$work/lines") "$work/json_lines" >"$work/err" || fail "JSON tells something else"
}

limits_are_numbers() {
  told 1 --check "$work/road/road.gmk" --bypass-limit 1e9
  for limit in "" many -1 0x10 1,5 nan inf 1cfs; do
    refused "the limit of a bypass is a number that is not negative, not \"$limit\"" --check "$work/road/road.gmk" --bypass-limit "$limit"
  done
  refused "--bypass-limit needs a flow" --check "$work/road/road.gmk" --bypass-limit
}

other_command_lines_are_refused() {
  refused "--check with a file is missing" --json
  refused "--check with a file is missing" "$work/road/road.gmk" --bypass-limit 1
  refused "--check needs a file" --check
  refused "there is no place for the argument $work/road/road.gmk" "$work/road/road.gmk" "$work/road/road.gmk"
  refused "there is no place for the argument $work/road/road.gmk" --check "$work/road/empty.gmk" "$work/road/road.gmk"
  refused "there is no place for the argument " ""
  refused "there is no place for the argument --check" --check "$work/road/road.gmk" --check "$work/road/road.gmk"
  refused "there is no place for the argument --fix" --check "$work/road/road.gmk" --fix
  refused "--pdf needs a file to write" --pdf
  refused "the file of the project is missing" --csv "$work/table.csv"
  refused "--check with a file is missing" --csv - "$work/road/road.gmk" --json
  refused "there is no place for the argument --pdf" --csv - "$work/road/road.gmk" --pdf -
  refused "there is no place for the argument --check" --pdf - "$work/road/road.gmk" --check "$work/road/road.gmk"
}

# The table has a line for its headings and one for each inlet; a line break within quotes begins none.
a_table_is_written() {
  told 1 --csv - "$work/road/road.gmk"
  cp "$work/out" "$work/table"
  told 1 --csv "$work/table.csv" "$work/road/road.gmk"
  [ ! -s "$work/out" ] || fail "a table on standard output too"
  cmp "$work/table" "$work/table.csv" || fail "another table in a file"
  perl -ne '
    $text .= $_;
    END {
        $text =~ s/"(?:[^"]|"")*"/quoted/g;
        my @lines = split /\r\n/, $text;
        my $commas = () = $lines[0] =~ /,/g;
        die "no heading with its unit" if $lines[0] !~ /^Inlet,.*,Bypass \(cms\),/;
        die "not 3 lines" if @lines != 3;
        (() = $_ =~ /,/g) == $commas or die "other columns" for @lines;
    }' "$work/table.csv" 2>"$work/err" || fail "no table"
  told 0 --csv - "$work/road/empty.gmk"
}

a_book_is_written() {
  told 1 --pdf "$work/book.pdf" "$work/road/road.gmk"
  [ "$(wc -l <"$work/err")" = 1 ] || fail "more than the counts are told of a book"
  [ "$(head -c 5 "$work/book.pdf")" = %PDF- ] || fail "no book"
  [ "$(LC_ALL=C grep -ac '^/Type /Page$' "$work/book.pdf")" -ge 4 ] || fail "fewer than four pages for two inlets"
  told 0 --pdf "$work/book.pdf" "$work/road/empty.gmk"
  [ "$(LC_ALL=C grep -ac '^/Type /Page$' "$work/book.pdf")" = 1 ] || fail "the book of a project without inlets was not put in its place"
}

# A project is never written over, by whatever name.
no_project_is_written_over() {
  ln -s road/road.gmk "$work/link.csv"
  for out in "$work/road/road.gmk" "$work/link.csv" "$work/road/empty.gmk"; do
    told 2 --csv "$out" "$work/road/road.gmk"
    told 2 --pdf "$out" "$work/road/road.gmk"
  done
  told 2 --csv "$work/nowhere/table.csv" "$work/road/road.gmk"
  told 2 --csv "$work/never.csv" "$work/road/missing.gmk"
  [ ! -e "$work/never.csv" ] || fail "a file is written of a project that is not there"
}

a_window_needs_a_display() {
  refused "there is no display for a window; --check needs none"
  refused "there is no display for a window; --check needs none" "$work/road/road.gmk"
  DISPLAY=:65533 refused "there is no display for a window; --check needs none" "$work/road/road.gmk"
}

what_cannot_be_read_is_refused() {
  local where=$work/road
  refused "unable to open database file - $where/missing.gmk" --check "$where/missing.gmk"
  refused "unable to open database file: it is not an ordinary file - $where" --check "$where"
  refused "unable to open database file - " --check ""
  refused "unable to open database file: it is not an ordinary file - /dev/zero" --check /dev/zero
  mkfifo "$where/pipe.gmk"
  refused "unable to open database file: it is not an ordinary file - $where/pipe.gmk" --check "$where/pipe.gmk"
  refused "this is not a Gullymark project file - $files/empty.gmk" --check "$files/empty.gmk"
  refused "this is not a Gullymark project file - $files/other_program.gmk" --check "$files/other_program.gmk"
  refused "file is not a database - $files/text.gmk" --check "$files/text.gmk"
  refused "database disk image is malformed - $files/truncated.gmk" --check "$files/truncated.gmk"
  refused "database disk image is malformed - $files/garbled.gmk" --check "$files/garbled.gmk" --json
}

# Another program keeps the file locked until its standard input ends.
a_locked_file_is_refused() {
  local held
  exec {held}> >(exec sqlite3 "$work/road/locked.gmk" >"$work/held" 2>&1)
  local holder=$!
  echo "BEGIN EXCLUSIVE; SELECT 'held';" >&"$held"
  for _ in $(seq 100); do
    [ -s "$work/held" ] && break
    sleep 0.1
  done
  refused "database is locked - $work/road/locked.gmk" --check "$work/road/locked.gmk"
  exec {held}>&-
  wait "$holder"
}

old_releases_are_read() {
  for old in august_2007 augustl_2007; do
    timeout 5 "$program" --check "$files/$old.gmk" >"$work/out" 2>"$work/err"
    [ $? -le 1 ] || fail "$old.gmk is not read"
  done
}

a_failed_write_is_a_failure() {
  for command in --check "--csv -" "--pdf -"; do
    # shellcheck disable=SC2086
    timeout 5 "$program" $command "$work/road/road.gmk" >/dev/full 2>"$work/err"
    [ $? = 2 ] || fail "a full disk is not told"
    [ "$(last_word)" = "gullymark-review: nothing more can be written to standard output" ] || fail "a full disk is told otherwise"
  done
}

help_and_version_are_told() {
  told 0 --help
  for option in --check --pdf --csv --bypass-limit --json --help --version; do
    grep -q -- "^  $option " "$work/out" || fail "the help does not tell $option"
  done
  told 0 --version
  grep -qE '^gullymark-review [0-9]+\.[0-9]+\.[0-9]+$' "$work/out" || fail "no version"
}

make_projects
chmod 444 "$work"/road/*.gmk
before=$(look)
chmod 555 "$work/road"
nothing_is_found
findings_are_lines
json_tells_the_same
limits_are_numbers
other_command_lines_are_refused
a_table_is_written
a_book_is_written
no_project_is_written_over
a_window_needs_a_display
a_failed_write_is_a_failure
help_and_version_are_told
chmod 755 "$work/road"
[ "$(look | grep -v '^ ')" = "$(grep -v '^ ' <<<"$before")" ] || fail "something was written, made or deleted"
what_cannot_be_read_is_refused
rm "$work/road/pipe.gmk"
chmod 644 "$work/road/locked.gmk"
a_locked_file_is_refused
old_releases_are_read
echo "checked_project: told, refused, nothing written"
