// Forms on a page that is ruled as a text printer prints: lines of a sixth of an inch, condensed letters of 17.1 to the
// inch. So the values of a drawn form have their places on the printer too, and fall into the boxes of a sheet on which
// the empty form was printed before (formmetni.h).
//
// Lines are counted from 0 at the upper end of the sheet. Each drawing function gives the line below what it drew.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "printing/form/formsayfasi.h"

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

// Captioned boxes of one line, side by side.
int Kutucuklar(FormKurucu& f, double x, int satir, const std::vector<EtiketliKutu>& kutucuklar);

// A column of a table: the caption in two lines, the upper one over `kapsam` columns, and the alignment of its values.
struct FormKolonu {
  double en = 0;
  std::string_view ustBaslik;
  std::string_view altBaslik;
  const char* ad = "";
  MetinHizasi hiza = MetinHizasi::Sol;
  int kapsam = 1;
};
double ToplamEn(const std::vector<FormKolonu>& kolonlar);
// The captions; the ruled lines below them.
int TabloBasligi(FormKurucu& f, double x, int satir, const std::vector<FormKolonu>& kolonlar);
int TabloSatirlari(FormKurucu& f, double x, int satir, const std::vector<FormKolonu>& kolonlar, int satirSayisi);
// The values of a line, named "<on>.<column>"; columns without a value stay blank.
void TabloDegerleri(FormKurucu& f, double x, int satir, const std::vector<FormKolonu>& kolonlar, const std::string& on,
                    const std::vector<std::string>& degerler);

}  // namespace belvani
