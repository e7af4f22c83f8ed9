#include "printing/xlsxsayfa.h"

#include <algorithm>
#include <sstream>

#include "printing/xlsxsablon.h"

namespace belvani {
namespace {

constexpr int EnBuyukSatir = 1'048'576;
constexpr int EnBuyukKolon = 16'384;  // XFD
constexpr unsigned Oldugu = pugi::parse_full & ~unsigned(pugi::parse_eol | pugi::parse_wconv_attribute);

// The first child that stands behind `no`; children without a place of their own follow the one before.
template <class Yeri>
pugi::xml_node Sonraki(pugi::xml_node ata, const char* ad, int no, Yeri yeri) {
  for (const auto cocuk : ata.children(ad))
    if (yeri(cocuk) >= no) return cocuk;
  return {};
}

int SatirNo(pugi::xml_node satir) {
  return satir.attribute("r").as_int();
}

int KolonNo(pugi::xml_node hucre) {
  const auto yer = XlsxYeriOku(hucre.attribute("r").value());
  return yer ? yer->kolon : 0;
}

pugi::xml_node OnuneEkle(pugi::xml_node ata, const char* ad, pugi::xml_node sonraki) {
  return sonraki ? ata.insert_child_before(ad, sonraki) : ata.append_child(ad);
}

}  // namespace

std::optional<XlsxYeri> XlsxYeriOku(std::string_view adres) {
  XlsxYeri yer;
  std::size_t i = 0;
  for (; i < adres.size() && i < 4; ++i) {
    const char harf = char(adres[i] & ~0x20);
    if (harf < 'A' || harf > 'Z') break;
    yer.kolon = yer.kolon * 26 + (harf - 'A' + 1);
  }
  if (i == adres.size() || adres.size() - i > 7 || adres[i] == '0') return std::nullopt;
  for (; i < adres.size(); ++i) {
    if (adres[i] < '0' || adres[i] > '9') return std::nullopt;
    yer.satir = yer.satir * 10 + (adres[i] - '0');
  }
  if (yer.kolon < 1 || yer.kolon > EnBuyukKolon || yer.satir < 1 || yer.satir > EnBuyukSatir) return std::nullopt;
  return yer;
}

std::string XlsxAdresi(int satir, int kolon) {
  std::string harfler;
  for (int k = kolon + 1; k > 0; k = (k - 1) / 26) harfler.insert(harfler.begin(), char('A' + (k - 1) % 26));
  return harfler + std::to_string(satir + 1);
}

bool XmlAc(pugi::xml_document& belge, const std::string& xml) {
  return bool(belge.load_buffer(xml.data(), xml.size(), Oldugu, pugi::encoding_utf8));
}

std::string XmlMetni(const pugi::xml_document& belge) {
  std::ostringstream metin;
  belge.save(metin, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
  return metin.str();
}

bool XlsxSayfa::Ac(const std::string& xml) {
  if (!XmlAc(belge_, xml)) return false;
  veri_ = belge_.child("worksheet").child("sheetData");
  if (!veri_) return false;
  Numarala();
  return true;
}

std::string XlsxSayfa::Xml() const {
  return XmlMetni(belge_);
}

// A row or cell may leave out its place when it follows the one before.
void XlsxSayfa::Numarala() {
  int satirNo = 0;
  for (auto satir : veri_.children("row")) {
    if (!satir.attribute("r")) satir.append_attribute("r") = satirNo + 1;
    satirNo = SatirNo(satir);
    int kolonNo = 0;
    for (auto hucre : satir.children("c")) {
      if (!hucre.attribute("r")) hucre.append_attribute("r") = XlsxAdresi(satirNo - 1, kolonNo).c_str();
      kolonNo = KolonNo(hucre);
    }
  }
}

pugi::xml_node XlsxSayfa::Satir(int no) {
  const auto sonraki = Sonraki(veri_, "row", no, SatirNo);
  if (sonraki && SatirNo(sonraki) == no) return sonraki;
  auto satir = OnuneEkle(veri_, "row", sonraki);
  satir.append_attribute("r") = no;
  return satir;
}

pugi::xml_node XlsxSayfa::Hucre(XlsxYeri yer) {
  auto satir = Satir(yer.satir);
  const auto sonraki = Sonraki(satir, "c", yer.kolon, KolonNo);
  if (sonraki && KolonNo(sonraki) == yer.kolon) return sonraki;
  auto hucre = OnuneEkle(satir, "c", sonraki);
  hucre.append_attribute("r") = XlsxAdresi(yer.satir - 1, yer.kolon - 1).c_str();
  if (const std::string stil = EksikHucreStili(satir, yer.kolon); !stil.empty())
    hucre.append_attribute("s") = stil.c_str();
  // Both only hint at how far the cells reach, and would be wrong now.
  satir.remove_attribute("spans");
  veri_.parent().remove_child("dimension");
  return hucre;
}

std::string XlsxSayfa::EksikHucreStili(pugi::xml_node satir, int kolon) const {
  if (satir.attribute("customFormat").as_bool()) return satir.attribute("s").value();
  for (const auto k : veri_.parent().child("cols").children("col"))
    if (kolon >= k.attribute("min").as_int() && kolon <= k.attribute("max").as_int())
      return k.attribute("style").value();
  return {};
}

}  // namespace belvani
