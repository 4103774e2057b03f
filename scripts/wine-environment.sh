# The Wine that runs our tests and demo; to be sourced after common.sh.
# Its prefix is this clone's own: nothing else on the machine shares its server or its settings.

export WINEPREFIX=$PWD/build/wine
export WINEARCH=win64
export WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES="mscoree,mshtml=" # no .NET, no browser: asking for them would wait for a person
