// Past months out of a file: as they stand, with their checksums, in the place of what the person has of them.
#include <set>

#include "core/session/yukseltmeadimlari.h"
#include "core/store/satirlar.h"
#include "core/store/yantablolar.h"
#include "core/tables/bordronosu.h"
#include "payroll/devir/aylikbilgi.h"
#include "payroll/devir/satirlar.h"
#include "payroll/hazirlik/aysaklama.h"

namespace belvani {
namespace {

constexpr std::string_view AlinmadanOnce = "dosyadan alınmadan önce";
constexpr std::int64_t BordroNo = 1;

class KartYazici {
 public:
  KartYazici(Oturum& o, AktarimDosyasi& dosya, AktarimSonucu& sonuc)
      : motor_(o.depo.db.IcMotor()),
        paraonda_(o.firma.paraonda),
        dosya_(dosya),
        sonuc_(sonuc),
        kisiler_(motor_),
        yazici_(motor_),
        ayKaydi_(motor_.Hazirla("select " + SecimListesi<Brd>(motor_) +
                                " from brd where yil = ? and ay = ? and kod = ? and " + std::string(BordroNosu) +
                                " = 1 order by oto limit 1")) {}

  void Yaz(const AktarimSatiri& satir) {
    const auto kod = kisiler_.KoduBul(dosya_, satir);
    if (const auto no = Sayi(satir, brd::no); no != 0 && no != BordroNo)
      dosya_.SorunEkle(satir, brd::no.ad, "bordro numarası 1 olmalı");
    if (!kod) return;
    const int yil = int(Sayi(satir, brd::yil)), ay = int(Sayi(satir, brd::ay));
    if (!gorulen_.insert({*kod, {yil, ay}}).second)
      dosya_.SorunEkle(satir, brd::ay.ad, "kişinin bu ayı dosyada iki kez var");
    if (!dosya_.sorunlar.empty()) return;
    const auto eski = AyKaydi(yil, ay, *kod);
    Brd b = eski.value_or(Brd{});
    HucreleriKoy(b, dosya_, satir);
    b.kod = *kod;
    b.no = std::uint8_t(BordroNo);
    ++(eski ? sonuc_.degisen : sonuc_.eklenen);
    if (!eski || *eski != b) Kaydet(eski, b);
    for (const std::string& kusur : AritmetikKusurlari(b, paraonda_))
      sonuc_.uyarilar.push_back({.metin = kusur, .kod = b.kod, .satir = satir.satirNo, .derece = Derece::Uyari});
  }

 private:
  std::int64_t Sayi(const AktarimSatiri& satir, const AlanTanimi& alan) const {
    return HucreSayisi(dosya_, satir, alan.ad);
  }

  std::optional<Brd> AyKaydi(int yil, int ay, const std::string& kod) {
    ayKaydi_->TamBagla(1, yil);
    ayKaydi_->TamBagla(2, ay);
    ayKaydi_->MetinBagla(3, kod);
    if (!ayKaydi_->Adim()) return std::nullopt;
    Brd b;
    KayitAl(*ayKaydi_, 0, b);
    ayKaydi_->Birak();
    return b;
  }

  void Kaydet(const std::optional<Brd>& eski, const Brd& b) {
    if (saklanan_.insert({b.yil, b.ay}).second) AyiSakla(motor_, b.yil, b.ay, AlinmadanOnce);
    if (eski)
      yazici_.Degistir(b, b.oto);
    else
      yazici_.Ekle(b);
  }

  Motor& motor_;
  int paraonda_;
  AktarimDosyasi& dosya_;
  AktarimSonucu& sonuc_;
  DosyadakiKisiler kisiler_;
  KayitYazici<Brd> yazici_;
  std::unique_ptr<Komut> ayKaydi_;
  std::set<std::pair<std::string, std::pair<int, int>>> gorulen_;
  std::set<std::pair<int, int>> saklanan_;
};

}  // namespace

Sonuc<AktarimSonucu> KartAktar(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip) {
  auto dosya = AktarimDosyasiOku(csv, {TabloBul("brd")}, "kod", AnahtarKurali::TekrarEder);
  if (!dosya) return dosya.Kusuru();
  for (const AlanTanimi& alan : {AlanTanimi(brd::yil), AlanTanimi(brd::ay)}) dosya->KolonIste(alan.ad);
  return AktarimiKaydet(o, *dosya, kip, [&](AktarimSonucu& sonuc) -> Durum {
    Motor& motor = o.depo.db.IcMotor();
    if (auto yarim = YarimYukseltmeKusuru(motor)) return *std::move(yarim);
    OncekileriHazirla(motor);
    KartYazici yazici(o, *dosya, sonuc);
    for (const AktarimSatiri& satir : dosya->satirlar) yazici.Yaz(satir);
    return Tamam();
  });
}

}  // namespace belvani
