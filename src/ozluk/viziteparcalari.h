// Parts that the drawn medical papers share, on ruled pages (printing/form/satirliform.h). Each function draws from a
// line on and gives the line below.
#pragma once

#include <string_view>

#include "ozluk/vizitekagidi.h"
#include "printing/form/satirliform.h"

namespace belvani::vizite {

constexpr double En = A4(KagitYonu::Dikey).en - 2 * KagitSolu;
constexpr double TarihEtiketiEni = 50;
constexpr int CiftSatir = 2;  // lines of a box with its caption above the value

int Baslik(FormKurucu& f, int satir, std::string_view ek, std::string_view baslik, std::string_view altBaslik);
int Bolum(FormKurucu& f, int satir, std::string_view metin);
int Kutular(FormKurucu& f, int satir, const std::vector<EtiketliKutu>& kutular);
// National number and insurance number, a digit a cell, with their item numbers.
int Numaralar(FormKurucu& f, int satir, std::string_view tcEtiketi, std::string_view sskEtiketi,
              const ViziteFormu& form);
int Isyeri(FormKurucu& f, int satir, const ViziteKagidi& kagit);
int Imza(FormKurucu& f, int satir, int boy, std::string_view gunEtiketi, std::string_view gun);

// The identity as the papers take it: everything empty where there is none.
std::string BabaAdi(const ViziteKagidi& kagit);
std::string DogumYeri(const ViziteKagidi& kagit);
std::string EvAdresi(const ViziteKagidi& kagit);
std::string Telefon(const ViziteKagidi& kagit);

FormSayfasi SigortaliSayfasi(const ViziteKagidi& kagit);
FormSayfasi YakinSayfasi(const ViziteKagidi& kagit, const std::string& sonGecerlilik);

std::string SigortaliMetni(const ViziteKagidi& kagit);
std::string YakinMetni(const ViziteKagidi& kagit);

// The wage in words; nothing for none.
std::string UcretYazisi(const ViziteKagidi& kagit, Tutar ucret);
// A number of days on paper: nothing for none.
std::string GunMetni(int gun);
// The relative's name, which one of the papers has in two fields.
std::string YakinAdi(const ViziteKagidi& kagit);

}  // namespace belvani::vizite
