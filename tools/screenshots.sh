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
# The vouchers that are not audited yet stand at the end of the list.
last=(--key PgDown --key PgDown --key PgDown --key PgDown)
picture shell
picture voucher_list --function 661 "${last[@]}"
picture voucher --function 661 "${last[@]}" --key Enter --key Tab --key Tab --key Tab --key Enter
picture ledger --function 685 --key F2 --key Tab --key Down --key Down --key Down
picture trial_balance --function 689 --key Tab --key Up --key F2
picture balance_sheet --function 671 --key F9 --key Down --key Down --key Down --key Down --key Down \
    --key Down --key Right --key Right --key Right
# 255 colours are enough for a picture of flat grounds, and make it a third of the size.
if command -v convert > /dev/null; then
    for file in docs/images/*.png; do convert "$file" -strip +dither -colors 255 "PNG8:$file"; done
fi
