#!/bin/sh
# Runs every benchmark of a build three times and prints the medians.
#   bench/olc.sh BUILD_DIRECTORY
set -eu
cd "$(dirname "$0")/.."
for olcum in hesap depo hazirlik yedek ekran baski bildirge bildirim ozelgider devir toplu rapor tazminat muhasebe isgucu ozluk; do
  echo "== $olcum"
  "$1/bench/bench_$olcum" --benchmark_repetitions=3 --benchmark_report_aggregates_only=true 2>/dev/null |
    grep -E 'Benchmark|_median'
done
echo "== sunucu"
"$1/bench/bench_ozelsunucu" "$1/bench/bench_sunucu" --benchmark_repetitions=3 \
  --benchmark_report_aggregates_only=true 2>/dev/null | grep -E 'Benchmark|_median'
bench/oldur.sh "$1"
bench/hepsi.sh "$1"
