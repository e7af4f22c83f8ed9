// Kuyruk: the printers of the computer and the way of a finished document to one of them.
#pragma once

#include <string>
#include <vector>

#include "core/sonuc.h"

namespace belvani {

struct YaziciBilgisi {
  std::string ad;
  std::string aciklama;  // as its owner calls it
  std::string aygit;     // where it is attached: "usb://…", "parallel:/dev/lp0"
  bool varsayilan = false;
  bool isAliyor = true;
  std::string bekleyen;  // what its user must see to ("Yazıcıda Kağıt Yok"); jobs wait until then. Empty: nothing
};

enum class IsTuru {
  Pdf,
  Ham,  // bytes as they are, for the printer itself
};

struct BaskiIsi {
  IsTuru tur = IsTuru::Pdf;
  std::string yazici;  // empty: the system's own choice
  std::string ad;      // as it stands in the list of jobs
  std::string icerik;
  int kopya = 1;
};

class Kuyruk {
 public:
  virtual ~Kuyruk() = default;
  virtual Sonuc<std::vector<YaziciBilgisi>> Yazicilar() = 0;
  virtual Sonuc<int> Gonder(const BaskiIsi& is) = 0;  // number of the job
};

// What the print dialog shows in place of a name when there is no printer.
inline constexpr const char* YaziciYok = "Seçili Yazıcı Yok... Yazıcı Yükleyiniz.";

// The printer of that name; for an empty one the system's own, else the first. One that takes no jobs is a failure.
Sonuc<YaziciBilgisi> YaziciSec(Kuyruk& kuyruk, const std::string& ad);

}  // namespace belvani
