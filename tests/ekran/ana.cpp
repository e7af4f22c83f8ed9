// The main function of tests that open screens.
#include <gmock/gmock.h>

#include "ekran/uygulama.h"

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  const belvani::test::EkranUygulamasi uygulama(argc, argv);
  return RUN_ALL_TESTS();
}
