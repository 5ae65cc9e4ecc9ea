# A place for programs that open windows and write into a home folder.
# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash

# Runs a command on a display of its own, with HOME as its home and a temporary folder in there, and
# with nothing of the caller's desktop or language.
#
# usage: on_stage HOME COMMAND...
on_stage()
{
    local home=$1 name unset_desktop=()
    shift
    for name in $(compgen -e); do
        case $name in XDG_* | LC_* | LANG | LANGUAGE) unset_desktop+=(-u "$name") ;; esac
    done

    mkdir -p "$home/tmp"
    env "${unset_desktop[@]}" HOME="$home" TMPDIR="$home/tmp" LC_ALL=C.UTF-8 \
        xvfb-run -a -s "-screen 0 1920x1200x24" "$@" </dev/null
}

# The start of a command line for on_stage that runs the rest with a window manager.
# shellcheck disable=SC2016,SC2034
managed=(bash -c 'openbox 2>/dev/null & manager=$!; "$@"; status=$?; kill "$manager"; exit "$status"'
    managed)

# Removes such a home, whatever was done to its rights.
remove_home()
{
    [[ -z $1 ]] || { chmod -R u+rwX "$1" && rm -rf "$1"; }
}
