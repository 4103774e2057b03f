# The Wine that runs our tests and demo; to be sourced after common.sh.
# Its prefix is this clone's own: nothing else on the machine shares its server or its settings.
# Whoever changes the settings of a whole machine names another prefix in FACETTA_WINE_PREFIX.

export WINEPREFIX=${FACETTA_WINE_PREFIX:-$PWD/build/wine}
export WINEARCH=win64
export WINEDEBUG=${WINEDEBUG:--all}
# No .NET and no browser, whose absence would ask for a person; no entries in the desktop's menus.
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe="

# Starts what this prefix lacks of its server, services and desktop. Each of them outlives the program
# that first needs it, with that program's output in its hands, and whoever waits for the end of that
# output waits for them: 1 to 2 seconds a test. So a program comes first that opens a window and hands
# on nothing. The server stays for ten minutes after its last program, the desktop for a second.
start_wine() {
    wineserver -p600 </dev/null >/dev/null 2>&1 || true # it runs already
    # Twice, because the first start failed once on a busy machine; why is not known.
    wine rundll32 user32.dll,MessageBeep </dev/null >/dev/null 2>&1 ||
        wine rundll32 user32.dll,MessageBeep </dev/null >/dev/null 2>&1 ||
        fail "Wine does not run; delete build/wine to have its prefix made anew"
}

# Ends this prefix's server and every program in it. Nothing to end is no failure.
stop_wine() {
    wineserver -k >/dev/null 2>&1 || true
    wineserver -w >/dev/null 2>&1 || true
}
