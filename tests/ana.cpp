// Runs the tests of one room: a fixed time zone, and settings that never touch the machine's own.
#include <cstdlib>
#include <gmock/gmock.h>

#include "gecici.h"

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  setenv("TZ", "Europe/Istanbul", 1);
  const belvani::test::GeciciDizin ayarlar;
  setenv("BELVANI_KULLANICI_DIZIN", ayarlar.Yol().c_str(), 1);
  setenv("BELVANI_MAKINE_AYAR", (ayarlar.Yol() + "makine.ini").c_str(), 1);
  return RUN_ALL_TESTS();
}
