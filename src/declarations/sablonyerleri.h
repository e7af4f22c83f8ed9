// Places of the shipped spreadsheet form that only it has: the boxes of the workplace number and the numbers of the
// people's lines. Rows and columns count from 1, as a spreadsheet counts them.
//
// A form that a user has made himself is filled at its known addresses alone; the name in the workbook tells them
// apart.
#pragma once

namespace belvani::sablon {

inline constexpr const char* YerlerAdi = "IsyeriNo";

struct NumaraKutulari {
  const char* etiket;
  int basamak;
};
// The new and the old half of the unit's number have captions of their own.
inline constexpr NumaraKutulari numaraKutulari[] = {{"M", 1},
                                                    {"İŞ KOLU", 4},
                                                    {"ÜNİTE KODU YENİ", 2},
                                                    {"ÜNİTE KODU ESKİ", 2},
                                                    {"İŞYERİ SIRA NUMARASI", 7},
                                                    {"İL KODU", 3},
                                                    {"İLÇE KODU", 2},
                                                    {"Kont. No", 2},
                                                    {"ARACI", 3}};
inline constexpr int NumaraSatiri = 13;
inline constexpr int IlkNumaraKolonu = 12;
inline constexpr int BasamakEni = 5;  // columns
inline constexpr int GrupArasi = 5;
inline constexpr int SiraKolonu = 5;

}  // namespace belvani::sablon
