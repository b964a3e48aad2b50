# The command line of docs/installing.md builds a program that starts and refuses a text; so does that of one library alone:
#   bash run_pkgconfig.bash SOURCE SCRATCH FOLDER-OF-PC-FILES
set -euo pipefail
source=$1
scratch=$2
export PKG_CONFIG_PATH=$3 LD_LIBRARY_PATH=$3/..

rm -rf "$scratch"
mkdir -p "$scratch"
cd "$scratch"
cp "$source/examples/match.cpp" converter.cpp
"$source/tests/docs/block" "$source/docs/installing.md" 'g++ ' >command.bash
bash -eux command.bash
./converter "$source/CMakeLists.txt" || test $? -eq 1

# The foundation alone brings neither Qt nor FFmpeg.
# shellcheck disable=SC2046
g++ -std=c++20 "$source/tests/package/stranger_foundation/stranger.cpp" $(pkg-config --cflags --libs VXFoundation2) -o reader
if ldd reader | grep -E 'Qt|libav'; then exit 1; fi
./reader "$source/CMakeLists.txt" || test $? -eq 1
