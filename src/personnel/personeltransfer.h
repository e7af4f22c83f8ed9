// A person into another company: his card and identity are copied under a new code and day of hiring; pay records,
// family and photograph stay. On demand he leaves here with it.
//
// What is copied is one transaction on the other company's store, the leaving a second one here, after it. A company of
// an earlier version takes the fields that it has, and those left out are named.
#pragma once

#include "core/session/oturum.h"
#include "core/tables/alansatiri.h"
#include "core/tables/sicil.h"
#include "personnel/cikiskodlari.h"

namespace belvani {

struct TransferFormu {
  std::string kod{};
  std::string hedef{};    // the company, as its directory is called
  std::string yeniKod{};  // there
  Tarih yeniGiris{};      // there
  bool cikisYap = false;  // with it and the next three he leaves here
  Tarih ciktar{};
  std::uint8_t cikiskodu = 0;
  std::string cikissebebi{};
};

// Its fields, as the rules know them.
namespace transferformu {
// clang-format off
inline constexpr Kolon<TransferFormu, std::string> kod{sicil::kod, &TransferFormu::kod};
inline constexpr auto hedef = Uye("hedef", &TransferFormu::hedef, 64);
inline constexpr auto yeniKod = Uye("yenikod", &TransferFormu::yeniKod, sicil::kod.boyut);
inline constexpr auto yeniGiris = Uye("yenigiris", &TransferFormu::yeniGiris);
inline constexpr auto cikisYap = Uye("cikisyap", &TransferFormu::cikisYap);
inline constexpr Kolon<TransferFormu, Tarih> ciktar{sicil::ciktar, &TransferFormu::ciktar};
inline constexpr Kolon<TransferFormu, std::uint8_t> cikiskodu{sicil::cikiskodu, &TransferFormu::cikiskodu};
inline constexpr Kolon<TransferFormu, std::string> cikissebebi{sicil::cikissebebi, &TransferFormu::cikissebebi};
// clang-format on
}  // namespace transferformu

struct Transfer {
  std::string hedef;                  // as its directory is spelled
  std::vector<std::string> eksikler;  // fields that the company there has no room for, as the user knows them
  bool ayrilmisti = false;            // he had left here before, and the copy says so too

  // What the user should know besides that it is done; "" when nothing.
  std::string Uyari() const;
};

// The first check that fails is the fault, and nothing is written then. Only a leaving that cannot be stored here comes
// after the copying, and says so.
Sonuc<Transfer> PersonelTransfer(Oturum& o, const TransferFormu& form);

}  // namespace belvani
