#!/bin/sh
# Start form, "OK" to the main window, File > Exit with No then Yes; and "I Quit".
# Usage: startup_test.sh path/to/tavrin
. "$(dirname "$0")/lib.sh"
TAVRIN="$1"
make_work
start_x

start_tavrin "$TAVRIN"
splash=$(wait_window "Tavrin")
sleep 0.5
shot splash.png
click_twips "$splash" 1250 4560 # OK
main=$(wait_window "Tavrin - 256 Color Pixel Editor - Version Beta - Build 033")
sleep 0.5
shot main-window.png
menu_exit() {
    open_menu "$main" 20 # File
    xdotool key Up Return # Exit is the last item
}
menu_exit
answer "$(wait_window "Tavrin")" n
sleep 0.5
kill -0 "$TAVRIN_PID" 2>/dev/null || fail "No in the exit question ended the program"
menu_exit
answer "$(wait_window "Tavrin")" y
wait_exit

start_tavrin "$TAVRIN"
splash=$(wait_window "Tavrin")
click_twips "$splash" 3180 4580 # I Quit
wait_exit
echo "startup: ok"
