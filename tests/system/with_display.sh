#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
#
# Runs a command on a virtual X display of its own and ends with the command's status:
#
#   with_display.sh [--screen 1280x720x24] [--wm openbox] [--compositor "picom ..."]
#                   [--server "-extension MIT-SHM"] COMMAND [ARGUMENT...]
#
# The server picks a free display number. DISPLAY names it, TOVAREL_SERVER_PID is its process, and
# nothing of the session around shines through. Whatever ends the script ends the server, the
# window manager and the compositing manager too.
set -eu

screen=1280x720x24
server_options=
wm=
compositor=
while [ $# -gt 0 ]; do
    case $1 in
    --screen) screen=$2 ;;
    --wm) wm=$2 ;;
    --compositor) compositor=$2 ;;
    --server) server_options=$2 ;;
    --)
        shift
        break
        ;;
    -*)
        echo "with_display.sh: unknown option $1" >&2
        exit 2
        ;;
    *) break ;;
    esac
    shift 2
done
[ $# -gt 0 ] || { echo "with_display.sh: no command" >&2; exit 2; }

scratch=$(mktemp -d)
started=
cleanUp() {
    trap - EXIT INT TERM HUP
    # The newest first: clients go before their server.
    for process in $started; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    rm -rf "$scratch"
}
trap cleanUp EXIT
trap 'cleanUp; exit 130' INT
trap 'cleanUp; exit 143' TERM HUP

# waitFor LIMIT WHAT COMMAND...: LIMIT in tenths of a second.
waitFor() {
    left=$1
    what=$2
    shift 2
    until "$@"; do
        left=$((left - 1))
        [ "$left" -gt 0 ] || { echo "with_display.sh: no $what" >&2; cat "$scratch"/*.log >&2; exit 1; }
        sleep 0.1
    done
}

unset WAYLAND_DISPLAY
export XDG_SESSION_TYPE=x11

# shellcheck disable=SC2086 # options are words on purpose
Xvfb -displayfd 3 -screen 0 "$screen" -nolisten tcp -noreset $server_options \
    3>"$scratch/display" >"$scratch/server.log" 2>&1 &
TOVAREL_SERVER_PID=$!
started="$TOVAREL_SERVER_PID"
export TOVAREL_SERVER_PID
waitFor 100 "display" test -s "$scratch/display"
DISPLAY=":$(cat "$scratch/display")"
export DISPLAY

if [ -n "$wm" ]; then
    # Openbox forgets a window that asks to be shown while it starts, so its properties on the root
    # window are not enough to go by: it tells when it has started.
    # shellcheck disable=SC2086
    $wm --startup "touch $scratch/wm" >"$scratch/wm.log" 2>&1 &
    started="$! $started"
    waitFor 100 "window manager" test -e "$scratch/wm"
fi
if [ -n "$compositor" ]; then
    # shellcheck disable=SC2086
    $compositor >"$scratch/compositor.log" 2>&1 &
    started="$! $started"
    # Whoever needs to wait for it has to ask the display.
    export TOVAREL_COMPOSITOR="$compositor"
fi

# In the background, because a shell hears no signal while it waits for a command in front.
"$@" <&0 &
command=$!
started="$command $started"
status=0
wait "$command" || status=$?
exit "$status"
