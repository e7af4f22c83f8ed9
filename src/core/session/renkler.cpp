#include "core/session/renkler.h"

#include <algorithm>
#include <filesystem>

#include "core/dosya.h"
#include "core/session/programdosyasi.h"

namespace belvani {
namespace {

constexpr std::string_view DosyaAdi = "renk.dat";
constexpr std::size_t RenkBoyu = sizeof(std::uint32_t);

// As designers write a colour, RRGGBB.
struct Atama {
  Renk renk;
  std::uint32_t rgb;
};

constexpr std::uint32_t BgrYap(std::uint32_t rgb) {
  return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16;
}

constexpr Atama Acik[] = {
    {Renk::FormArka, 0xF8F7F5},       {Renk::GridBaslik, 0x1F5A66},
    {Renk::GridBaslikText, 0xFFFFFF}, {Renk::GridZebra, 0xF2F0EC},
    {Renk::GridZebraText, 0x22272B},  {Renk::GridSecili, 0xCFE6E8},
    {Renk::GridSeciliText, 0x10333A}, {Renk::GridAktif, 0x1C6E7D},
    {Renk::GridAktifText, 0xFFFFFF},  {Renk::TextArka, 0xFFFFFF},
    {Renk::TextOdakArka, 0xFFF8E1},   {Renk::Sorgu, 0xEAF3F4},
    {Renk::SorguBaslik, 0x2B4F57},    {Renk::SorguBaslikText, 0xFFFFFF},
    {Renk::SorguText, 0x1B2A2E},      {Renk::PencereArka, 0xFBFAF8},
    {Renk::Yazi, 0x22272B},           {Renk::SolukYazi, 0x5C646A},
    {Renk::Cerceve, 0xC9C5BD},        {Renk::Vurgu, 0x17687A},
    {Renk::VurguText, 0xFFFFFF},      {Renk::GridArka, 0xFFFFFF},
    {Renk::GridText, 0x22272B},       {Renk::GridCizgi, 0xDEDAD3},
    {Renk::PasifArka, 0xEEECE8},      {Renk::PasifText, 0x636A70},
    {Renk::HataArka, 0xFBE9E7},       {Renk::HataText, 0xA1260D},
    {Renk::MenuArka, 0xEFEDE9},       {Renk::MenuText, 0x22272B},
    {Renk::IpucuArka, 0xFFFBE6},      {Renk::IpucuText, 0x3A3420},
    {Renk::ToplamArka, 0xE3EDEE},     {Renk::ToplamText, 0x123C45},
};

constexpr Atama Koyu[] = {
    {Renk::FormArka, 0x20262B},       {Renk::GridBaslik, 0x2F4A52},
    {Renk::GridBaslikText, 0xEAF4F6}, {Renk::GridZebra, 0x262D33},
    {Renk::GridZebraText, 0xE4E8EB},  {Renk::GridSecili, 0x2C4F58},
    {Renk::GridSeciliText, 0xF0FAFB}, {Renk::GridAktif, 0x4FB3C4},
    {Renk::GridAktifText, 0x0B1D21},  {Renk::TextArka, 0x2A3238},
    {Renk::TextOdakArka, 0x33414A},   {Renk::Sorgu, 0x263238},
    {Renk::SorguBaslik, 0x37565E},    {Renk::SorguBaslikText, 0xF0FAFB},
    {Renk::SorguText, 0xDCE5E8},      {Renk::PencereArka, 0x1B2025},
    {Renk::Yazi, 0xE4E8EB},           {Renk::SolukYazi, 0xA9B4BB},
    {Renk::Cerceve, 0x46525A},        {Renk::Vurgu, 0x55BCCD},
    {Renk::VurguText, 0x0B1D21},      {Renk::GridArka, 0x20262B},
    {Renk::GridText, 0xE4E8EB},       {Renk::GridCizgi, 0x38424A},
    {Renk::PasifArka, 0x262C31},      {Renk::PasifText, 0x9AA5AC},
    {Renk::HataArka, 0x4A2422},       {Renk::HataText, 0xFFB4A9},
    {Renk::MenuArka, 0x262D33},       {Renk::MenuText, 0xE4E8EB},
    {Renk::IpucuArka, 0x3A3A2C},      {Renk::IpucuText, 0xF4EFD2},
    {Renk::ToplamArka, 0x2B3D43},     {Renk::ToplamText, 0xD5EEF2},
};

static_assert(std::size(Acik) == std::size(RenkSecimleri) && std::size(Koyu) == std::size(RenkSecimleri));

// Reserved slots get the colour of plain text.
template <std::size_t N>
RenkTablosu Tablo(const Atama (&atamalar)[N]) {
  RenkTablosu tablo{};
  const auto koy = [&](const Atama& a) { tablo[std::size_t(a.renk)] = BgrYap(a.rgb); };
  std::for_each(std::begin(atamalar), std::end(atamalar), koy);
  std::replace(tablo.begin(), tablo.end(), std::uint32_t(0), RenkAl(tablo, Renk::Yazi));
  return tablo;
}

std::string Dizin(const Oturum& o) {
  return o.PrgPath + o.ResimYolu;
}

}  // namespace

RenkTablosu AcikRenkler() {
  return Tablo(Acik);
}

RenkTablosu KoyuRenkler() {
  return Tablo(Koyu);
}

RenkTablosu GecerliRenkler(const Oturum& o) {
  const bool bos = std::all_of(o.Renkler.begin(), o.Renkler.end(), [](auto renk) { return renk == 0; });
  return bos ? AcikRenkler() : o.Renkler;
}

void RenkYukle(Oturum& o) {
  const std::string yol = ProgramDosyasi(Dizin(o), DosyaAdi);
  const auto icerik = DosyaOku(yol);
  std::error_code hata;
  if (DizinVar(Dizin(o)) && !std::filesystem::exists(yol, hata)) (void)DosyaYaz(yol, "");
  std::string kayit = icerik.value_or("");
  kayit.resize(o.Renkler.size() * RenkBoyu, '\0');
  for (std::size_t i = 0; i < o.Renkler.size(); ++i) {
    std::uint32_t renk = 0;
    for (std::size_t b = RenkBoyu; b-- > 0;) renk = renk << 8 | static_cast<unsigned char>(kayit[i * RenkBoyu + b]);
    o.Renkler[i] = renk;
  }
}

Durum RenkKaydet(const Oturum& o) {
  std::string kayit;
  for (std::uint32_t renk : o.Renkler)
    for (std::size_t b = 0; b < RenkBoyu; ++b, renk >>= 8) kayit += char(renk & 0xFF);
  return ProgramDosyasiYaz(Dizin(o), DosyaAdi, kayit);
}

}  // namespace belvani
