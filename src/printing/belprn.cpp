#include <iostream>

#include "printing/belprnislem.h"
#include "printing/cupskuyrugu.h"

int main(int argc, char** argv) {
  belvani::CupsKuyrugu kuyruk;
  const belvani::Durum durum = belvani::Belprn({argv + 1, argv + argc}, kuyruk);
  if (!durum) std::cerr << "belprn: " << durum.KusurMetni() << "\n";
  return durum ? 0 : 1;
}
