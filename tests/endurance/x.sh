# shellcheck shell=bash
# What the trials share that work the real program under a real X server. Source it from the top folder of the
# repository, with the names of the programs that the trial needs and its build folder, if one is given.

password=Dairy2026
menu="दूध संकलन सॉफ्टवेअर"
jobs=()
program=

Fail()
{
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    [[ -z ${DISPLAY-} ]] || TakePicture failed
    exit 1
}

# The build of the program that is tried.
Programs()
{
    local folder
    for folder in "$@" build/release build/check; do
        [[ -x $folder/bin/vetrolan && -x $folder/bin/vetrolan-setup ]] && break
        folder=
    done
    [[ -n $folder ]] || Fail "build the program first: cmake --preset release && cmake --build --preset release"
    printf '%s/bin\n' "$folder"
}

CleanUp()
{
    local job
    [[ -z $program ]] || kill -9 "$program" 2>/dev/null || true
    for job in "${jobs[@]}"; do
        kill -9 "$job" 2>/dev/null || true
        wait "$job" 2>/dev/null || true
    done
    rm -rf "$work"
}

# WaitFor WHAT COMMAND...: until the command succeeds, at most a minute.
WaitFor()
{
    local what="$1" end=$((SECONDS + 60))
    shift
    until "$@"; do
        ((SECONDS < end)) || Fail "waited in vain for $what; in front is \"$(Title)\""
        read -rt 0.02 -u "$pause" || true # nothing is ever written there: lets the others work between two looks
    done
}

Title()
{
    xdotool getactivewindow getwindowname 2>/dev/null || true
}

IsInFront()
{
    [[ $(Title) == "$1" ]]
}

# The same on a desktop without a window manager, which knows of no active window.
TakesKeys()
{
    [[ $(xdotool getwindowfocus getwindowname 2>/dev/null) == "$1" ]]
}

# Keys KEYSYM...: presses them one after the other, without a pause.
Keys()
{
    xdotool key --delay 0 "$@"
}

# Ask FILE QUERY: what the stock shell answers.
Ask()
{
    sqlcipher "$1" 2>/dev/null <<<"pragma key='$password'; $2"
}

# StartX [MANAGER]: a display of its own, with a window manager or without.
StartX()
{
    rm -f "$work/display"
    Xvfb -displayfd 8 -screen 0 1366x768x24 8>"$work/display" 2>/dev/null &
    jobs+=($!)
    WaitFor "the X server" test -s "$work/display"
    DISPLAY=:$(<"$work/display")
    export DISPLAY
    (($#)) || return 0
    "$1" >/dev/null 2>&1 &
    jobs+=($!)
    WaitFor "the window manager" xdotool get_num_desktops >/dev/null 2>&1
}

# StartProgram: from its start to the main menu, on 01/06/2026.
StartProgram()
{
    "$bin/vetrolan" 2>"$work/said" &
    program=$!
    disown "$program" # its end is no news
    WaitFor "the title" IsInFront "$menu"
    Keys Return
    WaitFor "the caution" IsInFront "Caution !"
    Keys Return
    WaitFor "the working day" IsInFront "दिनांक"
    Keys 0 1 0 6 2 0 2 6 Return Return
    WaitFor "the menu" IsInFront "$menu"
}

HasEnded()
{
    ! kill -0 "$1" 2>/dev/null
}

KillProgram()
{
    local killed=$program
    kill -9 "$killed"
    program=
    WaitFor "the end of the program" HasEnded "$killed"
}

# The keys of a number, a keysym a digit.
DigitsOf()
{
    sed -E 's/(.)/\1 /g; s/\./period/' <<<"$1"
}

# TakePicture NAME: of the window in front, into build/under-x/, if there is a program for it.
TakePicture()
{
    mkdir -p build/under-x
    if command -v import >/dev/null; then
        import -window root "build/under-x/$1.png" 2>/dev/null
    elif command -v xwd >/dev/null; then
        xwd -id "$(xdotool getactivewindow)" -silent -out "build/under-x/$1.xwd" 2>/dev/null
    fi || true
}

# MakeDemo: the society to try the program on.
MakeDemo()
{
    "$bin/vetrolan-setup" --demo --society "श्री गणेश सहकारी दूध उत्पादक संस्था" --year 2026-2027 \
        --password "$password" >/dev/null
    [[ -e $books ]] || Fail "the books are not at $books"
}

# Prepare BUILD-FOLDER PROGRAM...: a place of its own for the trial, which is cleared away when it ends.
Prepare()
{
    local needed folder=$1
    shift
    for needed in Xvfb openbox xdotool sqlcipher "$@"; do
        command -v "$needed" >/dev/null || Fail "$needed is missing: apt-get install xvfb openbox weston xdotool sqlcipher"
    done
    bin=$(Programs ${folder:+"$folder"})
    work=$(mktemp -d)
    trap CleanUp EXIT
    mkfifo "$work/pause"
    exec {pause}<>"$work/pause"
    mkdir -m 700 "$work/run" "$work/data"
    export XDG_RUNTIME_DIR="$work/run" XDG_DATA_HOME="$work/data"
    unset WAYLAND_DISPLAY QT_QPA_PLATFORM
    books="$XDG_DATA_HOME/vetrolan/drive_c/Tarvel01/Vetrolan/Morvelta.mdb"
}
