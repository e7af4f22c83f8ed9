// The designers: columns are added, changed, moved and taken out by keys, a design is not lost, what is made is what
// the columns say.
#include <gmock/gmock.h>

#include "core/store/satirlar.h"
#include "core/tables/brd.h"
#include "core/tables/kimlik.h"
#include "core/tables/sicil.h"
#include "ekran/ortam.h"
#include "screens/reports/rap1.h"
#include "screens/reports/rap2.h"

namespace belvani::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

template <class Ekran>
struct TasarimOrtami : EkranOrtami {
  TasarimOrtami() {
    Motor& motor = oturum.depo.db.IcMotor();
    for (int i = 1; i <= 30; ++i) {
      Sicil s;
      s.kod = std::to_string(100 + i);
      s.adi = "Işıl";
      KayitYazici<Sicil>(motor).Ekle(s);
      Kimlik k;
      k.kod = s.kod;
      KayitYazici<Kimlik>(motor).Ekle(k);
      Brd b;
      b.yil = 2009;
      b.ay = std::uint8_t(1 + i % 2);
      b.no = 1;
      b.kod = s.kod;
      b.brutkaz = Tutar(1000.0);
      KayitYazici<Brd>(motor).Ekle(b);
    }
    form = &Ac<Ekran>();
    liste = form->template findChild<dclist*>("dclist1");
  }
  std::vector<std::string> Kolonlar(const char* ad) const {
    std::vector<std::string> metinler;
    for (int i = 0; i < liste->ListCount(); ++i) metinler.push_back(Utf8(liste->TextByName(i, ad)));
    return metinler;
  }
  // A column of the field at this place of the list.
  void Ekle(int sira) {
    AlanDenetimi& alan = AlanBul(*form, "alan");
    alan.Koy(std::int64_t(sira));
    alan.Degisti();
    Bas(Qt::Key_Insert);
  }
  Ekran* form;
  dclist* liste;
};

TEST(RaporTasarimi, ColumnsAreMadeMovedAndTakenOutByKeys) {
  TasarimOrtami<rap1> o;
  o.Bas(Qt::Key_Insert);  // the first field stands there ready
  for (const int sira : {1, 2}) o.Ekle(sira);
  EXPECT_THAT(o.Kolonlar("ack"), ElementsAre("Sicil No", "Adı", "Soyadı"));
  o.liste->setFocus();
  o.liste->ChngSat(2);
  o.Bas(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_THAT(o.Kolonlar("ack"), ElementsAre("Sicil No", "Soyadı", "Adı"));
  o.Bas(Qt::Key_Up, Qt::ControlModifier);
  o.Bas(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_THAT(o.Kolonlar("ack"), ElementsAre("Soyadı", "Sicil No", "Adı")) << "it stops at the top";
  o.Bas(Qt::Key_Delete);
  EXPECT_THAT(o.Kolonlar("ack"), ElementsAre("Sicil No", "Adı"));
  o.form->YaziKutusu({typeid(OzlukKolonu), "baslik"}).DegerKoy("");
  o.Bas(Qt::Key_F4);
  EXPECT_THAT(o.bildirim.Al(), ElementsAre(HasSubstr("Kolon Başlığı Yazılmamış")));
  EXPECT_THAT(o.Kolonlar("ack"), ElementsAre("Sicil No", "Adı")) << "a refused change leaves the column";
  QTest::qWait(350);
  EXPECT_EQ(o.form->template findChild<xgrid*>("onizleme")->GetListCount(), 20) << "the first rows";
}

TEST(RaporTasarimi, ADesignIsSavedAskedAboutAndBroughtBack) {
  TasarimOrtami<rap2> o;
  o.Ekle(5);
  o.bildirim.yazilan = YazilanKarari::Kal;
  EXPECT_FALSE(o.form->KapanabilirMi());
  EXPECT_THAT(o.bildirim.Al(), ElementsAre(HasSubstr("Kaydedilsin mi ?")));
  YaziBul(*o.form, "ad").DegerKoy("Benim");
  o.Bas(Qt::Key_F5);
  EXPECT_TRUE(RaporDosyasiVar(o.oturum.DataPath, "Benim", BordroUzantisi));
  EXPECT_TRUE(o.form->KapanabilirMi());
  EXPECT_THAT(o.bildirim.Al(), testing::IsEmpty());

  auto& ikinci = o.Ac<rap2>();
  auto* liste = ikinci.findChild<dclist*>("dclist1");
  for (const auto& [ad, sayi] : {std::pair("Ücret Kartı\n", 13), std::pair("Benim\n", 1)}) {
    YaziBul(ikinci, "ad").setFocus();
    YaziBul(ikinci, "ad").DegerKoy("");
    o.Yaz(ad);
    EXPECT_EQ(liste->ListCount(), sayi) << ad;
  }
}

}  // namespace
}  // namespace belvani::test
