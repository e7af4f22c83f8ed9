#include "isyeri/isyerinumarasi.h"
#include "notices/dizikagidi.h"
#include "notices/dizikagidiicerik.h"
#include "printing/form/satirliform.h"

namespace belvani {
namespace {

// Millimetres of the page.
constexpr double En = 210 - 2 * KagitSolu;
constexpr double SatirBoyu = 4.9;
constexpr double BaslikBoyu = 5;
constexpr double KutuBoyu = 9;
constexpr int NoHanesi = 13;
constexpr double HaneEni = 3.45;
constexpr double SiraEni = 9;
constexpr double NoEni = NoHanesi * HaneEni;
constexpr double AdEni = (En - SiraEni) / 2 - NoEni;

double Bas(FormKurucu& f, double y, const DiziSayfasi& s) {
  constexpr double satir = 6.5;
  f.Kutu({KagitSolu, y, En, 2 * satir});
  f.Baslik({KagitSolu, y, En, satir}, DiziBasligi[0], 11);
  f.Baslik({KagitSolu, y + satir, En, satir}, DiziBasligi[1], 11);
  y += 2 * satir;
  constexpr double tarihEni = 46, sayfaEni = 22;
  const std::string sayfa = std::to_string(s.no) + " / " + std::to_string(s.sayfaSayisi);
  y = f.EtiketliKutular({KagitSolu, y}, KutuBoyu,
                        {{En - tarihEni - sayfaEni, "İşyerinin Ünvanı", EtiketUstte, "firma.unvan", s.firma.unvan},
                         {tarihEni, "İşe Giriş Tarihleri", EtiketUstte, "aralik", DiziAraligi(s.aralik)},
                         {sayfaEni, "Sayfa", EtiketUstte, "sayfa", sayfa, MetinHizasi::Orta}});
  const int sicilSatiri = int(y / SatirMm) + 1;
  const int sonraki = IsyeriNumarasi(f, KagitSolu + 32, sicilSatiri, s.firma, "");
  const double alt = sonraki * SatirMm;
  f.Kutu({KagitSolu, y, En, alt - y});
  f.Etiket({KagitSolu + KagitPayi, y, 30, alt - y}, "İşyerinin SSK Sicil No");
  return alt;
}

double TabloBasi(FormKurucu& f, double y) {
  const auto kutu = [&](double x, double ust, double en, double boy, std::string_view metin) {
    f.Kutu({x, ust, en, boy});
    f.Etiket(f.Icerisi({x, ust, en, boy}), metin, MetinHizasi::Orta);
  };
  kutu(KagitSolu, y, SiraEni, 2 * BaslikBoyu, DiziSiraBasligi);
  double x = KagitSolu + SiraEni;
  for (const std::string_view baslik : {DiziIlkBasligi, DiziTekrarBasligi}) {
    kutu(x, y, NoEni + AdEni, BaslikBoyu, std::string(baslik) + (baslik == DiziIlkBasligi ? "  (x)" : ""));
    kutu(x, y + BaslikBoyu, NoEni, BaslikBoyu, DiziNoBasligi);
    kutu(x + NoEni, y + BaslikBoyu, AdEni, BaslikBoyu, DiziAdBasligi);
    x += NoEni + AdEni;
  }
  return y + 2 * BaslikBoyu;
}

void Kisi(FormKurucu& f, double x, double y, const std::string& ad, const DiziSatiri& satir) {
  f.Basamaklar(ad + ".sskno", {.x = x, .y = y, .sayi = NoHanesi, .en = HaneEni, .boy = SatirBoyu}, satir.sskno);
  f.Alan(ad + ".adsoy", f.Icerisi({x + NoEni, y, AdEni, SatirBoyu}), satir.adsoy);
}

double Satirlar(FormKurucu& f, double y, const DiziSayfasi& s) {
  f.Tablo({KagitSolu, y}, {SiraEni, NoEni, AdEni, NoEni, AdEni}, SatirBoyu, int(DiziSayfaSatiri));
  const std::size_t satirSayisi = DiziSatirSayisi(s.pusula);
  for (std::size_t i = 0; i < DiziSayfaSatiri; ++i, y += SatirBoyu) {
    const std::size_t sira = s.ilk + i;
    const std::string no = std::to_string(i + 1);
    f.Alan("sira" + no, f.Icerisi({KagitSolu, y, SiraEni, SatirBoyu}),
           sira < satirSayisi ? std::to_string(sira + 1) : "", MetinHizasi::Sag);
    Kisi(f, KagitSolu + SiraEni, y, "ilk" + no, DizininSatiri(s.pusula.ilk, sira));
    Kisi(f, KagitSolu + SiraEni + NoEni + AdEni, y, "tekrar" + no, DizininSatiri(s.pusula.tekrar, sira));
  }
  return y;
}

template <class Etiketler>
void Imza(FormKurucu& f, const Dikdortgen& kutu, std::string_view baslik, const std::string& ad,
          const std::string& cumle, const Etiketler& etiketler) {
  f.Kutu(kutu);
  f.Baslik({kutu.x, kutu.y, kutu.en, BaslikBoyu}, baslik, 7);
  f.Alan(ad, f.Icerisi({kutu.x, kutu.y + BaslikBoyu, kutu.en, BaslikBoyu}), cumle);
  double y = kutu.y + 2 * BaslikBoyu + 1;
  for (const std::string_view etiket : etiketler) {
    f.Etiket(f.Icerisi({kutu.x, y, kutu.en, BaslikBoyu}), etiket);
    y += BaslikBoyu;
  }
}

double Kapanis(FormKurucu& f, double y, const DiziSayfasi& s) {
  f.Kutu({KagitSolu, y, En, BaslikBoyu});
  f.Etiket(f.Icerisi({KagitSolu, y, En, BaslikBoyu}), s.Son() ? DiziNotu : DiziDevami);
  y += BaslikBoyu;
  if (!s.Son()) return y;
  constexpr double boy = 34;
  const YaziBicimi deger = std::exchange(f.degerYazisi, f.etiketYazisi);
  Imza(f, {KagitSolu, y, En / 2, boy}, DiziTeslimEden, "beyan", DiziBeyani(s.pusula), DiziTeslimEdenSatirlari);
  Imza(f, {KagitSolu + En / 2, y, En / 2, boy}, DiziTeslimAlan, "alindi", DiziAlindisi(s.pusula),
       DiziTeslimAlanSatirlari);
  f.degerYazisi = deger;
  return y + boy;
}

}  // namespace

FormSayfasi DiziSayfasiCiz(const DiziSayfasi& sayfa) {
  FormKurucu f = KagitFormu(KagitYonu::Dikey);
  double y = Bas(f, KenarMm, sayfa);
  y = TabloBasi(f, y);
  y = Satirlar(f, y, sayfa);
  y = Kapanis(f, y, sayfa);
  f.Kutu({KagitSolu, KenarMm, En, y - KenarMm}, KagitKalinCizgi);
  return f.Sayfa();
}

}  // namespace belvani
