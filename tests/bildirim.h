// A Bildirim for tests: keeps what it is told ("Uyarı: Disk dolu"), and answers questions as the test has set it.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/bildirim.h"

namespace belvani::test {

using Iletiler = std::vector<std::string>;

struct ToplayanBildirim final : Bildirim {
  Iletiler iletiler;
  bool cevap = true;
  YazilanKarari yazilan = YazilanKarari::Birak;

  void Bilgi(std::string_view metin) override { iletiler.push_back("Bilgi: " + std::string(metin)); }
  void Uyari(std::string_view metin) override { iletiler.push_back("Uyarı: " + std::string(metin)); }
  bool Soru(std::string_view metin) override {
    iletiler.push_back("Soru: " + std::string(metin));
    return cevap;
  }
  YazilanKarari YazilanSorusu(std::string_view metin) override {
    iletiler.push_back("Yazılan: " + std::string(metin));
    return yazilan;
  }

  // What came since the last call.
  Iletiler Al() { return std::exchange(iletiler, {}); }
};

}  // namespace belvani::test
