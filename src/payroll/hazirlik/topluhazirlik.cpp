#include "payroll/hazirlik/topluhazirlik.h"

#include <algorithm>
#include <map>

#include "core/session/sirket.h"
#include "core/session/yukseltme.h"
#include "core/store/koru.h"
#include "payroll/hazirlik/mahsupkaybi.h"
#include "payroll/parametre/mevzuatkumesi.h"

namespace belvani {
namespace {

// Counts companies. Saving one can always be followed by giving the others up, so nothing is the last moment for that.
class SirketIlerlemesi final : public Ilerleme {
 public:
  SirketIlerlemesi(Ilerleme* disi, std::size_t toplam) : disi_(disi), toplam_(toplam) {}

  bool Basla(std::size_t sira, const std::string& ad) {
    sira_ = sira;
    if (disi_ != nullptr) disi_->Asama(ad);
    return Adim(0, 0);
  }
  bool Adim(std::size_t, std::size_t) override { return disi_ == nullptr || disi_->Adim(sira_, toplam_); }
  bool Kesin() override { return Adim(0, 0); }
  bool Vazgecildi() const override { return disi_ != nullptr && disi_->Vazgecildi(); }

 private:
  Ilerleme* disi_;
  std::size_t toplam_;
  std::size_t sira_ = 0;
};

std::string AyMetni(int yil, int ay) {
  return MevzuatAyi{yil, ay}.Metin();
}

// One company's, into its row.
class TekSirket {
 public:
  TekSirket(Oturum& oturum, const KuruluMevzuat& mevzuat, SirketHazirligi& olan)
      : oturum_(oturum), mevzuat_(mevzuat), olan_(olan) {}

  void Yap(Ilerleme* ilerleme) {
    const Durum yapildi = Koru([&]() -> Durum {
      if (AcikSirketMi(oturum_, VeriYolu(oturum_.DataPath).Alt(olan_.sirket.ad)))
        return Hazirla(oturum_, KosullariYukle(oturum_, mevzuat_.parametreler, olan_.sirket.yil, olan_.sirket.ay),
                       ilerleme);
      Oturum o;
      if (const Durum acildi = Ac(o); !acildi) return acildi;
      if (o.firma.firmayil != olan_.sirket.yil || o.firma.firmaay != olan_.sirket.ay) {
        Atla("Çalışma ayı bu arada " + AyMetni(o.firma.firmayil, o.firma.firmaay) + " olmuş");
        return Tamam();
      }
      return Hazirla(o, KosullariYukle(o, mevzuat_.parametreler, olan_.sirket.yil, olan_.sirket.ay), ilerleme);
    });
    if (!yapildi) {
      olan_.hal = SirketHali::Yapilamadi;
      olan_.soz = yapildi.KusurMetni();
    }
  }

 private:
  Durum Ac(Oturum& o) {
    o.DataPath = oturum_.DataPath;
    o.BilgisayarAdi = oturum_.BilgisayarAdi;
    if (auto acildi = AdiylaSirketAc(o, olan_.sirket.ad, SirketErisimi::Yazilir); !acildi) return acildi;
    if (o.SaltOkunur) return Kusur{SaltOkunurUyarisi};
    if (!FirmaYukle(o)) return Kusur{"İşyeri Tanımlamaları Yapılmamış"};
    if (auto ayni = VersiyonKontrol(o); !ayni) return ayni;
    if (const Durum yapi = YapiKontrol(o); !yapi)
      olan_.sorunlar.push_back({.metin = yapi.KusurMetni(), .derece = Derece::Uyari});
    IcerdeYaz(o, oturum_.Kullanici);
    return Tamam();
  }

  Durum Hazirla(Oturum& o, const Sonuc<Kosullar>& kosullar, Ilerleme* ilerleme) {
    if (!kosullar) return kosullar.Kusuru();
    const auto [ad, yil, ay] = olan_.sirket;
    if (const auto kayip = AyinMahsupKaybi(o.depo.db.IcMotor(), yil, ay, kosullar->paraonda)) {
      Atla(kayip->metin + " Bordro Hazırlık ekranından hazırlayınız.");
      return Tamam();
    }
    auto sonuc = TopluHazirla(o, *kosullar, {}, ilerleme);
    if (!sonuc && ilerleme->Vazgecildi()) return Tamam();  // as before
    if (!sonuc) return sonuc.Kusuru();
    if (sonuc->KimseYok()) {
      Atla("Bu ayda çalışan personel yok");
      return Tamam();
    }
    olan_.hal = SirketHali::Hazirlandi;
    olan_.soz = sonuc->Ozet();
    MevzuatiSoyle();
    std::ranges::move(sonuc->sorunlar, std::back_inserter(olan_.sorunlar));
    return Tamam();
  }

  void Atla(std::string neden) {
    olan_.hal = SirketHali::Atlandi;
    olan_.soz = std::move(neden);
  }

  // Its heading: the figures have been seen before it was begun.
  void MevzuatiSoyle() {
    std::string baslik = MevzuataBak(mevzuat_, {olan_.sirket.yil, olan_.sirket.ay}).baslik;
    baslik.erase(baslik.find_last_not_of(" :") + 1);
    if (!baslik.empty()) olan_.sorunlar.push_back({.metin = std::move(baslik), .derece = Derece::Uyari});
  }

  Oturum& oturum_;
  const KuruluMevzuat& mevzuat_;
  SirketHazirligi& olan_;
};

}  // namespace

std::vector<SirketAyi> CalismaAylari(const Oturum& oturum, const std::vector<SirketSatiri>& satirlar) {
  std::vector<SirketAyi> sirketler;
  const VeriYolu veri(oturum.DataPath);
  for (const SirketSatiri& satir : satirlar) {
    const bool acik = AcikSirketMi(oturum, veri.Alt(satir.ad));
    sirketler.push_back({satir.ad, acik ? oturum.firma.firmayil : satir.yil, acik ? oturum.firma.firmaay : satir.ay});
  }
  return sirketler;
}

Sonuc<std::string> TopluHazirlikSorusu(const Oturum& oturum, const std::vector<SirketAyi>& sirketler) {
  const KuruluMevzuat mevzuat = KuruluMevzuatOku(oturum.DataPath);
  if (const auto gorus = KullanilabilirMi(mevzuat); gorus.hal != MevzuatHali::Uygun) return Kusur{gorus.Metin()};
  std::map<std::pair<int, int>, int> aylar;
  for (const SirketAyi& sirket : sirketler)
    if (sirket.yil != 0) ++aylar[{sirket.yil, sirket.ay}];
  std::string soru = std::to_string(sirketler.size()) +
                     " şirketin bordrosu çalışma ayında şablondan hazırlanacak; ayın kayıtlı bordroları yeniden "
                     "hesaplanır, önceki halleri saklanır.";
  constexpr std::size_t enCokRakam = 5;
  for (const auto& [ay, sayi] : aylar) {
    soru += "\n\n" + AyMetni(ay.first, ay.second) + ": " + std::to_string(sayi) + " şirket";
    const MevzuatGorusu gorus = MevzuataBak(mevzuat, {ay.first, ay.second});
    if (gorus.hal != MevzuatHali::Uygun) soru += "\n" + gorus.Metin(enCokRakam);
  }
  return soru + "\n\nHazırlansın mı ?";
}

std::vector<SirketHazirligi> SirketleriHazirla(Oturum& oturum, const std::vector<SirketAyi>& sirketler,
                                               Ilerleme* ilerleme) {
  std::vector<SirketHazirligi> olanlar;
  for (const SirketAyi& sirket : sirketler) olanlar.push_back({.sirket = sirket, .soz = {}, .sorunlar = {}});
  const KuruluMevzuat mevzuat = KuruluMevzuatOku(oturum.DataPath);
  if (const auto gorus = KullanilabilirMi(mevzuat); gorus.hal != MevzuatHali::Uygun) {
    for (SirketHazirligi& olan : olanlar) {
      olan.hal = SirketHali::Yapilamadi;
      olan.soz = gorus.Metin();
    }
    return olanlar;
  }
  SirketIlerlemesi sirketlerin(ilerleme, sirketler.size());
  for (std::size_t i = 0; i < olanlar.size() && sirketlerin.Basla(i, sirketler[i].ad); ++i)
    TekSirket(oturum, mevzuat, olanlar[i]).Yap(&sirketlerin);
  return olanlar;
}

std::string TopluHazirlikOzeti(const std::vector<SirketHazirligi>& sirketler) {
  const auto sayi = [&](SirketHali hal) {
    return std::to_string(std::ranges::count(sirketler, hal, &SirketHazirligi::hal));
  };
  std::string ozet = std::to_string(sirketler.size()) + " şirket: " + sayi(SirketHali::Hazirlandi) + " hazırlandı, " +
                     sayi(SirketHali::Atlandi) + " atlandı, " + sayi(SirketHali::Yapilamadi) + " yapılamadı";
  if (const std::string kalan = sayi(SirketHali::Baslanmadi); kalan != "0") ozet += ", " + kalan + " başlanmadı";
  return ozet;
}

}  // namespace belvani
