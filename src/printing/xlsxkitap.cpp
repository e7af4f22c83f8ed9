#include "printing/xlsxkitap.h"

#include <algorithm>
#include <cassert>

#include "core/sayi.h"
#include "core/turkce.h"
#include "printing/xlsxparcalar.h"
#include "printing/xlsxsablon.h"

namespace belvani {
namespace {

constexpr std::size_t SayfaAdiHarfi = 31;
constexpr std::size_t EnCokHarf = 32'767;  // of a cell
constexpr int EnCokSatir = 1'048'576;
constexpr int EnCokKolon = 16'384;
constexpr std::int32_t IlkGun = 61;      // 01.03.1900: from here on both calendars count alike
constexpr double KenarPayi = 0.7109375;  // letters that the edges of a cell take of its column
constexpr int IlkBicimNo = 164;          // number formats below it are the spreadsheet program's own
constexpr std::size_t PaketBoyu = 1 << 16;

// Broken bytes would make the whole file unreadable; they are taken for the older programs' code page.
std::string SaglamMetin(std::string_view metin) {
  return DenetimsizMetin(GecerliUtf8(metin) ? std::string(metin) : KodSayfasindan(metin, KodSayfasi::Windows1254));
}

std::string SayfaAdi(std::string_view ad) {
  std::string temiz = SaglamMetin(ad);
  std::replace_if(
      temiz.begin(), temiz.end(),
      [](char c) { return std::string_view("[]:*?/\\'").find(c) != std::string_view::npos; }, ' ');
  temiz = Kirp(IlkHarfler(Kirp(temiz), SayfaAdiHarfi));
  return temiz.empty() ? "Rapor" : temiz;
}

std::string_view XmlKarsiligi(char c) {
  switch (c) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    default:
      return "&quot;";
  }
}

void XmlEkle(std::string& xml, std::string_view metin) {
  for (std::size_t yer; (yer = metin.find_first_of("&<>\"")) != std::string_view::npos; metin.remove_prefix(yer + 1)) {
    xml += metin.substr(0, yer);
    xml += XmlKarsiligi(metin[yer]);
  }
  xml += metin;
}

// All decimals that the amount has: 1234.5, -0.01, 12.
std::string TamTutar(Tutar tutar) {
  std::string metin = OndalikMetin(tutar);
  metin.erase(metin.find_last_not_of('0') + 1);
  if (metin.ends_with('.')) metin.pop_back();
  return metin;
}

}  // namespace

XlsxKitap::XlsxKitap(std::string_view sayfaAdi) : ad_(SayfaAdi(sayfaAdi)) {
  zip_.ParcaBasla("[Content_Types].xml");
  zip_.Yaz(xlsx::XmlBasi);
  zip_.Yaz(xlsx::Turler);
  zip_.ParcaBasla("_rels/.rels");
  zip_.Yaz(xlsx::XmlBasi);
  zip_.Yaz(xlsx::Iliskiler);
  zip_.ParcaBasla("xl/worksheets/sheet1.xml");
}

XlsxKitap::Stil XlsxKitap::StilEkle(const XlsxStili& stil) {
  const auto ayni = std::ranges::find(stiller_, stil);
  const Stil no = Stil(ayni - stiller_.begin());
  if (ayni == stiller_.end()) stiller_.push_back(stil);
  return no;
}

void XlsxKitap::KolonEni(int kolon, double harf) {
  assert(satir_ < 0);
  const std::string no = std::to_string(kolon + 1);
  kolonlar_ +=
      "<col min=\"" + no + "\" max=\"" + no + "\" width=\"" + SayiMetni(harf + KenarPayi) + "\" customWidth=\"1\"/>";
}

void XlsxKitap::SayfaBasi() {
  xml_ = xlsx::XmlBasi;
  xml_ += xlsx::SayfaBasi;
  if (yatay_) xml_ += xlsx::TekSayfaEni;
  xml_ += R"(<sheetViews><sheetView tabSelected="1" workbookViewId="0">)";
  if (donuk_ > 0)
    xml_ += "<pane ySplit=\"" + std::to_string(donuk_) + "\" topLeftCell=\"" + XlsxAdresi(donuk_, 0) +
            R"(" activePane="bottomLeft" state="frozen"/><selection pane="bottomLeft"/>)";
  xml_ += R"(</sheetView></sheetViews><sheetFormatPr defaultRowHeight="15"/>)";
  if (!kolonlar_.empty()) xml_ += "<cols>" + kolonlar_ + "</cols>";
  xml_ += "<sheetData>";
}

void XlsxKitap::Pakete() {
  zip_.Yaz(xml_);
  xml_.clear();
}

void XlsxKitap::HucreAc(int satir, int kolon, Stil stil) {
  assert(satir > satir_ || (satir == satir_ && kolon > kolon_));
  if (satir_ < 0) SayfaBasi();
  if (satir != satir_) {
    if (satir_ >= 0) xml_ += "</row>";
    if (xml_.size() > PaketBoyu) Pakete();
    satir_ = satir;
    satirNo_ = std::to_string(satir + 1);
    ((xml_ += "<row r=\"") += satirNo_) += "\">";
  }
  kolon_ = kolon;
  while (kolonAdlari_.size() <= std::size_t(kolon)) {
    const std::string adres = XlsxAdresi(0, int(kolonAdlari_.size()));
    kolonAdlari_.push_back(adres.substr(0, adres.size() - 1));
  }
  (((xml_ += "<c r=\"") += kolonAdlari_[std::size_t(kolon)]) += satirNo_) += '"';
  if (stil != 0) ((xml_ += " s=\"") += std::to_string(stil)) += '"';
}

void XlsxKitap::Yaz(int satir, int kolon, const Hucre& hucre, Stil stil) {
  if (kusur_) return;
  if (satir >= EnCokSatir || kolon >= EnCokKolon) {
    kusur_ = Kusur{"Tablo dosyası yazılamadı: bir sayfa en çok 1,048,576 satır alır"};
    return;
  }
  const auto metin = [&](const std::string& m) {
    if (m.empty()) return;
    if (m.size() > EnCokHarf && HarfSayisi(m) > EnCokHarf)
      kusur_ = Kusur{"Tablo dosyası yazılamadı: bir hücre en çok 32,767 harf alır"};
    HucreAc(satir, kolon, stil);
    xml_ += m.front() == ' ' || m.back() == ' ' ? R"( t="inlineStr"><is><t xml:space="preserve">)"
                                                : R"( t="inlineStr"><is><t>)";
    XmlEkle(xml_, m);
    xml_ += "</t></is></c>";
  };
  const auto sayi = [&](const std::string& s) {
    HucreAc(satir, kolon, stil);
    ((xml_ += "><v>") += s) += "</v></c>";
  };
  if (const auto* m = std::get_if<std::string>(&hucre)) metin(SaglamMetin(*m));
  if (const auto* tam = std::get_if<std::int64_t>(&hucre)) sayi(std::to_string(*tam));
  if (const auto* tutar = std::get_if<Tutar>(&hucre)) sayi(TamTutar(*tutar));
  if (const auto* tarih = std::get_if<Tarih>(&hucre); tarih != nullptr && !tarih->Bos()) {
    if (tarih->SeriNo() >= IlkGun)
      sayi(std::to_string(tarih->SeriNo()));
    else
      metin(tarih->Metin());
  }
}

// Each look that was asked for, after the formats of its numbers.
std::string XlsxKitap::Stiller() const {
  std::string bicimler, hucreler;
  int bicim = IlkBicimNo;
  for (const XlsxStili& stil : stiller_) {
    const bool koyu = stil.koyu || stil.baslik;
    const int no = stil.sayiBicimi.empty() ? 0 : bicim++;
    hucreler += "<xf numFmtId=\"" + std::to_string(no) + "\" fontId=\"" + (koyu ? "1" : "0") + "\"" +
                (no != 0 ? " applyNumberFormat=\"1\"" : "") + (koyu ? " applyFont=\"1\"" : "");
    hucreler += stil.baslik ? xlsx::BaslikStili : xlsx::DuzStil;
    if (no == 0) continue;
    bicimler += "<numFmt numFmtId=\"" + std::to_string(no) + "\" formatCode=\"";
    XmlEkle(bicimler, stil.sayiBicimi);
    bicimler += "\"/>";
  }
  std::string xml(xlsx::StillerBasi);
  if (bicim > IlkBicimNo)
    xml += "<numFmts count=\"" + std::to_string(bicim - IlkBicimNo) + "\">" + bicimler + "</numFmts>";
  xml += xlsx::StilParcalari;
  xml += "<cellXfs count=\"" + std::to_string(stiller_.size()) + "\">" + hucreler + "</cellXfs>";
  return xml += xlsx::StillerSonu;
}

std::string XlsxKitap::Kitap() const {
  std::string xml(xlsx::KitapBasi);
  XmlEkle(xml, ad_);
  xml += xlsx::SayfaAdindanSonra;
  if (donuk_ > 0) {
    xml += R"(<definedNames><definedName name="_xlnm.Print_Titles" localSheetId="0">')";
    XmlEkle(xml, ad_);
    const std::string satir = "$" + std::to_string(donuk_);
    xml += "'!" + satir + ":" + satir + "</definedName></definedNames>";
  }
  return xml += "</workbook>";
}

Sonuc<std::string> XlsxKitap::Bitir() {
  if (kusur_) return *kusur_;
  if (satir_ < 0) SayfaBasi();
  xml_ += satir_ < 0 ? "</sheetData>" : "</row></sheetData>";
  xml_ += xlsx::Kenarlar;
  if (yatay_) xml_ += xlsx::YatayA4;
  xml_ += "</worksheet>";
  Pakete();
  const auto parca = [&](const char* ad, std::string_view xml) {
    zip_.ParcaBasla(ad);
    zip_.Yaz(xlsx::XmlBasi);
    zip_.Yaz(xml);
  };
  parca("xl/styles.xml", Stiller());
  parca("xl/workbook.xml", Kitap());
  parca("xl/_rels/workbook.xml.rels", xlsx::KitapIliskileri);
  auto baytlar = zip_.Bitir();
  if (!baytlar) return Kusur{"Tablo dosyası yazılamadı: tablo bir dosyaya sığmayacak kadar büyük"};
  return std::move(*baytlar);
}

std::string XlsxTutarBicimi(int ondalik) {
  return XlsxSifirliBicim(ondalik) + ";-" + XlsxSifirliBicim(ondalik) + ";";
}

std::string XlsxSifirliBicim(int ondalik) {
  return ondalik > 0 ? "#,##0." + std::string(std::size_t(ondalik), '0') : "#,##0";
}

XlsxStili KolonStili(const RaporKolonu& kolon) {
  switch (kolon.tur) {
    case KolonTuru::Tam:
      return {.sayiBicimi = XlsxTutarBicimi(0)};
    case KolonTuru::Tutar:
      return {.sayiBicimi = XlsxTutarBicimi(kolon.ondalik)};
    case KolonTuru::Tarih:
      return {.sayiBicimi = XlsxTarihBicimi};
    case KolonTuru::KisaTarih:
      return {.sayiBicimi = XlsxKisaTarihBicimi};
    case KolonTuru::UzunTarih:
      return {.sayiBicimi = XlsxUzunTarihBicimi};
    case KolonTuru::GunAy:
      return {.sayiBicimi = "dd.mm"};
    case KolonTuru::Gun:
      return {.sayiBicimi = "dd"};
    case KolonTuru::Ay:
      return {.sayiBicimi = "mm"};
    case KolonTuru::Metin:
    case KolonTuru::Bos:
      return {};
  }
  return {};
}

}  // namespace belvani
