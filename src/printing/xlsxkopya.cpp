// XlsxSablon::SayfaKopyala: a further sheet of a workbook, as one of its sheets is in the file.
#include <algorithm>

#include "core/turkce.h"
#include "printing/xlsxsablonic.h"

namespace belvani {
namespace {

constexpr const char* SayfaTuru = "application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml";

// "xl/worksheets/sheet1.xml", 2 -> "xl/worksheets/sheet1k2.xml".
std::string KopyaParcasi(const std::string& parca, std::size_t no) {
  const auto nokta = parca.rfind('.');
  return parca.substr(0, nokta) + "k" + std::to_string(no) + parca.substr(nokta);
}

// A reference to the sheet, in a defined name: Bildirge!$A$1 or 'Bildirge 2'!$A$1.
std::string BaskaSayfaya(std::string basvuru, const std::string& eski, const std::string& yeni) {
  const std::string hedef = "'" + yeni + "'!";
  for (const std::string& aranan : {"'" + eski + "'!", eski + "!"})
    for (auto yer = basvuru.find(aranan); yer != std::string::npos; yer = basvuru.find(aranan, yer + hedef.size()))
      basvuru.replace(yer, aranan.size(), hedef);
  return basvuru;
}

// Print area and the like belong to a sheet and are wanted on its copy as well.
void AdlariKopyala(pugi::xml_node kitap, std::size_t kaynak, std::size_t hedef, const std::string& eski,
                   const std::string& yeni) {
  auto adlar = kitap.child("definedNames");
  std::vector<pugi::xml_node> kopyalanan;
  for (const auto ad : adlar.children("definedName"))
    if (const auto yeri = ad.attribute("localSheetId"); yeri && yeri.as_uint() == kaynak) kopyalanan.push_back(ad);
  for (const auto ad : kopyalanan) {
    auto kopya = adlar.append_copy(ad);
    kopya.attribute("localSheetId") = unsigned(hedef);
    kopya.text() = BaskaSayfaya(ad.text().get(), eski, yeni).c_str();
  }
}

}  // namespace

// What the sheet refers to (pictures, printer settings) gets a part of its own for the copy: no two sheets share one.
void XlsxSablon::Ic::IliskileriKopyala(const std::string& parca, const std::string& kopya, pugi::xml_node turler) {
  pugi::xml_document rels;
  if (!XmlAc(rels, zip.Oku(IliskiParcasi(parca)).value_or(""))) return;
  for (auto iliski : rels.child("Relationships").children()) {
    if (iliski.attribute("TargetMode")) continue;  // outside of the workbook
    const std::string hedef = HedefParca(parca, iliski.attribute("Target").value());
    const auto icerik = zip.Oku(hedef);
    if (!icerik) continue;
    const std::string yeni = KopyaParcasi(hedef, sayfalar.size() + 1);
    zip.Degistir(yeni, *icerik);
    if (const auto alt = zip.Oku(IliskiParcasi(hedef))) zip.Degistir(IliskiParcasi(yeni), *alt);
    if (const auto tur = turler.find_child_by_attribute("Override", "PartName", ("/" + hedef).c_str()))
      turler.append_copy(tur).attribute("PartName") = ("/" + yeni).c_str();
    iliski.attribute("Target") = ("/" + yeni).c_str();
  }
  zip.Degistir(IliskiParcasi(kopya), XmlMetni(rels));
}

Durum XlsxSablon::SayfaKopyala(std::string_view sayfa, const std::string& yeniAd) {
  Ic& ic = *ic_;
  const SayfaYeri* bulunan = ic.SayfaBul(sayfa);
  const Kusur kopyalanamadi{"Çalışma kitabında '" + std::string(sayfa) + "' sayfası kopyalanamadı"};
  pugi::xml_document kitap, rels, turler, icerik;
  if (bulunan == nullptr || ic.SayfaBul(yeniAd) != nullptr || !XmlAc(kitap, ic.zip.Oku(ic.kitapParcasi).value_or("")) ||
      !XmlAc(rels, ic.zip.Oku(IliskiParcasi(ic.kitapParcasi)).value_or("")) ||
      !XmlAc(turler, ic.zip.Oku(TurlerParcasi).value_or("")) || !XmlAc(icerik, ic.zip.Oku(bulunan->parca).value_or("")))
    return kopyalanamadi;
  const SayfaYeri kaynak = *bulunan;
  const auto kaynakSirasi = std::size_t(bulunan - ic.sayfalar.data());
  const std::string parca = KopyaParcasi(kaynak.parca, ic.sayfalar.size() + 1);
  for (auto gorunum : icerik.child("worksheet").child("sheetViews").children("sheetView"))
    gorunum.remove_attribute("tabSelected");
  ic.zip.Degistir(parca, XmlMetni(icerik));
  auto types = turler.child("Types");
  ic.IliskileriKopyala(kaynak.parca, parca, types);
  auto tur = types.append_child("Override");
  tur.append_attribute("PartName") = ("/" + parca).c_str();
  tur.append_attribute("ContentType") = SayfaTuru;
  ic.zip.Degistir(TurlerParcasi, XmlMetni(turler));

  const std::string kimlik = "rIdKopya" + std::to_string(ic.sayfalar.size() + 1);
  auto iliskiler = rels.child("Relationships");
  auto iliski = iliskiler.append_copy(iliskiler.find_child([](pugi::xml_node i) { return TuruMu(i, "worksheet"); }));
  iliski.attribute("Id") = kimlik.c_str();
  iliski.attribute("Target") = ("/" + parca).c_str();
  ic.zip.Degistir(IliskiParcasi(ic.kitapParcasi), XmlMetni(rels));

  auto sayfalar = kitap.child("workbook").child("sheets");
  unsigned no = 0;
  for (const auto s : sayfalar.children("sheet")) no = std::max(no, s.attribute("sheetId").as_uint());
  auto yeni = sayfalar.append_copy(sayfalar.child("sheet"));
  yeni.attribute("name") = yeniAd.c_str();
  yeni.attribute("sheetId") = no + 1;
  yeni.attribute("r:id") = kimlik.c_str();
  const auto sira = std::size_t(std::distance(sayfalar.begin(), sayfalar.end())) - 1;
  AdlariKopyala(kitap.child("workbook"), kaynakSirasi, sira, kaynak.ad, yeniAd);
  ic.zip.Degistir(ic.kitapParcasi, XmlMetni(kitap));
  ic.sayfalar.push_back({yeniAd, parca});
  return Tamam();
}

bool XlsxSablon::AdVar(std::string_view ad) const {
  pugi::xml_document kitap;
  if (!XmlAc(kitap, ic_->zip.Oku(ic_->kitapParcasi).value_or(""))) return false;
  return bool(kitap.child("workbook").child("definedNames").find_child([&](pugi::xml_node n) {
    return TurkceEsit(n.attribute("name").value(), ad);
  }));
}

}  // namespace belvani
