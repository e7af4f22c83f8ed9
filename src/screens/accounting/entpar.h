// entpar ("Entegrasyon Parametreleri"): which payroll total of a special code's people goes to which account, on which
// side. Ten lines a code, and the directory of the books. The class is named entparfrm, for `entpar` is the table.
//
//   F2 Hesap Penceresi    F5 Kaydet    F7 Sil    F9 Öneri
#pragma once

#include <array>

#include "accounting/entparkayit.h"
#include "ui/form.h"

namespace belvani {

// What stands on the screen.
struct EntparFormu {
  std::string sirket;     // "Muhasebe Şirketi"
  std::int32_t ozel = 0;  // position of the special code in its list
  std::array<std::uint8_t, EntparSatiri> yer{};
  std::array<std::uint8_t, EntparSatiri> ba{};
  std::array<std::string, EntparSatiri> hesap{};

  bool operator==(const EntparFormu&) const = default;
};

class entparfrm : public Form {
 public:
  explicit entparfrm(EkranBaglami& baglam);

 protected:
  bool Kaydedilmemis() const override;
  bool YazilaniKaydet() override { return Yaz(); }

 private:
  QWidget* SirketSatiri();
  QWidget* SatirlarKutusu();
  void GrubaGec();
  void GrupGoster(std::size_t sira);
  void AdlariGoster();
  void Goster(const EntparFormu& form);
  EntparFormu Ekrandaki() const;
  void PlaniOku(const std::string& dizin);
  std::string Dizin() const;
  void SirketSec();
  std::optional<std::size_t> OdaktakiHesap() const;  // line whose account has the keyboard
  void HesabiSec(std::size_t satir);
  bool HesaplarUygun(const EntparFormu& form);
  bool SatirlariYaz(const EntparFormu& form);
  bool Yaz();
  void Kaydet();
  void Sil();
  void OneriKoy();

  std::vector<std::string> kodlar_;
  EntparGrubu grup_;
  EntparFormu gosterilen_;
  std::optional<HesapPlani> plan_;  // of the books that could be opened last
  std::array<QLabel*, EntparSatiri> adlar_{};
};

}  // namespace belvani
