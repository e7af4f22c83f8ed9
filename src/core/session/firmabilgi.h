// The company card: the single record of `firma`.
//
// The session holds it (`Oturum::firma`); a save writes the session too, even when the store then refuses the record;
// not when another user's change stands against it, for then nothing is decided. While parameters are loaded, save it
// through FirmaDurumu, which keeps them in step.
#pragma once

#include <string>
#include <string_view>

#include "core/session/oturum.h"
#include "core/store/cakisma.h"
#include "core/tables/firma.h"

namespace belvani {

// Years that a company may work in.
inline constexpr int EnAzDonemYili = int(firma::firmayil.sinir.enAz), EnCokDonemYili = int(firma::firmayil.sinir.enCok);

// What a new company starts with: this month and year, founded today, "Yeni Şirket (2009)", class "Personel".
Firma YeniFirma();

// The company's record, or the values of a new company when there is none, to be edited.
Okunan<Firma> FirmaDuzenle(Oturum& o);

// Saves the card; fails with "Firma Bilgileri Güncellenemedi", or with another user's change. `versiyon` belongs to the
// upgrade: an edit keeps it, a new record gets the program's. `kanun` may be as it was typed.
Yazim<Firma> FirmaKaydet(Oturum& o, const Okunan<Firma>& firma);

// A law number as the store keeps it, in five digits: "5510" -> "05510", "506" -> "00506", "yok" -> "00000".
std::string KanunMetni(std::string_view metin);

// A working month as lists of companies tell it: "07-2009"; nothing without a year.
std::string CalismaAyiMetni(int yil, int ay);

// "Örgü Ltd. (Temmuz.2009)"; the title alone while the session has no month.
std::string AnaPencereBasligi(const Oturum& o);

}  // namespace belvani
