#!/bin/sh
# Installs the Debian packages that building, testing and running need; says nothing when all are there.
#   tools/deps.sh [lint|fuzz]   also those of the linter or of the fuzzer
set -eu

paketler="g++ make cmake ninja-build ccache pkg-config libsqlite3-dev libicu-dev libcurl4-openssl-dev
  libxlsxwriter-dev libzip-dev zlib1g-dev libpugixml-dev libxxhash-dev libpq-dev postgresql
  nlohmann-json3-dev libcli11-dev libgtest-dev libgmock-dev libbenchmark-dev librapidcheck-dev
  libcairo2-dev libcups2-dev cups-daemon poppler-utils
  qt6-base-dev qt6-svg-dev libqt6svg6 qt6-translations-l10n fonts-dejavu-core xvfb xdotool sqlite3 locales"
case "${1:-}" in
  lint) paketler="$paketler clang-format clang-tidy" ;;
  fuzz) paketler="$paketler clang libclang-rt-14-dev" ;;
esac

eksik=""
for p in $paketler; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'ok installed' || eksik="$eksik $p"
done
[ -n "$eksik" ] || exit 0

onde=""
[ "$(id -u)" = 0 ] || onde="sudo"
echo "Installing:$eksik"
$onde env DEBIAN_FRONTEND=noninteractive apt-get update -qq

# The tests start a server of their own: installing its programs shall not set up and start one of the computer's.
ayar=/etc/postgresql-common/createcluster.d/belvani-deps.conf
case " $eksik " in
  *" postgresql "*)
    trap '$onde rm -f "$ayar"' EXIT
    $onde mkdir -p "${ayar%/*}"
    echo 'create_main_cluster = false' | $onde tee "$ayar" >/dev/null
    ;;
esac
# shellcheck disable=SC2086
$onde env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $eksik
