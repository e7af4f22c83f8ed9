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
class NetinGizlileri {
 public:
  explicit NetinGizlileri(const Rapor& rapor) {
    const auto acik = [&](std::string_view baslik) {
      return std::ranges::find(rapor.Kolonlar(), baslik, &RaporKolonu::baslik) != rapor.Kolonlar().end();
    };
    if (!acik("Net Ödenen")) return;
    for (const NetTerimi& terim : netTerimleri)
      if (!acik(terim.kolon)) gizliler_.push_back({&terim, {}});
    for (const NetTerimi& terim : kesintiler)
      if (!acik(KesintilerKolonu) && !acik(terim.kolon)) gizliler_.push_back({&terim, {}});
  }

  void Ekle(const TuretilmisSatir& satir) {
    for (auto& [terim, toplam] : gizliler_) toplam += terim->deger(satir);
  }
  void Yaz(std::vector<BlokSatiri>& blok) const {
    for (const auto& [terim, toplam] : gizliler_)
      if (toplam != Tutar()) blok.push_back({std::string(terim->yon) + terim->kolon + " :", toplam});
  }

 private:
  std::vector<std::pair<const NetTerimi*, Tutar>> gizliler_;
};

// The ledger of records that come one after the other.
class DefterYapan {
 public:
  DefterYapan(const DefterBaslik& baslik, const DefterSecenek& secenek)
      : secenek_(secenek), liste_(kolonlar.Secilen(secenek.kolonlar), baslik), gizliler_(liste_.rapor) {
    liste_.rapor.baslik = "HİZMET ERBABI ÜCRET BORDROSU";
    liste_.rapor.ekranBasligi = "Ücret Bordrosu";
    liste_.rapor.ustSatirlar = UstSatirlar(baslik);
  }

  void Ekle(const BordroSatiri& kayit) {
    const bool yeniBordro = !liste_.rapor.Satirlar().empty() && kayit.brd.no != sonNo_;
    gizliler_.Ekle(liste_.Ekle(kayit, secenek_.herBordroYeni && yeniBordro));
    isveren_.Ekle(kayit.brd);
    sonNo_ = kayit.brd.no;
  }

  Rapor Bitir() {
    auto& blok = liste_.rapor.sonBlok;
    if (const std::size_t kisi = liste_.rapor.Satirlar().size(); secenek_.icmal && kisi > 0) {
      blok = isveren_.Satirlar();
      blok.insert(blok.begin(), {"Toplam Personel : ", std::int64_t(kisi)});
    }
    gizliler_.Yaz(blok);
    return std::move(liste_.rapor);
  }

 private:
  const DefterSecenek& secenek_;
  TuretilmisListe liste_;
  NetinGizlileri gizliler_;
  BlokToplayan isveren_{{IsverenMatrahi, IsverenKesintisi, IsverenKatkisi, IsverenIssizligi, OdenecekPrim}};
  decltype(Brd::no) sonNo_{};
};

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
  DefterYapan yapan(baslik, secenek);
  for (const BordroSatiri& satir : satirlar) yapan.Ekle(satir);
  return yapan.Bitir();
}

std::unique_ptr<Belge> DefterBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const DefterSecenek& secenek,
                                     const BelgeYazisi& yazi) {
  DefterYapan yapan(BaslikYap(kaynak, secim), secenek);
  DefterSatirlariniGez(
      kaynak.motor, secim, [&](const BordroSatiri& satir) { yapan.Ekle(satir); }, kaynak.ilerleme);
  return ListeBelgesi(yapan.Bitir(), KagitYonu::Yatay, yazi, secenek.duzen);
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

void BlokToplayan::Ekle(const Brd& brd) {
  for (std::size_t i = 0; i < tanimlar_.size(); ++i) tutarlar_[i] += Degeri(tanimlar_[i].ifade, brd);
}

std::vector<BlokSatiri> BlokToplayan::Satirlar() const {
  std::vector<BlokSatiri> satirlar;
  for (std::size_t i = 0; i < tanimlar_.size(); ++i) satirlar.push_back({tanimlar_[i].etiket, tutarlar_[i]});
  return satirlar;
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
