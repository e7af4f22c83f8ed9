#!/bin/sh
# Formatting, layers and clang-tidy, the same by hand and in continuous integration.
#   tools/lint.sh BUILD_DIRECTORY
set -eu
yapi=$1
cd "$(dirname "$0")/.."

kaynaklar=$(git ls-files -c -o --exclude-standard 'src/*.cpp' 'src/*.h' 'tests/*.cpp' 'tests/*.h' 'bench/*.cpp' 'fuzz/*.cpp')
echo "clang-format"
# shellcheck disable=SC2086
clang-format --dry-run --Werror $kaynaklar

echo "layers"   # configuration fails when a room includes what it may not
cmake "$yapi" >/dev/null

echo "clang-tidy"
git ls-files -c -o --exclude-standard 'src/*.cpp' | xargs -P "$(nproc)" -n 4 clang-tidy -p "$yapi" --quiet
