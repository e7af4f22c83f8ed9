// SunucuAdresi: the address of a data path on a database server, and of the places below it.
//
//   postgresql://sunucu/belvani                                    the data path
//   postgresql://ayse@sunucu:5433/belvani?sslmode=verify-full      the same with a role and the ways of the connection
//   postgresql:///belvani?host=/run/postgresql                     a server of this computer
//   postgresql://sunucu/belvani#ORNEK                              a company's place
//   postgresql://sunucu/belvani#ORNEK/tolu.dat                     its store
//
// Behind "#" stands a path of ours; what is before it belongs to the connection. A password is never part of it: an
// address is shown, logged and kept.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/sonuc.h"

namespace belvani {

struct SunucuAdresi {
  std::string baglanti;  // up to "#", without a separator at its end
  std::string yol;       // behind it, without separators at its ends: "", "ORNEK", "ORNEK/tolu.dat"

  // "…/belvani#ORNEK/"; the address of what lies below the place is this and a name.
  std::string Yer() const;
  // What its user calls the server and the database: "sunucu/belvani".
  std::string Ad() const;
};

// Does the text mean a server? Any other text is a path of this computer.
bool SunucuAdresiMi(std::string_view adres);

// Refused are an address without a database, one that cannot be read, and one with a password in it.
Sonuc<SunucuAdresi> SunucuAdresiCoz(std::string_view adres);

// Who asks for the password when the server wants one that stands nowhere: a box of the desktop, the terminal of the
// command line. Nothing: its user would not say it, or there is nobody to be asked. It is kept by the connection alone.
using SifreSorucu = std::function<std::optional<std::string>(const std::string& sunucu, const std::string& kullanici)>;
void SifreSorucuKoy(SifreSorucu sorucu);
std::optional<std::string> SifreSor(const std::string& sunucu, const std::string& kullanici);

}  // namespace belvani
