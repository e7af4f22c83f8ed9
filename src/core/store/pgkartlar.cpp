#include <algorithm>
#include <map>
#include <set>

#include "core/store/pgdeger.h"
#include "core/store/pgkomut.h"
#include "core/store/pgortak.h"
#include "core/store/pgsunucu.h"
#include "core/store/satirlar.h"
#include "core/store/sunucukartlari.h"

namespace belvani {
namespace {

// A request locks its table until the answers are asked for.
constexpr std::size_t BirdenSorulan = 500;

struct KartYeri {
  std::string sema;
  std::set<std::string, std::less<>> kolonlar;  // of its table; an older version has fewer
};

std::map<std::string, KartYeri, std::less<>> KartYerleri(PgBaglanti& b) {
  const auto sirketler = b.Sirala("select kod, no from belvani.sirket where kod is not null");
  const auto kolonlar = b.Sirala(
      "select n.nspname::text, a.attname::text from pg_namespace n join pg_class c on c.relnamespace = n.oid "
      "join pg_attribute a on a.attrelid = c.oid where c.relname = 'firma' and c.relkind = 'r' and a.attnum > 0 "
      "and not a.attisdropped and has_table_privilege(c.oid, 'select')");
  b.Bitir();
  std::map<std::string, std::set<std::string, std::less<>>, std::less<>> semalar;
  const PgSonuc& k = kolonlar->sonuc;
  for (int i = 0; i < k.Satir(); ++i) semalar[std::string(k.Ham(i, 0))].emplace(k.Ham(i, 1));
  std::map<std::string, KartYeri, std::less<>> yerler;
  const PgSonuc& s = sirketler->sonuc;
  for (int i = 0; i < s.Satir(); ++i) {
    const std::string sema = PgSema(PgTam(s.Tip(1), s.Ham(i, 1)));
    if (const auto var = semalar.find(sema); var != semalar.end())
      yerler.emplace(s.Ham(i, 0), KartYeri{sema, std::move(var->second)});
  }
  return yerler;
}

std::string KartSorgusu(const KartYeri& yer) {
  std::string liste;
  Firma::HerKolon([&](const AlanTanimi& kolon) {
    liste += (liste.empty() ? "" : ", ") + (yer.kolonlar.contains(kolon.ad) ? std::string(kolon.ad) : "null");
  });
  return "select " + liste + " from " + yer.sema + ".firma order by " + std::string(PgSatirNo) + " limit 1";
}

}  // namespace

std::vector<std::optional<Firma>> SunucudakiKartlar(const std::string& adres, const std::vector<std::string>& adlar) {
  const auto cozulen = SunucuAdresiCoz(adres);
  if (!cozulen) throw MotorHatasi(MotorKusuru::Acilamadi, cozulen.KusurMetni());
  PgBaglanti& b = PgOrtakAl(cozulen->baglanti)->b;
  const auto yerler = KartYerleri(b);
  std::vector<std::shared_ptr<PgYanit>> yanitlar(adlar.size());
  for (std::size_t i = 0; i < adlar.size(); ++i) {
    if (const auto yer = yerler.find(adlar[i]); yer != yerler.end())
      yanitlar[i] = b.BirKezSirala(KartSorgusu(yer->second));
    if (i % BirdenSorulan == BirdenSorulan - 1) b.Bitir();
  }
  b.Bitir();
  std::vector<std::optional<Firma>> kartlar(adlar.size());
  for (std::size_t i = 0; i < adlar.size(); ++i)
    if (yanitlar[i] != nullptr)
      if (PgSatirlar satirlar(yanitlar[i]->sonuc); satirlar.Adim()) KayitAl(satirlar, 0, kartlar[i].emplace());
  return kartlar;
}

}  // namespace belvani
