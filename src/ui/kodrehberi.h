// kodrehberi: the lookup window of a field whose choices the user defines: earning groups, unions, reports.
#pragma once

#include "ui/dclist.h"
#include "ui/form.h"

namespace belvani {

struct KodSecenegi {
  std::string kod, ad;
};

class kodrehberi : public Form {
 public:
  kodrehberi(EkranBaglami& baglam, const char* baslik, const std::vector<KodSecenegi>& secenekler,
             const std::string& simdiki);

  const std::optional<std::string>& Secilen() const { return secilen_; }

 private:
  void Sec(int satir);

  dclist* liste_;
  std::optional<std::string> secilen_;
};

// Opens the window at the present code; the chosen one, or nothing. Without any code it says that none is defined.
std::optional<std::string> KodSec(EkranBaglami& baglam, const char* baslik, const std::vector<KodSecenegi>& secenekler,
                                  const std::string& simdiki);

}  // namespace belvani
