#include "printing/harftablosu.h"

#include <cairo-ft.h>
#include <fontconfig/fcfreetype.h>
#include <fontconfig/fontconfig.h>
#include <memory>

#include "core/turkce.h"

namespace belvani {
namespace {

constexpr double OlcumBoyu = 1000;

const char* AileAdi(YaziAilesi aile) {
  switch (aile) {
    case YaziAilesi::Duz:
      return "DejaVu Sans";
    case YaziAilesi::EsEnli:
      return "DejaVu Sans Mono";
    case YaziAilesi::Tirnakli:
      return "DejaVu Serif";
  }
  return "";
}

struct DesenSil {
  void operator()(FcPattern* desen) const { FcPatternDestroy(desen); }
};
using Desen = std::unique_ptr<FcPattern, DesenSil>;

// The nearest font that the computer has; it may be another one.
Desen Bul(YaziAilesi aile, YaziKalinligi kalinlik) {
  const Desen aranan(FcPatternCreate());
  FcPatternAddString(aranan.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(AileAdi(aile)));
  FcPatternAddInteger(aranan.get(), FC_WEIGHT, kalinlik == YaziKalinligi::Kalin ? FC_WEIGHT_BOLD : FC_WEIGHT_NORMAL);
  FcPatternAddInteger(aranan.get(), FC_SLANT, FC_SLANT_ROMAN);
  FcPatternAddInteger(aranan.get(), FC_WIDTH, FC_WIDTH_NORMAL);
  FcConfigSubstitute(nullptr, aranan.get(), FcMatchPattern);
  FcDefaultSubstitute(aranan.get());
  FcResult sonuc = FcResultNoMatch;
  return Desen(FcFontMatch(nullptr, aranan.get(), &sonuc));
}

std::string Alan(const Desen& desen, const char* alan) {
  FcChar8* deger = nullptr;
  const bool var = desen && FcPatternGetString(desen.get(), alan, 0, &deger) == FcResultMatch;
  return var ? reinterpret_cast<const char*>(deger) : std::string();
}

// The font's file alone, without the display settings of the computer, so that pages are the same everywhere.
cairo_font_face_t* TipAc(YaziAilesi aile, YaziKalinligi kalinlik) {
  const Desen bulunan = Bul(aile, kalinlik);
  const Desen dosya(FcPatternCreate());
  FcPatternAddString(dosya.get(), FC_FILE, reinterpret_cast<const FcChar8*>(Alan(bulunan, FC_FILE).c_str()));
  int sira = 0;
  if (bulunan) FcPatternGetInteger(bulunan.get(), FC_INDEX, 0, &sira);
  FcPatternAddInteger(dosya.get(), FC_INDEX, sira);
  return cairo_ft_font_face_create_for_pattern(dosya.get());
}

// Length of the letter at the front of valid UTF-8, and its number.
std::pair<int, char32_t> IlkHarf(std::string_view metin) {
  const auto bayt = [&](std::size_t i) { return char32_t(static_cast<unsigned char>(metin[i])); };
  const char32_t ilk = bayt(0);
  if (ilk < 0x80) return {1, ilk};
  const int uzunluk = ilk < 0xE0 ? 2 : ilk < 0xF0 ? 3 : 4;
  char32_t kod = ilk & (0xFFu >> (uzunluk + 1));
  for (int i = 1; i < uzunluk; ++i) kod = (kod << 6) | (bayt(std::size_t(i)) & 0x3F);
  return {uzunluk, kod};
}

}  // namespace

HarfTablosu& HarfTablosu::Al(YaziAilesi aile, YaziKalinligi kalinlik) {
  static thread_local std::array<std::unique_ptr<HarfTablosu>, 6> tablolar;
  auto& tablo = tablolar[std::size_t(aile) * 2 + std::size_t(kalinlik)];
  if (!tablo) tablo.reset(new HarfTablosu(aile, kalinlik));
  return *tablo;
}

HarfTablosu::HarfTablosu(YaziAilesi aile, YaziKalinligi kalinlik) {
  tip_ = TipAc(aile, kalinlik);
  cairo_font_options_t* secenek = cairo_font_options_create();
  cairo_font_options_set_hint_style(secenek, CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(secenek, CAIRO_HINT_METRICS_OFF);
  cairo_matrix_t boy, birim;
  cairo_matrix_init_scale(&boy, OlcumBoyu, OlcumBoyu);
  cairo_matrix_init_identity(&birim);
  olcek_ = cairo_scaled_font_create(tip_, &boy, &birim, secenek);
  cairo_font_options_destroy(secenek);
  cairo_font_extents_t olcu;
  cairo_scaled_font_extents(olcek_, &olcu);
  ustBoy = olcu.ascent / OlcumBoyu;
  satirBoyu = (olcu.ascent + olcu.descent) / OlcumBoyu;
}

HarfTablosu::~HarfTablosu() {
  cairo_scaled_font_destroy(olcek_);
  cairo_font_face_destroy(tip_);
}

const Harf& HarfTablosu::Bul(char32_t kod) {
  if (kod >= sik_.size()) return seyrek_ = Olc(kod);
  Harf& harf = sik_[kod];
  if (harf.en < 0) harf = Olc(kod);
  return harf;
}

Harf HarfTablosu::Olc(char32_t kod) {
  FT_Face yuz = cairo_ft_scaled_font_lock_face(olcek_);
  cairo_glyph_t sekil{yuz == nullptr ? 0 : FcFreeTypeCharIndex(yuz, kod), 0, 0};
  if (yuz != nullptr) cairo_ft_scaled_font_unlock_face(olcek_);
  cairo_text_extents_t olcu;
  cairo_scaled_font_glyph_extents(olcek_, &sekil, 1, &olcu);
  return {sekil.index, olcu.x_advance / OlcumBoyu};
}

const CozulmusMetin& Coz(std::string_view metin) {
  static thread_local CozulmusMetin sonuc;
  sonuc.utf8.clear();
  sonuc.kodlar.clear();
  sonuc.uzunluklar.clear();
  const bool saglam = GecerliUtf8(metin);
  while (!metin.empty()) {
    const bool soru = !saglam && !GecerliUtf8(IlkHarfler(metin, 1));
    const auto [uzunluk, kod] = soru ? std::pair{1, U'?'} : IlkHarf(metin);
    if (kod >= ' ' && kod != 0x7F) {
      sonuc.utf8 += soru ? std::string_view("?") : metin.substr(0, std::size_t(uzunluk));
      sonuc.kodlar.push_back(kod);
      sonuc.uzunluklar.push_back(uzunluk);
    }
    metin.remove_prefix(soru ? IlkHarfler(metin, 1).size() : std::size_t(uzunluk));
  }
  return sonuc;
}

Durum YaziTipleriVar() {
  for (const auto aile : {YaziAilesi::Duz, YaziAilesi::EsEnli, YaziAilesi::Tirnakli})
    if (!AdEsit(Alan(Bul(aile, YaziKalinligi::Normal), FC_FAMILY), AileAdi(aile)))
      return Kusur{std::string(AileAdi(aile)) + " yazı tipi yüklü değil (fonts-dejavu-core paketini yükleyiniz)"};
  return Tamam();
}

double MetinEni(std::string_view metin, const YaziBicimi& yazi) {
  HarfTablosu& tablo = HarfTablosu::Al(yazi.aile, yazi.kalinlik);
  double en = 0;
  for (const char32_t kod : Coz(metin).kodlar) en += tablo.Bul(kod).en;
  return en * yazi.punto * PuntoMm * yazi.genislik;
}

double SatirBoyu(const YaziBicimi& yazi) {
  return HarfTablosu::Al(yazi.aile, yazi.kalinlik).satirBoyu * yazi.punto * PuntoMm;
}

}  // namespace belvani
