#include "printing/xlsxsatirlari.h"

#include "core/turkce.h"
#include "printing/xlsxsablon.h"

namespace belvani {
namespace {

constexpr int EnCokSatir = 1'048'576;
constexpr int EnCokKolon = 16'384;
constexpr std::size_t EnCokHarf = 32'767;
constexpr std::size_t EnCokBekleyen = 1u << 16;

void KacisliEkle(std::string& xml, std::string_view metin) {
  for (std::size_t yer; (yer = metin.find_first_of("&<>")) != metin.npos; metin.remove_prefix(yer + 1)) {
    xml += metin.substr(0, yer);
    xml += metin[yer] == '&' ? "&amp;" : metin[yer] == '<' ? "&lt;" : "&gt;";
  }
  xml += metin;
}

}  // namespace

const std::string& XlsxSatirlari::KolonAdi(int kolon) {
  while (int(kolonAdlari_.size()) < kolon) {
    std::string adres = XlsxAdresi(0, int(kolonAdlari_.size()));
    adres.pop_back();  // the number of the row
    kolonAdlari_.push_back(std::move(adres));
  }
  return kolonAdlari_[std::size_t(kolon) - 1];
}

bool XlsxSatirlari::HucreBasi(XlsxYeri yer, int stil) {
  const bool yeniSatir = yer.satir > son_.satir;
  if (yer.satir > EnCokSatir || yer.kolon < 1 || yer.kolon > EnCokKolon ||
      (!yeniSatir && (yer.satir < son_.satir || yer.kolon <= son_.kolon)))
    kusur_ = "bir sayfa en çok 1,048,576 satır alır";
  if (!kusur_.empty()) return false;
  if (yeniSatir) {
    if (son_.satir > 0) bekleyen_ += "</row>";
    satirNo_ = std::to_string(yer.satir);
    ((bekleyen_ += "<row r=\"") += satirNo_) += "\">";
  }
  son_ = yer;
  enSagKolon_ = std::max(enSagKolon_, yer.kolon);
  ((bekleyen_ += "<c r=\"") += KolonAdi(yer.kolon)) += satirNo_;
  if (stil > 0) (bekleyen_ += "\" s=\"") += std::to_string(stil);
  ++hucreler_;
  return true;
}

void XlsxSatirlari::HucreSonu(std::string_view son) {
  bekleyen_ += son;
  if (bekleyen_.size() < EnCokBekleyen) return;
  sikistirici_.Ekle(bekleyen_);
  bekleyen_.clear();
}

void XlsxSatirlari::Metin(XlsxYeri yer, std::string_view metin, int stil) {
  if (metin.size() > EnCokHarf && HarfSayisi(metin) > EnCokHarf && kusur_.empty())
    kusur_ = "bir hücre en çok 32,767 harf alır";
  if (!HucreBasi(yer, stil)) return;
  const bool bosluklu = metin.starts_with(' ') || metin.ends_with(' ');
  bekleyen_ += bosluklu ? "\" t=\"inlineStr\"><is><t xml:space=\"preserve\">" : "\" t=\"inlineStr\"><is><t>";
  KacisliEkle(bekleyen_, metin);
  HucreSonu("</t></is></c>");
}

void XlsxSatirlari::Sayi(XlsxYeri yer, std::string_view sayi, int stil) {
  if (!HucreBasi(yer, stil)) return;
  (bekleyen_ += "\"><v>") += sayi;
  HucreSonu("</v></c>");
}

std::string XlsxSatirlari::Alan() const {
  return hucreler_ == 0 ? "A1" : "A1:" + XlsxAdresi(son_.satir - 1, enSagKolon_ - 1);
}

SikisikParca XlsxSatirlari::Bitir() {
  if (son_.satir > 0) bekleyen_ += "</row>";
  sikistirici_.Ekle(bekleyen_ + "</sheetData>");
  return sikistirici_.Bitir(ParcaSonu::Suren);
}

}  // namespace belvani
