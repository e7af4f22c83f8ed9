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

constexpr const char* SicilYazilamadi = "Personel Sicil Bilgileri Kaydedilemedi";
constexpr const char* KimlikYazilamadi = "Personel Kimlik Bilgileri Kaydedilemedi";

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

std::string YenidenGirisSorusu(const GirisFormu& form) {
  const Tarih cikis = form.ilkSicil ? form.ilkSicil->ciktar : Tarih();
  if (cikis.Bos() || form.sicil.girtar <= cikis) return "";
  return "Bu personel " + cikis.Metin() +
         " tarihinde işten çıkmış.\nYeniden işe alınırsa kartındaki çıkış tarihi, kodu ve sebebi silinir.\nYeniden "
         "İşe Alınsın mı ?";
}

Sonuc<GirisKayitlari> GirisHazirla(const Oturum& o, const GirisFormu& form, Tutar asgariUcret) {
  if (const Durum denetim = GirisDenetle(form); !denetim) return denetim.Kusuru();
  const std::string kod = TemizKod(form.sicil.kod);
  if (auto kusur = SicilKoduKusuru(kod, !form.ilkSicil)) return *std::move(kusur);
  const bool yeniden = !YenidenGirisSorusu(form).empty();
  if (yeniden && !form.cikisSilinir)
    return KuralKusuru("Bu personel " + form.ilkSicil->ciktar.Metin() + " tarihinde işten çıkmış, kaydedilmedi",
                       sicil::girtar);
  GirisKayitlari kayitlar{
      EkrandanAl(form.ilkSicil, YeniKart(kod, o.firma.ondeger, asgariUcret), form.sicil, sicilAlanlari),
      EkrandanAl(form.ilkKimlik, YeniKimlik(kod), form.kimlik, kimlikAlanlari)};
  if (yeniden) {
    kayitlar.sicil.simdi.ciktar = Tarih();
    kayitlar.sicil.simdi.cikiskodu = 0;
    kayitlar.sicil.simdi.cikissebebi.clear();
  }
  return kayitlar;
}

// One transaction, and no message in it: a box on the screen must not hold the store.
Sonuc<std::monostate, GirisEngeli> GirisYaz(Oturum& o, const GirisKayitlari& kayitlar) {
  using Yazilan = Sonuc<std::monostate, GirisEngeli>;
  return o.depo.db.Koru(Yazilan(GirisEngeli{{SicilYazilamadi}, {}, {}}), [&]() -> Yazilan {
    Islem islem(o.depo.db.IcMotor());
    if (const auto y = KayitYaz(o, kayitlar.sicil, SicilYazilamadi); !y)
      return GirisEngeli{y.Kusuru(), y.Kusuru().cakisma, {}};
    if (const auto y = KayitYaz(o, kayitlar.kimlik, KimlikYazilamadi); !y)
      return GirisEngeli{y.Kusuru(), {}, y.Kusuru().cakisma};
    islem.Onayla();
    return std::monostate{};
  });
}

bool UyrukTurkMu(std::string_view uyruk) {
  static constexpr std::array<std::string_view, 4> turk{"TC", "T.C", "TC.", "T.C."};
  return std::ranges::find(turk, BuyukHarf(Kirp(uyruk))) != turk.end();
}

}  // namespace belvani
