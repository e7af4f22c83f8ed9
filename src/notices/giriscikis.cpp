#include "notices/giriscikis.h"

#include "core/store/izlenenokuma.h"
#include "core/store/satirlar.h"
#include "core/turkce.h"
#include "documents/turetilen.h"

namespace belvani {
namespace {

constexpr const char* KendiKurumu = "1";

// `al` is given each row of the query with the days bound to it.
template <class Al>
void AraliktakileriGez(Motor& motor, const char* sql, const TarihAraligi& aralik, Ilerleme* ilerleme, Al&& al) {
  const auto komut = motor.Hazirla(sql);
  komut->Bagla(1, aralik.bas);
  komut->Bagla(2, aralik.bit);
  for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
    al(*komut);
  }
}

}  // namespace

std::string AralikMetni(const TarihAraligi& aralik) {
  return aralik.bas.Metin() + " - " + aralik.bit.Metin();
}

std::string CikanSatiri::AdSoyadi() const {
  return std::string(Kirp(adi + " " + soyadi));
}

std::string CikanSatiri::CikisKodu() const {
  const std::string kod = std::to_string(cikiskodu);
  return kod.size() < 2 ? "0" + kod : kod;
}

std::string CikanSatiri::CikisNedeni() const {
  return std::string(Kirp(CikisKodu() + " " + cikissebebi));
}

std::vector<GirenSatiri> GirenleriOku(Motor& motor, const TarihAraligi& aralik, Ilerleme* ilerleme) {
  std::vector<GirenSatiri> satirlar;
  Sicil kisi;
  AraliktakileriGez(motor,
                    "select s.adi, s.soyadi, s.girtar, s.sskno, k.baba, k.cins, k.dogtar, k.dogyer "
                    "from sicil s join kimlik k on k.kod = s.kod where s.girtar >= ? and s.girtar <= ? "
                    "order by s.girtar, s.kod",
                    aralik, ilerleme, [&](const Komut& k) {
                      GirenSatiri& s = satirlar.emplace_back();
                      KolonAl(k, 0, kisi.adi);
                      KolonAl(k, 1, kisi.soyadi);
                      s.adsoy = AdSoyad(kisi);
                      KolonAl(k, 2, s.girtar);
                      KolonAl(k, 3, s.sskno);
                      KolonAl(k, 4, s.baba);
                      KolonAl(k, 5, s.cins);
                      KolonAl(k, 6, s.dogtar);
                      KolonAl(k, 7, s.dogyer);
                    });
  return satirlar;
}

std::vector<CikanSatiri> CikanlariOku(Motor& motor, const TarihAraligi& aralik, Ilerleme* ilerleme) {
  std::vector<CikanSatiri> satirlar;
  AraliktakileriGez(motor,
                    "select s.adi, s.soyadi, s.ciktar, s.sskno, s.cikissebebi, s.cikiskodu, k.baba, k.dogtar "
                    "from sicil s join kimlik k on k.kod = s.kod where s.ciktar >= ? and s.ciktar <= ? "
                    "order by s.ciktar, s.kod",
                    aralik, ilerleme, [&](const Komut& k) {
                      CikanSatiri& s = satirlar.emplace_back();
                      KolonAl(k, 0, s.adi);
                      KolonAl(k, 1, s.soyadi);
                      KolonAl(k, 2, s.ciktar);
                      KolonAl(k, 3, s.sskno);
                      KolonAl(k, 4, s.cikissebebi);
                      KolonAl(k, 5, s.cikiskodu);
                      KolonAl(k, 6, s.baba);
                      KolonAl(k, 7, s.dogtar);
                    });
  return satirlar;
}

std::string KurulusKodu(const std::string& sskno) {
  return Kirp(sskno).empty() ? std::string() : KendiKurumu;
}

}  // namespace belvani
