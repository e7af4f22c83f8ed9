#!/bin/sh
# An office's server for trial, on this computer alone: a private PostgreSQL in one directory, reached over TLS on a port
# of 127.0.0.1, laid out for the program, with the sample company and four roles.
#   tools/sunucu-dene.sh CLI [DIRECTORY]         lays it out and starts it; started again, it is the same one
#   tools/sunucu-dene.sh --durdur [DIRECTORY]    stops it
#   tools/sunucu-dene.sh --sil [DIRECTORY]       stops it and removes the directory
# CLI is the program belvani-cli. Without DIRECTORY it is belvani-sunucu below the user's cache directory. The server
# refuses root, who has it run by an account of its own.
set -eu
umask 077
isaret=belvani-sunucu-denemesi # in the directory: it is one of ours, and may be removed
ilkKapi=54321 sonKapi=54340

dur() {
  printf 'sunucu-dene.sh: %s\n' "$*" >&2
  exit 1
}

kullanim="kullanım: tools/sunucu-dene.sh CLI|--durdur|--sil [DİZİN]"
[ $# -eq 1 ] || [ $# -eq 2 ] || dur "$kullanim"
araclar=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)

# Settings of who tries this must not lead elsewhere.
unset PGHOST PGHOSTADDR PGPORT PGUSER PGDATABASE PGSERVICE PGSERVICEFILE PGPASSWORD PGPASSFILE PGOPTIONS PGSSLMODE \
  PGSSLROOTCERT PGSSLCERT PGSSLKEY

hesap=""
onbellek=${XDG_CACHE_HOME:-${HOME:-}/.cache}
if [ "$(id -u)" = 0 ]; then
  onbellek=/var/cache # root's own is closed to the account
  for h in postgres nobody; do
    if id "$h" >/dev/null 2>&1; then
      hesap=$h
      break
    fi
  done
  [ -n "$hesap" ] || dur "sunucuyu çalıştıracak bir hesap (postgres, nobody) yok"
fi
dizin=${2:-$onbellek/belvani-sunucu}

# What belongs to the server is done by its account.
sunucuda() {
  if [ -n "$hesap" ]; then
    (cd / && setpriv --reuid="$hesap" --regid="$(id -g "$hesap")" --clear-groups -- "$@")
  else
    (cd / && "$@")
  fi
}

programlar() {
  command -v pg_ctl >/dev/null 2>&1 && dirname -- "$(readlink -f "$(command -v pg_ctl)")" && return
  # Debian keeps the server's programs out of the path; the newest ones.
  find /usr/lib/postgresql -path '*/bin/pg_ctl' 2>/dev/null | sort -V | tail -n 1 | sed 's|/pg_ctl$||'
}
bin=$(programlar)
[ -n "$bin" ] || dur "PostgreSQL sunucusu kurulu değil (Debian: apt-get install postgresql)"

calisiyor() {
  sunucuda "$bin/pg_ctl" -D "$dizin/kume" status >/dev/null 2>&1
}
durdur() {
  if calisiyor; then sunucuda "$bin/pg_ctl" -D "$dizin/kume" -m fast -s stop; fi
}

case $1 in
  --durdur | --sil)
    [ -f "$dizin/$isaret" ] || dur "burada deneme sunucusu yok: $dizin"
    dizin=$(CDPATH='' cd -- "$dizin" && pwd)
    durdur
    [ "$1" = --sil ] && rm -rf -- "$dizin" && echo "Silindi: $dizin" || echo "Durdu: $dizin"
    exit 0
    ;;
  -*) dur "$kullanim" ;;
esac
cli=$(command -v "$1") || dur "program bulunamadı: $1"
cli=$(CDPATH='' cd -- "$(dirname -- "$cli")" && pwd)/$(basename -- "$cli")

mkdir -p -- "$dizin" || dur "dizin açılamıyor: $dizin"
dizin=$(CDPATH='' cd -- "$dizin" && pwd)
case $dizin in
  *[!A-Za-z0-9/._-]*) dur "dizinin yolu adreste de durur, harf, rakam ve . _ - dışında işaret olamaz: $dizin" ;;
esac

adres() { # of a role
  echo "postgresql://$1@127.0.0.1:$(cat "$dizin/kapi")/belvani?sslmode=verify-full&sslrootcert=$dizin/ca.crt&passfile=$dizin/pgpass"
}
belvani() { # role command...
  rol=$1
  shift
  "$cli" --veri "$(adres "$rol")" "$@" >/dev/null || dur "başarısız: belvani-cli $*"
}
sql() {
  PGPASSFILE=$dizin/pgpass "$bin/psql" -X -q -v ON_ERROR_STOP=1 \
    "host=127.0.0.1 port=$(cat "$dizin/kapi") user=postgres dbname=$1 sslmode=verify-full sslrootcert=$dizin/ca.crt" -c "$2"
}

# A port that is taken is passed over the first time; later the addresses that were told have to hold.
baslat() {
  kapi=$(cat "$dizin/kapi" 2>/dev/null) && ilkKapi=$kapi sonKapi=$kapi
  kapi=$ilkKapi
  until sunucuda "$bin/pg_ctl" -D "$dizin/kume" -l "$dizin/kume/gunluk" -o "-p $kapi" -s -w start >/dev/null 2>&1; do
    kapi=$((kapi + 1))
    [ "$kapi" -le "$sonKapi" ] || dur "sunucu başlamadı; nedeni: $dizin/kume/gunluk"
  done
  echo "$kapi" >"$dizin/kapi"
}

sertifikalar() {
  anahtar="-newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes"
  # shellcheck disable=SC2086
  openssl req -x509 $anahtar -days 3650 -subj "/CN=Belvani deneme" -keyout "$dizin/ca.key" -out "$dizin/ca.crt"
  # shellcheck disable=SC2086
  openssl req $anahtar -subj "/CN=127.0.0.1" -keyout "$dizin/sunucu.key" -out "$dizin/sunucu.csr"
  echo "subjectAltName=IP:127.0.0.1,DNS:localhost" >"$dizin/sunucu.ek"
  openssl x509 -req -in "$dizin/sunucu.csr" -CA "$dizin/ca.crt" -CAkey "$dizin/ca.key" -CAcreateserial -days 3650 \
    -extfile "$dizin/sunucu.ek" -out "$dizin/sunucu.crt"
}

# Nobody gets in without TLS and a password, not even from this computer.
kumeKur() {
  for rol in postgres yonetici ayse mehmet denetci; do
    echo "127.0.0.1:*:*:$rol:$(openssl rand -hex 8)" >>"$dizin/pgpass"
  done
  sed -n 's/.*:postgres://p' "$dizin/pgpass" >"$dizin/ilksifre"
  mkdir "$dizin/kume"
  if [ -n "$hesap" ]; then
    chown "$hesap" "$dizin/kume" "$dizin/ilksifre"
    chmod 711 "$dizin"
  fi
  sunucuda "$bin/initdb" -D "$dizin/kume" -U postgres --pwfile="$dizin/ilksifre" -A scram-sha-256 -E UTF8 \
    --locale=C.UTF-8 >/dev/null || dur "küme kurulamadı: $dizin/kume"
  rm "$dizin/ilksifre"
  mv "$dizin/sunucu.key" "$dizin/sunucu.crt" "$dizin/kume/"
  echo "hostssl all all 127.0.0.1/32 scram-sha-256" >"$dizin/kume/pg_hba.conf"
  cat >>"$dizin/kume/postgresql.conf" <<SON
listen_addresses = '127.0.0.1'
unix_socket_directories = ''
ssl = on
ssl_cert_file = 'sunucu.crt'
ssl_key_file = 'sunucu.key'
SON
  [ -z "$hesap" ] || chown -R "$hesap" "$dizin/kume"
}

veritabani() {
  sql postgres "create database belvani encoding 'UTF8' locale 'C.UTF-8' template template0"
  sql belvani "revoke all on database belvani from public"
  belvani postgres sunucu-kur
  grep -v ':postgres:' "$dizin/pgpass" | while IFS=: read -r _ _ _ rol sifre; do
    sql belvani "create role $rol login password '$sifre'"
  done
  sql belvani "grant belvani_sahip to yonetici"
}

# The books of the sample stay files beside the server.
sirketler() {
  "$araclar/ornek.sh" "$cli" "$dizin/veri" >/dev/null || dur "örnek şirket hazırlanamadı"
  sed -i "s|=\.\./|=$dizin/veri/|" "$dizin/veri/ORNEK/genel.dat"
  belvani yonetici parametre-kur --donem 2009-12
  "$cli" tasi ORNEK "$dizin/veri" "$(adres yonetici)" >/dev/null || dur "örnek şirket taşınamadı"
  belvani yonetici sirket-ac DENEME --kullanici mehmet --unvan "Deneme Ltd." --yil 2009 --ay 12
  belvani yonetici yetki ORNEK ayse
  belvani yonetici yetki ORNEK denetci --salt-oku
  belvani yonetici yetki DENEME mehmet
}

if [ -f "$dizin/$isaret" ] && [ ! -f "$dizin/hazir" ]; then # somebody has stopped it half way
  durdur
  rm -rf -- "$dizin"
  mkdir -p -- "$dizin"
fi
if [ ! -f "$dizin/hazir" ]; then
  [ -z "$(ls -A -- "$dizin")" ] || dur "dizin boş değil: $dizin"
  : >"$dizin/$isaret"
  echo "Deneme sunucusu kuruluyor: $dizin"
  sertifikalar 2>/dev/null || dur "sertifikalar yapılamadı (openssl)"
  kumeKur
  baslat
  veritabani
  sirketler
  : >"$dizin/hazir"
elif ! calisiyor; then
  baslat
fi

cat <<SON
Deneme sunucusu çalışıyor: 127.0.0.1, kapı $(cat "$dizin/kapi"). Şifreler: $dizin/pgpass

Ayşe ORNEK'te yazar (programda kullanıcı ornek, şifre ornek):
  belvani '$(adres ayse)'
  $cli --veri '$(adres ayse)' sirketler
Denetçi ORNEK'e yalnız bakar, Mehmet yalnız DENEME'yi görür, yönetici hepsini:
  $cli --veri '$(adres denetci)' bordro ORNEK --yil 2009 --ay 12
  $cli --veri '$(adres mehmet)' sirketler
  $cli --veri '$(adres yonetici)' yetki ORNEK
Programın dışından da öyledir; Mehmet ORNEK'in adını da göremez:
  psql '$(adres mehmet)' -c 'select kod from belvani.sirket' -c 'select * from s1.sicil'

Durdurmak: tools/sunucu-dene.sh --durdur $dizin
Silmek:    tools/sunucu-dene.sh --sil $dizin
SON
