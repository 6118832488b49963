#!/usr/bin/env bash
# Every text of a message box stands in a test to the letter: whole, or part by part where the program joins it.
cd "$1" || exit 2
exec perl tests/checks/messages_tested.pl
