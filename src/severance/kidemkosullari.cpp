#include "severance/kidemkosullari.h"

#include "payroll/parametre/dosyalar.h"

namespace belvani {
namespace {

constexpr double EnAzIsSaati = 1;
constexpr double VarsayilanIsSaati = 8;

template <class T>
T Al(KidemKosullari& k, Yukleme<T> yukleme) {
  for (auto& uyari : yukleme.uyarilar) k.uyarilar.push_back(std::move(uyari));
  return std::move(yukleme.deger);
}

}  // namespace

KidemKurallari KidemKosullari::Kurallar() const {
  return {.yasal = &yasal, .kidem = kidem, .ihbar = ihbar, .IsSaati = IsSaati, .paraonda = paraonda};
}

std::uint8_t KidemKosullari::Bayraklar(const Sicil& sicil) const {
  const auto bayraklar = KazancGrupYukle(gruplar, sicil.hesap).y;
  return kidem.KidemPuantajYeri < bayraklar.size() ? bayraklar[kidem.KidemPuantajYeri] : std::uint8_t(0);
}

KidemKosullari KidemKosullariYukle(const BelgeKaynagi& kaynak) {
  KidemKosullari k;
  k.yasal = kaynak.yasal;
  k.gruplar = KazancGruplariOku(kaynak.motor, kaynak.firma, kaynak.sirket);
  k.uyarilar = std::move(k.gruplar.uyarilar);
  k.kidem = Al(k, KidemParOku(kaynak.sirket));
  k.ihbar = Al(k, IhbarSureOku(kaynak.sirket));
  k.IsSaatiYazili = kaynak.firma.issaati.Sayi() >= EnAzIsSaati;
  k.IsSaati = k.IsSaatiYazili ? kaynak.firma.issaati : Tek(VarsayilanIsSaati);
  k.paraonda = kaynak.firma.paraonda;
  return k;
}

std::vector<std::string> AlinmayanVergiler(std::uint8_t bayraklar) {
  std::vector<std::string> sozler;
  if ((bayraklar & bayrak::Gv) == 0)
    sozler.emplace_back("Kıdemin puantaj yerinde gelir vergisi işaretli değil: ihbardan gelir vergisi alınmadı.");
  if ((bayraklar & bayrak::Dv) == 0)
    sozler.emplace_back(
        "Kıdemin puantaj yerinde damga vergisi işaretli değil: kıdem ve ihbardan damga vergisi alınmadı.");
  return sozler;
}

}  // namespace belvani
