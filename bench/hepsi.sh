#!/bin/sh
# Prepares the month of many companies in one run, three new months each, and tells the medians and the largest process:
# 300 companies of 40 people (the aim is 3 s on two processors) and 1,000 of 100 people (12 s). The companies are copies
# of one, so that making them costs no more than their files.
#   bench/hepsi.sh BUILD_DIRECTORY
set -eu
cli=$1/src/cli/belvani-cli
dizin=$(mktemp -d)
trap 'rm -rf "$dizin"' EXIT

b() { "$cli" --veri "$dizin/veri" "$@"; }

# sirketler COUNT PEOPLE
sirketler() {
  rm -rf "$dizin/veri"
  mkdir "$dizin/veri"
  b sirket-ac S00001 --kullanici a --yil 2009 --ay 7 >/dev/null
  b parametre-kur --donem 2009-07 >/dev/null
  awk -v n="$2" 'BEGIN {
    print "kod,adi,soyadi,ucret,girtar,agi"
    for (i = 1; i <= n; ++i) printf "%05d,Işıl,Çağlar,%d,01.01.2005,1\n", i, 700 + i * 13
  }' >"$dizin/p.csv"
  b personel-al S00001 "$dizin/p.csv" >/dev/null
  for i in $(seq 2 "$1"); do cp -r "$dizin/veri/S00001" "$dizin/veri/S$(printf '%05d' "$i")"; done
  sync
}

# olc NAME COMMAND…: three times, AY standing for another month each
olc() {
  ad=$1
  shift
  for ay in 7 8 9; do
    /usr/bin/time -o "$dizin/sure" -a -f '%e %M' "$cli" --veri "$dizin/veri" "$@" --hepsi --yil 2009 --ay $ay \
      >/dev/null 2>"$dizin/mesaj" || { cat "$dizin/mesaj"; exit 1; }
  done
  sort -n "$dizin/sure" | sed -n 2p | { read -r sure bellek; echo "$ad: $sure s, $((bellek / 1024)) MB"; }
  rm "$dizin/sure"
}

for boy in "300 40" "1000 100"; do
  # shellcheck disable=SC2086  # two words
  sirketler $boy
  olc "$boy hazirla" hazirla
  olc "$boy hazirla, again" hazirla
  olc "$boy icmal" icmal
  olc "$boy pusula pdf" pusula --bicim pdf -o "$dizin/pusula"
  rm -rf "$dizin/pusula"
done
