# complete.zsh FOLDER LINE ...: prints what zsh offers at the end of each command line, with the completion functions of the folder: the
# line after "line:", below it each offer after "offered:". The shell runs on a terminal of its own, in the present folder, with its
# files in $HOME.
emulate -R zsh
zmodload zsh/zpty || exit 2
zpty shell "zsh -f -i"

# All that the completion hands to the line editor passes compadd. Calls that only filter an array stay as they are. What is printed
# begins with a line end, as the terminal has the command line before it.
zpty -w shell "
PS1= PS2= RPS1= ; unsetopt zle_bracketed_paste beep; stty -echo
fpath=(${(q)1} \$fpath)
autoload -Uz compinit && compinit -u -d \$HOME/dump
compadd() {
  if [[ -n \${(M)\${@[1,(i)(-|--)]}:#-(O|A|D)*} ]]; then builtin compadd \"\$@\"; return \$?; fi
  local -a offered
  builtin compadd -A offered \"\$@\"
  (( \$#offered )) && print -rl -- '' \"offered:\"\${^offered}
  builtin compadd \"\$@\"
}
offer() {
  _main_complete
  print -rl -- '' 'end of'' offers'
  compstate[insert]='' compstate[list]=''
}
zle -C offer complete-word offer
bindkey '^I' offer
bindkey '^U' kill-whole-line
print -rl -- '' 'ready for'' lines'
"
wait_for() {
  local text
  while zpty -r shell text; do
    text=${text%%[$'\r\n']*}
    [[ $text == offered:* ]] && print -r -- $text
    [[ $text == "$1" ]] && return 0
  done
  print -u2 "zsh has ended"
  return 1
}
wait_for 'ready for lines' || exit 1
for line in "${@[2,-1]}"; do
  print -r -- "line:$line"
  zpty -n -w shell $'\x15'"$line"$'\t'
  wait_for 'end of offers' || exit 1
done
zpty -d shell
