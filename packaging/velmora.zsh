#compdef velmora
_arguments -s \
    '(- *)'{-h,--help}'[show a short help text]' \
    '(- *)'{-v,--version}'[show the version]' \
    '(--section)--hidden[start with no window]' \
    '(--hidden)--section=[show this section]:section:(overview live history)'
