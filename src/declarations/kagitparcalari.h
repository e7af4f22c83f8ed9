// Parts that the institution's forms share, on a page that is ruled as a text printer prints: lines of a sixth of an
// inch, condensed letters of 17.1 to the inch. So the values of a drawn form have their places on the printer too, and
// fall into the boxes of a sheet on which the empty form was printed before (formmetni.h).
//
// Lines are counted from 0 at the upper end of the sheet. Each drawing function gives the line below what it drew.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/tables/arac.h"
#include "core/tables/firma.h"
#include "printing/formsayfasi.h"

namespace belvani {

constexpr double SatirMm = 25.4 / 6;
constexpr double HarfMm = 25.4 / 17.1;
constexpr double KagitSolu = KenarMm;
constexpr double KagitPayi = 0.8;  // between a frame and what stands in it
constexpr double KagitKalinCizgi = 0.4;
constexpr int KagitUstSatiri = 2;

// The box of whole lines.
constexpr Dikdortgen SatirYeri(double x, int satir, double en, int satirSayisi = 1) {
  return {x, satir * SatirMm, en, satirSayisi * SatirMm};
}

// A form with the letters of these papers.
FormKurucu KagitFormu(KagitYonu yon);

// Words across the box, in letters of their own.
void Baslik(FormKurucu& f, const Dikdortgen& yer, std::string_view metin, double punto,
            MetinHizasi hiza = MetinHizasi::Orta);

// A caption and a value beside it in a framed line.
struct Kutucuk {
  double en = 0;
  std::string_view etiket;
  double etiketEni = 0;
  std::string ad;
  std::string deger;
  MetinHizasi hiza = MetinHizasi::Sol;
};
// One beside the other.
int Kutucuklar(FormKurucu& f, double x, int satir, const std::vector<Kutucuk>& kutucuklar);

// A column of a table: the caption in two lines, the upper one over `kapsam` columns, and the alignment of its values.
struct KagitKolonu {
  double en = 0;
  std::string_view ustBaslik;
  std::string_view altBaslik;
  const char* ad = "";
  MetinHizasi hiza = MetinHizasi::Sol;
  int kapsam = 1;
};
double ToplamEn(const std::vector<KagitKolonu>& kolonlar);
int TabloBasligi(FormKurucu& f, double x, int satir, const std::vector<KagitKolonu>& kolonlar);
// The values of a line, named "<on>.<column>"; columns without a value stay blank.
void TabloDegerleri(FormKurucu& f, double x, int satir, const std::vector<KagitKolonu>& kolonlar, const std::string& on,
                    const std::vector<std::string>& degerler);

// The register number of the workplace, digit by digit, under its captions: four lines.
constexpr double IsyeriNumarasiEni = 158;
int IsyeriNumarasi(FormKurucu& f, double x, int satir, const Firma& firma, const std::string& araciKodu);

// Who answers for the declaration.
struct TarafBilgisi {
  std::string unvan{};
  std::array<std::string, 2> adres{};
  std::string semt{};
  std::string ilce{};
  std::string sehir{};
  std::string pk{};
  std::string iletisim{};  // telephone, else e-mail
  std::string kimlikNo{};  // tax number, else national number
};
TarafBilgisi Isveren(const Firma& firma);
TarafBilgisi Araci(const Arac& arac);
// Seven lines below a heading.
int Taraf(FormKurucu& f, const Dikdortgen& ustSatir, std::string_view baslik, const std::string& on,
          const TarafBilgisi& taraf);

}  // namespace belvani
