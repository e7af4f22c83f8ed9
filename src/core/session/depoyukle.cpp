#include "core/session/depoyukle.h"

#include "core/asama.h"
#include "core/session/sirket.h"
#include "core/store/depoaktarimi.h"
#include "core/store/koru.h"

namespace belvani {

Durum DepoYukle(const std::string& dosya, const VeriYolu& sirket, Ilerleme* ilerleme) {
  return Koru(
      [&] {
        const auto kaynak = MotorAc(dosya, AcilisKipi::Tek);
        const auto hedef = MotorYarat(DepoAdresi(sirket));
        if (ilerleme != nullptr) ilerleme->Asama("Kayıtlar yükleniyor…");
        DepoyuAktar(*kaynak, *hedef, [&](std::size_t biten, std::size_t toplam) {
          if (ilerleme != nullptr && !ilerleme->Adim(biten, toplam)) throw Vazgecilmis{};
        });
        if (const std::string fark = DepoFarki(*kaynak, *hedef); !fark.empty())
          throw MotorHatasi(MotorKusuru::Diger, "yüklenenler yedektekiler gibi değil: " + fark);
      },
      "Yedekteki veritabanı yüklenemedi: ");
}

}  // namespace belvani
