// The personnel card: a person's `sicil` record, the identity record that comes with it, and the photograph.
//
// Codes are trimmed and ignore case. A fault is for the card's user and names its field; what he typed stays with the
// screen.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/bildirim.h"
#include "core/session/oturum.h"
#include "core/tables/sicil.h"
#include "personnel/kayit.h"
#include "personnel/listeler.h"

namespace belvani {

std::optional<Sicil> KartBul(Oturum& o, std::string_view kod);

// The neighbour of the person on the screen ("" when there is none); nothing at the end of the list. A person whom
// someone has deleted meanwhile keeps his place: 0002 gone, the one after him is 0003.
std::optional<Sicil> KartGit(Oturum& o, Yon yon, std::string_view simdikiKod);

// The wage that the card shows, and that its saving stores: the minimum wage of the law for those who are paid that.
Tutar GosterilenUcret(const Sicil& kart, Tutar asgariUcret);

struct KartYazimi {
  Sicil kart;         // as it is stored now
  Kusurlar uyarilar;  // what could not be saved with it: identity, picture
};
using KartSonucu = Sonuc<KartYazimi, YazmaEngeli<Sicil>>;

// Saves the card: one that was read is edited, another one added, with its identity record if there is none. What the
// card does not show (leaving code and reason, `meslekkod`) stays as the store has it. `yeniResim` is the picture file
// that was chosen since the card came up, "" for none; it is stored after the card.
KartSonucu KartKaydet(Oturum& o, const Okunan<Sicil>& kart, const std::string& yeniResim = {});

// Asks, and deletes card and identity together. Pay records, family, photograph and account stay, and belong to
// whoever gets the code again.
Sonuc<Silme> KartSil(Oturum& o, std::string_view kod, Bildirim& bildirim);

// Stores the picture file in place of the person's picture.
Durum FotoYaz(Oturum& o, std::string_view kod, const std::string& dosya);

// Writes the person's picture to the file "gelenres" of the program's directory (the user's own where that is not ours
// to write) and gives its path; nothing when he has none.
std::optional<std::string> FotoOku(Oturum& o, std::string_view kod);

// The person has no picture afterwards.
Durum FotoSil(Oturum& o, std::string_view kod);

}  // namespace belvani
