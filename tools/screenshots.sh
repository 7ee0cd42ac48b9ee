#!/usr/bin/env bash
# Draws the pictures of docs/images anew from fresh demonstration books. Needs a built program.
set -e
cd "$(dirname "$0")/.."
program=build/zhangfang
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export QT_QPA_PLATFORM=offscreen ZHANGFANG_PASSWORD= XDG_CONFIG_HOME=$folder XDG_DATA_HOME=$folder
"$program" demo "$folder/demo.zf"
mkdir -p docs/images
picture() {
    local name=$1
    shift
    "$program" --screenshot "docs/images/$name.png" "$@" "$folder/demo.zf"
}
picture shell
picture voucher_list --function 661
picture voucher --function 661 --key Enter
picture trial_balance --function 689 --key F2
if command -v optipng > /dev/null; then optipng -quiet docs/images/*.png; fi
