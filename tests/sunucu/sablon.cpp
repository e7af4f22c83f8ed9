#include "sunucu/sablon.h"

#include <cstdlib>
#include <libpq-fe.h>
#include <memory>
#include <pwd.h>
#include <stdexcept>
#include <unistd.h>

namespace belvani::test {
namespace {

constexpr const char* Sablon = "belvani_bos";

// Names of ours need no quotes inside of quotes.
std::string Adi(const std::string& ad) {
  return "\"" + ad + "\"";
}

std::string BuKullanici() {
  const passwd* hesap = ::getpwuid(::geteuid());
  return hesap == nullptr ? SunucuYoneticisi : hesap->pw_name;
}

}  // namespace

void YoneticiSql(const std::string& sunucuDizini, const std::string& veritabani, const std::string& sql) {
  const std::string baglanti = "host=" + sunucuDizini + " port=5432 user=" + SunucuYoneticisi +
                               " dbname=" + veritabani + " connect_timeout=30 options='-c client_min_messages=warning'";
  const std::unique_ptr<PGconn, decltype(&PQfinish)> bag(PQconnectdb(baglanti.c_str()), PQfinish);
  if (PQstatus(bag.get()) != CONNECTION_OK) throw std::runtime_error(PQerrorMessage(bag.get()));
  const std::unique_ptr<PGresult, decltype(&PQclear)> sonuc(PQexec(bag.get(), sql.c_str()), PQclear);
  const ExecStatusType durum = PQresultStatus(sonuc.get());
  if (durum != PGRES_COMMAND_OK && durum != PGRES_TUPLES_OK && durum != PGRES_EMPTY_QUERY)
    throw std::runtime_error(sql + "\n" + PQerrorMessage(bag.get()));
}

void SablonHazirla(const OzelSunucu& sunucu, const std::function<void(const std::string& adres)>& kur,
                   const std::string& sahip) {
  YoneticiSql(sunucu.Dizin(), "postgres", std::string("create database ") + Sablon + " template template0");
  kur("postgresql://" + std::string(SunucuYoneticisi) + "@/" + Sablon + "?host=" + sunucu.Dizin());
  const std::string kullanici = BuKullanici();
  if (kullanici == SunucuYoneticisi) return;
  YoneticiSql(sunucu.Dizin(), "postgres",
              "create role " + Adi(kullanici) + " login; grant " + Adi(sahip) + " to " + Adi(kullanici));
}

// A copy has the template's tables, but neither its owner nor its rights and settings, which the catalogue keeps.
void SablondanYarat(const std::string& sunucuDizini, const std::string& veritabani) {
  YoneticiSql(sunucuDizini, "postgres",
              "create database " + Adi(veritabani) + " template " + Sablon + " strategy file_copy");
  const std::string kosul = std::string("b.datname = '") + Sablon + "'";
  YoneticiSql(sunucuDizini, "postgres",
              "update pg_database y set datdba = b.datdba, datacl = b.datacl from pg_database b where " + kosul +
                  " and y.datname = '" + veritabani + "';" +
                  "insert into pg_db_role_setting select y.oid, s.setrole, s.setconfig from pg_database b"
                  " join pg_db_role_setting s on s.setdatabase = b.oid join pg_database y on y.datname = '" +
                  veritabani + "' where " + kosul);
}

void VeritabaniniSil(const std::string& sunucuDizini, const std::string& veritabani) {
  YoneticiSql(sunucuDizini, "postgres", "drop database if exists " + Adi(veritabani) + " with (force)");
}

}  // namespace belvani::test
