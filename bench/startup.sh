#!/usr/bin/env bash
# Measures the time from start to the first visible window of Forcelab against SpeedCrunch, another
# small Qt program, started in turn under one virtual display; and Forcelab's memory with its main
# menu open. Needs the packages xvfb, x11-utils and speedcrunch.
#
#   bench/startup.sh [path of forcelab] [rounds]
set -eu
cd "$(dirname "$0")/.."
program=$(realpath "${1:-build/release/src/app/forcelab}")
rounds=${2:-10}
[ -x "$program" ] || { echo "build $program first: cmake --build --preset release" >&2; exit 1; }
for needed in Xvfb xwininfo speedcrunch; do
    command -v $needed >/dev/null || { echo "$needed is not installed" >&2; exit 1; }
done

folder=$(mktemp -d)
display=:$((90 + RANDOM % 900))
Xvfb $display -screen 0 1280x900x24 -noreset >"$folder/xvfb.log" 2>&1 &
server=$!
running=
trap 'kill $running $server 2>/dev/null; rm -rf "$folder"' EXIT
export DISPLAY=$display QT_QPA_PLATFORM=xcb HOME=$folder XDG_RUNTIME_DIR=$folder
until xwininfo -root >/dev/null 2>&1; do sleep 0.05; done

# A window of the screen's own, larger than a helper window, that can be seen.
window_is_seen() {
    local id
    for id in $(xwininfo -root -children 2>/dev/null |
        awk '$1 ~ /^0x/ && match($0, /[0-9]+x[0-9]+\+/) {
                 split(substr($0, RSTART, RLENGTH), size, /[x+]/)
                 if (size[1] > 100 && size[2] > 100) print $1 }'); do
        xwininfo -id "$id" 2>/dev/null | grep -q 'Map State: IsViewable' && return 0
    done
    return 1
}

# Starts a program, prints the milliseconds until its window, and leaves it in `running`.
start() {
    local begin=$EPOCHREALTIME end
    "$1" >/dev/null 2>&1 &
    running=$!
    until window_is_seen; do
        kill -0 $running 2>/dev/null || { echo "$1 ended early" >&2; exit 1; }
    done
    end=$EPOCHREALTIME
    taken=$(((${end/[.,]/} - ${begin/[.,]/}) / 100))
}

stop() {
    kill $running 2>/dev/null || true
    wait $running 2>/dev/null || true
    running=
    while window_is_seen; do sleep 0.02; done
}

median() {
    sort -n "$1" | awk '{ v[NR] = $1 } END { print (NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2) / 10 }'
}

# One round that is not counted brings both programs into the file cache.
for round in $(seq 0 "$rounds"); do
    for other in "$program" "$(command -v speedcrunch)"; do
        start "$other"
        if [ "$round" -gt 0 ]; then
            echo $taken >>"$folder/$(basename "$other")"
            if [ "$other" = "$program" ]; then
                sleep 0.5
                awk '/VmRSS/ { print $2 }' "/proc/$running/status" >>"$folder/memory"
            fi
        fi
        stop
    done
done

ours=$(median "$folder/$(basename "$program")")
theirs=$(median "$folder/speedcrunch")
echo "forcelab    $ours ms to its window (median of $rounds)"
echo "speedcrunch $theirs ms"
echo "ratio       $(awk -v a="$ours" -v b="$theirs" 'BEGIN { printf "%.2f", a / b }')"
echo "memory      $(sort -n "$folder/memory" | awk '{ v = $1 } END { printf "%.1f", v / 1024 }') MB with the main menu open, at most"
