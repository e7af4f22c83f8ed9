// A person's record between the store's cursors and its struct: what card, identity and family have in common.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/session/depo.h"
#include "core/store/imlecsatir.h"
#include "core/turkce.h"
#include "personnel/etiket.h"

namespace belvani {

// Moves through the people, in the order of their codes.
enum class Yon { Ilk, Son, Onceki, Sonraki };

// A typed code as the store keeps it: no control characters, no blanks at its ends.
inline std::string TemizKod(std::string_view kod) {
  return std::string(Kirp(DenetimsizMetin(kod)));
}

// The code before or after `kod` (first and last of all: `kod` does not matter), in a table with the column `kod`.
// `kod` itself need not be there. Throws MotorHatasi.
std::optional<std::string> KomsuKod(Motor& motor, std::string_view tablo, Yon yon, std::string_view kod);

template <class Kayit>
std::optional<Kayit> KoduBul(Veritabani& db, Imlec& rs, std::string_view kod) {
  if (!rs.KayitBul("kod", TemizKod(kod))) return std::nullopt;
  return ImlectenOku<Kayit>(db, rs);
}

// Moves the cursor from the record `kod`, wherever others have left it; nothing when there is no record that way, and
// the cursor then stands on `kod`. Where `kod` has been deleted, the move goes on from its place.
template <class Kayit>
std::optional<Kayit> KodaGit(Veritabani& db, Imlec& rs, Yon yon, std::string_view kod) {
  const std::string simdiki = TemizKod(kod);
  const auto hedef =
      db.Koru(std::optional<std::string>(), [&] { return KomsuKod(db.IcMotor(), Kayit::TabloAdi, yon, simdiki); });
  auto kayit = KoduBul<Kayit>(db, rs, hedef.value_or(simdiki));
  return hedef ? std::move(kayit) : std::nullopt;
}

// "Adı: en çok 20 harf olabilir", one line for each field that does not fit its column; "" when all do.
template <class Kayit>
std::string KayitKusuru(const Kayit& kayit) {
  std::string kusurlar;
  Kayit::HerKolon([&](const auto& kolon) {
    Deger deger = UyeDegeri(kayit.*kolon.uye);
    if (const auto* metin = std::get_if<std::string>(&deger)) deger = DenetimsizMetin(*metin);
    const std::string kusur = TipKusuru(kolon, deger);
    if (kusur.empty()) return;
    kusurlar += kusurlar.empty() ? "" : "\n";
    kusurlar += std::string(AlanEtiketi(Kayit::TabloAdi, kolon.ad)) + ": " + kusur;
  });
  return kusurlar;
}

// New pending records of `sicil` (not left) and `kimlik` (nothing known but the nationality "T.C.").
void YeniSicil(Imlec& rs);
void YeniKimlik(Imlec& rs);

// Deletes the current record of a table with the column `kod`; false when the engine would not.
bool Silindi(Imlec& rs);

// Deletes the person from `asil` and, where it has him, from `obur`: both or neither.
bool IkisindenSil(Veritabani& db, Imlec& asil, Imlec& obur, const std::string& kod);

}  // namespace belvani
