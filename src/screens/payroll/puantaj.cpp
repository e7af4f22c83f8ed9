#include "screens/payroll/puantaj.h"

#include "core/tarih.h"

namespace belvani {
namespace {

struct Donem {
  std::int16_t ay;
  std::int16_t yil;
};

struct PuantajSutunu {
  char tip;
  const char* ad;
  const char* baslik;
  int genislik;
};
constexpr PuantajSutunu PuantajSutunlari[] = {
    {'a', "kod", "Kod", 90},   {'m', "adsoy", "Adı Soyadı", 220}, {'b', "ucr", "ÜCRETİ", 110},
    {'n', "ng", "N.G.", 56},   {'n', "ht", "H.T.", 56},           {'n', "rt", "R.T.", 56},
    {'n', "ui", "Ü.İ.", 56},   {'n', "ig", "Ü.İ.G.", 60},         {'n', "is", "Ü.İ.S.", 60},
    {'n', "fm1", "F.M.1", 60}, {'n', "fm2", "F.M.2", 60},         {'n', "fm3", "F.M.3", 60},
};

}  // namespace

puantaj::puantaj(EkranBaglami& baglam) : Form(baglam, "puantaj", QStringLiteral("Standart Puantaj Girişi")) {
  AlanlariDiz({{{"Dönem",
                 {{Uye("ay", &Donem::ay), "Dönem Ay", {.liste = AyAdlari, .listeTabani = 1}},
                  {Uye("yil", &Donem::yil), "Dönem Yıl", {.enCok = 9999}}},
                 2}}});
  auto* liste = new dclist(baglam.bildirim, this);
  for (const PuantajSutunu& s : PuantajSutunlari) liste->CreateNewCaption(s.tip, s.ad, s.baslik, s.genislik);
  liste->GenisKolon("adsoy");
  liste->setMinimumSize(980, 320);
  Govde()->addWidget(liste, 1);
  Yukle(Donem{std::int16_t(Oturumu().firma.firmaay), std::int16_t(Oturumu().firma.firmayil)});
}

}  // namespace belvani
