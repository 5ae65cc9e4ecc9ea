# Messages of the scripts: plain text, with colours where a person is looking.
# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash

bold='' red='' green='' plain=''

if [[ -t 1 && -t 2 && -z "${NO_COLOR:-}" && "${TERM:-dumb}" != dumb ]]; then
    bold=$'\e[1m' red=$'\e[1;31m' green=$'\e[1;32m' plain=$'\e[0m'
fi

# One step of a script begins.
say() { printf '%s==> %s%s\n' "$bold" "$*" "$plain"; }

# Everything went well.
praise() { printf '%s%s%s\n' "$green" "$*" "$plain"; }

# Something went wrong, and the caller decides what follows.
complain() { printf '%serror:%s %s\n' "$red" "$plain" "$*" >&2; }

# Something went wrong, and the script ends here.
die()
{
    complain "$@"
    exit 1
}

# Prints the comment block at the top of a script (after the interpreter line) as its help.
show_help() { sed -n -e '2,/^[^#]/ { /SPDX/d; s/^# \{0,1\}//p; }' "$1"; }
