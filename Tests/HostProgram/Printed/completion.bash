# bash completion for proupsells
_proupsells() {
    local current=${COMP_WORDS[COMP_CWORD]} words=
    case ${COMP_WORDS[1]} in
        show) words="--help --size --scale --appearance --locale --layout-direction --text-size --reduce-motion --safe-area --strings --theme --start --record --watch" ;;
        run) words="--help --out" ;;
        texts) words="--help --format" ;;
        read) words="--help --offers --size --scale --appearance --locale --layout-direction --text-size --reduce-motion --safe-area --strings --theme" ;;
        lint) words="--help --strings --accept --format" ;;
        audit) words="--help --matrix --accept --strings --theme --format" ;;
        gallery) words="--help --out --compare --matrix --strings --theme" ;;
        evidence) words="--help --out" ;;
        completion) words="--help" ;;
        manual) words="--help" ;;
    esac
    if ((COMP_CWORD == 1)); then
        COMPREPLY=($(compgen -W "show run texts read lint audit gallery evidence completion manual" -- "$current"))
    elif [[ $current == -* ]]; then
        COMPREPLY=($(compgen -W "$words" -- "$current"))
    else
        COMPREPLY=($(compgen -f -- "$current"))
    fi
}
complete -o filenames -F _proupsells proupsells
