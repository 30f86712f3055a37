# Completion of tarn for bash. The tool itself provides the candidates.
_tarn() {
    local cur words cword candidates candidate name
    # A word may contain an equals sign: BUNDLE=FILE, --option=value.
    _get_comp_words_by_ref -n = cur words cword
    COMPREPLY=()
    mapfile -t candidates < <("${words[0]/#\~/$HOME}" complete "${words[@]:1:cword}" 2>/dev/null)
    for candidate in "${candidates[@]}"; do
        if [[ $candidate == :files ]]; then
            compopt -o filenames
            mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "${cur##*=}")
            continue
        fi
        name=${candidate%%$'\t'*}
        # bash replaces only the part after the last equals sign.
        [[ $cur == *=* ]] && name=${name#"${cur%"${cur##*=}"}"}
        [[ $name == *= ]] && compopt -o nospace
        COMPREPLY+=("$name")
    done
}
complete -F _tarn tarn
