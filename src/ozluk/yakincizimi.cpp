// EK:5 and EK:6, the papers of a relative.
#include "ozluk/viziteparcalari.h"
#include "ozluk/vizitesozleri.h"
#include "printing/form/formparcalari.h"
#include "printing/form/metinformu.h"
#include "printing/yzccnt.h"

namespace belvani::vizite {
namespace {

int SigortaliBolumu(FormKurucu& f, int satir, const ViziteKagidi& kagit) {
  constexpr double yari = En / 2;
  constexpr double yerEni = 66;
  constexpr double durumEni = 56;
  const ViziteFormu& form = kagit.form;
  satir = Bolum(f, satir, "A-SİGORTALININ");
  satir = Numaralar(f, satir, "1- T.C. Kimlik No", "2- Sigorta Sicil No", form);
  satir = Kutular(f, satir,
                  {{yari, "3- Adı Soyadı", EtiketUstte, "adsoyad", form.adSoyad},
                   {yari, "4- Baba Adı", EtiketUstte, "baba", BabaAdi(kagit)}});
  f.EtiketliCerceve(SatirYeri(KagitSolu, satir, yari, CiftSatir), "5- Doğum Yeri ve Tarihi");
  f.Alan("dogyer", SatirYeri(KagitSolu + KagitPayi, satir + 1, yerEni), DogumYeri(kagit));
  f.Alan("dogtar", SatirYeri(KagitSolu + yerEni + 2, satir + 1, yari - yerEni - 3), form.dogtar.Metin());
  f.EtiketliKutular({KagitSolu + yari, satir * SatirMm}, CiftSatir * SatirMm,
                    {{yari, "6- İşe Giriş Tarihi", EtiketUstte, "girtar", form.girtar.Metin()}});
  satir += CiftSatir;
  return Kutular(f, satir,
                 {{durumEni, "7- Prim Ödemesinin Sona Erdiği Tarih", EtiketUstte, "durum",
                   PrimDurumu(kagit.tur, form.girtar, form.ciktar)},
                  {En - durumEni - 40, "8- Ev Adresi ve Telefonu", EtiketUstte, "adres", EvAdresi(kagit)},
                  {40, "", EtiketUstte, "tel", Telefon(kagit)}});
}

int HastaBolumu(FormKurucu& f, int satir, const ViziteKagidi& kagit) {
  constexpr int tcHanesi = 11;
  constexpr double tcEni = 91;
  constexpr double yakinlikEni = 50;
  const ViziteYakini& y = kagit.yakin;
  satir = Bolum(f, satir, "B-HASTANIN");
  BasamakliHucre(f, SatirYeri(KagitSolu, satir, tcEni, CiftSatir), "9- T.C. Kimlik No", "yakin.tcno", tcHanesi, y.tcno);
  f.EtiketliKutular({KagitSolu + tcEni, satir * SatirMm}, CiftSatir * SatirMm,
                    {{En - tcEni, "10- Adı Soyadı", EtiketUstte, "yakin.adsoyad", YakinAdi(kagit)}});
  satir += CiftSatir;
  SoruKutusu(f, SatirYeri(KagitSolu, satir, tcEni, CiftSatir), "11- Cinsiyeti",
             {{18, "Erkek:", "yakin.cins1", y.cins == 1}, {18, "Kadın:", "yakin.cins2", y.cins == 2}});
  f.EtiketliKutular({KagitSolu + tcEni, satir * SatirMm}, CiftSatir * SatirMm,
                    {{En - tcEni - 40, "12- Doğum Yeri", EtiketUstte, "yakin.dogyer", y.dogyer},
                     {40, "13- Doğum Tarihi", EtiketUstte, "yakin.dogtar", y.dogtar.Metin()}});
  satir += CiftSatir;
  return Kutular(f, satir,
                 {{yakinlikEni, "14- Sigortalıya Yakınlığı", EtiketUstte, "yakin.yakinlik", YakinlikSozu(y)},
                  {En - yakinlikEni, "15- Adresi", EtiketUstte, "yakin.adr", y.adr}});
}

int GunBolumu(FormKurucu& f, int satir, const ViziteKagidi& kagit) {
  constexpr double ayEni = 110;
  const std::vector<FormKolonu> kolonlar{{ayEni, "Aylar", "", "adi"},
                                         {En - ayEni, "Prim Ödenen Gün Sayısı", "", "gun", MetinHizasi::Orta}};
  satir = Bolum(f, satir, "C-SİGORTALININ PRİM ÖDEME GÜN SAYISI");
  satir = TabloBasligi(f, KagitSolu, satir, kolonlar);
  TabloSatirlari(f, KagitSolu, satir, kolonlar, int(kagit.aylar.size()) + 1);
  for (std::size_t i = 0; i < kagit.aylar.size(); ++i) {
    const ViziteAyi& ay = kagit.aylar[i];
    TabloDegerleri(f, KagitSolu, satir++, kolonlar, "ay" + std::to_string(i + 1), {ay.Adi(), GunMetni(ay.gun)});
  }
  f.Etiket(SatirYeri(KagitSolu + KagitPayi, satir, ayEni - 2), "Toplam");
  f.Alan("toplam", SatirYeri(KagitSolu + ayEni, satir, En - ayEni), GunMetni(Topla(kagit.aylar).gun),
         MetinHizasi::Orta);
  return satir + 1;
}

int Beyanlar(FormKurucu& f, int satir, const ViziteKagidi& kagit) {
  constexpr std::size_t satirHarfi = 125;
  const auto satirlar = SatirlaraBol(BeyanMetni(kagit), satirHarfi);
  satir = Bolum(f, satir, "D-BEYAN VE TAAHHÜTLER");
  const int boy = int(satirlar.size()) + 1;
  f.Kutu(SatirYeri(KagitSolu, satir, En, boy));
  const YaziBicimi onceki = f.etiketYazisi;
  f.etiketYazisi.punto = 8;
  for (std::size_t i = 0; i < satirlar.size(); ++i)
    f.Etiket({KagitSolu + 2, (satir + int(i) + 0.5) * SatirMm, En - 4, SatirMm}, satirlar[i]);
  f.etiketYazisi = onceki;
  return satir + boy;
}

}  // namespace

FormSayfasi YakinSayfasi(const ViziteKagidi& kagit, const std::string& sonGecerlilik) {
  constexpr int imzaBoyu = 8;
  FormKurucu f = KagitFormu(KagitYonu::Dikey);
  const bool altiAylik = kagit.tur == ViziteTuru::AltiAylik;
  int satir = altiAylik ? Baslik(f, KagitUstSatiri, "EK:6", "SAĞLIK BELGESİ",
                                 "(Sigortalının Eşi, Çocukları, Ana ve Babası için)")
                        : Baslik(f, KagitUstSatiri, "EK:5", "VİZİTE KAĞIDI", EsCocukBasligi);
  satir = SigortaliBolumu(f, satir, kagit);
  satir = HastaBolumu(f, satir, kagit);
  satir = GunBolumu(f, satir, kagit);
  satir = Beyanlar(f, satir, kagit);
  satir = Bolum(f, satir, "İŞYERİNİN");
  satir = Isyeri(f, satir, kagit);
  if (altiAylik)
    satir =
        Kutucuklar(f, KagitSolu, satir, {{En, SonGecerlilikEtiketi, TarihEtiketiEni, "songecerlilik", sonGecerlilik}});
  satir = Imza(f, satir, imzaBoyu, BelgeTarihiEtiketi, kagit.form.vizite.Metin());
  f.Kutu({KagitSolu, KagitUstSatiri * SatirMm, En, (satir - KagitUstSatiri) * SatirMm}, KagitKalinCizgi);
  return f.Sayfa();
}

}  // namespace belvani::vizite
