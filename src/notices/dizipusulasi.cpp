#include "notices/dizipusulasi.h"

#include "core/store/izlenenokuma.h"
#include "core/store/satirlar.h"
#include "core/turkce.h"
#include "documents/turetilen.h"

namespace belvani {

// The value of the digits at the front, which may be more than a whole number holds.
bool IlkGirisMi(std::string_view sskno) {
  const std::string_view no = Kirp(sskno);
  const std::string_view rakamlar = no.substr(0, no.find_first_not_of("0123456789"));
  return rakamlar.find_first_not_of('0') == rakamlar.npos;
}

void DiziyeEkle(DiziPusulasi& pusula, DiziSatiri satir) {
  auto& liste = IlkGirisMi(satir.sskno) ? pusula.ilk : pusula.tekrar;
  if (liste.size() < DiziSiniri)
    liste.push_back(std::move(satir));
  else
    ++pusula.sigmayan;
}

DiziPusulasi DiziPusulasiOku(Motor& motor, const TarihAraligi& aralik, Ilerleme* ilerleme) {
  const auto komut = motor.Hazirla(
      "select s.sskno, s.adi, s.soyadi from sicil s where s.girtar >= ? and s.girtar <= ? order by s.sskno, s.kod");
  komut->Bagla(1, aralik.bas);
  komut->Bagla(2, aralik.bit);
  DiziPusulasi pusula;
  Sicil kisi;
  for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
    KolonAl(*komut, 1, kisi.adi);
    KolonAl(*komut, 2, kisi.soyadi);
    DiziyeEkle(pusula, {.sskno = std::string(Kirp(komut->Metin(0))), .adsoy = AdSoyad(kisi)});
  }
  return pusula;
}

std::string DiziSinirUyarisi(const DiziPusulasi& pusula) {
  if (pusula.sigmayan == 0) return {};
  return "Dizi Pusula Limiti Doldu\nPusulaya alınmayan kişi: " + std::to_string(pusula.sigmayan);
}

}  // namespace belvani
