// The data path that every test on the server begins with: made once, copied for each.
#pragma once

#include <functional>
#include <string>

#include "sunucu/ozelsunucu.h"

namespace belvani::test {

// Runs statements as the server's administrator; throws with the server's words.
void YoneticiSql(const std::string& sunucuDizini, const std::string& veritabani, const std::string& sql);

// The empty data path, which `kur` lays out at the address that it is given, as the administrator; and a role named
// like this user, who is nobody special on the server but a member of `sahip`, who owns all companies.
void SablonHazirla(const OzelSunucu& sunucu, const std::function<void(const std::string& adres)>& kur,
                   const std::string& sahip);

void SablondanYarat(const std::string& sunucuDizini, const std::string& veritabani);
void VeritabaniniSil(const std::string& sunucuDizini, const std::string& veritabani);

}  // namespace belvani::test
