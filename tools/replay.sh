#!/usr/bin/env bash
# replay.sh BUILD SCENARIO [OPTION...]: plays a scenario offscreen with the staged driver of that build.
set -euo pipefail

build=${1:?usage: replay.sh BUILD SCENARIO [OPTION...]}
# Qt's offscreen platform warns at every window that it cannot raise it.
screen=$(cd "$(dirname "$0")" && pwd)/screen.json
export QT_QPA_PLATFORM=offscreen:configfile=$screen QT_LOGGING_RULES='default.warning=false'
exec "$build/bin/korvane-print" replay "${@:2}" --root "$build/root"
