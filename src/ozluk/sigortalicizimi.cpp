// EK:4, the paper of the insured person, with the part for an accident at work.
#include "core/sayi.h"
#include "core/turkce.h"
#include "core/yaziile.h"
#include "ozluk/viziteparcalari.h"
#include "personnel/isegiris.h"
#include "printing/form/formparcalari.h"
#include "printing/yzccnt.h"

namespace belvani::vizite {
namespace {

using enum MetinHizasi;

// What the paper calls each education of the identity record; the first, "none", is also that of a record that nobody
// has filled, and ticks nothing.
struct TahsilKutusu {
  double en;
  std::string_view etiket;
  int tahsil;  // position in Tahsiller; Hicbiri: the record has none such
};
constexpr int Hicbiri = -1;
constexpr TahsilKutusu TahsilKutulari[] = {{12, "İlk:", 1},         {15, "Orta:", 2},       {14, "Lise:", 3},
                                           {25, "Yüksek Okul:", 4}, {23, "Okur Yazar:", 5}, {16, "Diğer:", Hicbiri}};

int CinsiyetVeUyruk(FormKurucu& f, int satir, const std::optional<Kimlik>& kimlik) {
  constexpr double yari = En / 2;
  SoruKutusu(
      f, SatirYeri(KagitSolu, satir, yari, CiftSatir), "5- Cinsiyeti",
      {{18, "Erkek:", "cins0", kimlik && kimlik->cins == 0}, {18, "Kadın:", "cins1", kimlik && kimlik->cins == 1}});
  const std::string uyruk = kimlik ? std::string(Kirp(kimlik->uyruk)) : "";
  const bool turk = UyrukTurkMu(uyruk);
  const double x =
      SoruKutusu(f, SatirYeri(KagitSolu + yari, satir, yari, CiftSatir), "6- Uyruğu", {{13, "T.C.", "uyruk.tc", turk}});
  f.Etiket(SatirYeri(x, satir + 1, 16), "Ülke Adı:");
  f.Alan("uyruk", SatirYeri(x + 17, satir + 1, KagitSolu + En - x - 18), turk ? "" : uyruk);
  return satir + CiftSatir;
}

int DogumVeOgrenim(FormKurucu& f, int satir, const ViziteKagidi& kagit) {
  constexpr double dogumEni = 70;
  const Dikdortgen dogum = SatirYeri(KagitSolu, satir, dogumEni, CiftSatir);
  f.EtiketliCerceve(dogum, "7- Doğum Yeri ve Tarihi");
  f.Alan("dogyer", SatirYeri(KagitSolu + KagitPayi, satir + 1, dogumEni - 24), DogumYeri(kagit));
  f.Alan("dogtar", SatirYeri(KagitSolu + dogumEni - 22, satir + 1, 21), kagit.form.dogtar.Metin());
  std::vector<SoruSecenegi> kutular;
  for (const TahsilKutusu& t : TahsilKutulari)
    kutular.push_back({t.en, t.etiket, "tahsil" + std::to_string(t.tahsil == Hicbiri ? 0 : t.tahsil),
                       kagit.kimlik && kagit.kimlik->tahsil == t.tahsil});
  SoruKutusu(f, SatirYeri(KagitSolu + dogumEni, satir, En - dogumEni, CiftSatir), "8- Öğrenim Durumu", kutular);
  return satir + CiftSatir;
}

int Calisma(FormKurucu& f, int satir, const ViziteKagidi& kagit) {
  constexpr double girisEni = 44;
  constexpr double yari = En / 2;
  f.EtiketliKutular({KagitSolu, satir * SatirMm}, CiftSatir * SatirMm,
                    {{girisEni, "9- İşe Giriş Tarihi", EtiketUstte, "girtar", kagit.form.girtar.Metin()}});
  SoruKutusu(f, SatirYeri(KagitSolu + girisEni, satir, En - girisEni, CiftSatir), "10- Çalışma Şekli",
             {{17, "Daimi:", "calisma0"},
              {23, "Mevsimlik:", "calisma1"},
              {19, "Geçici:", "calisma2"},
              {22, "Full-Time:", "calisma3"},
              {23, "Part-Time:", "calisma4"}});
  satir += CiftSatir;
  const ViziteToplami toplam = Topla(kagit.aylar);
  f.EtiketliCerceve(SatirYeri(KagitSolu, satir, yari, CiftSatir), "11- Vizite İçin İşyerinden Ayrıldığı Tarih ve Saat");
  f.Alan("vizite", SatirYeri(KagitSolu + KagitPayi, satir + 1, 30), kagit.form.vizite.Metin());
  f.Alan("saat", SatirYeri(KagitSolu + 36, satir + 1, 20), kagit.form.saat);
  f.EtiketliKutular(
      {KagitSolu + yari, satir * SatirMm}, CiftSatir * SatirMm,
      {{yari, "12- Yıl İçindeki Toplam Ücretli İzin Gün Sayısı", EtiketUstte, "izin", GunMetni(toplam.izin)}});
  return satir + CiftSatir;
}

int SigortaliBolumu(FormKurucu& f, int satir, const ViziteKagidi& kagit) {
  constexpr double yari = En / 2;
  constexpr double adresEni = 140;
  satir = Bolum(f, satir, "A-SİGORTALININ");
  satir = Numaralar(f, satir, "1- T.C. Kimlik No", "2- Sigorta Sicil No", kagit.form);
  satir = Kutular(f, satir,
                  {{yari, "3- Adı Soyadı", EtiketUstte, "adsoyad", kagit.form.adSoyad},
                   {yari, "4- Baba Adı", EtiketUstte, "baba", BabaAdi(kagit)}});
  satir = CinsiyetVeUyruk(f, satir, kagit.kimlik);
  satir = DogumVeOgrenim(f, satir, kagit);
  satir = Calisma(f, satir, kagit);
  return Kutular(f, satir,
                 {{adresEni, "Ev Adresi", EtiketUstte, "adres", EvAdresi(kagit)},
                  {En - adresEni, "Telefonları", EtiketUstte, "tel", Telefon(kagit)}});
}

// For the pen.
int KazaBolumu(FormKurucu& f, int satir) {
  constexpr double yari = En / 2;
  constexpr int genis = 3;
  const auto cerceve = [&](double x, double en, int boy, std::string_view etiket) {
    f.EtiketliCerceve(SatirYeri(KagitSolu + x, satir, en, boy), etiket);
  };
  satir = Bolum(f, satir, "B-İŞ KAZASININ");
  cerceve(0, yari, CiftSatir, "13- Kaza Günü İşyerinde Çalışan Sigortalı Sayısı");
  cerceve(yari, yari, CiftSatir, "14- Kaza Günü İşe Başlama Saati");
  satir += CiftSatir;
  cerceve(0, yari, CiftSatir, "15- Olduğu Tarih ve Saat");
  cerceve(yari, yari, CiftSatir, "16- Olduğu Yer");
  satir += CiftSatir;
  cerceve(0, En, CiftSatir, "17- Kaza Anında Yapılan İş");
  satir += CiftSatir;
  cerceve(0, En, genis, "18- Nasıl Olduğu");
  satir += genis;
  cerceve(0, yari, genis, "19- Tanıkların Adı Soyadı");
  cerceve(yari, yari, genis, "20- Tanıkların Adresleri ve İmzaları");
  return satir + genis;
}

const std::vector<FormKolonu>& Kolonlar() {
  static const std::vector<FormKolonu> kolonlar{{12, "Yıl", "", "yil", Orta},
                                                {20, "Ay", "", "ay"},
                                                {16, "Gün", "Sayısı", "gun", Orta},
                                                {27, "Ücret", "Rakamla", "ucret", Sag, 2},
                                                {70, "", "Yazıyla", "yazi"},
                                                {23, "Ek Ödeme", "", "ekodeme", Sag},
                                                {26, "Prim veya", "İkramiye", "prim", Sag}};
  return kolonlar;
}

// The month's name as its row has it: "OCAK" of "2004/OCAK".
std::string AyinAdi(const ViziteAyi& ay) {
  const std::string adi = ay.Adi();
  return adi.substr(adi.find('/') + 1);
}

int KazancBolumu(FormKurucu& f, int satir, const ViziteKagidi& kagit) {
  const auto tutar = [&](Tutar t) { return SayiFormat(OndalikMetin(t), kagit.firma.paraonda, BinlikGruplama); };
  satir = Bolum(f, satir, "C-SİGORTALININ PRİM ÖDEME GÜN SAYISI VE KAZANÇLARI");
  satir = TabloBasligi(f, KagitSolu, satir, Kolonlar());
  TabloSatirlari(f, KagitSolu, satir, Kolonlar(), int(kagit.aylar.size()) + 1);
  for (std::size_t i = 0; i < kagit.aylar.size(); ++i) {
    const ViziteAyi& ay = kagit.aylar[i];
    TabloDegerleri(f, KagitSolu, satir++, Kolonlar(), "ay" + std::to_string(i + 1),
                   {GunMetni(ay.yil), AyinAdi(ay), GunMetni(ay.gun), tutar(ay.ucret), UcretYazisi(kagit, ay.ucret),
                    tutar(ay.ekodeme), tutar(ay.prim)});
  }
  const ViziteToplami t = Topla(kagit.aylar);
  f.Etiket(SatirYeri(KagitSolu + KagitPayi, satir, 30), "Toplam");
  TabloDegerleri(f, KagitSolu + 32, satir, {Kolonlar().begin() + 2, Kolonlar().end()}, "toplam",
                 {GunMetni(t.gun), tutar(t.ucret), "", tutar(t.ekodeme), tutar(t.prim)});
  return satir + 1;
}

}  // namespace

std::string UcretYazisi(const ViziteKagidi& kagit, Tutar ucret) {
  if (ucret <= Tutar()) return {};
  return YaziIleTutar(ucret, Yuvarlayici(kagit.firma.paraonda), kagit.paraBirimi, kagit.kurusBirimi);
}

FormSayfasi SigortaliSayfasi(const ViziteKagidi& kagit) {
  constexpr int imzaBoyu = 7;
  FormKurucu f = KagitFormu(KagitYonu::Dikey);
  int satir = Baslik(f, KagitUstSatiri, "EK:4", "VİZİTE KAĞIDI", "(Sigortalıya Ait)");
  satir = Bolum(f, satir, "İŞYERİNİN");
  satir = Isyeri(f, satir, kagit);
  satir = SigortaliBolumu(f, satir, kagit);
  satir = KazaBolumu(f, satir);
  satir = KazancBolumu(f, satir, kagit);
  satir = Kutucuklar(f, KagitSolu, satir,
                     {{En, "Prim Ödemesinin Sona Erdiği Tarih :", TarihEtiketiEni, "durum",
                       PrimDurumu(kagit.tur, kagit.form.girtar, kagit.form.ciktar)}});
  satir = Imza(f, satir, imzaBoyu, "Düzenlendiği Tarih :", kagit.form.bugun.Metin());
  f.Kutu({KagitSolu, KagitUstSatiri * SatirMm, En, (satir - KagitUstSatiri) * SatirMm}, KagitKalinCizgi);
  return f.Sayfa();
}

}  // namespace belvani::vizite
