# A stranger's program, made of examples/host.cpp, does its job and refuses what is no document:
#   bash check_stranger.bash PROGRAM DOCUMENT ARTWORK SCRATCH
set -euo pipefail
program=$1
document=$2
artwork=$3
scratch=$4
rm -rf "$scratch"
mkdir -p "$scratch"

ffmpeg -v error -f lavfi -i testsrc2=size=320x240:rate=25:duration=1 -f lavfi -i sine=sample_rate=44100:duration=1 "$scratch/clip.mkv"
"$program" "$document" "$scratch/clip.mkv" "$artwork" "$scratch/icon.png" >"$scratch/told"
grep -m 1 -E '^  MP4: 320 x 240, [1-9][0-9]* kb/s \+ 44100 Hz, [1-9][0-9]* kb/s$' "$scratch/told"
cmp <(head -c 8 "$scratch/icon.png") <(printf '\x89PNG\r\n\x1a\n')

echo text >"$scratch/text"
status=0
"$program" "$scratch/text" - - - 2>"$scratch/refusal" || status=$?
test $status -eq 1
grep -F 'text:1:1: ' "$scratch/refusal"
