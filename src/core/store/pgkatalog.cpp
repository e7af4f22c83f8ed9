#include "core/store/pgkatalog.h"

#include <algorithm>

#include "core/store/pgdeger.h"

namespace belvani {
namespace {

constexpr const char* KolonSorgusu =
    "select c.oid, c.relname::text, a.attnum, a.attname::text, format_type(a.atttypid, null), "
    "case when t.typtype = 'd' then t.typbasetype else a.atttypid end, a.attidentity <> '' "
    "from pg_class c join pg_attribute a on a.attrelid = c.oid join pg_type t on t.oid = a.atttypid "
    "where c.relnamespace = $1::text::regnamespace and c.relkind = 'r' and a.attnum > 0 and not a.attisdropped "
    "order by c.oid, a.attnum";
constexpr const char* IndeksSorgusu =
    "select t.relname::text, c.relname::text, i.indisunique from pg_index i join pg_class c on c.oid = i.indexrelid "
    "join pg_class t on t.oid = i.indrelid where t.relnamespace = $1::text::regnamespace";

// "belvani.tinyint" -> "tinyint".
std::string Yalin(std::string_view tip) {
  return std::string(tip.substr(tip.rfind('.') + 1));
}

bool Dogru(std::string_view ham) {
  return PgTam(unsigned(PgTip::Mantik), ham) != 0;
}

}  // namespace

const PgKolonu* PgTablosu::Bul(std::string_view kolon) const {
  const auto yer = std::ranges::find(kolonlar, kolon, &PgKolonu::ad);
  return yer == kolonlar.end() ? nullptr : &*yer;
}

PgKatalog::PgKatalog(PgBaglanti& b, const std::string& sema) {
  const auto kolonlar = b.Sirala(KolonSorgusu, {PgParametre::Metin(sema)});
  const auto indeksler = b.Sirala(IndeksSorgusu, {PgParametre::Metin(sema)});
  b.Bitir();
  Oku(kolonlar->sonuc, indeksler->sonuc);
}

void PgKatalog::Oku(const PgSonuc& kolonlar, const PgSonuc& indeksler) {
  const auto tam = [&](int satir, int kolon) { return PgTam(kolonlar.Tip(kolon), kolonlar.Ham(satir, kolon)); };
  for (int i = 0; i < kolonlar.Satir(); ++i) {
    PgTablosu& tablo = tablolar_[std::string(kolonlar.Ham(i, 1))];
    tablo.ad = kolonlar.Ham(i, 1);
    numaralar_[unsigned(tam(i, 0))] = &tablo;
    tablo.kolonlar.push_back({std::string(kolonlar.Ham(i, 3)), Yalin(kolonlar.Ham(i, 4)), unsigned(tam(i, 5))});
    tablo.yerler.push_back(int(tam(i, 2)));
    if (Dogru(kolonlar.Ham(i, 6))) tablo.kimlik = tablo.kolonlar.back().ad;
  }
  for (int i = 0; i < indeksler.Satir(); ++i)
    if (const auto tablo = tablolar_.find(indeksler.Ham(i, 0)); tablo != tablolar_.end())
      tablo->second.indeksler.emplace(indeksler.Ham(i, 1), Dogru(indeksler.Ham(i, 2)));
}

const PgTablosu* PgKatalog::Bul(std::string_view tablo) const {
  std::string ad(tablo);
  std::ranges::transform(ad, ad.begin(), [](unsigned char c) { return char(std::tolower(c)); });
  const auto yer = tablolar_.find(ad);
  return yer == tablolar_.end() ? nullptr : &yer->second;
}

const PgTablosu* PgKatalog::Bul(unsigned tabloNo) const {
  const auto yer = numaralar_.find(tabloNo);
  return yer == numaralar_.end() ? nullptr : yer->second;
}

const PgKolonu* PgKatalog::Bul(unsigned tabloNo, int yer) const {
  const PgTablosu* tablo = Bul(tabloNo);
  if (tablo == nullptr) return nullptr;
  const auto i = std::ranges::find(tablo->yerler, yer);
  return i == tablo->yerler.end() ? nullptr : &tablo->kolonlar[std::size_t(i - tablo->yerler.begin())];
}

}  // namespace belvani
