# Looks whether the disk has room for a build, for scripts to source.

# need_room MEGABYTES: ends the script before a build that would not fit. What is built already counts.
need_room() {
    local free built=0
    free=$(df --output=avail -m . | tail -n 1)
    [ ! -d build ] || built=$(du -sm build | cut -f 1)
    if [ $((free + built)) -lt "$1" ]; then
        echo "Too little disk: this needs $1 MB below $PWD, and $((free + built)) MB are there." >&2
        exit 1
    fi
}
