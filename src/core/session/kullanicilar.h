// The users of a company: who may log in.
//
// A password is plain text, and there are no rights by user: every user is written as an administrator. The faults come
// in the order of the screen's checks, each at its field.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/bildirim.h"
#include "core/session/oturum.h"
#include "core/silme.h"
#include "core/tables/peruser.h"

namespace belvani {

// What is typed of a user.
struct KullaniciGirisi {
  std::string ad, eski, yeni, onay;  // name; the old password, the new one, and that one again
};

namespace kullanicigirisi {
// clang-format off
inline constexpr Kolon<KullaniciGirisi, std::string> ad{{"ad", AlanTipi::Metin, peruser::kod.boyut, AlanNiteligi::Serbest}, &KullaniciGirisi::ad};
inline constexpr Kolon<KullaniciGirisi, std::string> eski{{"eski", AlanTipi::Metin, peruser::pasw.boyut, AlanNiteligi::Serbest}, &KullaniciGirisi::eski};
inline constexpr Kolon<KullaniciGirisi, std::string> yeni{{"yeni", AlanTipi::Metin, peruser::pasw.boyut, AlanNiteligi::Serbest}, &KullaniciGirisi::yeni};
inline constexpr Kolon<KullaniciGirisi, std::string> onay{{"onay", AlanTipi::Metin, peruser::pasw.boyut, AlanNiteligi::Serbest}, &KullaniciGirisi::onay};
// clang-format on
}  // namespace kullanicigirisi

// Why name and password cannot be kept ("Şifre: en çok 8 harf olabilir"); nothing when they can.
std::optional<Kusur> KullaniciKusuru(std::string_view kullanici, std::string_view sifre);

// By the name as it is typed, blanks at its ends aside; earlier versions kept such blanks, and find their users too.
std::optional<Peruser> KullaniciBul(Oturum& o, std::string_view ad);

// In the order of the names.
std::vector<Peruser> Kullanicilar(Oturum& o);

// Gives a user that exists a new password, for the old one, or adds a user. False: a new user whose confirmation
// differs, which is passed over in silence.
Sonuc<bool> KullaniciKaydet(Oturum& o, const KullaniciGirisi& giris);

// Asks, and once more before the last user goes: nobody can then enter the company.
Sonuc<Silme> KullaniciSil(Oturum& o, std::string_view ad, Bildirim& bildirim);

}  // namespace belvani
