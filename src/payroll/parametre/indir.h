// Fetching parameter files: from the parameter server of the setting `ParametreAdresi`, or from the shipped figures.
//
// Addresses are file:, http: or https:. A server offers <address>/download/yasal2.txt, gvtbl.txt, agitbl.txt and
// hestur.txt (and meskod.txt): the bytes of the .dat files. What is fetched is held in memory until it is complete, so
// a failure of any kind leaves every file as it was.
#pragma once

#include <array>
#include <chrono>
#include <string>

#include "core/bildirim.h"
#include "core/veriyolu.h"
#include "payroll/parametre/mevzuat.h"

namespace belvani {

// An address as it may be shown: without what a user has put into it for the server alone (name, password, query).
std::string GorunenAdres(std::string adres);

struct IndirmeSiniri {
  std::chrono::milliseconds baglanti{5'000};
  std::chrono::milliseconds toplam{20'000};
  std::size_t enCokBayt = 1u << 20;
  Ilerleme* ilerleme = nullptr;  // shows it and stops it
};

// Fetches an address over a file, byte for byte and unchecked: what it holds shows at the next load.
Durum ParametreIndir(const std::string& url, const VeriYolu& veri, std::string_view ad,
                     const IndirmeSiniri& sinir = {});

// The server of the setting `ParametreAdresi`, without a separator at the end; "" where none is set.
std::string ParametreSunucusu();

// The address to fetch the parameters of a month from: the setting `ParametreAdresi` where it is given, else one of our
// own that stands for the shipped figures. No separator at the end.
Sonuc<std::string> ParametreAdresi(int yil, int ay, Lira lira = Lira::Yeni);

// The four files that are fetched, in the order in which they lie in the data path.
enum class ParametreDosyasi { Yasal, Gv, Agi, HesapTur };
inline constexpr std::array ParametreDosyalari{ParametreDosyasi::Yasal, ParametreDosyasi::Gv, ParametreDosyasi::Agi,
                                               ParametreDosyasi::HesapTur};
std::string_view ParametreDosyaAdi(ParametreDosyasi dosya);  // "yasal2.dat"

// Fetches one of them from `kaynak` (as ParametreAdresi gives it), by the name that it has in the data path. Its size
// is looked at, its figures are not.
Sonuc<AdliDosya> ParametreDosyasiAl(ParametreDosyasi dosya, const std::string& kaynak, const IndirmeSiniri& sinir = {});

}  // namespace belvani
