// Shortcuts of the desktop: the file `tolu.icn`, in the program's directory or, where that is not ours to write, in the
// user's own.
//
// Up to 100 records of 129 bytes, in the order in which the icons stand, and nothing else:
//
//   bytes   0 ..  39  caption ("Kısa Yol Adı")
//   byte    40        program: position in KisayolProgramlari, from 0
//   bytes  41 ..  88  icon file ("İcon")
//   bytes  89 .. 128  parameter ("Parametre")
//
// Texts are in code page 1254, filled up with zero bytes. An empty file is an empty desktop; a file of another size, or
// with a program or a text that cannot be, is broken as a whole.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/session/oturum.h"
#include "core/sonuc.h"

namespace belvani {

inline constexpr std::size_t EnCokKisayol = 100;

// What a shortcut may open. The order is part of the file.
inline constexpr std::array<std::string_view, 51> KisayolProgramlari{
    "Görünüm Ayarları",
    "Firma Bilgileri",
    "Firma Değiştir",
    "Firma Listesi",
    "Firma Sil",
    "Çıkış",
    "Personel Kartları",
    "Personel Kimlik Bilgileri",
    "Eş ve Çocuk Bilgileri",
    "Personel Girişi",
    "Personel Çıkışı",
    "Personel Devir Bilgileri",
    "Ücretlendirme",
    "Bordro Hazırlık",
    "Bordro Basımı",
    "ÖGİ Harcama Girişi",
    "ÖGİ Çalışan Bordrosu",
    "ÖGİ Ölen,Emekli,Çıkan Bordrosu",
    "ÖGİ Toplam Kalan İade Listesi",
    "ÖGİ Aylık Mahsup Listesi",
    "ÖGİ Çalışan Ödeme Listesi",
    "ÖGİ Ölen,Emekli,Çıkan Ödeme Listesi",
    "Aylık Bildirge EK-3",
    "Aylık Bildirge Ek-1,Ek-2",
    "S.G.D.P. Bildirgesi",
    "Dört Aylık Bordrosu",
    "Sigortalı Vizite Kağıdı",
    "Eş ve Çocuklar için Vizite",
    "Altı Aylık Vizite",
    "Özlük Raporu",
    "Bordro Raporu",
    "Kartotex Raporu",
    "Personel Kod Değişikliği",
    "Devir İşlemleri",
    "Kullanıcı İşlemleri",
    "Kontrol İşlemi",
    "Tutanak (İşe Gelmeme)",
    "Tutanak (Fesh Almama)",
    "İhtarname (Noter ile)",
    "İhtarname (İşe Geç Gelme/Gelmeme)",
    "İşe Davet Yazısı",
    "Yasal Oranlar",
    "Gelir Vergisi Tablosu",
    "ÖGİV Tablosu",
    "ÖGİV Ayarları",
    "Kazanç Yardım Tanımlama",
    "Fazla Mesai Ayarları",
    "Şablon Puantaj",
    "Bordro Özeti",
    "Entegrasyon",
    "İşletmeye Entegrasyon",
};

// Position of a program in the list; KisayolProgramlari.size() for a name that is not in it.
constexpr std::size_t KisayolProgrami(std::string_view ad) {
  std::size_t i = 0;
  while (i < KisayolProgramlari.size() && KisayolProgramlari[i] != ad) ++i;
  return i;
}

struct Kisayol {
  std::string ad;           // caption, at most 40 letters
  std::size_t program = 0;  // position in KisayolProgramlari
  std::string ikon;         // icon file, at most 48 letters; empty: that of the program
  std::string parametre;    // at most 40 letters

  bool operator==(const Kisayol&) const = default;
};

// The desktop of a first run: no file yet.
std::vector<Kisayol> IlkKisayollar();

// The shortcuts in order. A broken file is told as a failure, and the desktop is then empty; it stays as it is until
// the next write, and then goes on as tolu.icn.bozuk.
Sonuc<std::vector<Kisayol>> KisayollariOku(const Oturum& o);

// Writes all of them, in one step. What does not fit its field is refused with its name, and nothing is written.
Durum KisayollariYaz(const Oturum& o, const std::vector<Kisayol>& kisayollar);

// Takes one out of the file and leaves the others in their order.
Durum KisayolSil(const Oturum& o, std::size_t sira);

}  // namespace belvani
