#include "ozluk/vizitesozleri.h"

namespace belvani::vizite {

std::string YakinlikSozu(const ViziteYakini& yakin) {
  return yakin.yakinlik < std::size(ViziteYakinliklari) ? std::string(ViziteYakinliklari[yakin.yakinlik]) : "";
}

std::string_view Kimin(const ViziteKagidi& kagit) {
  const bool anaBaba = kagit.tur == ViziteTuru::AltiAylik && AnaBabaMi(kagit.yakin.yakinlik);
  return anaBaba ? "Ana veya Babanın" : "Eş veya Çocuğun";
}

std::string BeyanMetni(const ViziteKagidi& kagit) {
  return "Yukarıda kimliği yazılı sigortalının işyerimizde çalıştığını, prim ödeme gün sayılarının işyeri kayıtlarına "
         "uygun olduğunu ve bu belgenin, sigortalının geçindirmekle yükümlü olduğu " +
         std::string(Kimin(kagit)) +
         " muayene ve tedavisi için düzenlendiğini beyan eder; belgenin gerçeğe aykırı düzenlenmesinden doğacak Kurum "
         "zararını ödemeyi taahhüt ederiz.";
}

}  // namespace belvani::vizite
