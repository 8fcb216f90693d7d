#!/usr/bin/env bash
# defects.sh BUILD_DIR: whole lives on every pair of defects that a printer's description can have,
# under AddressSanitizer and UndefinedBehaviorSanitizer. Uses the sanitizers' build beside BUILD_DIR,
# else BUILD_DIR itself.
set -euo pipefail

build=${1:?usage: defects.sh BUILD_DIR}
sanitized=$(dirname "$build")/sanitize
if [[ -x $sanitized/bin/whole_long_test ]]; then
    build=$sanitized
else
    echo "defects.sh: no sanitizers in $build" >&2
fi
export QT_QPA_PLATFORM=offscreen
if [[ -z ${XDG_RUNTIME_DIR:-} ]]; then
    XDG_RUNTIME_DIR=$(mktemp -d)
    export XDG_RUNTIME_DIR
    trap 'rmdir "$XDG_RUNTIME_DIR" 2>/dev/null || true' EXIT
fi
log=$(mktemp)
if ! "$build/bin/whole_long_test" --gtest_brief=1 '--gtest_filter=*Defect*' >"$log" 2>&1; then
    cat "$log"
    rm -f "$log"
    exit 1
fi
tail -n 1 "$log"
rm -f "$log"
