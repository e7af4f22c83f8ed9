// A workbook as lines: the cells of its sheets with value, formula, number format and weight, then the joined ranges.
//
//   A1 "ÜCRET BORDROSU" K
//   C7 1234.5 [#,##0.00]
#pragma once

#include <algorithm>
#include <iomanip>
#include <locale>
#include <set>
#include <sstream>

#include "bol.h"
#include "printing/xlsxoku.h"

namespace belvani::test {

class KitapOkuru {
 public:
  explicit KitapOkuru(const std::string& baytlar) : baytlar_(baytlar) {
    StilleriOku(Xml("xl/styles.xml"));
    for (const auto si : Xml("xl/sharedStrings.xml").child("sst").children("si")) ortak_.push_back(Yazi(si));
  }

  std::string Metin() const {
    std::string metin;
    const auto zip = ZipDosyasi::Ac(baytlar_);
    if (!zip) return zip.KusurMetni() + "\n";
    for (const std::string& ad : zip->Adlar())
      if (ad.starts_with("xl/worksheets/sheet")) metin += "== " + ad + "\n" + Sayfa(Xml(ad).child("worksheet"));
    return metin;
  }

 private:
  pugi::xml_document& Xml(const std::string& parca) const {
    const std::string xml = XlsxParcasi(baytlar_, parca);
    belge_.load_buffer(xml.data(), xml.size(), pugi::parse_default | pugi::parse_ws_pcdata);
    return belge_;
  }

  // Letters of a text with or without changes of its look.
  static std::string Yazi(const pugi::xml_node& dugum) {
    std::string metin;
    for (const auto t : dugum.select_nodes(".//t")) metin += t.node().text().get();
    return metin;
  }

  void StilleriOku(const pugi::xml_document& belge) {
    const auto kok = belge.child("styleSheet");
    std::map<std::string, std::string> bicimler;
    for (const auto b : kok.child("numFmts").children("numFmt"))
      bicimler[b.attribute("numFmtId").value()] = b.attribute("formatCode").value();
    std::vector<bool> kalinlar;
    for (const auto f : kok.child("fonts").children("font")) kalinlar.push_back(f.child("b"));
    for (const auto xf : kok.child("cellXfs").children("xf")) {
      const std::string no = xf.attribute("numFmtId").value();
      std::string stil;
      if (bicimler.contains(no))
        stil = " [" + bicimler[no] + "]";
      else if (no != "0")
        stil = " [" + no + "]";
      if (kalinlar.at(xf.attribute("fontId").as_uint())) stil += " K";
      stiller_.push_back(stil);
    }
  }

  std::string Deger(const pugi::xml_node& c) const {
    const std::string_view tur = c.attribute("t").value();
    if (tur == "inlineStr") return "\"" + Yazi(c.child("is")) + "\"";
    if (tur == "s") return "\"" + ortak_.at(c.child("v").text().as_uint()) + "\"";
    return Sayi(c.child("v").text().get());
  }

  // To the fifteen digits that spreadsheet programs show: how a writer spells the same number does not matter.
  static std::string Sayi(const std::string& deger) {
    const auto sayi = SayiOku(deger);
    if (!sayi) return deger;
    std::ostringstream akis;
    akis.imbue(std::locale::classic());
    akis << std::setprecision(15) << *sayi;
    return akis.str();
  }

  std::string Sayfa(const pugi::xml_node& sayfa) const {
    std::string metin;
    for (const auto satir : sayfa.child("sheetData").children("row"))
      for (const auto c : satir.children("c")) {
        const std::string formul = c.child("f").text().get();
        const std::string deger = Deger(c) + (formul.empty() ? "" : " =" + formul);
        if (!deger.empty())
          metin += c.attribute("r").value() + (" " + deger) + stiller_.at(c.attribute("s").as_uint()) + "\n";
      }
    for (const auto b : sayfa.child("mergeCells").children("mergeCell"))
      metin += "birleşik " + std::string(b.attribute("ref").value()) + "\n";
    return metin;
  }

  const std::string& baytlar_;
  mutable pugi::xml_document belge_;
  std::vector<std::string> ortak_;
  std::vector<std::string> stiller_;
};

inline std::string KitapMetni(const std::string& baytlar) {
  return KitapOkuru(baytlar).Metin();
}

// What a form says that its template does not.
inline std::string DoldurulanHucreler(const std::string& sablon, const std::string& dolu) {
  const auto eski = Bol(KitapMetni(sablon), "\n");
  const std::set<std::string> sablonda(eski.begin(), eski.end());
  std::string metin;
  for (const auto& satir : Bol(KitapMetni(dolu), "\n"))
    if (!sablonda.contains(satir)) metin += satir + "\n";
  return metin;
}

}  // namespace belvani::test
