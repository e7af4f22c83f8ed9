// The text form of the insured person's paper.
#include "isyeri/isyerinumarasimetni.h"
#include "ozluk/viziteparcalari.h"
#include "printing/form/cerceveliform.h"
#include "printing/form/metinformu.h"
#include "printing/yzccnt.h"

namespace belvani::vizite {
namespace {

constexpr int FormHarfi = 131;
constexpr std::string_view KalemYeri = ": ............................................................";

// Letters of the columns of item 12.
enum Kolon { AyKolonu, GunKolonu, UcretKolonu, YaziKolonu, EkOdemeKolonu, PrimKolonu };
const CerceveliForm::Enler Enler{14, 8, 20, 50, 16, 16};

int IcEni(Kolon k) {
  return Enler[k] - 2;
}

std::string Sol(const std::string& ad, Kolon k) {
  return " " + Yer(ad, IcEni(k));
}

std::string Sag(const std::string& ad, Kolon k) {
  return " " + SagYer(ad, IcEni(k));
}

std::string Kalemlik(std::string_view etiket) {
  return Solda(etiket, 52) + std::string(KalemYeri);
}

void KisiSatirlari(CerceveliForm& f) {
  f.Satir(" SİGORTALININ");
  f.Satirlar({"   1- Sigorta Sicil No                                : " + Yer("sskno", 27) +
                  "   T.C. Kimlik No : " + Yer("tcno", 22),
              "   2- Adı Soyadı                                      : " + Yer("adsoyad", 43),
              "   3- Doğum Tarihi                                    : " + Yer("dogtar", 10),
              "   4- İşe Giriş Tarihi                                : " + Yer("girtar", 10),
              "   5- Vizite İçin İşyerinden Ayrıldığı Tarih ve Saat  : " + Yer("vizite", 10) + "  " + Yer("saat", 6)});
}

void KazaSatirlari(CerceveliForm& f) {
  f.Satir(" İŞ KAZASININ");
  f.Satirlar({Kalemlik("   6- Kaza Günü Çalışan Sigortalı Sayısı"), Kalemlik("   7- Kaza Anında Yapılan İş"),
              Kalemlik("   8- Nasıl, Nerede ve Ne Zaman Olduğu"), Kalemlik(""),
              Kalemlik("   9- Kaza Günü İşe Başlama Saati"), Kalemlik("  10- Tanıkların Adı Soyadı"), Kalemlik("")});
}

// How many lines the words of a month take.
using Yazilar = std::vector<std::vector<std::string>>;

Yazilar UcretYazilari(const ViziteKagidi& kagit) {
  Yazilar yazilar;
  for (const ViziteAyi& ay : kagit.aylar)
    yazilar.push_back(SatirlaraBol(UcretYazisi(kagit, ay.ucret), std::size_t(IcEni(YaziKolonu))));
  return yazilar;
}

std::string YaziAdi(std::size_t ay, std::size_t parca) {
  return "y" + std::to_string(ay) + "." + std::to_string(parca);
}

void KazancTablosu(CerceveliForm& f, const Yazilar& yazilar) {
  f.Satir("  12- Sigortalının Prim Ödeme Gün Sayısı ve Kazançları");
  f.TabloBasi(Enler);
  f.TabloSatiri(Enler, {" (A)", " (B)", " (C) Ücret", "", "", ""});
  f.TabloSatiri(Enler, {" Aylar", " Gün", " Rakamla", " Yazıyla", " Ek Ödeme", " Prim, İkramiye"});
  f.TabloArasi(Enler);
  for (std::size_t i = 0; i < yazilar.size(); ++i) {
    const std::string no = std::to_string(i);
    f.TabloSatiri(Enler, {Sol("a" + no, AyKolonu), Sag("g" + no, GunKolonu), Sag("u" + no, UcretKolonu),
                          Sol(YaziAdi(i, 0), YaziKolonu), Sag("e" + no, EkOdemeKolonu), Sag("p" + no, PrimKolonu)});
    for (std::size_t k = 1; k < yazilar[i].size(); ++k)
      f.TabloSatiri(Enler, {"", "", "", Sol(YaziAdi(i, k), YaziKolonu), "", ""});
  }
  f.TabloArasi(Enler);
  f.TabloSatiri(Enler, {" Toplam", Sag("gt", GunKolonu), Sag("ut", UcretKolonu), "", Sag("et", EkOdemeKolonu),
                        Sag("pt", PrimKolonu)});
  f.TabloSonu(Enler);
  f.Satir("      Tutarların Toplamı : " + Yer("tutarlar", 20) +
          "   Yıl İçindeki Ücretli İzin Gün Sayısı : " + Yer("izin", 6));
}

void IsyeriVeImza(CerceveliForm& f, const ViziteKagidi& kagit) {
  constexpr int numaraYeri = 20;
  const auto numara = IsyeriNumarasiMetni(kagit.firma, kagit.araciKodu);
  for (std::size_t i = 0; i < numara.size(); ++i)
    f.Satir(Solda(i == 2 ? " İşyeri Sicil No" : "", numaraYeri) + numara[i]);
  f.Satir();
  f.Satir(" Düzenlendiği Tarih : " + Yer("belgegunu", 11) +
          "                                   İşverenin veya Vekilinin Adı Soyadı, Kaşesi ve İmzası");
  for (int i = 0; i < 3; ++i) f.Satir();
  f.Satir(std::string(76, ' ') + std::string(38, '.'));
}

std::string Sablon(const ViziteKagidi& kagit, const Yazilar& yazilar) {
  CerceveliForm f(FormHarfi);
  f.Kenar();
  f.Satirlar({" İşyerinin Ünvanı : " + Yer("firma.unvan", 42), " Adresi           : " + Yer("firma.adr1", 82),
              "                    " + Yer("firma.adr2", 82)});
  f.Ara();
  f.Ortala("VİZİTE KAĞIDI");
  f.Ortala("(Sigortalıya Ait)");
  f.Satir(" DİKKAT : Muayeneye gelirken bu kağıtla birlikte sigortalının kimlik kartının da gösterilmesi zorunludur.");
  f.Ara();
  KisiSatirlari(f);
  f.Ara();
  KazaSatirlari(f);
  f.Ara();
  f.Satir("  11- Prim Ödemesi Sona Ermiş ise Tarihi : " + Yer("durum", 14));
  f.Ara();
  KazancTablosu(f, yazilar);
  f.Ara();
  IsyeriVeImza(f, kagit);
  f.Son();
  return f.Sablon();
}

class AyYazici {
 public:
  AyYazici(MetinFormu& form, int paraonda) : form_(form), paraonda_(paraonda) {}

  // Its thousands marks go before its digits do.
  void Tutari(const std::string& ad, Tutar tutar, Kolon k) {
    form_.Koy(ad, TutarAlan(tutar, IcEni(k), paraonda_, BinlikGruplama));
  }
  void Satiri(const std::string& no, int gun, Tutar ucret, Tutar ekodeme, Tutar prim) {
    form_.Koy("g" + no, GunMetni(gun));
    Tutari("u" + no, ucret, UcretKolonu);
    Tutari("e" + no, ekodeme, EkOdemeKolonu);
    Tutari("p" + no, prim, PrimKolonu);
  }

 private:
  MetinFormu& form_;
  int paraonda_;
};

}  // namespace

std::string SigortaliMetni(const ViziteKagidi& kagit) {
  const Yazilar yazilar = UcretYazilari(kagit);
  MetinFormu form(Sablon(kagit, yazilar));
  form.Doldur(SigortaliSayfasi(kagit));
  AyYazici yazici(form, kagit.firma.paraonda);
  for (std::size_t i = 0; i < kagit.aylar.size(); ++i) {
    const ViziteAyi& ay = kagit.aylar[i];
    form.Koy("a" + std::to_string(i), ay.Adi());
    yazici.Satiri(std::to_string(i), ay.gun, ay.ucret, ay.ekodeme, ay.prim);
    for (std::size_t k = 0; k < yazilar[i].size(); ++k) form.Koy(YaziAdi(i, k), yazilar[i][k]);
  }
  const ViziteToplami t = Topla(kagit.aylar);
  yazici.Satiri("t", t.gun, t.ucret, t.ekodeme, t.prim);
  yazici.Tutari("tutarlar", t.Tutarlar(), UcretKolonu);
  return form.Metin();
}

}  // namespace belvani::vizite
