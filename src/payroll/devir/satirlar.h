// What the lists of one person's rows have in common.
#pragma once

#include <map>

#include "core/silme.h"
#include "core/tarih.h"
#include "personnel/aktarimyaz.h"
#include "personnel/kayit.h"

namespace belvani {

struct SilmeSozleri {
  const char* soru;  // "Bu Satırdaki Bordro Kaydını Silecekmisiniz ?"
  const char* silinemedi;
  const char* bulunamadi;
};

// Asks, naming what goes, and deletes the record with this key. That it is gone already is a broken rule.
template <class Kayit>
Sonuc<Silme> SatirSil(Oturum& o, const Deger& anahtar, std::string_view giden, const SilmeSozleri& soz,
                      Bildirim& bildirim) {
  if (!bildirim.SilinsinMi(soz.soru, giden)) return Silme::Silinmedi;
  const Sonuc<bool> silinemedi{Kusur{soz.silinemedi}};
  const auto vardi = o.depo.db.Koru(silinemedi, [&]() -> Sonuc<bool> { return KisiTablosu<Kayit>(o).Sil(anahtar); });
  if (!vardi) return vardi.Kusuru();
  if (!*vardi) return KuralKusuru(soz.bulunamadi);
  return Silme::Silindi;
}

// "Temmuz.2009"; a month that is none by its number.
inline std::string AyMetni(int yil, int ay) {
  return (ay < 1 || ay > 12 ? std::to_string(ay) : std::string(AyAdi(ay))) + "." + std::to_string(yil);
}

// Cards by the codes of a file, which names the same person row after row.
class DosyadakiKisiler {
 public:
  explicit DosyadakiKisiler(Motor& motor) : kartlar_(motor) {}

  // The code as the card spells it; nothing, and a fault of the row, where there is no card.
  std::optional<std::string> KoduBul(AktarimDosyasi& dosya, const AktarimSatiri& satir) {
    const std::string yazilan = dosya.Metin(satir, "kod");
    if (yazilan.empty()) return std::nullopt;  // told already
    const auto [yer, yeni] = bulunan_.try_emplace(yazilan);
    if (yeni)
      if (const auto kart = kartlar_.Bul(yazilan)) yer->second = kart->kod;
    if (!yer->second) dosya.SorunEkle(satir, "kod", "bu kodla personel yok: " + yazilan);
    return yer->second;
  }

 private:
  Tablo<Sicil> kartlar_;
  std::map<std::string, std::optional<std::string>> bulunan_;
};

// The whole number in a cell; 0 where the file has none.
inline std::int64_t HucreSayisi(const AktarimDosyasi& dosya, const AktarimSatiri& satir, std::string_view alan) {
  const int sira = dosya.KolonSirasi(alan);
  return sira < 0 ? 0 : TamDegeri(satir.degerler[std::size_t(sira)]);
}

}  // namespace belvani
