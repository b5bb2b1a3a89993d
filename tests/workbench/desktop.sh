#!/bin/sh
# Runs the tests of the window that want a desktop on a display of their own with a window manager:
# real focus, real clipboard. Usage: desktop.sh PROGRAM
set -eu
program=$1
for scale in 1 2; do
    export QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=$scale LINEWRIGHT_DESKTOP=1
    # shellcheck disable=SC2016 # the inner shell's own words
    xvfb-run -a -s '-screen 0 1280x800x24' sh -c '
        openbox &
        manager=$!
        trap "kill $manager" EXIT
        "$1" --gtest_filter="DesktopTest.*"
    ' desktop "$program"
done
