// The users of a company: who may log in.
//
// A password is plain text, and there are no rights by user: every user is written as an administrator. The messages
// are those of the screen, in the order of its checks; what the screen passes over in silence stays silent here too.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/bildirim.h"
#include "core/session/oturum.h"
#include "core/tables/peruser.h"

namespace belvani {

// Why name and password cannot be kept ("Şifre: en çok 8 harf olabilir"); "" when they can.
std::string KullaniciKusuru(std::string_view kullanici, std::string_view sifre);

// In the order of the names.
std::vector<Peruser> Kullanicilar(Oturum& o);

// Gives a user that exists a new password, for the old one, or adds a user. True when it was saved. A new user whose
// confirmation differs is refused without a word.
bool KullaniciKaydet(Oturum& o, std::string_view ad, std::string_view eskiSifre, std::string_view yeniSifre,
                     std::string_view onay, Bildirim& bildirim);

// Asks, and once more before the last user goes: nobody can then enter the company. True when the user was deleted.
bool KullaniciSil(Oturum& o, std::string_view ad, Bildirim& bildirim);

}  // namespace belvani
