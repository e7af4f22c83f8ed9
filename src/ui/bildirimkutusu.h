// Message boxes titled "Belvani", and the platform's dialogs.
#pragma once

#include "core/bildirim.h"
#include "ui/ekran.h"

namespace belvani {

class BildirimKutusu final : public Bildirim {
 public:
  void Bilgi(std::string_view metin) override;
  void Uyari(std::string_view metin) override;
  bool Soru(std::string_view metin) override;
  bool TamamMi(std::string_view metin) override;
  bool TehlikeliSoru(std::string_view metin, SoruDugmeleri dugmeler) override;
  YazilanKarari YazilanSorusu(std::string_view metin) override;
};

// The platform's own dialogs.
class SistemDialoglari final : public Dialoglar {
 public:
  std::optional<std::string> DosyaAc(const std::string& baslik, const std::string& dizin,
                                     const std::string& filtre) override;
  std::optional<std::string> DosyaKaydet(const std::string& baslik, const std::string& dizin,
                                         const std::string& filtre) override;
  std::optional<std::string> DizinSec(const std::string& baslik, const std::string& dizin) override;
  std::optional<std::uint32_t> RenkSec(std::uint32_t renk) override;
  std::optional<QFont> FontSec(const QFont& font) override;
};

}  // namespace belvani
