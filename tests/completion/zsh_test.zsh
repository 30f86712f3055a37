#!/usr/bin/zsh -f
# Types command lines and Tab into an interactive zsh, and checks the completed line.
# The exit status is 77 if there are no pseudo-terminals. Without arguments, it only checks that.
#   zsh_test.zsh [TARN FOLDER_OF_SCRIPT]
zmodload zsh/zpty
if ! zpty -b probe true 2>/dev/null; then
  print -r -- "Completion.InZsh is skipped: it needs a pseudo-terminal. Mount a devpts file system on /dev/pts."
  exit 77
fi
zpty -d probe
(( $# )) || exit 0
tool=$1 folder=$2
scratch=$(mktemp -d)
touch $scratch/answer.xml
integer failures=0

zpty -b shell "TERM=dumb zsh -f -i"
zpty -w shell "PATH=${(q)tool:h}:\$PATH; fpath=(${(q)folder} \$fpath); cd ${(q)scratch}; PROMPT= RPROMPT="
zpty -w shell "autoload -Uz compinit; compinit -u -d ${(q)scratch}/dump; setopt no_beep; LISTMAX=10000"
# Writes the completed line to a file.
zpty -w shell "note() { print -r -- \"\$BUFFER|\" > ${(q)scratch}/line; BUFFER=; zle .redisplay }; zle -N note; bindkey '^X' note"
zpty -w shell "print ready > ${(q)scratch}/ready"
for (( i = 0; i < 200; ++i )); do [[ -s $scratch/ready ]] && break; sleep 0.05; done

expect() {
  local got= wanted="$2|"
  rm -f $scratch/line
  zpty -w -n shell "$1"$'\t'$'\x18'
  for (( i = 0; i < 200; ++i )); do
    [[ -s $scratch/line ]] && break
    sleep 0.05
    zpty -r -t shell drained 2>/dev/null
  done
  [[ -s $scratch/line ]] && got=$(<$scratch/line)
  [[ $got == $wanted ]] && return
  print -r -- "\"$1\" and tab: expected $wanted got $got"
  failures+=1
}

expect "tarn sch" "tarn schema "
expect "tarn schema dp-tc-" "tarn schema dp-tc-list "
expect "tarn schema dp-tc-list.num" "tarn schema dp-tc-list.num_tcs "
expect "tarn show cl-deb" "tarn show cl-debug "
expect "tarn show --via ha" "tarn show --via handle "
expect "tarn show --via=ha" "tarn show --via=handle "
expect "tarn answer --socket ans" "tarn answer --socket answer.xml "
expect "tarn answer cl-d" "tarn answer cl-debug="
expect "tarn answer cl-debug=ans" "tarn answer cl-debug=answer.xml "
zpty -d shell
rm -r $scratch
exit $(( failures > 0 ))
