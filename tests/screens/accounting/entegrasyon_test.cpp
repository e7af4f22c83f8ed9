// The screens of the accounting integration by keys: lines set, voucher looked at and posted, ledger written.
#include <QLabel>
#include <fstream>
#include <gmock/gmock.h>

#include "accounting/entegrasyonayari.h"
#include "accounting/kardesdepo.h"
#include "accounting/kardestablolar.h"
#include "core/store/satirlar.h"
#include "ekran/ortam.h"
#include "screens/accounting/Muhpen.h"
#include "screens/accounting/entislyap.h"
#include "screens/accounting/entpar.h"
#include "screens/accounting/entyap.h"

namespace belvani::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

// Two groups with a finished month; books beside the company.
struct EntegrasyonOrtami : EkranOrtami {
  std::string muhasebe = dizin.Yol() + "muhasebe";
  std::string isletme = dizin.Yol() + "isletme";

  EntegrasyonOrtami() {
    EXPECT_TRUE(KardesYarat(KardesTuru::Muhasebe, muhasebe) && KardesYarat(KardesTuru::Isletme, isletme));
    KayitYazici<Sicil> kartlar(Depo());
    KayitYazici<Brd> kayitlar(Depo());
    for (const auto& [kod, ozel, brut] : {std::tuple("1", "A", 1000.5), {"2", "B", 500.0}}) {
      Sicil s;
      s.kod = kod;
      s.ozel = ozel;
      kartlar.Ekle(s);
      Brd b;
      b.kod = kod;
      b.yil = 2009;
      b.ay = 7;
      b.no = 1;
      b.brutkaz = Tutar(brut);
      b.gvtutar = Tutar(100);
      b.sskkesintiisveren = Tutar(20);
      kayitlar.Ekle(b);
    }
  }
  Motor& Depo() { return oturum.depo.db.IcMotor(); }
  std::int64_t Sayi(KardesTuru tur, const char* sql) {
    const auto motor = KardesAc(tur, tur == KardesTuru::Muhasebe ? muhasebe : isletme);
    const auto komut = (*motor)->Hazirla(sql);
    return komut->Adim() ? komut->Tam(0) : -1;
  }
  void SatirEkle(const char* grup, int no, int yer, int ba, const char* hesap) {
    KayitYazici<Entpar>(Depo()).Ekle({.no = std::uint8_t(no),
                                      .yer = std::uint8_t(yer),
                                      .ba = std::uint8_t(ba),
                                      .hesap = hesap,
                                      .grup = grup,
                                      .grupno = EntparAnahtari(grup, std::size_t(no))});
  }
  // Chooses from a list field as its user does.
  static void Sec(Form& form, std::string_view ad, int sira) {
    auto& denetim = AlanBul(form, ad);
    denetim.Koy(std::int64_t(sira));
    denetim.Degisti();
  }
  static std::string Etiket(const Form& form, const char* ad) { return Utf8(form.findChild<QLabel*>(ad)->text()); }
};

TEST(Entpar, ProposedCheckedAndKept) {
  EntegrasyonOrtami ortam;
  ortam.dialoglar.dizin = ortam.dizin.Yol();
  auto& form = ortam.Ac<entparfrm>();
  EXPECT_TRUE(ortam.bildirim.Al().empty()) << "no books are chosen yet";
  form.findChild<xButton*>("firmasec")->click();
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(StartsWith("Uyarı: Muhasebe Şirketi Bulunamadı..")));
  ortam.dialoglar.dizin = ortam.muhasebe;
  form.findChild<xButton*>("firmasec")->click();
  EXPECT_TRUE(ortam.bildirim.Al().empty());
  ortam.Bas(Qt::Key_F9);
  EXPECT_EQ(AlanMetni(form, "hesap0"), "770.01");
  YaziBul(form, "hesap2").DegerKoy(std::string("yok"));
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(),
              ElementsAre("Bilgi: yok Hesabı Muhasebede Bulunamadı..\nHesap Kodlarını Düzeltiniz.."));
  EXPECT_EQ(ortam.Odak(), "hesap2");
  EXPECT_TRUE(KayitlariOku<Entpar>(ortam.Depo()).empty()) << "nothing is written";

  // The account out of the chart.
  ortam.ModaldaYap([&] {
    ortam.Yaz("335");
    ortam.Bas(Qt::Key_Down);
    ortam.Bas(Qt::Key_Return);
  });
  ortam.Bas(Qt::Key_F2);
  EXPECT_EQ(AlanMetni(form, "hesap2"), "335.01");
  EXPECT_EQ(ortam.Etiket(form, "ad2"), "Personele Ödenecek Ücretler");
  ortam.Bas(Qt::Key_F5);
  EXPECT_TRUE(ortam.bildirim.Al().empty());
  const auto kayitlar = KayitlariOku<Entpar>(ortam.Depo(), "order by grupno");
  ASSERT_EQ(kayitlar.size(), 10u);
  EXPECT_TRUE(kayitlar[9].grupno == "A009" && kayitlar[9].yer == 0);
  EXPECT_EQ(MuhasebeSirketi(ortam.oturum), ortam.muhasebe);
}

TEST(Entpar, GroupsComeUpAndGo) {
  EntegrasyonOrtami ortam;
  EXPECT_TRUE(MuhasebeSirketiYaz(ortam.oturum, ortam.muhasebe));
  ortam.SatirEkle("A", 3, 5, 1, "770");
  ortam.SatirEkle("B", 0, 0, 0, "gizli");
  auto& form = ortam.Ac<entparfrm>();
  EXPECT_EQ(AlanMetni(form, "hesap3"), "770");
  EXPECT_EQ(ortam.Etiket(form, "ad3"), "Genel Yönetim Giderleri");
  ortam.Sec(form, "ozel", 1);
  EXPECT_EQ(AlanMetni(form, "hesap0"), "") << "a line that takes nothing shows no account";
  EXPECT_EQ(AlanMetni(form, "hesap3"), "");
  EXPECT_TRUE(ortam.bildirim.Al().empty());
  YaziBul(form, "hesap1").DegerKoy(std::string("1"));
  ortam.bildirim.yazilan = YazilanKarari::Kal;
  ortam.Sec(form, "ozel", 0);
  EXPECT_EQ(ortam.bildirim.Al().size(), 1u);
  EXPECT_EQ(AlanMetni(form, "hesap1"), "1") << "what was typed is kept";
  EXPECT_EQ(TamDegeri(AlanBul(form, "ozel").Oku()), 1);
  ortam.bildirim.yazilan = YazilanKarari::Birak;
  ortam.Sec(form, "ozel", 0);
  EXPECT_EQ(AlanMetni(form, "hesap3"), "770");
  ortam.bildirim.Al();
  ortam.Bas(Qt::Key_F7);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("silinsin mi")));
  EXPECT_EQ(KayitlariOku<Entpar>(ortam.Depo()).size(), 1u) << "the other group's";
  EXPECT_EQ(AlanMetni(form, "hesap3"), "");
}

TEST(Entyap, VoucherLookedAtAndPosted) {
  EntegrasyonOrtami ortam;
  EXPECT_TRUE(MuhasebeSirketiYaz(ortam.oturum, ortam.muhasebe));
  ortam.SatirEkle("A", 0, 5, 0, "770");
  ortam.SatirEkle("A", 1, 16, 1, "335");
  auto& form = ortam.Ac<entyap>();
  EXPECT_TRUE(ortam.bildirim.Al().empty());
  EXPECT_EQ(AlanMetni(form, "tarih"), "31.07.2009");
  EXPECT_EQ(AlanMetni(form, "fisno"), "1");
  auto* liste = form.findChild<dclist*>("dclist1");
  ASSERT_EQ(liste->ListCount(), 2);
  EXPECT_EQ(Utf8(liste->TextByName(0, "isim")), "Genel Yönetim Giderleri");
  EXPECT_EQ(Utf8(liste->TextByName(0, "ba")) + Utf8(liste->TextByName(0, "tutar")), "B1,000.50");
  EXPECT_EQ(Utf8(liste->TextByName(1, "ba")) + Utf8(liste->TextByName(1, "tutar")), "A900.50");
  EXPECT_EQ(ortam.Etiket(form, "bakiye"), "100.00");
  EXPECT_TRUE(form.findChild<QLabel*>("bakiye")->property("hata").toBool());
  EXPECT_THAT(ortam.Etiket(form, "eksikler"), HasSubstr("B grubu fişe girmedi"));

  ortam.dialoglar.dosya = ortam.dizin.Yol() + "y.journal";
  ortam.Bas(Qt::Key_F11);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("fark Denkleşmeyen satırına yazıldı")));
  EXPECT_TRUE(std::filesystem::exists(*ortam.dialoglar.dosya));

  YaziBul(form, "tarih").DegerKoy(Null{});
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Bilgi: Hatalı Tarih"));
  EXPECT_EQ(ortam.Odak(), "tarih");
  YaziBul(form, "tarih").DegerKoy(Tarih(2009, 7, 31));
  ortam.Bas(Qt::Key_F5);
  EXPECT_TRUE(ortam.bildirim.Al().empty());
  EXPECT_EQ(liste->ListCount(), 0);
  EXPECT_EQ(AlanMetni(form, "fisno"), "2");
  EXPECT_EQ(ortam.Sayi(KardesTuru::Muhasebe, "select count(*) from fistra"), 2);
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Bilgi: Entegre Edilecek Hesap Yok..."));

  // The same month again is asked about; a number that is taken is told and the next one proposed.
  ortam.Sec(form, "grup", 1);
  EXPECT_EQ(liste->ListCount(), 2);
  ortam.bildirim.cevap = false;
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(StartsWith("Soru: Muhasebede bu ayın fişi var")));
  EXPECT_EQ(liste->ListCount(), 2);
  ortam.bildirim.cevap = true;
  YaziBul(form, "fisno").DegerKoy(std::int64_t(1));
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(), testing::Contains("Bilgi: Bu Fiş Kullanılmış Yeni Bir Fiş No Seçiniz"));
  EXPECT_EQ(AlanMetni(form, "fisno"), "2");
  EXPECT_EQ(ortam.Sayi(KardesTuru::Muhasebe, "select count(*) from fisgen"), 1);
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.Sayi(KardesTuru::Muhasebe, "select count(*) from fisgen"), 2);
}

TEST(Entyap, BooksThatCannotBeOpened) {
  EntegrasyonOrtami ortam;
  std::ofstream(ortam.muhasebe + "/belmuh.dat") << "bozuk";
  EXPECT_TRUE(MuhasebeSirketiYaz(ortam.oturum, ortam.muhasebe));
  ortam.SatirEkle("A", 0, 5, 0, "770");
  auto& form = ortam.Ac<entyap>();
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(StartsWith("Uyarı: Muhasebe Dosyaları Açılamıyor..")));
  EXPECT_EQ(form.findChild<dclist*>("dclist1")->ListCount(), 1) << "the voucher can still be printed";
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(StartsWith("Uyarı: Muhasebe Dosyaları Açılamıyor..")));
}

TEST(Entislyap, TwoLinesAndTheSettings) {
  EntegrasyonOrtami ortam;
  auto& form = ortam.Ac<entislyap>();
  EXPECT_EQ(AlanMetni(form, "ack"), "Temmuz 2009 Ücret Tahakkuku");
  EXPECT_EQ(AlanMetni(form, "brut"), "1,500.50");
  EXPECT_EQ(AlanMetni(form, "prim"), "40.00");
  ortam.dialoglar.dizin = ortam.isletme;
  form.findChild<xButton*>("firmasec")->click();
  YaziBul(form, "ucretgrup").DegerKoy(std::string("UCR"));
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("SSK Grubu Bulunamadı..\nÜcretler deftere yazıldı")));
  YaziBul(form, "sskgrup").DegerKoy(std::string("SSK"));
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("1 hareket var")));
  EXPECT_EQ(ortam.Sayi(KardesTuru::Isletme, "select count(*) from isltra"), 2);
  EXPECT_EQ(IsletmeAyariOku(ortam.oturum).sskgrup, "SSK");
  EXPECT_EQ(IsletmeAyariOku(ortam.oturum).islfirma, ortam.isletme);
}

}  // namespace
}  // namespace belvani::test
