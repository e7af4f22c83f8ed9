#include "core/store/pgsunucu.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <set>

#include "core/store/pgdeger.h"
#include "core/turkce.h"

namespace belvani {
namespace {

// Pairs and neighbours at which orders part: dotted and dotless letters, case, letters with marks, digits, blanks,
// signs, letters of other languages.
constexpr std::array<std::string_view, 46> SiraOrnekleri{
    "",  "a",  "A", "b",   "c",  "ç",   "Ç",   "d",       "g",       "ğ",       "Ğ",     "h",     "ı", "I", "i", "İ",
    "î", "j",  "o", "ö",   "Ö",  "p",   "s",   "ş",       "Ş",       "t",       "u",     "ü",     "Ü", "û", "v", "z",
    "0", "10", "9", "a b", "ab", "a-b", "a.b", "ISPARTA", "ısparta", "isparta", "İzmir", "IĞDIR", "ÿ", "éa"};

std::string DiziMetni() {
  std::string dizi;
  for (const std::string_view ornek : SiraOrnekleri) dizi += (dizi.empty() ? "{\"" : ",\"") + std::string(ornek) + "\"";
  return dizi + "}";
}

// The rank of each sample; equal ones have the same.
std::vector<std::int64_t> BizimSiramiz() {
  std::vector<std::int64_t> siralar;
  for (const std::string_view ornek : SiraOrnekleri) {
    std::vector<std::string_view> onceki;
    for (const std::string_view baska : SiraOrnekleri)
      if (TurkceKarsilastir(baska, ornek) < 0 &&
          std::ranges::none_of(onceki, [&](std::string_view o) { return TurkceEsit(o, baska); }))
        onceki.push_back(baska);
    siralar.push_back(std::int64_t(onceki.size()) + 1);
  }
  return siralar;
}

// "153.120" as the server tells it.
std::string SurumMetni(std::uint32_t surum) {
  std::string metin;
  int parca = 0;
  for (int kay = 24; kay >= 0; kay -= 8) {
    if ((surum << (24 - kay)) == 0 && parca >= 2) break;
    metin += (metin.empty() ? "" : ".") + std::to_string(surum >> kay & 0xFF);
    ++parca;
  }
  return metin;
}

MotorHatasi Reddet(const std::string& neden) {
  return {MotorKusuru::Acilamadi, neden};
}

void SirayiDenetle(PgBaglanti& b) {
  const auto surum = b.Sirala(
      "select coalesce(collversion, ''), coalesce(pg_collation_actual_version(oid), '') from pg_collation "
      "where collnamespace = $1::text::regnamespace and collname = 'turkce'",
      {PgParametre::Metin(PgOrtakSema)});
  const auto sira = b.Sirala(
      "select dense_rank() over (order by metin collate belvani.turkce) from unnest($1::text[]) with ordinality "
      "as t(metin, no) order by no",
      {PgParametre::Metin(DiziMetni())});
  b.Bitir();
  const PgSonuc& s = surum->sonuc;
  if (s.Satir() == 0) throw Reddet("Sunucuda Türkçe harf sırası kurulmamış: belvani-cli sunucu-kur");
  const std::string kurulan(s.Ham(0, 0)), simdiki(s.Ham(0, 1)), bizim = SurumMetni(TurkceSiraSurumu());
  if (kurulan != simdiki)
    throw Reddet("Sunucunun harf sırası kitaplığı değişmiş (" + kurulan + " yerine " + simdiki +
                 "), indeksler yenilenmeden çalışılamaz: belvani-cli sunucu-kur");
  std::vector<std::int64_t> sunucunun;
  for (int i = 0; i < sira->sonuc.Satir(); ++i) sunucunun.push_back(PgTam(sira->sonuc.Tip(0), sira->sonuc.Ham(i, 0)));
  if (simdiki != bizim || sunucunun != BizimSiramiz())
    throw Reddet("Sunucu Türkçe harfleri bu programdan başka sıralıyor (sunucu " + simdiki + ", program " + bizim +
                 "); listeler yanlış eşleşirdi. İki bilgisayarda aynı ICU sürümü bulunmalı");
}

}  // namespace

std::string PgSema(std::int64_t sirketNo) {
  return "s" + std::to_string(sirketNo);
}

void PgSunucuyuDenetle(PgBaglanti& b) {
  const auto kurulu = b.Yurut(
      "select s.no is null or s.gorulur, case when s.gorulur then to_regclass('belvani.kurulum') is not null end "
      "from (select to_regnamespace('belvani')::oid as no, "
      "has_schema_privilege(to_regnamespace('belvani')::oid, 'usage') as gorulur) s");
  const auto dogru = [&](int kolon) {
    return !kurulu.NullMu(0, kolon) && PgTam(kurulu.Tip(kolon), kurulu.Ham(0, kolon)) != 0;
  };
  if (!dogru(0)) throw Reddet("Bu kullanıcıya sunucuda henüz yetki verilmemiş: belvani-cli yetki KOD KULLANICI");
  if (!dogru(1)) throw Reddet("Bu veritabanı programa hazırlanmamış: belvani-cli sunucu-kur");
  const auto surum = b.Yurut("select surum from belvani.kurulum");
  if (surum.Satir() == 0 || PgTam(surum.Tip(0), surum.Ham(0, 0)) > PgKurulumSurumu)
    throw Reddet("Sunucu programın daha yeni bir sürümüyle hazırlanmış, programı yenileyiniz");
  SirayiDenetle(b);
}

std::optional<std::int64_t> PgYarimNo(std::string_view ad) {
  if (!ad.starts_with('.')) return std::nullopt;
  const std::string_view rakamlar = ad.substr(ad.rfind('-') + 1);
  std::int64_t no = 0;
  const auto [son, hata] = std::from_chars(rakamlar.data(), rakamlar.data() + rakamlar.size(), no);
  return hata == std::errc() && son == rakamlar.data() + rakamlar.size() ? std::optional(no) : std::nullopt;
}

std::optional<std::int64_t> PgSirketNo(PgBaglanti& b, std::string_view ad) {
  const auto yarim = PgYarimNo(ad);
  const PgSonuc sonuc =
      yarim ? b.Yurut("select no from belvani.sirket where no = $1::bigint", {PgParametre::Tam(*yarim)})
            : b.Yurut("select no from belvani.sirket where kod collate \"C\" = $1", {PgParametre::Metin(PgMetni(ad))});
  if (sonuc.Satir() == 0) return std::nullopt;
  return PgTam(sonuc.Tip(0), sonuc.Ham(0, 0));
}

}  // namespace belvani
