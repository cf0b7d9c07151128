# Completes sub-commands, options and files of headunit and decoderbox; what there is, the programs themselves say.

_orb_canbus()
{
    local cur prev words cword
    _init_completion || return

    local command= word
    for word in "${words[@]:1:cword-1}"; do
        [[ $word == -* ]] || { command=$word; break; }
    done
    local commands
    commands=$("$1" --help 2>/dev/null | sed -n '/^Subcommands:/,$s/^  \([a-z][a-z-]*\).*/\1/p')
    [[ " $commands " == *[[:space:]]"$command"[[:space:]]* ]] || command=
    case $prev in
        --can-bus-type | --type)
            COMPREPLY=($(compgen -W '$(decoderbox --list 2>/dev/null | cut -d" " -f3)' -- "$cur"))
            return
            ;;
    esac
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '$("$1" $command --help 2>/dev/null | grep -oE -- "--[a-z][a-z0-9-]*" | sort -u)' -- "$cur"))
    elif [[ $cword -eq 1 && -n $commands ]]; then
        COMPREPLY=($(compgen -W '$commands' -- "$cur"))
    else
        _filedir
    fi
} && complete -F _orb_canbus headunit decoderbox
