// The administrator's work on a server: laying it out for the program, and saying who may do what in which company.
//
// The server's own rights decide. A role that owns everything and logs in nowhere (belvani_sahip) makes companies, lays
// their tables out and grants; who is its member may have that done. A role to which nothing was granted sees no
// company, no name and no data.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/sonuc.h"

namespace belvani {

// Makes what is missing: roles, the common schema, the order of Turkish letters; after another version of the server's
// library for texts it makes the indexes anew. Who calls may create roles the first time. `adres` is a data path's.
Durum SunucuyuKur(const std::string& adres);

enum class SirketYetkisi { Yazar, Okur, Yok };

// What the role may do in the company from now on; a connection that is open has it with its next request. The role has
// to be there: roles are made by the server's administrator.
Durum SirketYetkisiVer(const std::string& adres, std::string_view kod, std::string_view kullanici, SirketYetkisi yetki);

struct YetkiSatiri {
  std::string kullanici;
  SirketYetkisi yetki = SirketYetkisi::Yok;
};
// Who was granted anything in the company, by name.
Sonuc<std::vector<YetkiSatiri>> SirketYetkileri(const std::string& adres, std::string_view kod);

}  // namespace belvani
