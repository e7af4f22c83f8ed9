#include "personnel/kontrol.h"

#include "core/asama.h"
#include "core/sayi.h"
#include "core/store/koru.h"
#include "core/store/satirlar.h"
#include "core/tables/kimlik.h"
#include "core/tables/sicil.h"
#include "core/tckimlik.h"
#include "core/turkce.h"
#include "personnel/listeler.h"
#include "personnel/tanimkodlari.h"

namespace belvani {
namespace {

constexpr std::size_t TcKimlikHanesi = 11;
constexpr std::uint8_t Emekli = 1;  // `sicil.sskdurum`

bool SayiMi(const std::string& metin) {
  return SayiOku(metin).has_value();
}
bool Bos(const std::string& metin) {
  return Kirp(metin).empty();
}

template <class Kayit>
struct Kural {
  bool (*kusurlu)(const Kayit&);
  const char* metin;
  AlanTutamagi alan;
};

const Kural<Sicil> SicilKurallari[] = {
    {[](const Sicil& s) { return !SayiMi(s.sskno); }, "SSK Sicil No Rakamlardan Oluşmalı", sicil::sskno},
    {[](const Sicil& s) { return Bos(s.sskno); }, "SSK Sicil No Bulunamadı", sicil::sskno},
    {[](const Sicil& s) { return s.girtar.Bos(); }, "Giriş Tarihi Bulunamadı", sicil::girtar},
    {[](const Sicil& s) { return Bos(s.adi); }, "Personel Adı Bulunamadı", sicil::adi},
    {[](const Sicil& s) { return Bos(s.soyadi); }, "Personel SoyAdı Bulunamadı", sicil::soyadi},
    {[](const Sicil& s) { return !s.ciktar.Bos() && s.cikiskodu == 0; }, "Çıkış Nedeni Kodu Yok", sicil::cikiskodu},
    {[](const Sicil& s) { return s.ciktar.Bos() && s.ucrettipi != AsgariUcretSirasi && s.ucret <= Tutar(); },
     "Personelin Maaşı Yok", sicil::ucret},
    {[](const Sicil& s) { return s.sskdurum == Emekli && HarfSayisi(s.tahsisno) <= 1; }, "Emekli için Tahsis No Yok",
     sicil::tahsisno},
};

const Kural<Kimlik> KimlikKurallari[] = {
    {[](const Kimlik& k) { return !SayiMi(k.tcno); }, "TC Kimlik No Rakamlardan Oluşmalı", kimlik::tcno},
    {[](const Kimlik& k) { return SayiMi(k.tcno) && HarfSayisi(k.tcno) != TcKimlikHanesi; },
     "TC Kimlik Nosu 11 Rakamdan Oluşmalı", kimlik::tcno},
    {[](const Kimlik& k) { return !TcKontrolTutar(k.tcno); }, TcKontrolUyarisi, kimlik::tcno},
    {[](const Kimlik& k) { return k.dogtar.Bos(); }, "Doğum Tarihi Yok", kimlik::dogtar},
};

// Records of a table one after the other, in the order of their codes.
template <class Kayit>
class Akis {
 public:
  explicit Akis(Motor& motor)
      : komut_(motor.Hazirla("select " + SecimListesi<Kayit>(motor) + " from " + std::string(Kayit::TabloAdi) +
                             " order by kod")) {}

  bool Ilerle() {
    var_ = komut_->Adim();
    if (var_) KayitAl(*komut_, 0, kayit_);
    return var_;
  }
  bool Var() const { return var_; }
  const Kayit& operator*() const { return kayit_; }
  const Kayit* operator->() const { return &kayit_; }

 private:
  std::unique_ptr<Komut> komut_;
  Kayit kayit_;
  bool var_ = false;
};

// Goes on to the identity of `kod`; false when there is none.
bool KimligeIlerle(Akis<Kimlik>& kimlik, const std::string& kod) {
  while (kimlik.Var() && TurkceKarsilastir(kimlik->kod, kod) < 0) kimlik.Ilerle();
  return kimlik.Var() && TurkceEsit(kimlik->kod, kod);
}

std::vector<KontrolSatiri> Denetle(Oturum& o, Ilerleme* ilerleme) {
  Motor& motor = o.depo.db.IcMotor();
  std::vector<KontrolSatiri> rapor;
  Akis<Sicil> sicil(motor);
  Akis<Kimlik> kimlik(motor);
  Asama asama(ilerleme);
  for (kimlik.Ilerle(); sicil.Ilerle();) {
    asama.Adim();
    const auto bildir = [&](const std::string& sonuc, AlanTutamagi alan) {
      rapor.push_back({sicil->kod, sicil->adi + " " + sicil->soyadi, sonuc, alan});
    };
    for (const auto& kural : SicilKurallari)
      if (kural.kusurlu(*sicil)) bildir(kural.metin, kural.alan);
    for (const Kusur& kusur : TanimsizKodlar(o, *sicil)) bildir(kusur.metin, kusur.alan);
    if (!KimligeIlerle(kimlik, sicil->kod)) {
      bildir("Personelin Nufus Kimlik Bilgileri Yok", kimlik::tcno);
      continue;
    }
    for (const auto& kural : KimlikKurallari)
      if (kural.kusurlu(*kimlik)) bildir(kural.metin, kural.alan);
  }
  if (rapor.empty()) rapor.push_back({"", "", "Hata Bulunamadı"});
  return rapor;
}

}  // namespace

Sonuc<std::vector<KontrolSatiri>> KontrolRaporu(Oturum& o, Ilerleme* ilerleme) {
  if (!o.depo.db.AcikMi()) return Kusur{"Veritabanı açık değil"};
  return Koru([&] { return Denetle(o, ilerleme); }, "Personel kayıtları okunamadı: ");
}

}  // namespace belvani
