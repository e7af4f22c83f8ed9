// A person's records: what card, identity and family have in common.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/session/oturum.h"
#include "core/silme.h"
#include "core/store/tablo.h"
#include "core/turkce.h"
#include "personnel/etiket.h"

namespace belvani {

// A typed code as the store keeps it: no control characters, no blanks at its ends.
inline std::string TemizKod(std::string_view kod) {
  return std::string(Kirp(DenetimsizMetin(kod)));
}

// The same of a record that was read: as it is spelled there.
template <class Kayit>
std::string YazilacakKod(const Okunan<Kayit>& kayit) {
  const std::string kod = TemizKod(kayit.simdi.kod);
  assert(kod.empty() || !kayit.ilk || TurkceEsit(kod, kayit.ilk->kod));
  return kod.empty() || !kayit.ilk ? kod : kayit.ilk->kod;
}

// The table with the labels by which its user knows the columns.
template <class Kayit>
Tablo<Kayit> KisiTablosu(Oturum& o) {
  return Tablo<Kayit>(o.depo.db.IcMotor(), AlanEtiketi);
}

template <class Kayit>
std::optional<Kayit> KoduBul(Oturum& o, std::string_view kod) {
  return o.depo.db.Koru(std::optional<Kayit>(), [&] { return KisiTablosu<Kayit>(o).Bul(TemizKod(kod)); });
}

// The record beside `kod`, which need not be there any more; nothing at the end of the table.
template <class Kayit>
std::optional<Kayit> KodaGit(Oturum& o, Yon yon, std::string_view kod) {
  return o.depo.db.Koru(std::optional<Kayit>(), [&] { return KisiTablosu<Kayit>(o).Komsu(TemizKod(kod), yon); });
}

// Why a card cannot have this code. One that has it already keeps it.
std::optional<Kusur> SicilKoduKusuru(const std::string& kod, bool yeni);

// Writes a record of a person in a transaction; `yazilamadi` is said where the engine refuses.
template <class Kayit>
Yazim<Kayit> KayitYaz(Oturum& o, const Okunan<Kayit>& kayit, const char* yazilamadi) {
  const Yazim<Kayit> basarisiz{YazmaEngeli<Kayit>(Kusur{yazilamadi})};
  return o.depo.db.Koru(basarisiz, [&] { return KisiTablosu<Kayit>(o).Yaz(kayit); });
}

// A new identity record: nothing known but the nationality "T.C.".
Kimlik YeniKimlik(std::string_view kod);

// Deletes card and identity: both or neither.
bool KisiSil(Oturum& o, const std::string& kod);

}  // namespace belvani
