# What our scripts share; to be sourced. Leaves us in the root of the repository.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Bare machines run us with no home; the compiler cache and Wine insist on one.
if [ -z "${HOME:-}" ]; then
    HOME=$(getent passwd "$(id -u)" | cut -d: -f6)
    export HOME=${HOME:-$PWD/build/home}
fi

cache=${XDG_CACHE_HOME:-$HOME/.cache}/facetta

fail() {
    echo "$0: $*" >&2
    exit 1
}
