#!/bin/sh
# Opens the desktop on the sample company; makes it first where it is not there yet.
#   tools/masaustu.sh CLI DESKTOP_PROGRAM DIRECTORY
# Data and settings lie in DIRECTORY, so neither touches those of the machine; remove it to begin anew.
set -eu
cli=$1 program=$2 dizin=$3
mkdir -p "$dizin"
dizin=$(CDPATH='' cd -- "$dizin" && pwd)
if [ ! -d "$dizin/veri/ORNEK" ]; then
  rm -rf "$dizin/veri"
  "$(dirname -- "$0")/ornek.sh" "$cli" "$dizin/veri" >"$dizin/ornek.log" || {
    tail -3 "$dizin/ornek.log" >&2
    exit 1
  }
fi
mkdir -p "$dizin/ayar"
printf '[personel]\nPrgPath=%s/\nDataPath=%s/\n' "$dizin/ayar" "$dizin/veri" >"$dizin/ayar/makine.ini"
[ -f "$dizin/ayar/personel.ini" ] || printf '[personel]\nlastfirm=ORNEK\nlastuser=ornek\n' >"$dizin/ayar/personel.ini"
export BELVANI_MAKINE_AYAR="$dizin/ayar/makine.ini" BELVANI_KULLANICI_DIZIN="$dizin/ayar"
echo "Örnek şirket: ORNEK   kullanıcı: ornek   şifre: ornek   (veriler: $dizin/veri)"
exec "$program"
