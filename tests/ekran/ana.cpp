// The main function of tests that open screens: no display, none of the user's settings, "C" numbers, Turkish dialogs.
#include <QApplication>
#include <clocale>
#include <gmock/gmock.h>

#include "gecici.h"
#include "ui/stil.h"

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  setenv("TZ", "Europe/Istanbul", 1);
  const belvani::test::GeciciDizin ayarlar;
  setenv("BELVANI_KULLANICI_DIZIN", ayarlar.Yol().c_str(), 1);
  setenv("BELVANI_MAKINE_AYAR", (ayarlar.Yol() + "makine.ini").c_str(), 1);
  QApplication uygulama(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  belvani::CeviriYukle(uygulama);
  belvani::StilKur(uygulama, belvani::AcikRenkler());
  return RUN_ALL_TESTS();
}
