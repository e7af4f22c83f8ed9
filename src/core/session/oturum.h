// The session: who works in which company and month, and the open store. There is one at a time in a program; it is
// passed on by reference, and only start, login, the company card and the lookup window write it.
//
//   no store open --SirketAc--> store open --OturumAc--> logged in --SirketKapat--> no store open
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "core/bildirim.h"
#include "core/session/depo.h"
#include "core/session/icerde.h"
#include "core/sonuc.h"
#include "core/surum.h"
#include "core/tables/firma.h"

namespace belvani {

// What stands for the card of a company that has none: class "Personel", two decimals, no month.
Firma KartsizFirma();

struct Oturum {
  std::string SeciliKod;                    // what a pick-list chose; its caller reads and clears it
  std::string PencereTip;                   // mode word for the list window about to open
  std::array<std::uint32_t, 42> Renkler{};  // colour table of renk.dat
  std::string ResimYolu = "image/soft/";    // of the skin, below PrgPath
  bool ResimKullan = true;
  bool YazilanSorulsun = true;  // before a screen loses what was typed into it
  std::string DataPath;  // address of the place of the companies: a path with a separator at its end, or a server
  std::string FirmaKod;  // name of the company's directory, as it is spelled
  std::string PrgPath;   // installed files; ends in a separator
  int ListeSirasi = 5;   // last search column of the lookup window; code and names at once to begin with
  std::string SonKisi;   // code of the person shown last; screens of one person begin with him
  Tek Versiyon = ProgramVersiyonu();
  std::string Kullanici = "BELVANI";
  std::string BilgisayarAdi;
  std::string ParaBirimi = "TL";
  std::string KurusBirimi = "KR";

  std::string FirmaDizini;  // address of the open company's place; files in it by VeriYolu alone
  Depo depo;
  // The open store is a private copy: nothing is saved, and every save is refused by the engine.
  bool SaltOkunur = false;
  std::unique_ptr<IcerdeIsareti> icerde;  // tells others that this program is in the company, from the login on

  // The company's card as this program knows it, the only copy of it: title, working month and year, decimals, default
  // class and all else. From the login on, and after each save; a colleague's save is seen at the next login.
  // FirmaYukle and FirmaKaydet write it.
  Firma firma = KartsizFirma();
  bool firmaVar = false;  // false: the company has no card yet
};

// Start, up to the login: version and computer name, `PrgPath` and `DataPath` from the machine's settings, a command
// line in place of `DataPath`. The first run (no `PrgPath` recorded) makes the data directory and records both paths; a
// command line is then dropped. The address of a server is kept instead, given or recorded, and nothing is made or
// recorded for it. Gives what the user should hear of; nothing where a server is away and he waits no longer. Then, and
// after a fault (the data directory cannot be made, the address is refused), the program must end.
Sonuc<std::optional<Kusurlar>> Baslat(Oturum& o, const std::string& programDizini, const std::string& komutSatiri,
                                      Bildirim& bildirim);

enum class SirketErisimi {
  Yazilir,     // as far as the files may be written
  YalnizBakis  // whatever the company's files are, nothing changes in them
};

// Opens the company's store; "Database Açılamadı" or the name's fault otherwise, and then no store is open. One that
// cannot be written is opened all the same, as a copy (`SaltOkunur`).
Durum SirketAc(Oturum& o, std::string_view sirket, SirketErisimi erisim = SirketErisimi::Yazilir);
// The same by the name as SirketBul gives it, for work over many companies: they are not listed again for each.
Durum AdiylaSirketAc(Oturum& o, std::string_view ad, SirketErisimi erisim);

// Leaves the company.
void SirketKapat(Oturum& o);

inline constexpr const char* SaltOkunurUyarisi =
    "Şirketin dosyaları yazılamıyor, şirket salt okunur açıldı: değişiklikler kaydedilemez";

// Tells others who is in, from now to SirketKapat.
void IcerdeYaz(Oturum& o, const std::string& kullanici);

// Makes a company with its store, its first user (an administrator) and its `firma` record, and leaves it open. On
// failure no trace of the company stays on the disk, and no store is open.
Durum SirketOlustur(Oturum& o, std::string_view sirket, std::string_view kullanici, std::string_view sifre);

// Login to the open store. An unknown user and a wrong password are one fault in the same words, and the cursors close.
// Gives what the user should hear of besides: settings that could not be kept, a company without its card.
Sonuc<Kusurlar> OturumAc(Oturum& o, std::string_view sirket, std::string_view kullanici, std::string_view sifre);

// The card of the open company into the session; false when there is none, and the session's stays as it was.
bool FirmaYukle(Oturum& o);

// The `firma` record of a new company.
Durum FirmaIlkKayit(Oturum& o);

// A version as users see it, at most four decimals: "2003.7".
std::string VersiyonMetni(Tek versiyon);

// Program and store must have the same version; the fault tells both.
Durum VersiyonKontrol(Oturum& o);

}  // namespace belvani
