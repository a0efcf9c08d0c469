#!/bin/sh
# Runs a program that leaves files in the user's folders in a home of its own, without a display.
home=$(mktemp -d) || exit
trap 'rm -rf "$home"' EXIT
export HOME="$home" XDG_CONFIG_HOME="$home" XDG_DATA_HOME="$home" XDG_RUNTIME_DIR="$home" TMPDIR="$home"
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen
"$@"
