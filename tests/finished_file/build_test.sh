#!/bin/sh
# build_test.sh EXE OTHER_PACKAGE FOLDER VERSION: builds the product once more in FOLDER and compares. Then changes the
# package and the signing command there and looks for the effect of both.
set -eu
exe=$1 other_package=$2 folder=$3 version=$4
cd "$(dirname "$0")/../.."
again=$folder/TamberSetup.exe

# A cache would compare the first build with itself.
export CCACHE_DISABLE=1

build() { # build [cmake options]: quiet unless it fails
    { cmake --preset windows -B "$folder" -D TAMBER_TESTS=OFF "$@" &&
        cmake --build "$folder" --target product; } >"$folder.log" 2>&1 || { cat "$folder.log"; exit 1; }
}
fail() { echo "$1" >&2; exit 1; }

build -D TAMBER_PACKAGE= -D TAMBER_SIGN_COMMAND=
cmp "$exe" "$again" || fail "Two builds of the same sources differ."
grep -q "$(sha256sum "$again" | cut -d' ' -f1)" "$folder.log" || fail "The build does not print the file's SHA-256."

build -D TAMBER_PACKAGE="$other_package" -D 'TAMBER_SIGN_COMMAND=sh;-c;cat "$0" >"$0.signed"'
cmp -s "$exe" "$again" && fail "The other package is not embedded."
cmp "$again" "$again.signed" || fail "The signing command did not get the finished file."
/usr/bin/python3 tests/finished_file/finished_file_test.py "$again" "$other_package" "$PWD" "$version"
