// The paper of the labour office's lists EK-1 and EK-2: boxes (1) to (10), fourteen people a page, a key of codes at
// the foot. Both are one form with other columns; they are declared in ekbelgeleri.cpp.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/tables/firma.h"
#include "notices/giriscikis.h"
#include "printing/form/formsayfasi.h"

namespace belvani {

constexpr std::size_t EkSayfaKisisi = 14;
constexpr std::size_t EkKolonSayisi = 10;

struct EkKolonu {
  double en = 0;             // millimetres on the drawn page
  int harf = 0;              // of its text form; the longest that the store holds
  std::string_view baslik1;  // the head in two lines
  std::string_view baslik2;
  MetinHizasi hiza = MetinHizasi::Sol;
  int hucre = 0;  // not 0: so many cells of one digit each
};

// Codes of a box, as the foot explains them: number and words.
struct EkAnahtari {
  std::string_view baslik;  // "(9) SOSYAL GÜVENLİK KURULUŞ KODU"
  std::array<std::string_view, 4> kodlar;
};

struct EkTanimi {
  std::string_view baslik;
  std::array<EkKolonu, EkKolonSayisi> kolonlar;  // the first is the number of the row
  std::vector<EkAnahtari> anahtarlar;
};

struct EkBasligi {
  Firma firma;
  std::string araciKodu;  // of the subcontractor; "" without one
  std::string isi;        // "İş Yerinde Yapılan Esas İş"
  TarihAraligi aralik;
};

// A person's values in boxes (2) to (10).
using EkSatiri = std::array<std::string, EkKolonSayisi - 1>;

struct EkSayfasi {
  int no = 1;
  int sayfaSayisi = 1;
  std::size_t ilk = 0;  // number of people before this page
  std::span<const EkSatiri> satirlar;
};

FormSayfasi EkSayfasiCiz(const EkTanimi& tanim, const EkBasligi& baslik, const EkSayfasi& sayfa);

// Rows between ruled lines, the last of them line 48; the key and the signature below it. UTF-8.
constexpr int EkSonSatiri = 48;
std::string EkSayfasiMetni(const EkTanimi& tanim, const EkBasligi& baslik, const EkSayfasi& sayfa);

// The words of the foot, for both forms.
inline constexpr std::string_view EkBeyani = "Yukarıdaki bilgilerin işyeri kayıtlarına uygun olduğunu beyan ederiz.";
inline constexpr std::string_view EkImzasi = "İŞVEREN / VEKİLİ";
inline constexpr std::string_view EkImzaAciklamasi = "Adı Soyadı - Kaşe - İmza";
inline constexpr std::string_view EkTarihi = "Tarih : ..... / ..... / .........";

}  // namespace belvani
