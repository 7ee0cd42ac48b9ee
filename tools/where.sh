#!/usr/bin/env bash
# Finds a code, caption, class, table or control name: `make where Q=661` prints file:line of each.
set -euo pipefail
cd "$(dirname "$0")/.."
query="${1:-}"
[ -n "$query" ] || { echo "usage: make where Q=661" >&2; exit 2; }
# The tables of the module first: unit, class, code, caption, purpose.
git grep -nIF -- "$query" -- 'module/*/README.md' || true
# Then where it is declared or defined.
git grep -nIF -- "$query" -- 'module/**/*.h' 'module/**/*.cpp' 'host/**/*.h' 'schema/**/*.sql' \
    'automation/**/*.h' 'desktop/**/*.h' 'docs/manual/*.md' | head -60 || true
