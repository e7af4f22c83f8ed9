#include "notices/iab.h"

#include <algorithm>

#include "core/store/kisibordrolari.h"
#include "core/store/tablo.h"
#include "core/turkce.h"
#include "documents/turetilen.h"
#include "payroll/hesap/donem.h"
#include "payroll/hesap/kayittoplami.h"

namespace belvani {
namespace {

// In the words of the agency; the payroll's own list knows the codes that came later.
constexpr std::string_view UcretsizIzin = "02-Ücretsiz İzin";
constexpr int UcretsizIzinKodu = 2;

std::string EksikSebebi(int kod) {
  if (kod <= 0) return {};
  if (kod == UcretsizIzinKodu) return std::string(UcretsizIzin);
  const int sira = EksikSebepSec(kod);
  return sira < 0 ? std::to_string(kod) : std::string(EksikSebepleri[std::size_t(sira)]);
}

IabKaydi Kaydi(const Brd& brd) {
  return {.yil = brd.yil,
          .ay = brd.ay >= 1 && brd.ay <= AyAdlari.size() ? std::string(AyAdi(brd.ay)) : std::string(),
          .pek = brd.sskmatrah,
          .gun = std::int16_t(GunToplami(brd)),
          .ekseb = EksikSebebi(brd.eksiksebebi)};
}

constexpr int AySirasi(int yil, int ay) {
  return yil * 12 + ay - 1;
}

}  // namespace

std::optional<IabFormu> KisiDoldur(Motor& motor, std::string_view kod) {
  const Deger anahtar = std::string(Kirp(kod));
  const auto sicil = Tablo<Sicil>(motor).Bul(anahtar);
  if (!sicil) return std::nullopt;
  const Kimlik kimlik = Tablo<Kimlik>(motor).Bul(anahtar).value_or(Kimlik());
  return IabFormu{.kod = sicil->kod,
                  .adsoyad = AdSoyad(*sicil),
                  .sskno = sicil->sskno,
                  .tcno = kimlik.tcno,
                  .dogtar = kimlik.dogtar,
                  .dogyer = kimlik.dogyer,
                  .girtar = sicil->girtar,
                  .ciktar = sicil->ciktar,
                  .cikissebebi = sicil->cikissebebi,
                  .ana = kimlik.ana,
                  .baba = kimlik.baba,
                  .adres = {kimlik.adr1, kimlik.adr2},
                  .tel = kimlik.tel,
                  .sakatdrc = sicil->sakatdrc};
}

Kusurlar IabUyarilari(const IabFormu& form) {
  Kusurlar uyarilar;
  const auto uyar = [&](const char* metin, AlanTutamagi alan) {
    uyarilar.push_back({.metin = metin, .alan = alan, .kod = form.kod, .derece = Derece::Uyari});
  };
  if (form.girtar.Bos()) uyar("İşçi Giriş Tarihi Eksik", iabformu::girtar);
  if (form.ciktar.Bos()) uyar("İşçi Çıkış Tarihi Eksik", iabformu::ciktar);
  return uyarilar;
}

void IabKayitlari(Motor& motor, IabFormu& form) {
  IabKayitlari(KisininBordrolari(motor, form.kod), form);
}

void IabKayitlari(const std::vector<Brd>& bordrolar, IabFormu& form) {
  form.sonNet = {};
  form.issizlikGunu = 0;
  form.kayitlar.clear();
  const Tarih son = form.ciktar.Bos() ? form.duzenleme : form.ciktar;
  const int sonAy = AySirasi(son.Yil(), son.Ay());
  const int ilkAy = AySirasi(son.Yil() - IabYili, son.Ay());
  for (auto brd = bordrolar.rbegin(); brd != bordrolar.rend(); ++brd) {
    if (form.kayitlar.size() < IabKayitSayisi) form.kayitlar.push_back(Kaydi(*brd));
    const int ay = AySirasi(brd->yil, brd->ay);
    if (son.Bos() || ay < ilkAy || ay > sonAy) continue;
    if (form.sonNet <= Tutar()) form.sonNet = Degeri(toplam::yasalNet, *brd);
    form.issizlikGunu += GunToplami(*brd);
  }
}

}  // namespace belvani
