// "ÜCRET PUSULASI": a slip for each person of a month: days and earnings on the left, deductions and net on the right,
// and a sentence to sign. The same fields make a table with a row for each person, for other programs.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/store/motor.h"
#include "documents/defter.h"
#include "payroll/parametre/parametreler.h"
#include "printing/yaprak.h"

namespace belvani {

struct PusulaBaslik {
  DefterBaslik defter;
  std::array<std::string, YardimSayisi> yardimAdlari;  // of the company's allowance lines
  std::array<std::string, 3> indirimAdlari{"İndirim 1", "İndirim 2", "İndirim 3"};
};

// Names of the company's allowance lines; a line that it has not named has its built-in name. Throws MotorHatasi.
std::array<std::string, YardimSayisi> YardimAdlariOku(Motor& motor);
// The same of its deductions from the tax base.
void IndirimAdlariniOku(Motor& motor, PusulaBaslik& baslik);

// The records as they are to be printed: in the order DefterSirasi::Kisi.
YaprakBelgesi PusulaBelgesi(const std::vector<BordroSatiri>& satirlar, const PusulaBaslik& baslik);
Rapor PusulaRaporu(const std::vector<BordroSatiri>& satirlar, const PusulaBaslik& baslik);

struct PusulaSecenegi {
  SayfadaYaprak sayfada = SayfadaYaprak::Iki;  // drawn on a sheet
};

// From the store. Throws MotorHatasi and TutarTasmasi.
std::unique_ptr<Belge> UcretPusulalari(const BelgeKaynagi& kaynak, const DefterSecim& secim,
                                       const PusulaSecenegi& secenek);

}  // namespace belvani
