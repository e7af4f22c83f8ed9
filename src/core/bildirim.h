// What the program has to say to its user while it works. The desktop shows message boxes titled "Belvani", the
// command line prints to standard error, a test answers by script.
#pragma once

#include <string>
#include <string_view>

#include "core/kusur.h"

namespace belvani {

// What shall become of typed work that the next step would lose.
enum class YazilanKarari { Kaydet, Birak, Kal };

enum class SoruDugmeleri { EvetHayir, TamamIptal };

class Bildirim {
 public:
  virtual ~Bildirim() = default;
  virtual void Bilgi(std::string_view metin) = 0;  // a broken rule, something done
  virtual void Uyari(std::string_view metin) = 0;  // a failed write, a risk
  virtual bool Soru(std::string_view metin) = 0;   // true: yes
  // Something to be seen to before it can go on; true: it was.
  virtual bool TamamMi(std::string_view metin) { return Soru(metin); }

  // Before something goes for good: `giden` names it on a line of its own, and a hasty Enter says no.
  bool SilinsinMi(std::string_view soru, std::string_view giden, SoruDugmeleri dugmeler = SoruDugmeleri::EvetHayir) {
    return TehlikeliSoru(giden.empty() ? std::string(soru) : std::string(soru) + "\n" + std::string(giden), dugmeler);
  }
  virtual bool TehlikeliSoru(std::string_view metin, SoruDugmeleri) { return Soru(metin); }
  // Who cannot be asked keeps what was typed.
  virtual YazilanKarari YazilanSorusu(std::string_view) { return YazilanKarari::Kal; }

  // A fault in the box of its degree.
  void KusuruGoster(const Kusur& kusur) { kusur.derece == Derece::Bilgi ? Bilgi(kusur.metin) : Uyari(kusur.metin); }
};

// Something long that its caller may show and stop.
class Ilerleme {
 public:
  virtual ~Ilerleme() = default;
  // How much of the whole is done; a whole of 0: nobody knows. False: the caller wants it stopped.
  virtual bool Adim(std::size_t biten, std::size_t toplam) = 0;
  // What begins now, in the user's words.
  virtual void Asama(std::string_view) {}
  // Before the last stage, the saving: true, and from now on it can no longer be stopped. False: it was stopped before.
  virtual bool Kesin() { return true; }
  // It was told to stop.
  virtual bool Vazgecildi() const { return false; }
};

}  // namespace belvani
