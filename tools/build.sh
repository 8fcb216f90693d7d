#!/usr/bin/env bash
# build.sh PRESET [TARGET...]: configures build/PRESET once and builds the targets, by default all.
# Later changes of CMake files are noticed by the build itself.
set -euo pipefail
cd "$(dirname "$0")/.."

preset=${1:?usage: build.sh PRESET [TARGET...]}
shift
build=build/$preset
mkdir -p build
# The dialog refuses a plug-in that others may write.
umask 022

if [[ ! -f $build/build.ninja ]]; then
    echo "build.sh: configuring $build"
    cmake --preset "$preset" >"$build.log" 2>&1 || {
        cat "$build.log" >&2
        exit 1
    }
fi
echo "build.sh: building $build"
cmake --build "$build" ${1:+--target "$@"}
