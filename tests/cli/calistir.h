// Runs belvani-cli as a user would: arguments and standard input in; output, messages and exit status back.
#pragma once

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <string>
#include <sys/wait.h>

#include "gecici.h"

namespace belvani::test {

struct Cikti {
  int durum = 0;
  std::string cikti;  // standard output
  std::string mesaj;  // standard error

  nlohmann::json Json() const { return nlohmann::json::parse(cikti); }
};

class CliKomutu {
 public:
  GeciciDizin dizin;
  std::string veri = dizin.Yol() + "veri";  // the data path

  // `degerler` is shell text; @ stands for the directory of this test.
  Cikti operator()(std::string degerler, const std::string& girdi = "", const std::string& ortam = "") const {
    for (std::size_t i; (i = degerler.find('@')) != std::string::npos;) degerler.replace(i, 1, dizin.Yol());
    Yaz("girdi", girdi);
    const std::string komut = ortam + " " BELVANI_CLI " <" + dizin.Yol() + "girdi >" + dizin.Yol() + "cikti 2>" +
                              dizin.Yol() + "mesaj --veri '" + veri + "' " + degerler;
    const int durum = std::system(komut.c_str());
    return {WIFEXITED(durum) ? WEXITSTATUS(durum) : -1, Oku("cikti"), Oku("mesaj")};
  }

  void Yaz(const std::string& ad, const std::string& icerik) const {
    std::ofstream(dizin.Yol() + ad, std::ios::binary) << icerik;
  }
  std::string Oku(const std::string& ad) const {
    std::ifstream dosya(dizin.Yol() + ad, std::ios::binary);
    return {std::istreambuf_iterator<char>(dosya), {}};
  }
};

}  // namespace belvani::test
