# shellcheck shell=bash
# For a test of a program, in a directory of its own: source program_test.bash PROGRAM.
# Whoever sources it ends with "exit $failures".
program=$1
directory=$(mktemp -d)
trap 'rm -rf "$directory"' EXIT
cd "$directory" || exit
failures=0

# expect WHAT EXPECTED ACTUAL
expect() {
    if [[ $2 != "$3" ]]; then
        printf '%s\n  expected: %q\n  actual:   %q\n' "$1" "$2" "$3" >&2
        failures=1
    fi
}

# run ARGUMENT...: standard output, standard error and status, each in its own variable.
run() {
    output=$("$program" "$@" 2>errors)
    status=$?
    errors=$(<errors)
}
