# Usage: fish complete.fish LINE FOLDER
source $argv[2]/tallyvane.fish
complete -C $argv[1]
