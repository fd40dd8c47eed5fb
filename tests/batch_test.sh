#!/bin/bash
# Plays steps in halvenmoor-batch and in journey over real files: batch_test.sh BATCH JOURNEY
set -u
batch=$1 journey=$2 failures=0
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME=$home/home XDG_CONFIG_HOME=$home/home/config
folder=$home/program
cd "$home" || exit

fresh() {
    rm -rf "$folder"
    mkdir -p "$folder"/{asc,txt,lang,import/ov2,import/txt,demo/asc_demo,demo/txt_demo}
    printf '[Type1]\nfixed*\n[Settings]\nSourceStructure=1\n' >"$folder/Settings.ini"
    printf '[Halvenmoor]\n' >"$folder/lang/deutsch.ini"
    printf '1.5, 52.5, "a"\n1.5, 152.5, "b"\n' | tee "$folder/asc/fixed_50.asc" >"$folder/asc/other.asc"
    printf '1.5,52.5,3,0\n2.5,52.5,1,50\n' >"$folder/import/txt/one.txt"
}

# expect STATUS OUTPUT ERROR COMMAND...: the error is a part of the one line that names it, or empty for none at all.
expect() {
    local status=$1 output=$2 error=$3 is=0
    shift 3
    "$@" >out 2>err || is=$?
    if [ "$is" != "$status" ] || [ "$(<out)" != "$output" ] || { [ -z "$error" ] && [ -s err ]; } ||
        { [ -n "$error" ] && ! grep -qF -- "$error" err; }; then
        fail "status $is of $*"
        cat out err
    fi
}
fail() {
    echo "FAILED: $1"
    failures=$((failures + 1))
}
play() { "$batch" --folder "$folder" "$@"; }
limited() (
    ulimit -f 8
    play "$@"
)

lists=$'0\tother\n1\tfixed_50'
results=$'1\t1\t1\n0\t0\t0\n0\t0\t0\n0\t0\t0\n0\t0\t0'
rest='"files":0,"exported":0,"skipped":0}'
json='{"types":[{"number":1,"name":"Fixed","files":1,"exported":1,"skipped":1},{"number":2,"name":"RedSpeed",'$rest
json+=',{"number":3,"name":"RedLight",'$rest',{"number":4,"name":"Section",'$rest',{"number":5,"name":"Mobile",'$rest
json+='],"totals":{"files":1,"exported":1,"skipped":1}}'

# Every step, as arguments and from standard input.
fresh
expect 0 "$lists"$'\n'"$results"$'\n'"$json" '' play 'language Deutsch' 'save-results off' classify lists \
    'export replace' 'export append txt/SpeedCamText.txt' results 'results json'
[ "$(grep -c 1.5,52.5,1,50 "$folder/txt/SpeedCamText.txt")" = 2 ] || fail "the target lacks a camera"
[ ! -e "$folder/Export Results.txt" ] || fail "the results were saved"
printf '%s\n' 'auto 1 off' classify $'rename other\tthird_70' 'move 2 third_70' 'export save-as new.txt' reload \
    'demo on' 'demo off' 'import txt' lists >steps
expect 0 $'0\tFixed_Camera_050\n0\tRedLight_Camera_000' '' play <steps
grep -q 1.5,52.5,2,70 "$folder/new.txt" || fail "the path is not in the program folder"
cp "$batch" "$folder"
expect 0 $'0\tFixed_Camera_050\n0\tRedLight_Camera_000' '' "$folder/halvenmoor-batch" lists

# Nothing is done before all is understood.
fresh
expect 2 '' 'nothing was done: clasify' play 'import txt' lists clasify
expect 2 '' 'nothing was done: results yaml' play < <(printf 'import txt\nresults yaml')
for step in '' --help --folder 'demo maybe' 'auto 0 on' 'move 6 x' 'rename x' 'export' 'export save-as' 'export into x' \
    'import asc' 'reload all'; do
    expect 2 '' 'usage' "$batch" "$step"
done
expect 2 '' 'no program folder: asc' "$batch" --folder asc lists
expect 2 '' 'cannot be read' play <"$folder"
expect 0 '' '' play </dev/null
[ -e "$folder/asc/other.asc" ] || fail "something was done"

# It stops at the first step that is not done, and says what was written.
expect 1 '' 'move 1 nobody: failed, no list has this entry' play 'move 1 nobody' lists
expect 1 '' 'export replace: failed, no file to export' play 'export replace' lists
expect 1 '' 'not a valid' play classify 'export append Settings.ini' lists
expect 1 '' 'import txt: failed' play 'demo on' 'import txt' lists
mkdir "$folder/Export Results.txt"
expect 1 '' 'but not' play classify 'export replace' lists
expect 1 '' 'at most 0 camera(s) of 0 file(s)' play classify 'export save-as nowhere/x' lists
yes '1.5, 52.5, "a"' | head -n 9999 >"$folder/asc/fixed_50.asc"
expect 1 '' 'of 1 file(s) were written' limited classify 'export replace' lists
yes 1.5,52.5,1,50 | head -n 999 >>"$folder/import/txt/one.txt"
expect 1 '' 'File(s), ' limited 'import txt' lists
mkfifo "$folder/import/txt/pipe.txt"
expect 1 '' '1 File(s), '"$folder/asc/ has 2 camera file(s) now" play 'import txt' lists
expect 1 '' '0 camera file(s) now' play 'import ov2' lists
rmdir "$folder/asc"
expect 1 '' 'nothing was imported' play 'import txt' lists
for output in /dev/full '&-'; do
    eval "play results >$output 2>err" && fail "printed to $output"
    grep -q 'cannot be written' err || fail "silent about $output"
done

# A journey begins in demonstration mode, goes on after a refused step, and ends at one that is not understood.
fresh
rm "$folder/Settings.ini"
printf '1.5, 52.5, "a"\n' >"$folder/demo/asc_demo/shown.asc"
printf '%s\n' lists 'import ov2' 'demo off' 'import ov2' reloaded lists >steps
expect 2 $'0\tshown\nok\nrefused\nok\nok' 'journey: not understood: reloaded' "$journey" "$folder" <steps

[ ! -e "$HOME" ] || fail "the options of the user were touched"
exit $((failures > 0))
