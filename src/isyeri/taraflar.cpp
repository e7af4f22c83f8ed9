#include "isyeri/taraflar.h"

#include "core/turkce.h"
#include "printing/form/satirliform.h"

namespace belvani {
namespace {

std::string Dolusu(const std::string& ilk, const std::string& yoksa) {
  return Kirp(ilk).empty() ? yoksa : ilk;
}

}  // namespace

TarafBilgisi Isveren(const Firma& firma) {
  return {.unvan = firma.unvan,
          .adres = {firma.adr1, firma.adr2},
          .semt = firma.semt,
          .ilce = firma.adrilce,
          .sehir = firma.adril,
          .pk = firma.pk,
          .iletisim = Dolusu(firma.tel, firma.epos),
          .kimlikNo = Dolusu(firma.verno, firma.tckimlik)};
}

TarafBilgisi Araci(const Arac& arac) {
  return {.unvan = std::string(Kirp(arac.isim1 + " " + arac.isim2)),
          .adres = {arac.adr1, arac.adr2},
          .semt = arac.semt,
          .ilce = arac.ilce,
          .sehir = arac.il,
          .pk = arac.pk,
          .iletisim = Dolusu(arac.tel, arac.epos),
          .kimlikNo = Dolusu(arac.vergi, arac.tcno)};
}

int Taraf(FormKurucu& f, double x, int satir, double en, std::string_view baslik, const std::string& on,
          const TarafBilgisi& taraf) {
  constexpr double etiketEni = 24;
  constexpr double yerEtiketi = 9;
  f.Bolum(SatirYeri(x, satir, en), baslik, 7);
  satir = Kutucuklar(f, x, satir + 1, {{en, "Adı Soyadı / Ünvanı", etiketEni, on + ".unvan", taraf.unvan}});
  satir = Kutucuklar(f, x, satir, {{en, "Adresi", etiketEni, on + ".adr1", taraf.adres[0]}});
  satir = Kutucuklar(f, x, satir, {{en, "", etiketEni, on + ".adr2", taraf.adres[1]}});
  satir = Kutucuklar(f, x, satir,
                     {{en / 2, "Semt", yerEtiketi, on + ".semt", taraf.semt},
                      {en / 2, "Şehir", yerEtiketi, on + ".sehir", taraf.sehir}});
  satir = Kutucuklar(
      f, x, satir,
      {{en / 2, "İlçe", yerEtiketi, on + ".ilce", taraf.ilce}, {en / 2, "P.Kodu", yerEtiketi, on + ".pk", taraf.pk}});
  satir = Kutucuklar(f, x, satir, {{en, "Telefon / E-Posta", etiketEni, on + ".iletisim", taraf.iletisim}});
  return Kutucuklar(f, x, satir, {{en, "T.C. / Vergi No", etiketEni, on + ".kimlikno", taraf.kimlikNo}});
}

void MuhasebeciImzasi(FormKurucu& f, const Dikdortgen& ilk, const Muhasebeci& muhasebeci) {
  const auto satir = [&](int sira) { return Dikdortgen{ilk.x, ilk.y + sira * ilk.boy, ilk.en, ilk.boy}; };
  f.Etiket(ilk, "SERBEST MUHASEBECİ / MALİ MÜŞAVİR", MetinHizasi::Orta);
  f.Alan("muhasebeci.adsoyad", satir(1), muhasebeci.adsoyad, MetinHizasi::Orta);
  f.Alan("muhasebeci.sicil", satir(2), muhasebeci.sicil, MetinHizasi::Orta);
}

}  // namespace belvani
