complete -W "--help --version --hidden" velmora
