#include "documents/defter.h"

#include <algorithm>

#include "documents/deftersorgu.h"
#include "documents/listebelgesi.h"
#include "documents/turetilensatir.h"
#include "isyeri/isyerinumarasi.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

using enum KolonNiteligi;

// The widths of numbers are the least that their heads need, for a number column grows by itself. As they stand here
// all columns together take 219 of the 228 letters of the smallest print.
const Kolonlar<TuretilmisSatir> kolonlar{
    {"Kod No", 8, [](auto& s) { return s.brd.kod; }},
    {{"S.S.K. No", "SSK No"}, 13, [](auto& s) { return s.sicil.sskno; }},
    {"T.C. No", 11, [](auto& s) { return s.tcno; }},
    {"Adı Soyadı", 24, [](auto& s) { return AdSoyad(s.sicil); }, HerZaman},
    {"Girişi", 8, [](auto& s) { return s.sicil.girtar; }, KisaTarih},
    {"Çıkışı", 8, [](auto& s) { return s.sicil.ciktar; }, KisaTarih},
    {{"N.G.", "NG"}, 4, [](auto& s) { return s.brd.ng; }, Toplanir},
    {{"TG.", "HT"}, 3, [](auto& s) { return s.brd.ht + s.brd.rt; }, Toplanir},
    {{"İG.", "Üİ"}, 3, [](auto& s) { return s.brd.ui; }, Toplanir},
    {{"Toplam Brüt", "Top.Kazanç"}, 8, [](auto& s) { return s.brd.brutkaz; }, Toplanir},
    {"SSK Matrah", 8, [](auto& s) { return s.brd.sskmatrah; }, Toplanir},
    {{"SSK Prim", "SSK Kesinti"}, 7, [](auto& s) { return s.brd.sskkesinti; }, Toplanir},
    {{"İşsizlik", "İssizlik"}, 8, [](auto& s) { return s.brd.issizisci; }, Toplanir},
    {{"Kümüle G.V.", "Kümüle GV"}, 8, [](auto& s) { return s.brd.devgvmatrah; }, Toplanir},
    {{"GV Matrahı", "GV Matrah"}, 8, [](auto& s) { return s.brd.gvmatrah; }, Toplanir},
    {{"GV İndir.", "GV İndirim"}, 6, [](auto& s) { return Degeri(toplam::gvIndirimi, s.brd); }, Toplanir},
    {"GV Tutar", 7, [](auto& s) { return s.brd.gvtutar; }, Toplanir},
    {"D.Vergisi", 9, [](auto& s) { return s.damga; }, Toplanir},
    {"Sendika", 7, [](auto& s) { return s.brd.sendika; }, Toplanir},
    {"Borç Kes.", 6, [](auto& s) { return s.brd.borckes; }, Toplanir},
    {{"Kesintiler", "Top.Kesinti"}, 10, [](auto& s) { return s.kesintiler; }, Toplanir},
    {"A.G.İ.", 6, [](auto& s) { return s.brd.ogv; }, Toplanir},
    {"Net Ödenen", 8, [](auto& s) { return s.net; }, Toplanir},
    {"İmza", 8, [](auto&) { return Null{}; }, HerZaman},
};

std::vector<UstSatir> UstSatirlar(const DefterBaslik& baslik) {
  const Firma& firma = baslik.firma;
  return {
      {.orta = DonemMetni(BelgeDonemi(baslik))},
      UnvanSatiri(firma),
      IsyeriSatiri(firma),
      VergiDairesiSatiri(firma),
      {.sol = "ADRES : " + firma.adr1 + " " + firma.adr2},
  };
}

// The employer's side of the month.
std::vector<BlokSatiri> Icmal(const std::vector<BordroSatiri>& satirlar) {
  return {
      {"Toplam Personel : ", std::int64_t(satirlar.size())},
      Toplami(IsverenMatrahi, satirlar),
      Toplami(IsverenKesintisi, satirlar),
      Toplami(IsverenKatkisi, satirlar),
      Toplami(IsverenIssizligi, satirlar),
      Toplami(OdenecekPrim, satirlar),
  };
}

struct NetTerimi {
  const char* kolon;  // by its head
  const char* yon;
  Tutar (*deger)(const TuretilmisSatir&);
};
constexpr const char* Eklenen = "Net Ödenen'e eklenen ";
constexpr const char* Dusulen = "Net Ödenen'den düşülen ";
constexpr const char* KesintilerKolonu = "Kesintiler";

// "Net Ödenen" = "Toplam Brüt" - "Kesintiler" + "A.G.İ.", and of what "Kesintiler" are made.
const NetTerimi netTerimleri[] = {
    {"Toplam Brüt", Eklenen, [](auto& s) { return s.brd.brutkaz; }},
    {"A.G.İ.", Eklenen, [](auto& s) { return s.brd.ogv; }},
};
const NetTerimi kesintiler[] = {
    {"SSK Prim", Dusulen, [](auto& s) { return s.brd.sskkesinti; }},
    {"İşsizlik", Dusulen, [](auto& s) { return s.brd.issizisci; }},
    {"GV Tutar", Dusulen, [](auto& s) { return s.brd.gvtutar; }},
    {"D.Vergisi", Dusulen, [](auto& s) { return s.damga; }},
    {"Sendika", Dusulen, [](auto& s) { return s.brd.sendika; }},
    {"Borç Kes.", Dusulen, [](auto& s) { return s.brd.borckes; }},
};

// What of the net stands in columns that are switched off: without it the rows would not add up before their reader.
std::vector<BlokSatiri> NetinGizlileri(const std::vector<TuretilmisSatir>& satirlar, const Rapor& rapor) {
  const auto acik = [&](std::string_view baslik) {
    return std::ranges::find(rapor.Kolonlar(), baslik, &RaporKolonu::baslik) != rapor.Kolonlar().end();
  };
  std::vector<BlokSatiri> blok;
  const auto ekle = [&](const NetTerimi& terim) {
    if (acik(terim.kolon)) return;
    Tutar toplam;
    for (const TuretilmisSatir& satir : satirlar) toplam += terim.deger(satir);
    if (toplam != Tutar()) blok.push_back({std::string(terim.yon) + terim.kolon + " :", toplam});
  };
  if (!acik("Net Ödenen")) return blok;
  for (const NetTerimi& terim : netTerimleri) ekle(terim);
  if (!acik(KesintilerKolonu))
    for (const NetTerimi& terim : kesintiler) ekle(terim);
  return blok;
}

}  // namespace

DefterAnahtarlari DefterAnahtarlariOku(std::string_view metin) {
  DefterAnahtarlari anahtarlar;
  for (std::size_t i = 0; i < anahtarlar.size(); ++i) anahtarlar[i] = i >= metin.size() || metin[i] == '1';
  return anahtarlar;
}

std::string DefterAnahtarMetni(const DefterAnahtarlari& anahtarlar) {
  std::string metin;
  for (const bool acik : anahtarlar) metin += acik ? '1' : '0';
  return metin;
}

std::vector<std::string> DefterAnahtarAdlari() {
  return kolonlar.AnahtarAdlari();
}

Rapor DefterRaporu(const std::vector<BordroSatiri>& satirlar, const DefterBaslik& baslik,
                   const DefterSecenek& secenek) {
  const auto yeniBordro = [&](const TuretilmisSatir& onceki, const TuretilmisSatir& satir) {
    return secenek.herBordroYeni && onceki.brd.no != satir.brd.no;
  };
  const auto turetilen = TuretilmisSatirlar(satirlar, baslik);
  Rapor rapor = RaporYap(kolonlar.Secilen(secenek.kolonlar), turetilen, baslik.paraonda, yeniBordro);
  rapor.baslik = "HİZMET ERBABI ÜCRET BORDROSU";
  rapor.ekranBasligi = "Ücret Bordrosu";
  rapor.ustSatirlar = UstSatirlar(baslik);
  if (secenek.icmal && !satirlar.empty()) rapor.sonBlok = Icmal(satirlar);
  std::ranges::move(NetinGizlileri(turetilen, rapor), std::back_inserter(rapor.sonBlok));
  return rapor;
}

std::unique_ptr<Belge> DefterBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const DefterSecenek& secenek,
                                     const BelgeYazisi& yazi) {
  const auto satirlar = DefterSatirlariOku(kaynak.motor, secim, kaynak.ilerleme);
  return ListeBelgesi(DefterRaporu(satirlar, BaslikYap(kaynak, secim), secenek), KagitYonu::Yatay, yazi, secenek.duzen);
}

UstSatir UnvanSatiri(const Firma& firma) {
  return {.sol = "ÜNVANI : " + firma.unvan, .sirket = true};
}

UstSatir IsyeriSatiri(const Firma& firma) {
  return {.sol = "SSK İŞYERİ SİCİL No : " + IsyeriSicilNo(firma)};
}

UstSatir VergiDairesiSatiri(const Firma& firma) {
  return {.sol = "VERGİ DAİRESİ HESAP No : " + firma.verda + " - " + firma.verno, .sag = "Sayfa : ", .sayfaNo = true};
}

BlokSatiri Toplami(const BlokToplami& tanim, const std::vector<BordroSatiri>& satirlar) {
  Tutar toplam;
  for (const auto& satir : satirlar) toplam += Degeri(tanim.ifade, satir.brd);
  return {tanim.etiket, toplam};
}

BordroDonemi BelgeDonemi(const DefterBaslik& baslik) {
  return {baslik.yil, baslik.ay, baslik.firma.tersfirma ? DonemTuru::Ters : DonemTuru::Takvim};
}

std::string DonemMetni(const BordroDonemi& donem) {
  switch (donem.tur) {
    case DonemTuru::Takvim:
      return std::string(AyAdi(donem.ay)) + " " + std::to_string(donem.yil) + " DÖNEMİ";
    case DonemTuru::Ters:
      return donem.Bas().Metin() + " İLE " + donem.Son().Metin() + " DÖNEMİ ";
  }
  return {};
}

}  // namespace belvani
