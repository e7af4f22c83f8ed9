// Drawn pages, text prints and printer bytes as lines that a person can review and compare.
//
// A drawn page has a line for each thing on it, in the order of drawing; millimetres to a tenth, letters in points:
//
//   yazı    20.0  15.2  54.3   9.0 K  ÜCRET PUSULASI   left, top, right edge, size; how it looks (below)
//   çizgi   20.0  15.2 190.0  15.2  0.15               both ends, thickness
//   kutu    20.0  15.2 170.0   8.0  0.15               left, top, width, height, thickness
//   dolu    20.0  15.2 170.0   8.0  #E0E0E0
//   resim   20.0  15.2  12.0  12.0  8F3A02C1…          a hash of its bytes
//
// K bold, E italic, M fixed width, S with serifs, *0.85 made narrower.
#pragma once

#include <cmath>
#include <iomanip>
#include <locale>
#include <sstream>

#include "core/tarih.h"
#include "core/turkce.h"
#include "printing/cizilenbelge.h"
#include "printing/form/formsayfasi.h"
#include "printing/kayittuvali.h"

namespace belvani::test {

class SayfaYazici {
 public:
  SayfaYazici() {
    akis_.imbue(std::locale::classic());
    akis_ << std::fixed;
  }

  void Sayfa(std::size_t no, const KayitSayfasi& sayfa) {
    akis_ << "== sayfa " << no;
    Olcu(sayfa.boy.en);
    Olcu(sayfa.boy.boy);
    akis_ << '\n';
    for (const Oge& oge : sayfa.ogeler) OgeYaz(oge);
  }
  std::string Metin() const { return akis_.str(); }

 private:
  // To `hane` decimals. Halves go up whatever the last bits of the sum are, so that a sum in another order is the same.
  static double Yuvarlak(double deger, int hane) {
    constexpr double toz = 1e-6;
    const double kat = std::pow(10, hane);
    return std::floor(deger * kat + 0.5 + toz) / kat + 0.0;  // never "-0.0"
  }
  void Olcu(double deger, int hane = 1) {
    akis_ << ' ' << std::setw(hane + 4) << std::setprecision(hane) << Yuvarlak(deger, hane);
  }

  void Yer(const char* tur, double x, double y, std::initializer_list<double> olculer) {
    akis_ << tur;
    Olcu(x);
    Olcu(y);
    for (const double o : olculer) Olcu(o);
  }

  void Yazi(const Oge& oge) {
    const YaziBicimi& yazi = oge.yazi;
    Yer("yazı ", oge.kutu.x, oge.kutu.y, {oge.Sag(), yazi.punto});
    akis_ << ' ';
    if (yazi.kalinlik == YaziKalinligi::Kalin) akis_ << 'K';
    if (yazi.durus == YaziDurusu::Egik) akis_ << 'E';
    if (yazi.aile == YaziAilesi::EsEnli) akis_ << 'M';
    if (yazi.aile == YaziAilesi::Tirnakli) akis_ << 'S';
    if (const double genislik = Yuvarlak(yazi.genislik, 2); genislik != 1)
      akis_ << '*' << std::setprecision(2) << genislik;
    akis_ << "  " << oge.metin;
  }

  void Renk(BoyaRengi renk) {
    akis_ << "  #" << std::hex << std::uppercase << std::setw(6) << std::setfill('0') << renk << std::dec
          << std::setfill(' ');
  }

  // FNV-1a: of a picture only that it is the same one matters.
  void Ozet(std::string_view baytlar) {
    std::uint64_t ozet = 0xcbf29ce484222325;
    for (const unsigned char b : baytlar) ozet = (ozet ^ b) * 0x100000001b3;
    akis_ << "  " << std::hex << std::uppercase << ozet << std::dec;
  }

  void OgeYaz(const Oge& oge) {
    const Dikdortgen& k = oge.kutu;
    switch (oge.tur) {
      case OgeTuru::Metin:
        Yazi(oge);
        break;
      case OgeTuru::Cizgi:
        Yer("çizgi", k.x, k.y, {oge.Sag(), oge.Alt()});
        Olcu(oge.kalinlik, 2);
        break;
      case OgeTuru::Kutu:
        Yer("kutu ", k.x, k.y, {k.en, k.boy});
        Olcu(oge.kalinlik, 2);
        break;
      case OgeTuru::DoluKutu:
        Yer("dolu ", k.x, k.y, {k.en, k.boy});
        Renk(oge.renk);
        break;
      case OgeTuru::Resim:
        Yer("resim", k.x, k.y, {k.en, k.boy});
        Ozet(oge.metin);
        break;
    }
    akis_ << '\n';
  }

  std::ostringstream akis_;
};

inline std::string SayfaMetni(const KayitTuvali& tuval) {
  SayfaYazici yazici;
  for (std::size_t i = 0; i < tuval.sayfalar.size(); ++i) yazici.Sayfa(i + 1, tuval.sayfalar[i]);
  return yazici.Metin();
}

inline std::string CizimMetni(const CizilenBelge& belge) {
  KayitTuvali tuval;
  SayfalariCiz(belge, tuval);
  const std::string uyari = belge.Uyari();
  return SayfaMetni(tuval) + (uyari.empty() ? "" : "uyarı: " + uyari + "\n");
}

inline std::string CizimMetni(const FormSayfalari& sayfalar) {
  KayitTuvali tuval;
  for (const auto& sayfa : sayfalar) FormCiz(sayfa, tuval);
  return SayfaMetni(tuval);
}

// The values of forms by their names, empty ones too.
inline std::string AlanMetni(const FormSayfalari& sayfalar) {
  std::string metin;
  for (const auto& sayfa : sayfalar) {
    metin += "== sayfa\n";
    for (const auto& alan : sayfa.alanlar) metin += alan.ad + " = " + alan.deger + "\n";
  }
  return metin;
}

// The day of printing is not part of a record.
inline std::string BugunsuzMetin(std::string metin) {
  const std::string bugun = Tarih::Bugun().Metin();
  for (std::size_t i; (i = metin.find(bugun)) != std::string::npos;) metin.replace(i, bugun.size(), "gg.aa.yyyy");
  return metin;
}

// Control codes as <1B>, letters of the printer's page as they print.
inline std::string HamMetni(std::string_view baytlar) {
  constexpr std::string_view rakamlar = "0123456789ABCDEF";
  std::string metin, harfler;
  const auto bosalt = [&] { metin += KodSayfasindan(std::exchange(harfler, {}), KodSayfasi::Dos857); };
  for (const char c : baytlar) {
    const auto b = static_cast<unsigned char>(c);
    if (b >= ' ' && b != 0x7F) {
      harfler += c;
      continue;
    }
    bosalt();
    metin += {'<', rakamlar[b / 16], rakamlar[b % 16], '>'};
    if (c == '\n' || c == '\f') metin += '\n';
  }
  bosalt();
  return metin;
}

}  // namespace belvani::test
