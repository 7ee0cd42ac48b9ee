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
picture receivables --function 632 --key F2
# The manual's first month, taken where each step of it stands.
guide=$folder/guide.zf
"$program" new "$guide" --company 华新贸易有限公司
work() { "$program" drive "$guide" --today 2024-01-31 < "tools/guide_books/$1.jsonl" > "$folder/answers"; }
step() {
    local name=$1
    shift
    "$program" --screenshot "docs/images/guide_$name.png" --today 2024-01-31 "$@" "$guide"
}
work 1_openings
step openings --function 699 --key F7
work 2_vouchers
step allocation --function 661 --key Down --key Enter --key F8
step audit --function 662
work 3_posting
step trial_balance --function 689 --key F2
step carry_forward --function 667
work 4_statements
step balance_sheet --function 671 --key Down --key Right --key Right --key Right
step income --function 673
work 5_closing
step closed
