// The fields by which papers are chosen: period and people.
#pragma once

#include "core/tables/alansatiri.h"
#include "documents/defter.h"

namespace belvani {

// Years that papers are made for.
constexpr int IlkBelgeYili = 1990;
constexpr int SonBelgeYili = 2100;

// Of a DefterSecim.
inline constexpr auto SecimYili = Uye("yil", &DefterSecim::yil);
inline constexpr auto SecimAyi = Uye("ay", &DefterSecim::ay);
AlanEki YilEki(const char* komutYardimi = "bordro yılı");  // of a year in choices of another type
Alan YilAlani(const char* etiket, const char* komutYardimi = "bordro yılı");
AlanGrubu DonemAlanlari(const char* yilEtiketi, const char* ayEtiketi);
// "Satırlar Arasında", "Kolonlar Arasında" of the lists.
inline constexpr std::string_view SatirArasiAdlari[] = {"Çizgi Çek", "Boş Satır", "Hiçbiri"};
inline constexpr std::string_view KolonArasiAdlari[] = {"Boş Bırak", "Dik Çizgi"};
// Order of the rows: stored as one, chosen as a check box.
Alan SskSirasiAlani();
// People from and to, by code alone; by code, group, type and own code; `numarali`: by run number too.
AlanGrubu KodAraligi(const char* kodEtiketi);
AlanGrubu AralikAlanlari(bool numarali, const char* kodEtiketi);

}  // namespace belvani
