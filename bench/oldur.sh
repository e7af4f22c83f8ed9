#!/bin/sh
# Kills fifty mass runs of 10,000 people with SIGKILL at random moments. After each the store must open, pass its
# integrity check and hold the month whole or not at all.
#   bench/oldur.sh BUILD_DIRECTORY
set -eu
cli=$1/src/cli/belvani-cli
dizin=$(mktemp -d)
trap 'rm -rf "$dizin"' EXIT
kisi=10000

b() { "$cli" --veri "$dizin" "$@"; }
b sirket-ac KIRIK --kullanici a >/dev/null
b parametre-kur --donem 2009-07 >/dev/null
{
  echo "kod,adi,soyadi,ucret,girtar"
  i=1
  while [ $i -le $kisi ]; do
    echo "$i,Işıl,Çağlar,$((700 + i)),01.01.2005"
    i=$((i + 1))
  done
} >"$dizin/p.csv"
b personel-al KIRIK "$dizin/p.csv" >/dev/null

butun=0
for kez in $(seq 50); do
  ay=$((kez % 6 + 7))
  b bordro-sil KIRIK --yil 2009 --ay $ay >/dev/null
  "$cli" --veri "$dizin" hazirla KIRIK --yil 2009 --ay $ay >/dev/null 2>&1 &
  surec=$!
  sleep "0.$(printf '%03d' "$(shuf -i 5-150 -n 1)")"
  kill -9 $surec 2>/dev/null || true
  wait $surec 2>/dev/null || true
  b denetle KIRIK >/dev/null
  n=$(b bordro KIRIK --yil 2009 --ay $ay --bicim json | grep -c '"brutkaz"' || true)
  case $n in
    0) ;;
    "$kisi") butun=$((butun + 1)) ;;
    *) echo "month $ay holds $n of $kisi records"; exit 1 ;;
  esac
done
echo "50 runs killed: $butun times the month was there whole, $((50 - butun)) times not at all"
