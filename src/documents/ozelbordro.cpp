#include "documents/ozelbordro.h"

#include "documents/deftersorgu.h"
#include "documents/listebelgesi.h"
#include "documents/turetilensatir.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

using enum KolonNiteligi;

const Kolonlar<TuretilmisSatir> kolonlar{
    {"S.", 3, [](auto& s) { return s.sira; }},
    {"SSK No", 13, [](auto& s) { return s.sicil.sskno; }},
    {"T.C.No", 11, [](auto& s) { return s.tcno; }},
    {"Ad Soyad", 24, [](auto& s) { return AdSoyad(s.sicil); }},
    {"N.G.", 4, [](auto& s) { return s.brd.ng; }, Toplanir},
    {"HT.", 3, [](auto& s) { return s.brd.ht; }, Toplanir},
    {"RT.", 3, [](auto& s) { return s.brd.rt; }, Toplanir},
    {"Üİ.", 3, [](auto& s) { return s.brd.ui; }, Toplanir},
    {"Mİ.", 3, [](auto& s) { return s.brd.mi; }, Toplanir},
    {{"Topl. Gün", "Top."}, 5, [](auto& s) { return GunToplami(s.brd); }, Toplanir},
    {"G.Brüt ücret", 6, [](auto& s) { return s.gunlukBrut; }},
    {"Brüt Kazanç", 8, [](auto& s) { return s.brd.brutkaz - s.brd.yrd02 - s.brd.yrd09; }, Toplanir},
    {"Yemek", 6, [](auto& s) { return s.brd.yrd02; }, Toplanir},
    {"Yol", 6, [](auto& s) { return s.brd.yrd09; }, Toplanir},
    {"Toplam Kazanç", 8, [](auto& s) { return s.brd.brutkaz; }, Toplanir},
    {"Pek İndirim", 7, [](auto& s) { return s.brd.muaftutar; }, Toplanir},
    {"PEK", 8, [](auto& s) { return s.brd.sskmatrah; }, Toplanir},
    {"SSK Primi", 7, [](auto& s) { return s.brd.sskkesinti; }, Toplanir},
    {"İşsizlik", 8, [](auto& s) { return s.brd.issizisci; }, Toplanir},
    {"Kümüle G.V.M.", 8, [](auto& s) { return s.brd.devgvmatrah; }, Toplanir},
    {"G.V Matrahı", 8, [](auto& s) { return s.brd.gvmatrah; }, Toplanir},
    {"G.Vergisi", 9, [](auto& s) { return s.brd.gvtutar; }, Toplanir},
    {"Damga V.", 6, [](auto& s) { return s.damga; }, Toplanir},
    {"Toplam Kesinti", 8, [](auto& s) { return s.kesintiler; }, Toplanir},
    {"Agi+Net Ödeme", 8, [](auto& s) { return s.net; }, Toplanir},
};

// Of records that come one after the other.
class OzelBordroYapan {
 public:
  explicit OzelBordroYapan(const DefterBaslik& baslik) : liste_(kolonlar, baslik) {
    const Firma& firma = baslik.firma;
    liste_.rapor.baslik = "HİZMET ERBABI ÜCRET BORDROSU";
    liste_.rapor.ekranBasligi = "Hizmet Erbabı Ücret Bordrosu";
    liste_.rapor.ustSatirlar = {{.orta = DonemMetni(BelgeDonemi(baslik))},
                                UnvanSatiri(firma),
                                IsyeriSatiri(firma),
                                {.sol = "BÖLGE ÇALIŞMA DOSYA No : " + firma.bolcal},
                                VergiDairesiSatiri(firma)};
  }

  void Ekle(const BordroSatiri& kayit) {
    liste_.Ekle(kayit);
    isveren_.Ekle(kayit.brd);
  }
  Rapor Bitir() {
    if (!liste_.rapor.Satirlar().empty()) liste_.rapor.sonBlok = isveren_.Satirlar();
    return std::move(liste_.rapor);
  }

 private:
  TuretilmisListe liste_;
  BlokToplayan isveren_{{IsverenMatrahi, IsverenKesintisi, IsverenIssizligi}};
};

}  // namespace

Rapor OzelBordroRaporu(const std::vector<BordroSatiri>& satirlar, const DefterBaslik& baslik) {
  OzelBordroYapan yapan(baslik);
  for (const BordroSatiri& satir : satirlar) yapan.Ekle(satir);
  return yapan.Bitir();
}

std::unique_ptr<Belge> OzelBordroBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const SayfaDuzeni& duzen,
                                         const BelgeYazisi& yazi) {
  OzelBordroYapan yapan(BaslikYap(kaynak, secim));
  DefterSatirlariniGez(
      kaynak.motor, Sirali(secim, DefterSirasi::SskNo), [&](const BordroSatiri& satir) { yapan.Ekle(satir); },
      kaynak.ilerleme);
  return ListeBelgesi(yapan.Bitir(), KagitYonu::Yatay, yazi, duzen);
}

}  // namespace belvani
