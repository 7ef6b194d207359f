_velmora() {
    local words='--help --version --hidden --section'
    if [ "$3" = --section ]; then words='overview live history'; fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$2")
}
complete -F _velmora velmora
