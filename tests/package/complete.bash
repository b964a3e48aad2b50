# Prints what bash would offer behind the words:   complete.bash COMPLETION BIN-FOLDER WORD…
source "$1"
PATH=$2:$PATH
shift 2
COMP_WORDS=("$@")
COMP_CWORD=$(($# - 1))
_vxpresets
printf '%s\n' "${COMPREPLY[@]}"
