# bash completion for orvane-job

_orvane_job() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} words=
    case $previous in
    --key | --postscript)
        compopt -o default
        COMPREPLY=()
        return ;;
    esac
    if [ "$COMP_CWORD" -eq 1 ]; then
        words='show diff password options --version --help'
    else
        case ${COMP_WORDS[1]} in
        show) words='--key --reveal --postscript --json --check' ;;
        diff) words='--key --reveal' ;;
        options)
            [ "$COMP_CWORD" -ne 2 ] || words=$(lpstat -e 2>/dev/null) ;;
        esac
        compopt -o default
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}
complete -F _orvane_job orvane-job
