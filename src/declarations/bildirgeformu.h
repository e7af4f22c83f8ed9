// The monthly declaration on paper: the first page ("EK : 3") and its continuation pages ("EK : 3- DEVAM SAYFASI"),
// A4 across, drawn or as the values alone for a text printer with pre-printed sheets. Law 506, article 79; law 5510,
// article 86.
//
//   BildirgeBelgesi(KagitHazirla(bildirge, oturum)) -> print dialog, preview, PDF, text
//
// Without rows it is the empty form of the company. Nothing is checked here (AylikBildirge::KagitKosullari does).
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "declarations/bildirgekagidi.h"
#include "printing/form/formbelgesi.h"

namespace belvani {

inline constexpr const char* BildirgeBasligi = "AYLIK BİLDİRGE EK-3";

// Told before a text print, which the user may then give up.
inline constexpr const char* MatbuUyarisi = "Bu Alanda Sadece Matbu Evraka Basım Yapılabilir";

// Values are named by their place: "isveren.unvan", "satir8.adi" (the eighth person, wherever he stands), "toplam.gun".
// Throws TutarTasmasi.
std::vector<FormSayfasi> BildirgeSayfalari(const BildirgeKagidi& kagit, Ilerleme* ilerleme = nullptr);

// The values of all pages, in lines.
std::string BildirgeYazdir(const BildirgeKagidi& kagit);

std::unique_ptr<Belge> BildirgeBelgesi(const BildirgeKagidi& kagit, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
