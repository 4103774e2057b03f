# A screen for Easel's window, to be sourced with `easel` set: an X server that nobody sees, the window on it under Wine, and
# xdotool's mouse and keyboard. All of it ends with the script.
source "$(dirname "${BASH_SOURCE[0]}")/../../../scripts/common.sh"
source scripts/wine-environment.sh
for tool in Xvfb xdotool wine; do
    command -v "$tool" >/dev/null || fail "$tool is missing; run scripts/setup"
done
scripts/wine-prefix

work=$(mktemp -d)
record=$work/kept.play
figures=$work/figures
desktop=easel-$$ # another one than the last script's, which may still be ending
screen=  # the pid of the X server
running= # that of Wine with the window
test="the beginning"

end() {
    local status=$?
    if [ $status -ne 0 ] && [ -n "${PICTURES:-}" ]; then
        picture failed || true
        cp "$record" "$figures" "$work/output" "$PICTURES" || true
    fi
    if [ -n "$running" ] && kill -0 "$running" 2>/dev/null; then stop_wine; fi
    if [ -n "$screen" ]; then kill "$screen" 2>/dev/null || true; fi
    rm -rf "$work"
    exit $status
}
trap end EXIT

# until_true WHAT COMMAND...: asks until it is so.
until_true() {
    local what=$1 deadline=$((SECONDS + 60))
    shift
    until "$@"; do
        if [ $SECONDS -ge $deadline ]; then
            echo "waited in vain for $what; what was done:" >&2
            tail -n 20 "$record" "$work/output" >&2 || true
            fail "$test failed"
        fi
        sleep 0.1
    done
}

picture() { [ -z "${PICTURES:-}" ] || import -window root -trim +repage "$PICTURES/window-$1.png"; }
keys() { xdotool key --delay 40 "$@"; }
text() { xdotool type --delay 40 -- "$1"; }
point() { xdotool mousemove "$1" "$2"; }
click() { point "$1" "$2" && xdotool click 1; }

# `heard` is how much of the kept script expectations have used up. Time and the mouse on its way are not
# expected: of them only the last is kept.
heard=0
acts() { grep -vE '^(wait|move) ' "$record" 2>/dev/null || true; }
forget() { heard=$(acts | wc -l); }
said() { grep -qE -- "^$1$" < <(acts | tail -n "+$((heard + 1))"); }
# expect LINE...: waits for lines (patterns) that the window keeps from now on, in that order.
expect() {
    local line number
    for line in "$@"; do
        until_true "\"$line\"" said "$line"
        number=$(grep -nE -m1 -- "^$line$" < <(acts | tail -n "+$((heard + 1))") | cut -d: -f1)
        heard=$((heard + number))
    done
}

# What the window tells of itself: the number of a column of its last line, or the dialog that is in front.
figure() { tail -n 1 "$figures" 2>/dev/null | cut -d' ' -f"$1"; }
dialog() { figure 14-; }
told=0 # of its lines, those that do not count any more
forget_figures() { told=$(wc -l 2>/dev/null <"$figures" || echo 0); }
is_told() { [ "$(wc -l 2>/dev/null <"$figures" || echo 0)" -gt "$told" ]; }
# Is the dialog in front that is named; "-": none?
is_in_front() { is_told && [ "$(dialog)" = "$1" ]; }
expect_dialog() {
    forget_figures
    until_true "the dialog \"$1\"" is_in_front "$1"
}

# Where things are on the screen.
tool_y=58 tool_width=32 first_tool=20
select_tool=0 pencil=2 rectangle=4 symmetry=6 # by their order
tool() { click $((first_tool + $1 * tool_width)) $tool_y; }
canvas_x=0 canvas_y=0
find_canvas() {
    forget_figures
    until_true "the place of the canvas" is_told
    read -r canvas_x canvas_y view_width view_height < <(
        tail -n 1 "$figures" | awk '{ print $10, $11, $12 - $10, $13 - $11 }')
    zoom=$(awk '$1 == "zoom" { print $2 }' "$record" | tail -n 1)
}
# on X Y: a place of the drawing, 400 by 400 and in the middle of the view, as one of the screen.
on() {
    awk -v x="$1" -v y="$2" -v z="$zoom" -v w="$view_width" -v h="$view_height" -v l="$canvas_x" -v t="$canvas_y" \
        'BEGIN { printf "%d %d\n", l + w / 2 + (x - 200) * z + 0.5, t + h / 2 + (y - 200) * z + 0.5 }'
}
acts_are() { [ "$(acts | wc -l)" -ge "$1" ]; }
# drag X Y...: from place to place of the drawing, each a message of its own.
drag() {
    local count
    count=$(acts | wc -l)
    # shellcheck disable=SC2046 # two numbers
    point $(on "$1" "$2")
    xdotool mousedown 1
    shift 2
    while [ $# -gt 0 ]; do
        count=$((count + 1))
        until_true "the drag to arrive" acts_are "$count"
        # shellcheck disable=SC2046
        point $(on "$1" "$2")
        shift 2
    done
    until_true "the drag to arrive" acts_are $((count + 1))
    xdotool mouseup 1
}

# Panel items by their place from the dock's left and the panel's top.
dock_x() { echo $((canvas_x + view_width)); }
panel_item() { click $(($(dock_x) + $1)) $((canvas_y + $2)); }
menu_of_panel=(211 13) collapse=(189 13) close=(233 13)
count_field=(200 151) apply_button=(74 83)

start_window() {
    rm -f "$record" "$figures"
    heard=0
    wine explorer "/desktop=$desktop,1280x900,x11" "Z:$easel" open "$@" --record "Z:$record" --figures "Z:$figures" \
        >"$work/output" 2>&1 </dev/null 9>&- &
    running=$!
}
open_window() {
    start_window "$@"
    until_true "the window" said 'centre .*'
    forget
    find_canvas
}
closed() { ! kill -0 "$running" 2>/dev/null; }
expect_end() {
    until_true "the end of the window" closed
    wait "$running" || { cat "$work/output" >&2; fail "$test: the window ended with a failure"; }
    running=
}

# One program in the prefix at a time; 9>&-: Wine's server outlives us and must not keep the lock.
exec 9>build/wine.running
flock 9
Xvfb -displayfd 3 -fbdir "$work" -screen 0 1280x900x24 -nolisten tcp -noreset 3>"$work/display" \
    >"$work/output" 2>&1 9>&- &
screen=$!
until_true "the X server" grep -q . "$work/display"
DISPLAY=:$(<"$work/display")
export DISPLAY
start_wine 9>&-

