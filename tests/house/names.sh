#!/bin/bash
# Links the command with link-time optimisation, through which the compiler sees all files at once, and fails where two of them
# define one name in different ways. Each run plants such a pair in a program of its own first, and fails where it is not found.
#
#   tests/house/names.sh [BUILD_FOLDER]
set -euo pipefail

root=$(cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../.." && pwd)
build=${1:-$root/build/names}
compile='-O0 -flto=auto -fno-fat-lto-objects'
link='-O0 -flto=auto -Wodr -Werror'

planted=$build/planted
mkdir -p "$planted"
for number in 1 2; do
    printf 'namespace orvane { struct Planted { int fields[%d]; int sum() const { return fields[0]; } }; }\n' "$number"
    printf 'int use%d() { return orvane::Planted{}.sum(); }\n' "$number"
done | split -l 2 --additional-suffix=.cpp - "$planted/part-"
printf 'int use1();\nint use2();\nint main() { return use1() + use2(); }\n' >"$planted/main.cpp"
# shellcheck disable=SC2086 # several flags
if c++ $compile $link "$planted"/*.cpp -o "$planted/program" 2>"$planted/answer"; then
    echo 'The look for names defined twice does not find a planted pair' >&2
    exit 1
fi
if ! grep -q 'orvane::Planted\|struct Planted' "$planted/answer"; then
    cat "$planted/answer" >&2
    echo 'The planted pair of one name fails for another reason' >&2
    exit 1
fi

cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=None -DORVANE_TESTS=OFF \
    -DCMAKE_CXX_FLAGS="$compile" -DCMAKE_EXE_LINKER_FLAGS="$link"
cmake --build "$build" --target orvane
