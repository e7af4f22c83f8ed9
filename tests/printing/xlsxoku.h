// A sheet of a workbook read back: what a test says of a cell.
#pragma once

#include <map>
#include <pugixml.hpp>
#include <string>

#include "core/sayi.h"
#include "printing/zipdosya.h"

namespace belvani::test {

struct XlsxHucresi {
  std::string deger;  // text, or the number as it stands in the file
  std::string stil;   // number of its style
  bool metin = false;

  Tutar Sayi() const { return Tutar(SayiOku(deger).value()); }
};

using XlsxHucreleri = std::map<std::string, XlsxHucresi>;  // by address

inline std::string XlsxParcasi(const std::string& baytlar, const std::string& ad) {
  const auto zip = ZipDosyasi::Ac(baytlar);
  return zip ? zip->Oku(ad).value_or("") : "";
}

inline XlsxHucreleri XlsxOku(const std::string& baytlar, const std::string& parca = "xl/worksheets/sheet1.xml") {
  pugi::xml_document belge;
  const std::string xml = XlsxParcasi(baytlar, parca);
  if (!belge.load_buffer(xml.data(), xml.size(), pugi::parse_default | pugi::parse_ws_pcdata)) return {};
  XlsxHucreleri hucreler;
  for (const auto satir : belge.child("worksheet").child("sheetData").children("row"))
    for (const auto c : satir.children("c")) {
      const bool metin = std::string_view(c.attribute("t").value()) == "inlineStr";
      hucreler[c.attribute("r").value()] = {metin ? c.child("is").child("t").text().get() : c.child("v").text().get(),
                                            c.attribute("s").value(), metin};
    }
  return hucreler;
}

}  // namespace belvani::test
