# Sourced by the scripts that make packages and try them with a stand-in agent that looks after the front end. They
# name the folder of a test, $work, and those where the front end may log, $logs; $name, $vendor and $version are told by
# the build's file "product".
# shellcheck shell=bash disable=SC2154

# list_parts FOLDER PARTS OUT: the SPDX list of what is in FOLDER.
list_parts() {
    "$ROOT/packaging/list-parts" "$1" "$2" "$name" "$vendor" "$version" MIT "$3"
}

# older_than VERSION: the one before it in the last number.
older_than() { echo "${1%.*}.$((${1##*.} - 1))"; }

# wait_for WHAT COMMAND...: until the command succeeds, for at most a minute.
wait_for() {
    local what=$1 end=$((SECONDS + 60))
    shift
    until "$@" > /dev/null 2>&1; do
        if [ "$SECONDS" -ge "$end" ]; then
            tail -n 20 "$work"/agent.log >&2 2> /dev/null || true
            fail "Waited in vain: $what."
        fi
        sleep 0.1
    done
}

# Here grep --quiet never ends a pipe: it stops reading at the first match, which would kill the writer, and the
# pipe would count as failed.
agent_said() { grep --quiet "$1" "$work/agent.log"; }

# From now on agent_said knows only what is said from now on.
forget_what_agent_said() { : > "$work/agent.log"; }

# start_agent COMMAND...: the agent's command line, which starts the front end, too.
start_agent() {
    [ -p "$work/console" ] || mkfifo "$work/console"
    exec 8<> "$work/console"
    : > "$work/agent.log"
    "$@" < "$work/console" >> "$work/agent.log" 2>&1 8>&- &
    agent=$!
    wait_for_connection
}

wait_for_connection() { wait_for "the front end asks the agent for the context" agent_said "received 0 ContextRequest"; }

stop_agent() {
    echo quit >&8
    exec 8>&-
    wait "$agent" || fail "The agent was not content."
}

# logged TEXT: how many lines of the front end's log have it.
logged() { find "${logs[@]}" -type f -exec cat {} + 2> /dev/null | grep --count "$1" || true; }
has_logged() { [ "$(logged "$2")" -gt "$1" ]; }

lock_screen() {
    local before
    before=$(logged "ProcessLock")
    echo lock >&8
    wait_for "the front end locks" has_logged "$before" "ProcessLock"
}

# comes_back COMMAND...: runs it, and waits until another front end has locked the screen by itself and is connected.
comes_back() {
    local before
    before=$(logged "locks as before the program ended")
    forget_what_agent_said
    "$@"
    wait_for "the lock comes back" has_logged "$before" "locks as before the program ended"
    wait_for_connection
}
