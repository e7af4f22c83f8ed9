#include "payroll/hazirlik/mahsupkaybi.h"

#include "core/sayi.h"
#include "core/store/satirlar.h"
#include "core/tarih.h"
#include "payroll/hesap/agi.h"

namespace belvani {

std::string MahsupKaybi(const Brd& kayitli, const Brd& yeni, int paraonda) {
  if (kayitli.yil >= AgiIlkYili || kayitli.ogv == Tutar() || yeni.ogv == kayitli.ogv) return {};
  return "Kayıttaki özel gider indirimi ödemesi (" + TutarMetni(kayitli.ogv, paraonda) +
         ") elle yazılmış, yeniden kaydedilince silinir";
}

std::optional<Kusur> AyinMahsupKaybi(Motor& motor, int yil, int ay, int paraonda) {
  if (yil >= AgiIlkYili) return std::nullopt;
  const auto komut =
      motor.Hazirla("select count(*), coalesce(sum(ogv), 0) from brd where yil = ? and ay = ? and ogv <> 0");
  komut->TamBagla(1, yil);
  komut->TamBagla(2, ay);
  if (!komut->Adim() || komut->Tam(0) == 0) return std::nullopt;
  Tutar toplam;
  KolonAl(*komut, 1, toplam);
  return Kusur{.metin = std::string(AyAdi(ay)) + " " + std::to_string(yil) + " bordrosunda " +
                        std::to_string(komut->Tam(0)) + " kişinin elle yazılmış özel gider indirimi ödemesi var (" +
                        TutarMetni(toplam, paraonda) + "): ay yeniden hazırlanınca silinir.",
               .derece = Derece::Uyari};
}

}  // namespace belvani
