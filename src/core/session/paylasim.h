// For whom the stores of a data path are laid out: "bu bilgisayar" (its programs alone work on them) or "paylaşılan"
// (other computers too). Each store remembers it itself; the data path remembers it for the companies to come. A server
// knows no such thing: all its companies are open to all computers, and a change is refused.
#pragma once

#include <string_view>

#include "core/store/motor.h"
#include "core/veriyolu.h"

namespace belvani {

// For new companies: as declared, else as the file system asks for.
DepoYeri YeniDepoYeri(const VeriYolu& veri);
Durum YeniDepoYeriYaz(const VeriYolu& veri, DepoYeri yer);

// Lays the store of the company, the exact name of its directory, out anew. It must be nobody else's meanwhile; what
// lies on a shared file system is not for one computer.
Durum DepoYeriDegistir(const VeriYolu& veri, std::string_view ad, DepoYeri yer);

}  // namespace belvani
