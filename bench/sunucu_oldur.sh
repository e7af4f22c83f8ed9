#!/bin/sh
# A server that is killed in mass runs, again and again: the month is whole afterwards or as it was, the store is sound,
# and the clients go on.
#   bench/sunucu_oldur.sh BUILD_DIRECTORY [TIMES]
set -eu
cli=$1/src/cli/belvani-cli
kez=${2:-50}
kisi=3000
bin=$(ls -d /usr/lib/postgresql/*/bin | tail -1)
dizin=$(mktemp -d /tmp/oldur.XXXXXX)
olarak=""
if [ "$(id -u)" = 0 ]; then
  olarak="setpriv --reuid=postgres --regid=postgres --clear-groups"
  chown postgres "$dizin"
fi
baslat() { $olarak "$bin/pg_ctl" -D "$dizin/d" -o "-c listen_addresses='' -k $dizin" -l "$dizin/gunluk" -w start >/dev/null; }
trap '$olarak "$bin/pg_ctl" -D "$dizin/d" -m immediate stop >/dev/null 2>&1 || true; rm -rf "$dizin"' EXIT
$olarak "$bin/initdb" -D "$dizin/d" -U postgres --locale=C.UTF-8 --encoding=UTF8 --auth=trust >/dev/null
baslat
psql -qh "$dizin" -U postgres -c 'create database belvani' postgres
veri="postgresql://postgres@/belvani?host=$dizin"
b() { "$cli" --veri "$veri" "$@"; }
b sunucu-kur >/dev/null
b sirket-ac OLDUR --kullanici a --yil 2009 --ay 7 >/dev/null
b parametre-kur --donem 2009-07 >/dev/null
awk -v n=$kisi 'BEGIN { print "kod,adi,soyadi,ucret,girtar,agi"
  for (i = 1; i <= n; ++i) printf "%05d,Işıl,Çağlar,%d,01.01.2005,1\n", i, 700 + i }' >"$dizin/p.csv"
b personel-al OLDUR "$dizin/p.csv" >/dev/null
say() { psql -qAth "$dizin" -U postgres -c "select count(*) from s1.brd where yil = 2009 and ay = 7" belvani; }

butun=0 hic=0
for i in $(seq 1 "$kez"); do
  # Half of them over a month that is there, with other wages.
  if [ $((i % 2)) = 0 ]; then
    [ "$(say)" != 0 ] || b hazirla OLDUR --yil 2009 --ay 7 >/dev/null
    psql -qh "$dizin" -U postgres -c "update s1.sicil set ucret = ucret + 10000" belvani
  else
    [ "$(say)" = 0 ] || b bordro-sil OLDUR --yil 2009 --ay 7 >/dev/null
  fi
  once=$(psql -qAth "$dizin" -U postgres -c "select coalesce(sum(ucret), 0) from s1.brd where yil = 2009 and ay = 7" belvani)
  b hazirla OLDUR --yil 2009 --ay 7 >/dev/null 2>"$dizin/soz" &
  is=$!
  sleep "$(awk -v i="$i" 'BEGIN { srand(i); print 0.02 + rand() * 0.4 }')"
  kill -9 "$(head -1 "$dizin/d/postmaster.pid")"
  wait $is || grep -q . "$dizin/soz" || { echo "söz yok"; exit 1; }
  until baslat 2>/dev/null; do sleep 0.2; done
  sayi=$(say)
  sonra=$(psql -qAth "$dizin" -U postgres -c "select coalesce(sum(ucret), 0) from s1.brd where yil = 2009 and ay = 7" belvani)
  if [ "$sonra" = "$once" ]; then hic=$((hic + 1)); elif [ "$sayi" = $kisi ]; then butun=$((butun + 1)); else
    echo "$i. turda ay yarım: $sayi kayıt"
    exit 1
  fi
  b denetle OLDUR >/dev/null || { echo "$i. turda veritabanı bozuk"; exit 1; }
done
echo "$kez kez öldürüldü: ay $butun kez bütün, $hic kez önceki gibi; istemciler sürdü"
