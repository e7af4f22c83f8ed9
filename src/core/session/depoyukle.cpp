#include "core/session/depoyukle.h"

namespace belvani {

Durum DepoYukle(const std::string&, const VeriYolu& sirket, Ilerleme*) {
  return Kusur{
      "Yedek sunucuya doğrudan yüklenmez; önce bir dizine yükleyip oradan taşıyınız: belvani-cli yedekten ve "
      "belvani-cli tasi\n" +
      sirket.Adres()};
}

}  // namespace belvani
