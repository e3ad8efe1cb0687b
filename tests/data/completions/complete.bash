# Usage: bash complete.bash LINE FOLDER. Bash takes "=" for a word.
. "$2/tallyvane.bash"
read -ra COMP_WORDS <<<"${1//=/ = }"
[[ $1 != *' ' ]] || COMP_WORDS+=('')
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
_tallyvane
printf '%s\n' "${COMPREPLY[@]}"
