// XlsxSayfa: the XML of one sheet of a workbook, changed cell by cell.
#pragma once

#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace belvani {

// Counted from 1, as the file does.
struct XlsxYeri {
  int satir = 0;
  int kolon = 0;
};

// "B12" -> {12, 2}; case is ignored. Nothing for what is no address of a sheet (A1 to XFD1048576).
std::optional<XlsxYeri> XlsxYeriOku(std::string_view adres);

class XlsxSayfa {
 public:
  // False: the text is no sheet.
  bool Ac(const std::string& xml);

  // The cell, added in its order where there is none. The reference holds until the next change.
  pugi::xml_node Hucre(XlsxYeri yer);
  std::string Xml() const;

 private:
  pugi::xml_node Satir(int no);
  std::string EksikHucreStili(pugi::xml_node satir, int kolon) const;
  void Numarala();

  pugi::xml_document belge_;
  pugi::xml_node veri_;  // sheetData
};

// A document without any change of blanks or line ends when it is written back.
bool XmlAc(pugi::xml_document& belge, const std::string& xml);
std::string XmlMetni(const pugi::xml_document& belge);

}  // namespace belvani
