#!/bin/sh
# Makes the sample company ORNEK (user ornek, password ornek) out of data/ornek/ and prepares its payrolls.
#   tools/ornek.sh CLI [DATA_PATH]
# CLI is the program belvani-cli. DATA_PATH must be new or empty, for the legal parameter files in it are replaced month
# by month; without it a scratch directory is made. The number of records saved is told for each year, and at the end
# the ledger of the last month is printed. Stops at the first failure.
set -eu

dur() {
  printf 'ornek.sh: %s\n' "$*" >&2
  exit 1
}

[ $# -eq 1 ] || [ $# -eq 2 ] || dur "kullanım: tools/ornek.sh CLI [DATA_DİZİNİ]"
cli=$(command -v "$1") || dur "program bulunamadı: $1"
ornek=$(CDPATH='' cd -- "$(dirname -- "$0")/../data/ornek" && pwd) || dur "data/ornek bulunamadı"

if [ $# -eq 2 ]; then
  veri=$2
  mkdir -p -- "$veri" || dur "dizin açılamıyor: $veri"
  [ -z "$(ls -A -- "$veri")" ] ||
    dur "dizin boş değil: $veri (içindeki yasal parametre dosyaları değişirdi; yeni veya boş bir dizin veriniz)"
else
  veri=$(mktemp -d) || dur "geçici dizin açılamıyor"
fi
veri=$(CDPATH='' cd -- "$veri" && pwd)

# Runs a command of the program; what it prints stays in $cikti, its warnings are seen.
belvani() {
  cikti=$("$cli" --veri "$veri" "$@") || dur "başarısız: belvani-cli $* (o ana kadar yapılanlar: $veri)"
}

# The number of records saved is the first number of the program's answer.
ayiHazirla() {
  belvani parametre-kur --donem "$1-$2"
  giris=$ornek/giris/$1-$2.csv
  if [ -f "$giris" ]; then
    belvani hazirla ORNEK --yil "$1" --ay "${2#0}" --giris "$giris"
  else
    belvani hazirla ORNEK --yil "$1" --ay "${2#0}"
  fi
  sayi=$(printf '%s\n' "$cikti" | LC_ALL=C sed -n 's/^[^0-9]*\([0-9][0-9]*\).*/\1/p')
  [ -n "$sayi" ] || dur "$1-$2: kaydedilen kişi sayısı okunamadı: $cikti"
}

yiliHazirla() {
  yil=$1 toplam=0
  shift
  for ay in "$@"; do
    ayiHazirla "$yil" "$ay"
    toplam=$((toplam + sayi))
  done
  echo "$yil: $# ay, $toplam bordro kaydı"
}

echo ornek | belvani sirket-ac ORNEK --kullanici ornek --sifre - --yil 2009 --ay 12
for tablo in firma muaf indir sendika kaztan; do
  belvani tanim-al ORNEK "$tablo" "$ornek/$tablo.csv"
done
belvani personel-al ORNEK "$ornek/personel.csv"
belvani personel-al ORNEK "$ornek/ozel.csv"
belvani aile-al ORNEK "$ornek/aile.csv"
belvani cari-al ORNEK "$ornek/cari.csv"

# The books, told from the company's directory, so that the data path can be moved as a whole.
belvani muhasebe-ac "$veri/.muhasebe/ORNEK"
belvani isletme-ac "$veri/.isletme/ORNEK"
printf '[firma]\r\nentegrasyon=../.muhasebe/ORNEK\r\n' >"$veri/ORNEK/genel.dat"
printf '[entegrasyon]\r\nislfirma=../.isletme/ORNEK\r\nucretgrup=UCR\r\nsskgrup=SSK\r\n' >>"$veri/ORNEK/genel.dat"
belvani tanim-al ORNEK entpar "$ornek/entpar.csv"

yiliHazirla 2004 04 05 06 07
for y in 2006 2008 2009; do
  yiliHazirla "$y" 01 02 03 04 05 06 07 08 09 10 11 12
done

belvani yillik-devir ORNEK --yil 2008

"$cli" --veri "$veri" bordro ORNEK --yil 2009 --ay 12 || dur "bordro yazılamadı: 2009-12"
echo "Örnek şirket: $veri/ORNEK (kullanıcı ornek, şifre ornek); silmek için: rm -r '$veri'"
