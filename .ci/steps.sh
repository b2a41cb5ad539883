# shellcheck shell=bash
# Functions that ./run, ./test and .ci/* share. Source it from the top folder of the repository.

# Makes repeated builds of the same sources fast.
export CMAKE_CXX_COMPILER_LAUNCHER=ccache
# ccache needs this to cache files that use precompiled headers.
export CCACHE_SLOPPINESS=pch_defines,time_macros

# Fail TEXT...: prints the reason on standard error and exits.
Fail()
{
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# Step LOG TEXT COMMAND...: prints TEXT and runs the command, whose output goes to build/LOG. If it fails,
# prints the end of the log and exits.
Step()
{
    local log="build/$1" text="$2"
    shift 2
    mkdir -p build
    printf '%s\n' "$text ..."
    "$@" >"$log" 2>&1 </dev/null && return
    tail -n 40 "$log" >&2
    Fail "$text failed; the whole log is in $log"
}

# MissingPackages: prints the packages of packages.txt that aren't installed, one a line.
MissingPackages()
{
    local package wanted
    mapfile -t wanted < <(sed -E 's/[[:space:]]*(#.*)?$//; /^$/d' packages.txt)
    for package in "${wanted[@]}"; do
        [[ $(dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null) == ii* ]] || printf '%s\n' "$package"
    done
}

# InstallPackages: installs the missing packages. If none is missing it does nothing, so it needs no network.
InstallPackages()
{
    local missing asRoot=()
    command -v dpkg-query apt-get >/dev/null || Fail "this needs Debian (or a relative of it) and its apt-get"
    mapfile -t missing < <(MissingPackages)
    ((${#missing[@]})) || return 0
    if ((EUID != 0)); then
        command -v sudo >/dev/null || Fail "these packages are missing, install them as root: ${missing[*]}"
        asRoot=(sudo)
    fi
    mkdir -p build
    printf 'Installing %s ...\n' "${missing[*]}"
    {
        "${asRoot[@]}" apt-get update \
            && "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive \
                apt-get install -y --no-install-recommends "${missing[@]}"
    } >build/install.log 2>&1 </dev/null \
        || Fail "could not install ${missing[*]}; is there a network? The log is in build/install.log"
}

# Build PRESET: configures and builds a preset.
Build()
{
    Step "configure-$1.log" "Configuring ($1)" cmake --preset "$1"
    Step "build-$1.log" "Building ($1)" cmake --build --preset "$1"
}

# NeedProgram NAME: exits unless the release build has made this program.
NeedProgram()
{
    [[ -x build/release/bin/$1 ]] || Fail "the build made no build/release/bin/$1"
}

# PlayTour: plays the tour without a display; its pictures go to build/tour.
PlayTour()
{
    NeedProgram vetrolan-tour
    Step tour.log "Playing the tour" env QT_QPA_PLATFORM=offscreen build/release/bin/vetrolan-tour build/tour
    echo "The pictures of the tour are in build/tour, what it wrote is in build/tour/summary.txt."
}
