# How far a long command is, on standard error. Sourced by common.sh, never started.
# shellcheck shell=bash

# Where there is no terminal, seconds between two lines of one stage.
readonly progress_pause=10

# with_progress STEP COMMAND...: nobody needs the command's output unless it fails, and then all of it is printed but
# Ninja's count of steps. Meanwhile the function STEP is called with each of its lines, and sets `step` when the line
# tells how far it is.
with_progress() (
    step_of=$1 status=0
    shift
    log=$(mktemp) || exit
    trap 'rm -f -- "$log"' EXIT
    # What shows the steps must not end the command.
    "$@" 2>&1 | tee -- "$log" | { show_steps "$step_of" || cat >/dev/null; } || status=$?
    ((status == 0)) || grep -v '^\[[0-9]*/[0-9]*\]' -- "$log" >&2 || true
    exit "$status"
)

# Shows the steps of the lines on standard input: on a terminal in one line that changes, elsewhere each stage, which is
# the step's first word, and how far it is now and then.
show_steps() {
    local step_of=$1 line step stage='' shown_at=0
    while IFS= read -r line; do
        step=''
        "$step_of" "$line"
        if [[ -z $step ]]; then
            continue
        elif [[ -t 2 ]]; then
            printf '\r\e[K%.79s' "$step" >&2
        elif [[ ${step%% *} != "$stage" ]] || ((SECONDS - shown_at >= progress_pause)); then
            say "$step"
            shown_at=$SECONDS
        fi
        stage=${step%% *}
    done
    [[ -z $stage || ! -t 2 ]] || printf '\r\e[K' >&2
}

# Ninja begins its lines with "[done/all]".
building_step() {
    if [[ $1 =~ ^\[([1-9][0-9]*)/([0-9]+)\] ]]; then
        step="Building ${BASH_REMATCH[1]} of ${BASH_REMATCH[2]}"
    fi
}
