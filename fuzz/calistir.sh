#!/bin/sh
# Runs every fuzz program for FUZZ_SANIYE seconds (60 unless set), from the seeds of data/ where there are some.
#   fuzz/calistir.sh BUILD_DIRECTORY
set -eu
yapi=$1
kok=$(cd "$(dirname "$0")/.." && pwd)
gecici=$(mktemp -d)
trap 'rm -rf "$gecici"' EXIT

tohum() {
  mkdir -p "$gecici/$1"
  case $1 in
    mevzuat) cp "$kok"/data/mevzuat/2008-2.json "$gecici/$1/" ;;
    aktarim) cp "$kok"/data/ornek/*.csv "$gecici/$1/" ;;
    hesapla) echo '{"donem":{"yil":2009,"ay":7},"sicil":{"ucret":"693.00","agi":1},"esco":[{"yakinlik":1,"agiok":1}],"giris":{"ng":26,"ht":4,"yrd01":"10.50"},"kaztan":{"y1":31},"parametre":{"GvLimit":["8700"],"IsciOran":{"1":{"has":5}}}}' > "$gecici/$1/a" ;;
    ini) printf '[Bordro]\r\nBrdizin=111\r\n;x\r\n' > "$gecici/$1/a" ;;
    sablon) cp "$kok"/data/sablon/aylik.xlsx "$gecici/$1/" ;;
    metin) printf '1,234.50' > "$gecici/$1/a"; printf '29.02.2008' > "$gecici/$1/b" ;;
  esac
}

for ad in metin ini aktarim hesapla parametre mevzuat depo sablon; do
  tohum "$ad"
  echo "== $ad"
  "$yapi/fuzz/fuzz_$ad" -max_total_time="${FUZZ_SANIYE:-60}" -max_len=20000 -timeout=10 -rss_limit_mb=4096 \
    -artifact_prefix="$yapi/fuzz/$ad-" "$gecici/$ad" >"$gecici/$ad.txt" 2>&1 || { tail -n 40 "$gecici/$ad.txt"; exit 1; }
  grep '^Done' "$gecici/$ad.txt"
done
echo "no findings"
