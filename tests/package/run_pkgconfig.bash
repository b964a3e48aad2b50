# The command line of docs/installing.md builds a program that starts and refuses a text:
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
