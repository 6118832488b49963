#!/usr/bin/env bash
# What the help tells of the program is so: messages, captions and commands stand in it to the letter, and so do the
# rows of the standard tables, the defaults of a new inlet, and the results of the worked inlets, which the tests solve.
cd "$1" || exit 2
exec perl tests/checks/help_texts.pl
