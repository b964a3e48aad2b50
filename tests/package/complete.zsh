# Prints what zsh would offer, chosen words of it:   complete.zsh COMPLETION BIN-FOLDER
# Outside its line editor zsh has no compadd: this one keeps what it is given.
completion=$1
path=($2 $path)
compadd() { shift; offered=("$@") }
_files() { offered=() }

offers() {
    words=("$@")
    CURRENT=$#
    offered=()
    source $completion
}
offers vxpresets ""
print -r -- ${(M)offered:#(artwork|tree)}
offers vxpresets generate ""
print -r -- ${(M)offered:#zsh}
offers vxpresets show ""
print -r -- ${(M)offered:#Video/WEBM}
