// What XlsxSablon is made of, for its two files.
#pragma once

#include <map>
#include <vector>

#include "printing/xlsxsablon.h"
#include "printing/xlsxsayfa.h"
#include "printing/zipdosya.h"

namespace belvani {

inline constexpr const char* TurlerParcasi = "[Content_Types].xml";

struct SayfaYeri {
  std::string ad;
  std::string parca;
};

// Where a part lies that another one names: "worksheets/sheet1.xml" of "xl/workbook.xml" -> "xl/worksheets/sheet1.xml".
std::string HedefParca(const std::string& kaynak, std::string_view hedef);
// The part that tells what another one refers to.
std::string IliskiParcasi(const std::string& parca);
bool TuruMu(pugi::xml_node iliski, std::string_view tur);

inline constexpr std::size_t EnCokSayfa = 256;

// Its parts before any of them is taken apart.
Durum KitapSinirlari(const ZipDosyasi& zip);

struct XlsxSablon::Ic {
  explicit Ic(ZipDosyasi z) : zip(std::move(z)) {}

  bool Oku();
  void SayfalariOku(const std::string& iliskiler);
  const SayfaYeri* SayfaBul(std::string_view ad) const;
  XlsxSayfa* SayfaAc(const std::string& parca);
  void IliskileriKopyala(const std::string& parca, const std::string& kopya, pugi::xml_node turler);
  bool FormulVar() const;
  void HesapSirasiniAt();
  void AcilistaHesaplat();
  void HucreYaz(pugi::xml_node hucre, const Hucre& deger) const;

  ZipDosyasi zip;
  std::string kitapParcasi;
  std::vector<SayfaYeri> sayfalar;
  std::vector<bool> tarihStilleri;
  std::map<std::string, XlsxSayfa> acilan;  // by part
};

}  // namespace belvani
