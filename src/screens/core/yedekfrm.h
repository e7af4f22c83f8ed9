// yedekfrm ("Yedekleme"): the backups of the open company: made, listed, brought back under a new code. One that would
// take the open company's place is chosen here and brought back once every screen has closed, this one too.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "core/session/sirketyedegi.h"
#include "core/session/yedektendon.h"
#include "ui/dclist.h"
#include "ui/form.h"

namespace belvani {

class yedekfrm : public Form {
 public:
  explicit yedekfrm(EkranBaglami& baglam);

  // The backup that shall take the open company's place.
  const std::optional<std::string>& Secilen() const { return secilen_; }

 private:
  void SunucuNotuKoy();
  void ListeyiDoldur();
  void Yedekle(const std::string& hedef);
  void DosyayaYedekle();
  void GeriYukle(const std::string& dosya);
  void DosyadanYukle();
  void BaskaKoda();
  void Getir(const DonusIstegi& istek);
  std::string SeciliYedek() const;  // "" when the list is empty

  dclist* liste_;
  xtext* kod_;
  std::vector<YedekSatiri> yedekler_;
  std::optional<std::string> secilen_;
};

// Shows the screen; the backup that was chosen in it.
std::optional<std::string> YedekSectir(EkranBaglami& baglam);

// Brings it back over the open company, which is left before: `birak` closes the screens, and may say no. True: the
// company was left, and the login must come, whether the backup came back or not, which is told.
bool AcikSirketeGetir(EkranBaglami& baglam, const std::string& dosya, const std::function<bool()>& birak);

}  // namespace belvani
