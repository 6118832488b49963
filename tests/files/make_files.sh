#!/usr/bin/env bash
# Makes the project files of this folder from their sources: make_files.sh [TARGET_FOLDER]
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
template=$here/../../resources/GullymarkAL10.sql
target=$(realpath "${1:-$here}")
cd "$target"

# make_database FILE: a new database from the statements on the standard input.
make_database() {
  rm -f "$1"
  sqlite3 -batch -bail -init /dev/null "$1" >/dev/null
}

project() {  # UNITS PRODUCT_NAME MAJOR_RELEASE RELEASE_DATE
  echo "INSERT INTO PROJECT (PROJECT_ID, PROJECT_NAME, DESCRIPTION, LOCATION, COUNTY, STATE, DESIGNER, UNITS,
          PRODUCT_NAME, MAJOR_RELEASE, RELEASE_DATE)
        VALUES ('P-7', 'Mill Road', '', 'Mill Creek', 'Autauga', 'AL', 'R. Harper', '$1', '$2', '$3', '$4');"
}

{ cat "$here/old_schema.sql"; project ENGLISH GULLYMARKAL 1.0 'AUGUST 2007'; cat "$here/inlets.sql"; } |
  make_database august_2007.gmk
{ cat "$here/old_schema.sql"; project ENGLISH GULLYMARKAL 1.0 'AUGUSTL 2007'; cat "$here/inlets.sql"; } |
  make_database augustl_2007.gmk
{ echo 'PRAGMA page_size = 1024;'; cat "$template"; project ENGLISH OTHERPRODUCT 1 'MAY 2010'; cat "$here/inlets.sql"; } |
  make_database other_product.gmk
{ echo 'PRAGMA page_size = 1024;'; cat "$template"; project METRIC GULLYMARKAL 1 'MAY 2010'; cat "$here/inlets.sql"; } |
  make_database metric.gmk

# A database that no project ever was.
echo 'PRAGMA page_size = 1024; PRAGMA application_id = 7; CREATE TABLE NOTES (TEXT TEXT);' |
  make_database other_program.gmk

# Half a file; and one whose rows of INLET are overwritten while all that is read at the open is whole.
size=$(stat -c %s metric.gmk)
head -c $((size / 2)) metric.gmk >truncated.gmk
cp metric.gmk garbled.gmk
page=$(sqlite3 -batch -init /dev/null metric.gmk "SELECT rootpage FROM sqlite_schema WHERE name = 'INLET'")
head -c 1024 /dev/zero | tr '\0' 'U' | dd of=garbled.gmk bs=1024 seek=$((page - 1)) conv=notrunc status=none

: >empty.gmk
echo 'Notes on the drainage of Mill Road. This is a text and no project.' >text.gmk
