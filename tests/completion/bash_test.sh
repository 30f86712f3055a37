#!/bin/bash
# Completes command lines as bash does for the Tab key.  bash_test.sh TARN SCRIPT
set -u
PATH=$(dirname "$1"):$PATH
source /usr/share/bash-completion/bash_completion
source "$2"
cd "$(mktemp -d)" || exit 1
touch answer.xml
mkdir folder
failures=0

# compopt works only during completion; this records its arguments.
compopt() { options+="$* "; }

# complete_line "LINE" prints the sorted candidates for the last word, in one line.
complete_line() {
    COMP_LINE=$1
    COMP_POINT=${#COMP_LINE}
    COMP_WORDS=()
    # Splits like readline: blanks separate words, and an equals sign is a word.
    local word rest
    for word in $1; do
        while [[ $word == *=* ]]; do
            [[ -n ${word%%=*} ]] && COMP_WORDS+=("${word%%=*}")
            COMP_WORDS+=("=")
            rest=${word#*=}
            word=$rest
        done
        [[ -n $word ]] && COMP_WORDS+=("$word")
    done
    [[ $1 == *[\ =] ]] && COMP_WORDS+=("")
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    options=
    _tarn
    printf '%s\n' "${COMPREPLY[@]}" | sort | paste -sd' '
}

expect() {
    local got
    got=$(complete_line "$1")
    [[ $got == "$2" ]] && return
    printf 'complete "%s":\n  expected %s\n  got      %s\n' "$1" "$2" "$got"
    failures=$((failures + 1))
}

expect "tarn sch" "schema"
expect "tarn schema dp-tc-" "dp-tc-list"
expect "tarn schema lumo_tarn_dp_tc_" "lumo_tarn_dp_tc_list"
expect "tarn schema debug-setting." "$(tarn schema debug-setting --json |
    sed -n 's/.*"name": "\([a-z_]*\)".*/debug-setting.\1/p' | sed 1d | sort | paste -sd' ')"
expect "tarn show cl-deb" "cl-debug"
expect "tarn show --via ha" "handle"
expect "tarn show --via=ha" "handle"
expect "tarn show cl-debug --js" "--json"
expect "tarn generate dp-mp-tc" "dp-mp-tc dp-mp-tc-cfg"
expect "tarn answer --socket ans" "answer.xml"
expect "tarn answer cl-d" "cl-debug="
expect "tarn answer cl-debug=ans" "answer.xml"
expect "tarn decode " "answer.xml folder"
expect "tarn nothing " ""
complete_line "tarn answer cl-d" >/dev/null
exit $((failures > 0))
