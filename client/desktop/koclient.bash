# Completion of koclient's options in bash.

_koclient()
{
    local cur prev words cword
    _init_completion || return
    case $prev in
    --db | --import | --export | --backup | --restore | --share)
        _filedir
        return
        ;;
    --lang)
        COMPREPLY=($(compgen -W "cs de en es fr it ja nl pl pt_BR ru" -- "$cur"))
        return
        ;;
    esac
    COMPREPLY=($(compgen -W "--db --lang --import --export --without-passwords --backup --restore
        --share --verify-log --thin-history --help --help-all --version" -- "$cur"))
} && complete -F _koclient koclient
