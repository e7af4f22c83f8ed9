// Papers for the labour office and the insurance unit: by their commands, and drawn with few people and with many.
#pragma once

#include "altin/cizimkagitlari.h"
#include "altin/kitapmetni.h"
#include "notices/dizikagidi.h"
#include "notices/ekbelgeleri.h"
#include "notices/iabkagidi.h"
#include "notices/isgucukagidi.h"

namespace belvani::test {

// Of the days of a year; the sample company's people come and go in all of them.
inline Kagit TarihliListe(const char* komut, const char* aralik, const char* bicim, const char* ek = "") {
  return {SonAy, std::string(komut) + ek + "." + bicim,
          [=](OrnekSirket& o) { return o.SirketKomutu(komut, std::string(aralik) + " --bicim " + bicim); }};
}
constexpr const char* ButunYillar = "--bas 01.01.1990 --bit 31.12.2009";
constexpr const char* BirYil = "--bas 01.01.2008 --bit 31.12.2008";

inline Kagitlar BildirimKomutlari() {
  return {TarihliListe("giris-listesi", ButunYillar, "metin"),
          TarihliListe("giris-listesi", ButunYillar, "csv"),
          TarihliListe("giris-listesi", BirYil, "json", "-2008"),
          TarihliListe("giris-listesi", "--bas 02.01.2008 --bit 01.01.2008", "metin", "-bos"),
          TarihliListe("cikis-listesi", ButunYillar, "metin"),
          TarihliListe("cikis-listesi", ButunYillar, "json"),
          TarihliListe("dizi-pusulasi", ButunYillar, "metin"),
          TarihliListe("dizi-pusulasi", BirYil, "json"),
          {SonAy, "iab.json", [](OrnekSirket& o) { return o.SirketKomutu("iab", "005 --tarih 31.12.2009"); }},
          // Still employed.
          {SonAy, "iab-calisan.json", [](OrnekSirket& o) { return o.SirketKomutu("iab", "001 --tarih 31.12.2009"); }}};
}

const TarihAraligi ButunGunler{Tarih(1990, 1, 1), Tarih(2009, 12, 31)};
const TarihAraligi BirYilinGunleri{Tarih(2008, 1, 1), Tarih(2008, 12, 31)};

// So many people of the sample company, the same again and again: pages that are full, and one more.
inline std::unique_ptr<Belge> KalabalikPusula(OrnekSirket& o, std::size_t ilk, std::size_t tekrar) {
  const DiziPusulasi okunan = DiziPusulasiOku(o.Kaynak().motor, BirYilinGunleri);
  DiziPusulasi pusula;
  for (std::size_t i = 0; i < ilk; ++i)
    DiziyeEkle(pusula, {.sskno = "", .adsoy = okunan.tekrar[i % okunan.tekrar.size()].adsoy});
  for (std::size_t i = 0; i < tekrar; ++i) DiziyeEkle(pusula, okunan.tekrar[i % okunan.tekrar.size()]);
  return DiziPusulasiBelgesi(o.oturum.firma, BirYilinGunleri, pusula);
}

// The days in which so many people of the sample company were hired.
inline TarihAraligi GirisAraligi(OrnekSirket& o, std::size_t kisi) {
  const auto girenler = GirenleriOku(o.oturum.depo.db.IcMotor(), ButunGunler);
  if (girenler.size() <= kisi || girenler[kisi - 1].girtar == girenler[kisi].girtar)
    throw std::runtime_error("no day on which the " + std::to_string(kisi) + "th person was the last");
  return {ButunGunler.bas, girenler[kisi - 1].girtar};
}

inline std::unique_ptr<Belge> IabKagidiYap(OrnekSirket& o, const char* kod) {
  Motor& motor = o.oturum.depo.db.IcMotor();
  IabFormu form = KisiDoldur(motor, kod).value();
  form.duzenleme = Tarih(2009, 12, 31);
  form.teblig = Tarih(2010, 1, 4);
  form.gorevi = "Ocakçı";
  IabKayitlari(motor, form);
  return IabBelgesi({.form = form, .firma = o.oturum.firma});
}

inline std::unique_ptr<Belge> CizelgeYap(OrnekSirket& o) {
  IsgucuCizelgesi cizelge = BosCizelge(o.oturum.firma);
  cizelge.baslik.yil = 2009;
  cizelge.baslik.ay = 2;
  CizelgeyiDoldur(o.oturum.depo.db.IcMotor(), cizelge);
  int sayac = 0;  // each number another one, so that no two can change places unseen
  for (IsgucuSatiri& satir : cizelge.ayrimlar)
    for (IsgucuSayisi& sayi : satir) sayi = {++sayac, ++sayac, ++sayac};
  return IsgucuBelgesi(cizelge);
}

inline Kagitlar CizilenBildirimler() {
  const EsasIs is{.isi = "Dokuma"};
  return {
      Baski(SonAy, "giris-listesi", [=](OrnekSirket& o) { return GirisListesiBelgesi(o.Kaynak(), ButunGunler, is); }),
      Cizim(SonAy, "giris-listesi-14",
            [=](OrnekSirket& o) { return GirisListesiBelgesi(o.Kaynak(), GirisAraligi(o, 14), is); }),
      Cizim(SonAy, "giris-listesi-15",
            [=](OrnekSirket& o) { return GirisListesiBelgesi(o.Kaynak(), GirisAraligi(o, 15), is); }),
      Cizim(SonAy, "cikis-listesi", [=](OrnekSirket& o) { return CikisListesiBelgesi(o.Kaynak(), ButunGunler, is); }),
      Baski(SonAy, "dizi-pusulasi", [](OrnekSirket& o) { return DiziPusulasiBelgesi(o.Kaynak(), ButunGunler); }),
      Cizim(SonAy, "dizi-pusulasi-32", [](OrnekSirket& o) { return KalabalikPusula(o, 32, 3); }),
      {SonAy, "dizi-pusulasi-39.metin",
       [](OrnekSirket& o) { return MetinSayfalari(KalabalikPusula(o, 39, 38)->Metin()); }},
      {SonAy, "dizi-pusulasi-500.metin",
       [](OrnekSirket& o) { return MetinSayfalari(KalabalikPusula(o, 500, 501)->Metin()); }},
      Baski(SonAy, "iab", [](OrnekSirket& o) { return IabKagidiYap(o, "005"); }),
      Cizim(SonAy, "isgucu", CizelgeYap),
      {SonAy, "isgucu.xlsx.txt", [](OrnekSirket& o) { return KitapMetni(*CizelgeYap(o)->Xlsx()); }}};
}

}  // namespace belvani::test
