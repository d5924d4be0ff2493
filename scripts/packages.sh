# Sourced by the scripts at the root: installs Debian packages that are missing. Says nothing when none is.
# shellcheck shell=bash disable=SC2034

# Open CASCADE's development packages hang on one another; this one brings the others.
BUILD_PACKAGES=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev libfreeimage-dev zlib1g-dev libocct-data-exchange-dev
    libjemalloc-dev)
TEST_PACKAGES=(libgtest-dev libgmock-dev)
NODE_PACKAGES=(nodejs npm ca-certificates) # certificates, for npm to reach its registry

BROWSER_PACKAGES=(chromium)

# Prints those of the packages given that are not installed.
missing_packages() {
    local name
    for name in "$@"; do
        if [[ $(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null) != installed ]]; then
            printf '%s\n' "$name"
        fi
    done
}

# require_packages LOG PACKAGE...: installs what is missing, through sudo for everyone but root. apt's output goes to LOG.
require_packages() {
    local log=$1 missing as_root=()
    shift
    mapfile -t missing < <(missing_packages "$@")
    if ((${#missing[@]} == 0)); then
        return 0
    fi
    if ! command -v apt-get >/dev/null; then
        printf 'These are needed and there is no apt-get to install them: %s\n' "${missing[*]}" >&2
        return 1
    fi
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            printf 'These packages are needed; install them as root: %s\n' "${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    printf 'Installing %s (log: %s)\n' "${missing[*]}" "$log" >&2
    run_logged "$log" "${as_root[@]}" apt-get update &&
        run_logged "$log" "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y --no-install-recommends "${missing[@]}"
}

# require_modules LOG FOLDER PACKAGE_JSON WHAT: puts npm modules into a folder of their own; again when the wanted versions change.
require_modules() {
    local log=$1 folder=$2 wanted=$3 what=$4
    if cmp -s "$wanted" "$folder/package.json"; then
        return 0
    fi
    rm -rf "$folder"
    mkdir -p "$folder/new"
    cp "$wanted" "$folder/new/"
    printf 'Installing %s (log: %s)\n' "$what" "$log" >&2
    run_logged "$log" npm install --prefix "$folder/new" --no-package-lock --no-audit --no-fund --ignore-scripts
    mv "$folder/new"/* "$folder/"
}

# run_logged LOG COMMAND...: appends the command's output to LOG; shows the end of it when the command fails.
run_logged() {
    local log=$1 status=0
    shift
    "$@" >>"$log" 2>&1 </dev/null || status=$?
    if ((status != 0)); then
        tail -n 30 "$log" >&2
        printf '%s failed with status %d; the whole log is %s\n' "$1" "$status" "$log" >&2
    fi
    return "$status"
}
