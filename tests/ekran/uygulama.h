// The program's application object for tests: no display, none of the user's settings, "C" numbers, Turkish dialogs.
#pragma once

#include <QApplication>
#include <clocale>

#include "gecici.h"
#include "ui/stil.h"

namespace belvani::test {

class EkranUygulamasi {
 public:
  EkranUygulamasi(int& argc, char** argv) : argc_(argc), argv_(argv) {
    std::setlocale(LC_NUMERIC, "C");
    CeviriYukle(uygulama_);
    StilKur(uygulama_, AcikRenkler());
  }

 private:
  // The environment comes before the application, which reads it.
  struct Cevre {
    Cevre() {
      setenv("QT_QPA_PLATFORM", "offscreen", 1);
      setenv("TZ", "Europe/Istanbul", 1);
      setenv("BELVANI_KULLANICI_DIZIN", ayarlar.Yol().c_str(), 1);
      setenv("BELVANI_MAKINE_AYAR", (ayarlar.Yol() + "makine.ini").c_str(), 1);
    }
    GeciciDizin ayarlar;
  };

  int& argc_;
  char** argv_;
  Cevre cevre_;
  QApplication uygulama_{argc_, argv_};
};

}  // namespace belvani::test
