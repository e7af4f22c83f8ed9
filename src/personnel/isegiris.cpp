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

enum class GirisYazimi { Yazildi, SicilYazilamadi, KimlikYazilamadi };

// The columns of the record that are not among `gorunen`.
template <class Kayit, std::size_t N>
AlanAdlari Gorunmeyenler(const std::string_view (&gorunen)[N]) {
  AlanAdlari adlar;
  Kayit::HerKolon([&](const auto& kolon) {
    if (std::ranges::find(gorunen, kolon.ad) == std::end(gorunen)) adlar.emplace(kolon.ad);
  });
  return adlar;
}

void YeniKart(Imlec& rs, const std::string& kod, const std::string& hesap, Tutar asgariUcret) {
  YeniSicil(rs);
  rs.AlanYaz("kod", kod);
  for (const char* alan : {"ucrettipi", "ucretags", "sakatdrc", "tur"}) rs.AlanYaz(alan, std::int64_t(0));
  for (const char* alan : {"grup", "tip", "ozel", "tasno", "verda"}) rs.AlanYaz(alan, std::string());
  rs.AlanYaz("ucret", asgariUcret);
  rs.AlanYaz("hesap", hesap);
  rs.AlanYaz("agi", true);
}

bool SicilYaz(Oturum& o, const Sicil& sicil, Tutar asgariUcret) {
  Imlec& rs = o.depo.sicil;
  if (o.depo.SicilBul(sicil.kod))
    rs.KayitDuzelt();
  else
    YeniKart(rs, sicil.kod, o.firma.ondeger, asgariUcret);
  AlanlariYaz(rs, sicil, Gorunmeyenler<Sicil>(sicilAlanlari));
  return rs.KayitYaz();
}

bool KimlikYaz(Depo& depo, const Kimlik& kimlik) {
  Imlec& rs = depo.kimlik;
  if (depo.KimlikBul(kimlik.kod)) {
    rs.KayitDuzelt();
  } else {
    YeniKimlik(rs);
    rs.AlanYaz("kod", kimlik.kod);
  }
  AlanlariYaz(rs, kimlik, Gorunmeyenler<Kimlik>(kimlikAlanlari));
  return rs.KayitYaz();
}

// One transaction, and no message in it: a box on the screen must not hold the store.
GirisYazimi Yaz(Oturum& o, const GirisFormu& form, Tutar asgariUcret) {
  auto yazim = GirisYazimi::SicilYazilamadi;
  o.depo.db.Koru(false, [&] {
    Islem islem(o.depo.db.IcMotor());
    if (!SicilYaz(o, form.sicil, asgariUcret)) return false;
    yazim = GirisYazimi::KimlikYazilamadi;
    if (!KimlikYaz(o.depo, form.kimlik)) return false;
    islem.Onayla();
    yazim = GirisYazimi::Yazildi;
    return true;
  });
  return yazim;
}

std::string GirisKusuru(const GirisFormu& form) {
  if (form.sicil.girtar.Bos()) return "İşe Giriş Tarihi Hatalı";
  if (form.ek.islemTarihi.Bos()) return "İşlem Tarihi Hatalı";
  if (form.sicil.girtar > form.ek.islemTarihi) return {};
  return "* * *  D İ K K A T * * * \nİşe giriş tarihi işlem tarihinden en az 1 gün sonra olması tavsiye edilir";
}

std::string AlanKusuru(const GirisFormu& form) {
  if (form.sicil.kod.empty()) return "Personel Sicil Kodu Hatalı";
  const std::string sicil = KayitKusuru(form.sicil);
  return sicil.empty() ? KayitKusuru(form.kimlik) : sicil;
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
  if (sicil) form.sicil = *sicil;
  if (kimlik) form.kimlik = *kimlik;
  form.sicil.kod = form.kimlik.kod = sicil ? sicil->kod : kimlik->kod;
  return form;
}

bool GirisDenetle(const GirisFormu& form, Bildirim& bildirim) {
  const std::string kusur = GirisKusuru(form);
  if (!kusur.empty()) bildirim.Uyari(kusur);
  return kusur.empty();
}

bool GirisKaydet(Oturum& o, const GirisFormu& form, Tutar asgariUcret, Bildirim& bildirim) {
  if (!GirisDenetle(form, bildirim)) return false;
  GirisFormu temiz = form;
  temiz.sicil.kod = temiz.kimlik.kod = TemizKod(form.sicil.kod);
  if (const std::string kusur = AlanKusuru(temiz); !kusur.empty()) {
    bildirim.Bilgi(kusur);
    return false;
  }
  switch (Yaz(o, temiz, asgariUcret)) {
    case GirisYazimi::Yazildi:
      return true;
    case GirisYazimi::SicilYazilamadi:
      bildirim.Uyari("Personel Sicil Bilgileri Kaydedilemedi");
      return false;
    case GirisYazimi::KimlikYazilamadi:
      bildirim.Uyari("Personel Kimlik Bilgileri Kaydedilemedi");
      return false;
  }
  return false;
}

bool UyrukTurkMu(std::string_view uyruk) {
  static constexpr std::array<std::string_view, 4> turk{"TC", "T.C", "TC.", "T.C."};
  return std::ranges::find(turk, BuyukHarf(Kirp(uyruk))) != turk.end();
}

}  // namespace belvani
