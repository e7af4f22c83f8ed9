// The address of the institution's service that takes the electronic declaration: a setting of the installation, in
// belvani.ini of the data path, section "Internet".
#pragma once

#include <string>

#include "core/veriyolu.h"

namespace belvani {

// What the user has set; the institution's own address until then.
std::string EBildirgeAdresi(const VeriYolu& veri);

// Refused is what no browser would open as a page: anything that does not begin with http:// or https://.
Durum EBildirgeAdresiYaz(const VeriYolu& veri, const std::string& adres);

}  // namespace belvani
