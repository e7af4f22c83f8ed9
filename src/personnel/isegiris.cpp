#include "personnel/isegiris.h"

#include <algorithm>
#include <array>

#include "personnel/kart.h"
#include "personnel/kimlik.h"

namespace belvani {
namespace {

constexpr std::string_view sicilAlanlari[] = {"adi", "soyadi", "ilksoyadi", "sskno", "sskdurum", "girtar", "tahsisno"};
constexpr std::string_view kimlikAlanlari[] = {"serino", "tcno",  "baba", "ana",  "dogyer", "dogtar",
                                               "cins",   "uyruk", "il",   "ilce", "mahkoy", "cilt",
                                               "sayfa",  "kutuk", "adr1", "adr2", "tahsil"};

// The record as it shall be: what was read, or a new one, with the columns of the screen out of the form.
template <class Kayit, std::size_t N>
Okunan<Kayit> EkrandanAl(const std::optional<Kayit>& ilk, const Kayit& yeni, const Kayit& form,
                         const std::string_view (&gorunen)[N]) {
  Okunan<Kayit> kayit{.ilk = ilk, .simdi = ilk.value_or(yeni)};
  Kayit::HerKolon([&](const auto& kolon) {
    if (std::ranges::find(gorunen, kolon.ad) != std::end(gorunen)) kayit.simdi.*kolon.uye = form.*kolon.uye;
  });
  return kayit;
}

Sicil YeniKart(const std::string& kod, const std::string& hesap, Tutar asgariUcret) {
  Sicil yeni;
  yeni.kod = kod;
  yeni.ucret = asgariUcret;
  yeni.hesap = hesap;
  yeni.agi = true;
  return yeni;
}

// One transaction, and no message in it: a box on the screen must not hold the store.
Durum Yaz(Oturum& o, const GirisFormu& form, Tutar asgariUcret) {
  const std::string& kod = form.sicil.kod;
  const auto sicil = EkrandanAl(form.ilkSicil, YeniKart(kod, o.firma.ondeger, asgariUcret), form.sicil, sicilAlanlari);
  const auto kimlik = EkrandanAl(form.ilkKimlik, YeniKimlik(kod), form.kimlik, kimlikAlanlari);
  std::optional<Kusur> kusur;
  const bool yazildi = o.depo.db.Koru(false, [&] {
    Islem islem(o.depo.db.IcMotor());
    if (const auto y = KayitYaz(o, sicil, "Personel Sicil Bilgileri Kaydedilemedi"); !y) kusur = y.Kusuru();
    if (kusur) return false;
    if (const auto y = KayitYaz(o, kimlik, "Personel Kimlik Bilgileri Kaydedilemedi"); !y) kusur = y.Kusuru();
    if (kusur) return false;
    islem.Onayla();
    return true;
  });
  if (yazildi) return Tamam();
  return kusur.value_or(Kusur{"Personel Sicil Bilgileri Kaydedilemedi"});
}

}  // namespace

GirisFormu BosGirisFormu(Tarih bugun) {
  GirisFormu form;
  form.sicil.girtar = bugun;
  form.kimlik.uyruk = Uyruklar[0];
  form.ek.islemTarihi = bugun;
  return form;
}

std::optional<GirisFormu> GirisBul(Oturum& o, std::string_view kod, Tarih bugun) {
  GirisFormu form = BosGirisFormu(bugun);
  const auto sicil = KartBul(o, kod);
  const auto kimlik = KimlikBul(o, kod);
  if (!sicil && !kimlik) return std::nullopt;
  form.ilkSicil = sicil;
  form.ilkKimlik = kimlik;
  if (sicil) form.sicil = *sicil;
  if (kimlik) form.kimlik = *kimlik;
  form.sicil.kod = form.kimlik.kod = sicil ? sicil->kod : kimlik->kod;
  return form;
}

Durum GirisDenetle(const GirisFormu& form) {
  if (form.sicil.girtar.Bos()) return Kusur{"İşe Giriş Tarihi Hatalı", sicil::girtar};
  if (form.ek.islemTarihi.Bos()) return Kusur{"İşlem Tarihi Hatalı", giriseki::islemTarihi};
  if (form.sicil.girtar > form.ek.islemTarihi) return Tamam();
  return Kusur{"* * *  D İ K K A T * * * \nİşe giriş tarihi işlem tarihinden en az 1 gün sonra olması tavsiye edilir",
               sicil::girtar};
}

Durum GirisKaydet(Oturum& o, const GirisFormu& form, Tutar asgariUcret) {
  if (const Durum denetim = GirisDenetle(form); !denetim) return denetim;
  GirisFormu temiz = form;
  temiz.sicil.kod = temiz.kimlik.kod = TemizKod(form.sicil.kod);
  if (temiz.sicil.kod.empty()) return KuralKusuru("Personel Sicil Kodu Hatalı", sicil::kod);
  return Yaz(o, temiz, asgariUcret);
}

bool UyrukTurkMu(std::string_view uyruk) {
  static constexpr std::array<std::string_view, 4> turk{"TC", "T.C", "TC.", "T.C."};
  return std::ranges::find(turk, BuyukHarf(Kirp(uyruk))) != turk.end();
}

}  // namespace belvani
