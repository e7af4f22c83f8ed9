#!/bin/sh
# Pictures of every screen, filled from the sample company.
#   tools/resimler.sh CLI PICTURE_PROGRAM OUTPUT_DIRECTORY
set -eu
veri=$(mktemp -d)
trap 'rm -rf "$veri"' EXIT
"$(dirname -- "$0")/ornek.sh" "$1" "$veri" >/dev/null
"$2" "$veri" ORNEK ornek ornek "$3" 2>/dev/null
echo "$(find "$3" -name '*.png' | wc -l) resim: $3"
