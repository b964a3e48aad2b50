# The two blocks of docs/installing.md that install without packages: the parts, taken together, are the whole, and none holds
# what is another's:
#   bash check_components.bash SOURCE BUILD SCRATCH
set -euo pipefail
source=$1
build=$2
scratch=$3
rm -rf "$scratch"
mkdir -p "$scratch"

block() { "$source/tests/docs/block" "$source/docs/installing.md" "$1" | sed "s,build/release,$build,"; }
files() { (mkdir -p "$1" && cd "$1" && find . ! -type d | sort); }

block 'cmake --install build/release --prefix /usr/local # all' >"$scratch/all.bash"
DESTDIR=$scratch/all bash -eu "$scratch/all.bash" >/dev/null
block 'cmake --install build/release --prefix /usr/local --component libraries' >"$scratch/parts"
while read -r line; do
    part=${line##* }
    DESTDIR=$scratch/$part bash -euc "$line" >/dev/null
    files "$scratch/$part" | sed '/\/copyright$/d' >"$scratch/$part.files"
done <"$scratch/parts"

diff <(files "$scratch/all" | grep -v /LICENSE$) <(sort "$scratch"/*.files)
grep -q '/libVXMediaPresets\.so\.[0-9]*$' "$scratch/libraries.files"
grep -q '/IVXFormatPreset\.h$' "$scratch/development.files"
grep -q '/bin/vxpresets$' "$scratch/tools.files"
[ ! -x "$scratch/all/usr/local/bin/vxpresetstudio" ] || grep -q '/bin/vxpresetstudio$' "$scratch/studio.files"
