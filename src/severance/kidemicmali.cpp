#include "severance/kidemicmali.h"

#include <map>

#include "core/asama.h"
#include "documents/listebelgesi.h"
#include "documents/turetilen.h"
#include "payroll/hesap/bordro.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

using enum KolonNiteligi;

constexpr const char* KidemIcmalBasligi = "KIDEM-İHBAR ICMAL LISTESI";

using Satir = KidemIcmalSatiri;

const Kolonlar<Satir> kolonlar{
    {"Sicil", 8, [](auto& s) { return s.kisi.sicil.kod; }},
    {"SSK No", 15, [](auto& s) { return s.kisi.sicil.sskno; }},
    {"TC No", 12, [](auto& s) { return s.kisi.tcno; }},
    {"Adı Soyadı", 30, [](auto& s) { return AdSoyad(s.kisi.sicil); }},
    {"Giriş", 10, [](auto& s) { return s.kisi.sicil.girtar; }},
    {"Çıkış", 10, [](auto& s) { return s.baz; }},
    {"Ücret", 10, [](auto& s) { return s.AylikUcret; }},
    {"K.Gün", 6, [](auto& s) { return s.CalismaGunu; }},
    {"PEK (Gün)", 9, [](auto& s) { return s.gunlukEsas; }},
    {"Bürüt", 10, [](auto& s) { return s.brutKidem; }, Toplanir},
    {"Damga", 8, [](auto& s) { return s.kidemDamga; }, Toplanir},
    {"NET Kıdem", 10, [](auto& s) { return s.netKidem; }, Toplanir},
    {"İ.Gün", 5, [](auto& s) { return s.IhbarGun; }},
    {"Brüt", 10, [](auto& s) { return s.brutIhbar; }, Toplanir},
    {"Gelir V.", 9, [](auto& s) { return s.ihbarGelirVergisi; }, Toplanir},
    {"Damga V.", 8, [](auto& s) { return s.ihbarDamga; }, Toplanir},
    {"NET İhbar.", 10, [](auto& s) { return s.netIhbar; }, Toplanir},
    {"TOPLAM NET.", 11, [](auto& s) { return s.netKidem + s.netIhbar; }, Toplanir},
};

// Sentences that its reader must know, each once.
class Notlar {
 public:
  void Ekle(std::string soz) {
    if (!soz.empty()) sozler_.push_back(std::move(soz));
  }
  // What is so of some people, with their number.
  void Say(const std::string& soz, int kisi = 1) {
    if (kisi > 0) kisiler_[soz] += kisi;
  }
  std::vector<std::string> Hepsi() const {
    std::vector<std::string> hepsi = sozler_;
    for (const auto& [soz, kisi] : kisiler_) hepsi.push_back(std::to_string(kisi) + " kişi: " + soz);
    return hepsi;
  }

 private:
  std::vector<std::string> sozler_;
  std::map<std::string, int> kisiler_;
};

constexpr const char* Kimliksiz = "listede yok, kimlik bilgileri yazılmamış.";
constexpr const char* Girissiz = "listede yok, giriş tarihi yazılmamış.";
constexpr const char* Tasan = "listede yok, tutarı sınırı aşıyor.";

Notlar IlkNotlar(const KidemKosullari& kosullar, const KidemKisileri& kisiler, const std::string& tavanSozu) {
  Notlar notlar;
  notlar.Ekle(tavanSozu);
  if (!kosullar.IsSaatiYazili) notlar.Ekle(std::string(IsSaatiYazilmamis) + ": günde 8 saat alındı.");
  for (const std::string& uyari : kosullar.uyarilar) notlar.Ekle(uyari);
  notlar.Say(Kimliksiz, kisiler.kimliksiz);
  notlar.Say(Girissiz, kisiler.girissiz);
  return notlar;
}

std::string TekMetin(const std::vector<std::string>& sozler) {
  std::string metin;
  for (const std::string& soz : sozler) metin += (metin.empty() ? "" : "\n") + soz;
  return metin;
}

class KidemIcmali final : public RaporBelgesi {
 public:
  KidemIcmali(Rapor rapor, const YzcAyarlari& ayar, std::string notlar)
      : RaporBelgesi(std::move(rapor), ayar), notlar_(std::move(notlar)) {}

  std::string Eksikler() const override { return notlar_; }
  std::string BaskiYok() const override { return "Yazıcı Bölümü Kapatılmış"; }
  std::string MetinUyarisi() const override { return {}; }  // no printer's line has to hold it

 private:
  std::string notlar_;
};

}  // namespace

std::optional<Kusur> KidemIcmalSecimi::Kusuru() const {
  if (!baz.Bos()) return std::nullopt;
  return KuralKusuru("Hatalı Baz Tarihi", Uye("baz", &KidemIcmalSecimi::baz));
}

KidemIcmalSatiri KidemIcmalSatiriYap(const KidemKisisi& kisi, Tarih baz, const KidemKosullari& kosullar,
                                     Tutar KidemTavan) {
  const KidemKurallari kurallar = kosullar.Kurallar();
  const Yuvarlayici yuvarla(kosullar.paraonda);
  KidemIcmalSatiri satir(kisi, baz);
  satir.AylikUcret = UcretYukle(kisi.sicil, kurallar, kisi.matrah);
  const KidemSonucu s = KidemHesapla(kurallar, {.girtar = kisi.sicil.girtar,
                                                .ciktar = baz,
                                                .AylikUcret = satir.AylikUcret,
                                                .IhbarGun = {},
                                                .matrah = kisi.matrah,
                                                .KidemTavan = KidemTavan,
                                                .bayraklar = kosullar.Bayraklar(kisi.sicil)});
  satir.CalismaGunu = s.CalismaGunu;
  satir.IhbarGun = s.IhbarGun;
  if (!s.tutarlar) return satir;
  const KidemTutarlari& t = *s.tutarlar;
  satir.gunlukEsas = Gosterilen(t.gunlukEsas, kosullar.paraonda);
  satir.brutKidem = yuvarla(t.brutKidem);
  satir.kidemDamga = t.kidemDamga;
  satir.netKidem = yuvarla(t.netKidem);
  satir.brutIhbar = yuvarla(t.brutIhbar);
  satir.ihbarGelirVergisi = yuvarla(t.ihbarGelirVergisi);
  satir.ihbarDamga = t.ihbarDamga;
  satir.netIhbar = yuvarla(t.netIhbar);
  return satir;
}

std::unique_ptr<Belge> KidemIcmalBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim,
                                         const KidemIcmalSecimi& icmal) {
  const KidemKosullari kosullar = KidemKosullariYukle(kaynak);
  const KidemTavaniGorusu tavan = KidemTavaninaBak(kosullar.yasal, icmal.baz);
  const KidemKisileri kisiler = KidemKisileriOku(kaynak.motor, secim, icmal.baz, kaynak.ilerleme);
  Notlar notlar = IlkNotlar(kosullar, kisiler, tavan.Soz(icmal.tavan));
  std::vector<KidemIcmalSatiri> satirlar;
  satirlar.reserve(kisiler.kisiler.size());
  Asama asama(kaynak.ilerleme, kisiler.kisiler.size());
  for (const KidemKisisi& kisi : kisiler.kisiler) {
    asama.Adim();
    const auto satir =
        TasmaKoru([&] { return KidemIcmalSatiriYap(kisi, icmal.baz, kosullar, tavan.Secilen(icmal.tavan)); });
    if (!satir) {
      notlar.Say(Tasan);
      continue;
    }
    satirlar.push_back(*satir);
    for (const std::string& soz : AlinmayanVergiler(kosullar.Bayraklar(kisi.sicil))) notlar.Say(soz);
  }
  Rapor rapor = RaporYap(kolonlar, satirlar, kosullar.paraonda);
  rapor.baslik = rapor.ekranBasligi = KidemIcmalBasligi;
  rapor.toplamEtiketi = "TOPLAM";
  rapor.ustSatirlar = {{.sol = kaynak.firma.unvan, .sag = "Baz Tarihi : " + icmal.baz.Metin(), .sirket = true}};
  for (const std::string& soz : notlar.Hepsi()) rapor.ustSatirlar.push_back({.sol = soz});
  return std::make_unique<KidemIcmali>(std::move(rapor), BaskiAyari(KidemIcmalBasligi, KagitYonu::Yatay),
                                       TekMetin(notlar.Hepsi()));
}

}  // namespace belvani
