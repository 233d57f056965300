#!/bin/sh
# Drags the tool bar by its title with the real mouse onto the free form, and the
# palette onto the canvas, and checks by the pixels of their title bars where each landed.
# Usage: bar_drag_test.sh path/to/tavrin SKIN.pcx
. "$(dirname "$0")/lib.sh"
TAVRIN="$1"
make_work
start_with_skin "$2"

navy_at() {
    case "$(xwd -root -silent | convert xwd:- -crop "1x1+$1+$2" txt:-)" in
    *'#000080'*) return 0 ;;
    esac
    return 1
}
# Presses at one point, moves there in steps as a hand does, and lets go.
drag() {
    xdotool mousemove "$1" "$2" mousedown 1
    sleep 0.2
    for i in 1 2 3 4 5 6 7 8; do
        xdotool mousemove $(($1 + ($3 - $1) * i / 8)) $(($2 + ($4 - $2) * i / 8))
        sleep 0.05
    done
    sleep 0.3
    [ -z "${5:-}" ] || shot "$5"
    xdotool mouseup 1
    sleep 0.5
}

locate_bars
navy_at $((bar_left + 2)) $((bar_top + 2)) || fail "the tool bar is not at its place"

# Grabbed 20 pixels into its title and let go over the free form at (300, 600): its
# corner goes 20 pixels left of the pointer and 6 above. The outline on the way is shot.
drag $((bar_left + 20)) $((bar_top + 6)) 300 600 tool-bar-drag.png
navy_at 282 596 || fail "the tool bar did not land under the pointer"
navy_at $((bar_left + 2)) $((bar_top + 2)) && fail "the tool bar is still at its old place"

# The palette let go over the middle of the canvas lands there the same way.
cx=$((width / 2))
cy=$((surface_top + height / 2))
drag $((palette_left + 60)) $((palette_top + 5)) "$cx" "$cy"
navy_at $((cx - 58)) $((cy - 3)) || fail "the palette did not land on the canvas"

# A drop over another control leaves the bar where it was: the tool bar let go over the
# palette's colours.
drag 300 597 $((cx - 20)) $((cy + 60))
navy_at 282 596 || fail "a drop on the palette moved the tool bar"
echo "bar drag: ok"
