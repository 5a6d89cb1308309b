# A virtual display with a small window manager, and a player's hands and eyes on it.
# To be sourced.

# await SECONDS COMMAND...: waits until the command succeeds; fails when it does not in time.
await() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < deadline)) || return 1
        sleep 0.05
    done
}

# open_display FOLDER: the display's logs, and the home of all programs on it, are in the folder.
open_display() {
    local folder=$1
    mkdir -p "$folder/home"
    capture_log=$folder/capture.log
    export HOME=$folder/home QT_QPA_PLATFORM=xcb
    unset WAYLAND_DISPLAY SESSION_MANAGER DBUS_SESSION_BUS_ADDRESS QT_QPA_PLATFORMTHEME \
        QT_SCALE_FACTOR QT_STYLE_OVERRIDE XDG_CONFIG_HOME XDG_CACHE_HOME XDG_DATA_HOME
    # The server chooses a free number itself and tells it.
    Xvfb -displayfd 3 -noreset -screen 0 1280x1040x24 -nolisten tcp 3>"$folder/display" \
        2>"$folder/xvfb.log" &
    display_server=$!
    await 20 test -s "$folder/display" || return 1
    DISPLAY=:$(<"$folder/display")
    export DISPLAY
    # On a busy machine it may answer only some time after it has told its number.
    await 20 xdotool getdisplaygeometry >/dev/null 2>&1 || return 1
    openbox >"$folder/openbox.log" 2>&1 &
    window_manager=$!
    await 20 xdotool get_num_desktops >/dev/null 2>&1
}

close_display() {
    kill "${window_manager:-}" "${display_server:-}" 2>/dev/null
    wait "${window_manager:-}" "${display_server:-}" 2>/dev/null
}

# window_of PROCESS: prints the game's window; fails while it shows none.
window_of() {
    xdotool search --onlyvisible --all --pid "$1" --name '^Quadrel$' 2>/dev/null
}

# The screen above is 1040 high: the game starts there at twice the handheld's size, and its
# 15 by 15 board has cells of 16 handheld pixels under a title bar of 26.
magnification=2
cell_side=$((16 * magnification))
board_top=$((26 * magnification))

# tap_cell WINDOW ROW COLUMN
tap_cell() {
    xdotool mousemove --window "$1" $(($3 * cell_side + cell_side / 2)) \
        $((board_top + $2 * cell_side + cell_side / 2)) click 1
}

# type_letters LETTERS: into the window that has the focus.
type_letters() {
    xdotool key $(grep -o . <<<"$1")
}

# cells_shown WINDOW ROW COLUMN COUNT: prints the raw pixels of cells that lie side by side.
cells_shown() {
    local size=$(($4 * cell_side))x$cell_side
    import -silent -window "$1" -crop "$size+$(($3 * cell_side))+$((board_top + $2 * cell_side))" \
        -depth 8 rgb:- 2>>"$capture_log"
}

# row_pattern WINDOW ROW: prints # for each cell with a black middle, a dot for any other.
row_pattern() {
    cells_shown "$1" "$2" 0 15 |
        convert -size "$((15 * cell_side))x$cell_side" -depth 8 rgb:- -sample '15x1!' \
            -colorspace Gray -threshold 5% gray:- 2>>"$capture_log" | tr '\000\377' '#.'
}
