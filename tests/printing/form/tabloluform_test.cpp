// A statutory form that is a list too, and sheets that are put in by hand.
#include "printing/form/tabloluform.h"

#include <gmock/gmock.h>

#include "printing/ornek.h"
#include "printing/sahtekuyruk.h"
#include "printing/sahteport.h"
#include "printing/yazdir.h"

namespace belvani {
namespace {

using testing::HasSubstr;

std::vector<FormSayfasi> IkiSayfa(Ilerleme*) {
  FormKurucu f(A4(KagitYonu::Dikey));
  f.Alan("ad", {20, 20, 40, 8}, "Işıl");
  return {f.Sayfa(), f.Sayfa()};
}

Rapor Liste() {
  return test::KalemRaporu({{.ad = "Işıl", .tutar = Tutar(2.0)}, {.ad = "Can", .tutar = Tutar(3.0)}});
}

YzcAyarlari Ayar(bool dos) {
  YzcAyarlari ayar;
  ayar.YzcBaslik = "KALEM LİSTESİ";
  ayar.YzcDosMod = dos;
  ayar.YzcTamam = true;
  return ayar;
}

TEST(TabloluForm, HasPagesListAndWorkbook) {
  TabloluForm belge(Ayar(false), Liste(), {.sayfalar = IkiSayfa});
  EXPECT_EQ(belge.Cizim()->SayfaSayisi(), 2);
  EXPECT_FALSE(belge.Ayar().YzcDosAcik) << "no text form: printers get the drawing";
  EXPECT_THAT(belge.Metin(), HasSubstr("Can")) << "other programs get its lines";
  EXPECT_THAT(*belge.Xlsx(), testing::StartsWith("PK"));
  belge.Sirala(std::vector{1, 0});
  EXPECT_EQ(DuzMetin(belge.Tablo()->Satirlar()[0].hucreler[0]), "Can");
  const TabloluForm bos({}, test::KalemRaporu({}), {.sayfalar = IkiSayfa});
  EXPECT_TRUE(bos.Kayitsiz());
  EXPECT_FALSE(bos.Bos()) << "the empty form can be printed";
}

// Says yes so many times.
struct SayanBildirim final : Bildirim {
  int kalan = 0;
  std::vector<std::string> sorulan;

  void Bilgi(std::string_view) override { ADD_FAILURE(); }
  void Uyari(std::string_view) override { ADD_FAILURE(); }
  bool Soru(std::string_view metin) override {
    sorulan.emplace_back(metin);
    return kalan-- > 0;
  }
};

// Before each page its sheet is asked for; a no keeps back that page and all behind it.
TEST(TabloluForm, SheetsAreAskedForOneByOne) {
  test::SahteKuyruk kuyruk;
  for (const int onaylanan : {0, 2, 3}) {
    test::SahtePort port;
    port.portSayisi = 1;
    BaskiOrtami ortam{.kuyruk = kuyruk, .port = port, .programDizini = {}, .dosyaAc = {}, .adresAc = {}};
    TabloluForm belge(Ayar(true), Liste(),
                      {.sayfalar = IkiSayfa,
                       .metin = [](Ilerleme*) { return "bir\n\fiki\n\fson\n"; },
                       .sayfaSozu = [](int sayfa) { return std::to_string(sayfa) + ". Sayfa İçin"; }});
    YzcAyarlari ayar = belge.Ayar();
    ayar.yazici = "LPT1:";
    belge.Ayarla(ayar);
    SayanBildirim bildirim;
    bildirim.kalan = onaylanan;
    const auto sonuc = BelgeYazdir(belge, ortam, bildirim);
    ASSERT_TRUE(sonuc);
    EXPECT_EQ(sonuc->gonderildi, onaylanan > 0);
    EXPECT_EQ(bildirim.sorulan.size(), std::size_t(std::min(3, onaylanan + 1)));
    EXPECT_EQ(bildirim.sorulan.back(), std::to_string(bildirim.sorulan.size()) + ". Sayfa İçin");
    EXPECT_EQ(port.alinan.find("bir") != std::string::npos, onaylanan > 0);
    EXPECT_EQ(port.alinan.find("iki") != std::string::npos, onaylanan > 1);
    EXPECT_EQ(port.alinan.find("son") != std::string::npos, onaylanan > 2);
  }
}

}  // namespace
}  // namespace belvani
