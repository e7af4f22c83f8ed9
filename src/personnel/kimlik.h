// Identity of a person: his `kimlik` record, which may also stand without a card.
//
// Faults are as in personnel/kart.h. The lists of choices are in personnel/listeler.h.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/bildirim.h"
#include "core/session/oturum.h"
#include "core/tables/kimlik.h"
#include "personnel/kayit.h"
#include "personnel/listeler.h"

namespace belvani {

std::optional<Kimlik> KimlikBul(Oturum& o, std::string_view kod);

// Moves through the identity records, as KartGit does through the cards.
std::optional<Kimlik> KimlikGit(Oturum& o, Yon yon, std::string_view simdikiKod);

// First name, a blank and family name of the card with this code; "" when there is no card.
std::string KisiAdi(Oturum& o, std::string_view kod);

// The code, and the name where there is one: "001 Işıl Öz".
std::string KodVeAd(Oturum& o, std::string_view kod);

// Saves the record: one that was read is edited, another one added.
Yazim<Kimlik> KimlikKaydet(Oturum& o, const Okunan<Kimlik>& kimlik);

// Asks, and deletes identity and card together, as KartSil does.
Sonuc<Silme> KimlikSil(Oturum& o, std::string_view kod, Bildirim& bildirim);

}  // namespace belvani
