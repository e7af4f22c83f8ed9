#include "personnel/tanimkodlari.h"

#include "core/store/satirlar.h"
#include "core/store/tablo.h"
#include "core/tables/kaztan.h"
#include "core/tables/sendika.h"
#include "core/turkce.h"

namespace belvani {
namespace {

struct TanimKodu {
  Kolon<Sicil, std::string> kolon;
  const char* tanimsiz;
  bool (*tanimli)(Oturum& o, const std::string& kod);
};

bool GrupTanimli(Oturum& o, const std::string& grup) {
  const std::string_view ondeger = Kirp(o.firma.ondeger);
  return TurkceEsit(grup, ondeger.empty() ? KartsizFirma().ondeger : ondeger) ||
         Tablo<Kaztan>(o.depo.db.IcMotor()).Bul(grup).has_value();
}

bool SendikaTanimli(Oturum& o, const std::string& kod) {
  return Tablo<Sendika>(o.depo.db.IcMotor()).Bul(kod).has_value();
}

constexpr TanimKodu TanimKodlari[] = {{sicil::hesap, "Hesap grubu tanımlı değil: ", &GrupTanimli},
                                      {sicil::tasno, "Sendika tanımlı değil: ", &SendikaTanimli}};

}  // namespace

Kusurlar TanimsizKodlar(Oturum& o, const Sicil& kart, const std::optional<Sicil>& ilk) {
  Kusurlar kusurlar;
  for (const TanimKodu& tanim : TanimKodlari) {
    const std::string kod(Kirp(kart.*tanim.kolon.uye));
    const bool durur = ilk && TurkceEsit(kod, Kirp((*ilk).*tanim.kolon.uye));
    if (!kod.empty() && !durur && !tanim.tanimli(o, kod))
      kusurlar.push_back(KuralKusuru(tanim.tanimsiz + kod, tanim.kolon));
  }
  return kusurlar;
}

Kusurlar TanimsizKodluKisiler(Oturum& o) {
  Kusurlar kusurlar;
  for (const Sicil& kart : KayitlariOku<Sicil>(o.depo.db.IcMotor(), "order by kod"))
    for (Kusur kusur : TanimsizKodlar(o, kart)) {
      kusur.kod = kart.kod;
      kusur.derece = Derece::Uyari;
      kusurlar.push_back(std::move(kusur));
    }
  return kusurlar;
}

}  // namespace belvani
