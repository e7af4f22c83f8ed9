#!/bin/sh
# Clients at one company of a server at once: entries, mass runs, papers, lists. No client may be shown an error. Afterwards
# every month holds everybody once, the company is copied into a directory, and all months are made anew in both places:
# both must say the same to the kuruş.
#   bench_ozelsunucu bench/sunucu_yuk.sh BUILD_DIRECTORY [CLIENTS] [SECONDS]
set -eu
cli=$1/src/cli/belvani-cli
istemci=${2:-20}
saniye=${3:-300}
kisi=200
sunucu=$(readlink -f "$BELVANI_TEST_SUNUCU")
dizin=$(mktemp -d)
trap 'rm -rf "$dizin"' EXIT
psql -qh "$sunucu" -U postgres -c 'create database yuk template belvani_bos strategy file_copy' postgres
veri="postgresql://postgres@/yuk?host=$sunucu"
b() { "$cli" --veri "$veri" "$@"; }

b sunucu-kur >/dev/null
b sirket-ac YUK --kullanici a --yil 2009 --ay 7 >/dev/null
b parametre-kur --donem 2009-07 >/dev/null
kisiler() { # FIRST LAST WAGE: the cards of these people, all on the wage and their number
  awk -v i="$1" -v n="$2" -v u="$3" 'BEGIN { print "kod,adi,soyadi,ucret,girtar,agi"
    for (; i <= n; ++i) printf "%05d,Işıl,Çağlar,%d,01.01.2005,1\n", i, u + i }'
}
kisiler 1 $kisi 1000 >"$dizin/hepsi.csv"
b personel-al YUK "$dizin/hepsi.csv" >/dev/null

# Each its own people and its own order of work, the same on every run.
istemci() {
  no=$1
  bitis=$(($(date +%s) + saniye))
  tur=0
  while [ "$(date +%s)" -lt $bitis ]; do
    tur=$((tur + 1))
    ay=$((7 + (no + tur) % 6))
    ilk=$((no * 10 + 1))
    case $(((no + tur) % 5)) in
    0) is="hazirla YUK --yil 2009 --ay $ay" ;;
    1) kisiler $ilk $((ilk + 4)) $((1000 + tur % 50)) >"$dizin/$no.csv"
       is="personel-al YUK $dizin/$no.csv" ;;
    2) is="bordro YUK --yil 2009 --ay $ay" ;;
    3) is="icmal YUK --yil 2009 --ay $ay" ;;
    *) is="sirketler" ;;
    esac
    # shellcheck disable=SC2086
    b $is >"$dizin/$no.cikti" 2>"$dizin/$no.hata" || { echo "$is:"; cat "$dizin/$no.hata"; } >>"$dizin/hatalar"
  done
  echo $tur >>"$dizin/turlar"
}
: >"$dizin/hatalar"
for i in $(seq 0 $((istemci - 1))); do istemci "$i" & done
wait
# A month that nobody has prepared has no paper: that is no error of the server's.
hatalar=$(grep -vcE ':$|Bordro Hazırlanmamış|Bordro Kaydı Yok|bordro yok|kayıt yok' "$dizin/hatalar" || true)
echo "$istemci istemci, $saniye s: $(awk '{ n += $1 } END { print n }' "$dizin/turlar") iş, $hatalar hata"
[ "$hatalar" = 0 ] || { sort "$dizin/hatalar" | uniq -c | sort -rn | head -20; exit 1; }

b denetle YUK >/dev/null
for ay in 7 8 9 10 11 12; do
  n=$(b bordro YUK --yil 2009 --ay $ay --bicim csv | wc -l)
  [ "$n" -gt $kisi ] || { echo "$ay. ayda $n satır"; exit 1; }
done

# A month that is prepared again keeps what it has carried over from the months before it: all are made anew.
mkdir "$dizin/veri"
"$cli" tasi YUK "$veri" "$dizin/veri" --kaynak-kalsin >/dev/null
"$cli" --veri "$dizin/veri" parametre-kur --donem 2009-07 >/dev/null
for yer in "$veri" "$dizin/veri"; do
  for is in bordro-sil hazirla; do
    for ay in 7 8 9 10 11 12; do "$cli" --veri "$yer" $is YUK --yil 2009 --ay $ay >/dev/null; done
  done
done
for ay in 7 8 9 10 11 12; do
  b bordro YUK --yil 2009 --ay $ay --bicim csv >"$dizin/sunucu.csv"
  "$cli" --veri "$dizin/veri" bordro YUK --yil 2009 --ay $ay --bicim csv >"$dizin/dizin.csv"
  cmp "$dizin/sunucu.csv" "$dizin/dizin.csv"
done
echo "kayıtlar ve toplamlar aynı"
