#!/usr/bin/env bash
# usage: tools/run_demo.sh BUILD   opens the demonstration books, made the first time: on the
# desktop where there is a display, else without one, printing their trial balance.
set -euo pipefail

program="$1/zhangfang"
folder="${XDG_DATA_HOME:-$HOME/.local/share}/zhangfang"
books="$folder/demo.zf"

if [ ! -e "$books" ]; then
  mkdir -p "$folder"
  ZHANGFANG_PASSWORD="" "$program" demo "$books"
fi
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$program" "$books"
fi
exec "$program" trial-balance "$books"
