# For checks of what commands say: a folder of their own to work in, and a table row for each call.
# A check sources this file, and ends with "exit $failed".
failed=0
work=$(mktemp -d) && cd "$work" && trap 'rm -rf "$work"' EXIT

# The exit status, an extended regular expression, and the command. The expression is for all that the command says:
# standard output, then the lines of standard error, each after "! ".
expect() {
    local status=$1 pattern=$2 said got
    shift 2
    said=$("$@" < /dev/null 2> said.err)
    got=$?
    said+=$(sed 's/^/! /' said.err)
    [ $got -eq "$status" ] && [[ $said =~ $pattern ]] || { echo "FAILED: $* ($got): no $pattern in: $said"; failed=1; }
}
