// Hiring: a person's card and identity entered in the order of the entry declaration ("Sigortalı İşe Giriş
// Bildirgesi"), and what that paper asks for besides, which is kept nowhere.
//
// Faults are as in personnel/kart.h. Of a person who is known already only the fields shown here change:
// wage, groups and all others stay.
//
// The law wants the declaration handed in before the first day of work, so the hire date must be after the day of
// handing in: handed in on 02.03.2009, hired on 03.03.2009 at the earliest. Law: 506, article 9; 5510, article 8.
#pragma once

#include <array>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

#include "core/session/oturum.h"
#include "core/sonuc.h"
#include "core/store/cakisma.h"
#include "core/tables/kimlik.h"
#include "core/tables/sicil.h"
#include "personnel/listeler.h"

namespace belvani {

// Lists of the screen; all but the first are for the paper alone.
inline constexpr std::string_view Uyruklar[] = {"T.C."};  // any other nationality is typed
inline constexpr std::string_view GirisTurleri[] = {"İ L K", "T E K R A R"};
inline constexpr std::string_view EmekliTercihleri[] = {"", "S.G.D.P.", "Tüm Sigorta Kolları"};
inline constexpr std::uint8_t SgdpSirasi = 1;

// Other social-security bodies that the person may belong to, and the questions about a pension of each.
inline constexpr std::string_view Sandiklar[] = {"Emekli Sandığı", "Bağ-Kur", "Diğer"};
inline constexpr std::string_view SandikAyligi[] = {" Emekli Sandığından Aylık Alıyorsa İşaretleyiniz ",
                                                    " Bağkur'dan aylık alıyorsa işaretleyiniz ", "Aylık"};
constexpr std::size_t SandikSayisi = std::size(Sandiklar);

// What the paper alone knows. The lengths are what its text form has room for.
struct GirisEki {
  static constexpr int NoHarfi = 20;
  static constexpr int UnvanHarfi = 40;
  static constexpr int AdresHarfi = 70;
  static constexpr int YerHarfi = 15;

  std::uint8_t tur = 0;            // position in GirisTurleri
  std::uint8_t emekliTercihi = 0;  // in EmekliTercihleri; of one who has an old-age pension of the institution itself
  Tarih islemTarihi;               // day on which the paper is handed in
  std::array<bool, SandikSayisi> sandik{};
  std::array<bool, SandikSayisi> sandikAyligi{};
  std::array<std::string, SandikSayisi> sandikNo{};  // "Sicil/Sandık No"
  std::string eskiUnvan;                             // the workplace before this one
  std::string eskiAdres;
  std::string eskiIl;
  std::string eskiIlce;
  std::string vergiNo;
};

// Of the fields above, those in which a fault may lie.
namespace giriseki {
inline constexpr Kolon<GirisEki, Tarih> islemTarihi{{"islemTarihi", AlanTipi::Tarih, 0, AlanNiteligi::Serbest},
                                                    &GirisEki::islemTarihi};
inline constexpr Kolon<GirisEki, std::uint8_t> emekliTercihi{
    {"emekliTercihi", AlanTipi::Byte, 0, AlanNiteligi::Serbest}, &GirisEki::emekliTercihi};
}  // namespace giriseki

struct GirisFormu {
  Sicil sicil{};  // its `kod` is the person's
  Kimlik kimlik{};
  GirisEki ek{};
  std::optional<Sicil> ilkSicil{};  // as they were read; nothing: there was none
  std::optional<Kimlik> ilkKimlik{};
  bool cikisSilinir = false;  // a former leaving goes with this hiring
};

// A person who has left is hired again: his leaving stands before the new day. What to ask then ("Bu personel
// 31.01.2009 tarihinde işten çıkmış …"); "" where there is nothing to ask.
std::string YenidenGirisSorusu(const GirisFormu& form);

// The screen before anyone is on it: both dates of the declaration are today, the nationality is "T.C.".
GirisFormu BosGirisFormu(Tarih bugun);

// The person, who may have a card, an identity or both; what the paper alone knows is as in an empty form. Nothing for
// a code that neither has.
std::optional<GirisFormu> GirisBul(Oturum& o, std::string_view kod, Tarih bugun);

// The checks before saving and before printing: the first that fails, at its field.
Durum GirisDenetle(const GirisFormu& form);

struct GirisKayitlari {
  Okunan<Sicil> sicil;
  Okunan<Kimlik> kimlik;
};

// The records of the person as the form makes them, checked. One who has left is hired again with `cikisSilinir` alone:
// with the old leaving on his card he would belong to no period. A new person gets the minimum wage of the law, the
// company's default account class and the minimum-living allowance.
Sonuc<GirisKayitlari> GirisHazirla(const Oturum& o, const GirisFormu& form, Tutar asgariUcret);

// Why they were not written; where another user stands behind it, whose record it is.
struct GirisEngeli : Kusur {
  std::optional<Cakisma<Sicil>> sicil;
  std::optional<Cakisma<Kimlik>> kimlik;
};

// Writes both or neither.
Sonuc<std::monostate, GirisEngeli> GirisYaz(Oturum& o, const GirisKayitlari& kayitlar);

// The allocation number is that of a pensioner under the support premium.
constexpr bool TahsisNoAcik(std::uint8_t emekliTercihi) {
  return emekliTercihi == SgdpSirasi;
}

// "T.C.", "TC", "T.C" and "TC." in any case.
bool UyrukTurkMu(std::string_view uyruk);

}  // namespace belvani
