# The Wine that runs our tests and demo; to be sourced after common.sh.
# Its prefix is this clone's own: nothing else on the machine shares its server or its settings.

export WINEPREFIX=$PWD/build/wine
export WINEARCH=win64
export WINEDEBUG=${WINEDEBUG:--all}
# No .NET and no browser, whose absence would ask for a person; no entries in the desktop's menus.
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe="

# Starts this prefix's server unless it runs. It stays for ten minutes after its last program, which
# makes the next start 0.03 s instead of 0.4 s. The services that come with the first program
# outlive it, so that program must not hand them the output that our caller waits to see closed.
start_wine_server() {
    if wineserver -p600 </dev/null >/dev/null 2>&1; then
        wine cmd /c exit </dev/null >/dev/null 2>&1
    fi
}

# Ends this prefix's server and every program in it. Nothing to end is no failure.
stop_wine_server() {
    wineserver -k >/dev/null 2>&1 || true
    wineserver -w >/dev/null 2>&1 || true
}
