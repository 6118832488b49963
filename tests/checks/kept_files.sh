#!/usr/bin/env bash
# The project files kept under tests/files are what their sources make. The first 100 bytes are not compared: they name
# the release of the database engine that wrote the file.
cd "$1/tests/files" || exit 2
made=$2/kept_files
mkdir -p "$made"
./make_files.sh "$made" || exit 1
failed=0
for file in *.gmk; do
  if ! cmp --ignore-initial=100 "$file" "$made/$file"; then
    echo "tests/files/$file is not what its sources make: run tests/files/make_files.sh"
    failed=1
  fi
done
exit $failed
