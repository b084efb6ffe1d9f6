# Prints what zsh offers for a line that is being typed, a word a line.
#
# usage: zsh -f complete.zsh FOLDER LINE     the folder has _proupsells, and is where the line is typed
zmodload zsh/zpty
folder=${1:A} line=$2

# What the shell that is typed into does first. Matches are printed instead of shown, each after a mark, and then it ends.
setup='
PROMPT= RPROMPT=
cd -- "$FOLDER"
fpath=("$FOLDER" $fpath)
autoload -Uz compinit
compinit -u -D
compadd() {
    local -a found
    # Somebody inside of the completion wants to know for himself.
    if [[ " ${(j: :)@[1,(i)--]} " == *" -"[OAD]" "* ]]; then
        builtin compadd "$@"
        return
    fi
    builtin compadd -A found "$@"
    local each
    for each in $found; do print -r -- "offered:$each"; done
    (( $#found ))
}
ends() { print -r -- "done:"; exit }
compprefuncs=() comppostfuncs=(ends)
unset zle_bracketed_paste
bindkey "^I" complete-word
stty -echo
print -r -- "ready:"
'
export FOLDER=$folder
print -r -- "$setup" > $folder/setup.zsh
zpty shell zsh -f -i
zpty -w shell 'source "$FOLDER/setup.zsh"'
zpty -r shell answer '*ready:*'
zpty -n -w shell "$line"$'\t'
zpty -r shell answer '*done:*'
zpty -d shell
for each in ${(f)answer}; do
    [[ $each == *offered:* ]] && print -r -- ${${each#*offered:}%$'\r'}
done
exit 0
