# Waiting for conditions, for scripts to source. Nothing here judges by the clock: a wait ends when
# its condition holds, and its limit is there so that a script which waits in vain says for what.

# The folder that keeps what a failed run leaves: its logs and a picture of the screen.
EVIDENCE=${EVIDENCE:-$(mktemp -d "${TMPDIR:-/tmp}/kelvarine-run-XXXXXX")}
export EVIDENCE
WAIT_LIMIT=${WAIT_LIMIT:-120}

# fail SENTENCE: says what is wrong, keeps a picture of the screen, names what is left and ends.
fail() {
    printf '%s\n' "$1" >&2
    if [ -n "${DISPLAY:-}" ] && command -v import >/dev/null &&
        timeout 20 import -window root "$EVIDENCE/screen.png" 2>/dev/null; then
        echo "A picture of the screen: $EVIDENCE/screen.png" >&2
    fi
    local log
    for log in "$EVIDENCE"/*.log; do
        [ -s "$log" ] && echo "A log: $log" >&2
    done
    exit 1
}

# wait_until WHAT COMMAND [ARGUMENT ...]: runs the command again and again until it succeeds; when it
# has not within the limit, fails with what was waited for. What the command complains of on the way
# counts for nothing; where it knows that it never will succeed it sets hopeless to a sentence for fail.
wait_until() {
    local what=$1 end=$((SECONDS + WAIT_LIMIT)) hopeless=''
    shift
    until "$@" 2>/dev/null; do
        [ -z "$hopeless" ] || fail "$hopeless"
        [ "$SECONDS" -lt "$end" ] || fail "Waited $WAIT_LIMIT s in vain for $what."
        sleep 0.05
    done
}

# ended PID: whether a process of this shell is over.
ended() {
    ! kill -0 "$1"
}
