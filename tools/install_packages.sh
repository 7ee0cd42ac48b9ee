#!/usr/bin/env bash
# Installs the Debian packages of packages.txt that are missing; says nothing when none is.
set -euo pipefail
cd "$(dirname "$0")/.."
missing=()
while read -r name; do
    case "$name" in "" | \#*) continue ;; esac
    dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null | grep -qx installed || missing+=("$name")
done < packages.txt
[ ${#missing[@]} -eq 0 ] && exit 0
as_root=""
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo > /dev/null || { echo "Missing packages: ${missing[*]}; run as root or install sudo." >&2; exit 1; }
    as_root="sudo"
fi
echo "Installing ${#missing[@]} packages: ${missing[*]}"
$as_root apt-get update -qq
$as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" > /dev/null
