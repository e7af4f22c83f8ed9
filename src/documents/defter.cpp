#include "documents/defter.h"

#include <algorithm>

#include "documents/turetilen.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

using enum KolonNiteligi;

// A record with the values that depend on the rate of stamp duty.
struct DefterSatiri {
  DefterSatiri(const BordroSatiri& satir, Tek damgaOran, Yuvarlayici yuvarla)
      : brd(satir.brd),
        sicil(satir.sicil),
        tcno(satir.tcno),
        damga(AgiDahilDamga(brd, damgaOran, yuvarla)),
        kesintiler(Kesintiler(brd, damgaOran, yuvarla)),
        net(NetOdenen(brd, damgaOran, yuvarla)) {}

  const Brd& brd;
  const Sicil& sicil;
  const std::string& tcno;
  Tutar damga;
  Tutar kesintiler;
  Tutar net;
};

// The widths of numbers are the least that their heads need, for a number column grows by itself. As they stand here
// all columns together take 219 of the 228 letters of the smallest print.
const Kolonlar<DefterSatiri> kolonlar{
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
    {{"GV İndir.", "GV İndirim"}, 6, [](auto& s) { return GvIndirimi(s.brd); }, Toplanir},
    {"GV Tutar", 7, [](auto& s) { return s.brd.gvtutar; }, Toplanir},
    {"D.Vergisi", 9, [](auto& s) { return s.damga; }, Toplanir},
    {"Sendika", 7, [](auto& s) { return s.brd.sendika; }, Toplanir},
    {"Borç Kes.", 6, [](auto& s) { return s.brd.borckes; }, Toplanir},
    {{"Kesintiler", "Top.Kesinti"}, 10, [](auto& s) { return s.kesintiler; }, Toplanir},
    {"A.G.İ.", 6, [](auto& s) { return s.brd.ogv; }, Toplanir},
    {"Net Ödenen", 8, [](auto& s) { return s.net; }, Toplanir},
    {"İmza", 8, [](auto&) { return Null{}; }, HerZaman},
};

std::vector<DefterSatiri> DefterSatirlari(const std::vector<BordroSatiri>& satirlar, const DefterBaslik& baslik) {
  const Yuvarlayici yuvarla(baslik.paraonda);
  std::vector<DefterSatiri> sonuc;
  sonuc.reserve(satirlar.size());
  for (const auto& satir : satirlar) sonuc.emplace_back(satir, baslik.damgaOran, yuvarla);
  return sonuc;
}

std::vector<UstSatir> UstSatirlar(const DefterBaslik& baslik) {
  const Firma& firma = baslik.firma;
  const BordroDonemi donem{baslik.yil, baslik.ay, firma.tersfirma ? DonemTuru::Ters : DonemTuru::Takvim};
  return {
      {.orta = DonemMetni(donem)},
      {.sol = "ÜNVANI : " + firma.unvan},
      {.sol = "SSK İŞYERİ SİCİL No : " + IsyeriSicilNo(firma)},
      {.sol = "VERGİ DAİRESİ HESAP No : " + firma.verda + " - " + firma.verno, .sag = "Sayfa : ", .sayfaNo = true},
      {.sol = "ADRES : " + firma.adr1 + " " + firma.adr2},
  };
}

// The employer's side of the month.
std::vector<BlokSatiri> Icmal(const std::vector<BordroSatiri>& satirlar) {
  const auto topla = [&](auto oku) {
    Tutar toplam;
    for (const auto& satir : satirlar) toplam += oku(satir.brd);
    return toplam;
  };
  return {
      {"Toplam Personel : ", std::int64_t(satirlar.size())},
      {"Toplam SSK İşveren Matrahı :", topla([](auto& b) { return b.sskmatrahisveren; })},
      {"Toplam SSK İşveren Kesintisi :", topla([](auto& b) { return b.sskkesintiisveren; })},
      {"Toplam İşveren Devlet Katkısı:", topla([](auto& b) { return b.katki; })},
      {"Toplam İşsizliik İşveren Kesintisi :", topla([](auto& b) { return b.issizisveren; })},
      {"Toplam Ödenecek SSK Primi :", topla(OdenecekSskPrimi)},
  };
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
  const auto yeniBordro = [&](const DefterSatiri& onceki, const DefterSatiri& satir) {
    return secenek.herBordroYeni && onceki.brd.no != satir.brd.no;
  };
  Rapor rapor =
      RaporYap(kolonlar.Secilen(secenek.kolonlar), DefterSatirlari(satirlar, baslik), baslik.paraonda, yeniBordro);
  rapor.baslik = "HİZMET ERBABI ÜCRET BORDROSU";
  rapor.ekranBasligi = "Ücret Bordrosu";
  rapor.ustSatirlar = UstSatirlar(baslik);
  if (secenek.icmal && !satirlar.empty()) rapor.sonBlok = Icmal(satirlar);
  return rapor;
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
