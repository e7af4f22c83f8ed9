#include "printing/xlsxsablon.h"

#include <algorithm>

#include "core/sayi.h"
#include "core/turkce.h"
#include "printing/xlscevir.h"
#include "printing/xlsxsablonic.h"

namespace belvani {
namespace {

constexpr std::int32_t IlkGun = 61;  // 01.03.1900: earlier days have no number in a workbook

// Formats that a workbook knows by number alone.
bool HazirTarihBicimi(int no) {
  return (no >= 14 && no <= 22) || (no >= 27 && no <= 36) || (no >= 45 && no <= 47) || (no >= 50 && no <= 58);
}

// A day, month or year letter outside of quotes, brackets and escapes.
bool TarihBicimi(std::string_view bicim) {
  char kapanis = 0;
  for (std::size_t i = 0; i < bicim.size(); ++i) {
    const char c = bicim[i];
    if (kapanis != 0) {
      if (c == kapanis) kapanis = 0;
    } else if (c == '"' || c == '[') {
      kapanis = c == '[' ? ']' : '"';
    } else if (c == '\\') {
      ++i;
    } else if (std::string_view("dDyY").find(c) != std::string_view::npos) {
      return true;
    }
  }
  return false;
}

// For each cell style of the workbook, whether it shows dates.
std::vector<bool> TarihStilleri(const std::string& xml) {
  pugi::xml_document belge;
  XmlAc(belge, xml);
  const auto stiller = belge.child("styleSheet");
  std::map<int, bool> bicimler;
  for (const auto b : stiller.child("numFmts").children("numFmt"))
    bicimler[b.attribute("numFmtId").as_int()] = TarihBicimi(b.attribute("formatCode").value());
  std::vector<bool> tarihli;
  for (const auto xf : stiller.child("cellXfs").children("xf")) {
    const int no = xf.attribute("numFmtId").as_int();
    const auto ozel = bicimler.find(no);
    tarihli.push_back(ozel != bicimler.end() ? ozel->second : HazirTarihBicimi(no));
  }
  return tarihli;
}

void Bosalt(pugi::xml_node hucre) {
  hucre.remove_attribute("t");
  hucre.remove_children();
}

void MetinKoy(pugi::xml_node hucre, const std::string& metin) {
  Bosalt(hucre);
  if (metin.empty()) return;
  hucre.append_attribute("t") = "inlineStr";
  auto t = hucre.append_child("is").append_child("t");
  t.append_attribute("xml:space") = "preserve";
  t.text() = metin.c_str();
}

void SayiKoy(pugi::xml_node hucre, const std::string& sayi) {
  Bosalt(hucre);
  hucre.append_child("v").text() = sayi.c_str();
}

}  // namespace

std::string HedefParca(const std::string& kaynak, std::string_view hedef) {
  if (hedef.starts_with('/')) return std::string(hedef.substr(1));
  std::string dizin = kaynak.substr(0, kaynak.rfind('/') + 1);
  for (; hedef.starts_with("../"); hedef.remove_prefix(3)) {
    if (!dizin.empty()) dizin.pop_back();
    dizin.erase(dizin.rfind('/') + 1);
  }
  return dizin + std::string(hedef);
}

std::string IliskiParcasi(const std::string& parca) {
  const auto ayrac = parca.rfind('/') + 1;
  return parca.substr(0, ayrac) + "_rels/" + parca.substr(ayrac) + ".rels";
}

bool TuruMu(pugi::xml_node iliski, std::string_view tur) {
  return std::string_view(iliski.attribute("Type").value()).ends_with("/" + std::string(tur));
}

bool XlsxSablon::Ic::Oku() {
  pugi::xml_document kok;
  if (!XmlAc(kok, zip.Oku("_rels/.rels").value_or(""))) return false;
  for (const auto iliski : kok.child("Relationships").children())
    if (TuruMu(iliski, "officeDocument")) kitapParcasi = HedefParca("", iliski.attribute("Target").value());
  SayfalariOku(zip.Oku(IliskiParcasi(kitapParcasi)).value_or(""));
  return !sayfalar.empty();
}

void XlsxSablon::Ic::SayfalariOku(const std::string& iliskiler) {
  pugi::xml_document kitap;
  pugi::xml_document rels;
  if (!XmlAc(kitap, zip.Oku(kitapParcasi).value_or("")) || !XmlAc(rels, iliskiler)) return;
  std::map<std::string, std::string> parcalar;
  for (const auto iliski : rels.child("Relationships").children()) {
    const std::string parca = HedefParca(kitapParcasi, iliski.attribute("Target").value());
    if (TuruMu(iliski, "worksheet")) parcalar[iliski.attribute("Id").value()] = parca;
    if (TuruMu(iliski, "styles")) tarihStilleri = TarihStilleri(zip.Oku(parca).value_or(""));
  }
  for (const auto sayfa : kitap.child("workbook").child("sheets").children("sheet"))
    if (const auto p = parcalar.find(sayfa.attribute("r:id").value()); p != parcalar.end())
      sayfalar.push_back({sayfa.attribute("name").value(), p->second});
}

const SayfaYeri* XlsxSablon::Ic::SayfaBul(std::string_view ad) const {
  const auto s = std::find_if(sayfalar.begin(), sayfalar.end(),
                              [&](const SayfaYeri& sayfa) { return ad.empty() || TurkceEsit(sayfa.ad, ad); });
  return s == sayfalar.end() ? nullptr : &*s;
}

// Null: the part is no sheet.
XlsxSayfa* XlsxSablon::Ic::SayfaAc(const std::string& parca) {
  if (const auto s = acilan.find(parca); s != acilan.end()) return &s->second;
  XlsxSayfa& sayfa = acilan[parca];
  if (sayfa.Ac(zip.Oku(parca).value_or(""))) return &sayfa;
  acilan.erase(parca);
  return nullptr;
}

void XlsxSablon::Ic::HucreYaz(pugi::xml_node hucre, const Hucre& deger) const {
  if (const auto* metin = std::get_if<std::string>(&deger)) return MetinKoy(hucre, DenetimsizMetin(*metin));
  if (const auto* tam = std::get_if<std::int64_t>(&deger)) return SayiKoy(hucre, std::to_string(*tam));
  if (const auto* tutar = std::get_if<Tutar>(&deger)) return SayiKoy(hucre, OndalikMetin(*tutar));
  const auto* tarih = std::get_if<Tarih>(&deger);
  if (tarih == nullptr || tarih->Bos()) return Bosalt(hucre);
  const std::size_t stil = hucre.attribute("s").as_uint();
  const bool tarihli = stil < tarihStilleri.size() && tarihStilleri[stil] && tarih->SeriNo() >= IlkGun;
  return tarihli ? SayiKoy(hucre, std::to_string(tarih->SeriNo())) : MetinKoy(hucre, tarih->Metin());
}

bool XlsxSablon::Ic::FormulVar() const {
  return std::any_of(sayfalar.begin(), sayfalar.end(), [&](const SayfaYeri& sayfa) {
    const std::string xml = zip.Oku(sayfa.parca).value_or("");
    return xml.find("<f>") != std::string::npos || xml.find("<f ") != std::string::npos;
  });
}

// The list of formulas in their order of calculation may name a cell that has none any more; it is made anew.
void XlsxSablon::Ic::HesapSirasiniAt() {
  const std::string iliskiParcasi = IliskiParcasi(kitapParcasi);
  pugi::xml_document rels;
  if (!XmlAc(rels, zip.Oku(iliskiParcasi).value_or(""))) return;
  auto iliskiler = rels.child("Relationships");
  const auto iliski = iliskiler.find_child([](pugi::xml_node i) { return TuruMu(i, "calcChain"); });
  if (!iliski) return;
  const std::string parca = HedefParca(kitapParcasi, iliski.attribute("Target").value());
  iliskiler.remove_child(iliski);
  zip.Degistir(iliskiParcasi, XmlMetni(rels));
  zip.Sil(parca);
  pugi::xml_document turler;
  if (!XmlAc(turler, zip.Oku(TurlerParcasi).value_or(""))) return;
  auto types = turler.child("Types");
  types.remove_child(types.find_child_by_attribute("Override", "PartName", ("/" + parca).c_str()));
  zip.Degistir(TurlerParcasi, XmlMetni(turler));
}

void XlsxSablon::Ic::AcilistaHesaplat() {
  pugi::xml_document belge;
  if (!XmlAc(belge, zip.Oku(kitapParcasi).value_or(""))) return;
  auto kitap = belge.child("workbook");
  auto hesap = kitap.child("calcPr");
  if (hesap.attribute("fullCalcOnLoad").as_bool()) return;
  if (!hesap) {
    // Its place is behind the last of these.
    pugi::xml_node onceki;
    for (const char* ad : {"sheets", "functionGroups", "externalReferences", "definedNames"})
      if (const auto n = kitap.child(ad)) onceki = n;
    hesap = kitap.insert_child_after("calcPr", onceki);
  }
  hesap.remove_attribute("fullCalcOnLoad");
  hesap.append_attribute("fullCalcOnLoad") = "1";
  zip.Degistir(kitapParcasi, XmlMetni(belge));
}

XlsxSablon::XlsxSablon(std::unique_ptr<Ic> ic) : ic_(std::move(ic)) {}
XlsxSablon::~XlsxSablon() = default;
XlsxSablon::XlsxSablon(XlsxSablon&&) noexcept = default;
XlsxSablon& XlsxSablon::operator=(XlsxSablon&&) noexcept = default;

Sonuc<XlsxSablon> XlsxSablon::Ac(std::string baytlar) {
  if (XlsMi(baytlar))
    return Kusur{"Çalışma kitabı eski biçimde (.xls) ya da parolalı: parolasız .xlsx olarak kaydediniz"};
  auto zip = ZipDosyasi::Ac(std::move(baytlar));
  if (!zip) return Kusur{"Dosya bir çalışma kitabı (.xlsx) değil ya da bozuk"};
  if (const Durum sigar = KitapSinirlari(*zip); !sigar) return sigar.Kusuru();
  auto ic = std::make_unique<Ic>(std::move(*zip));
  const bool okundu = ic->Oku();
  if (ic->sayfalar.size() > EnCokSayfa)
    return Kusur{"Çalışma kitabı çok büyük: en çok " + std::to_string(EnCokSayfa) + " sayfası olabilir"};
  if (!okundu) return Kusur{"Dosya bir çalışma kitabı (.xlsx) değil: içinde sayfa yok"};
  return XlsxSablon(std::move(ic));
}

Durum XlsxSablon::Yaz(std::string_view sayfa, std::string_view adres, const Hucre& deger) {
  const SayfaYeri* bulunan = ic_->SayfaBul(sayfa);
  if (bulunan == nullptr) return Kusur{"Çalışma kitabında '" + std::string(sayfa) + "' sayfası yok"};
  const auto yer = XlsxYeriOku(adres);
  if (!yer) return Kusur{"Hücre adresi değil: '" + std::string(adres) + "'"};
  XlsxSayfa* acik = ic_->SayfaAc(bulunan->parca);
  if (acik == nullptr) return Kusur{"Çalışma kitabının '" + bulunan->ad + "' sayfası bozuk"};
  const auto hucre = acik->Hucre(*yer);
  if (hucre.child("f").attribute("ref"))
    return Kusur{bulunan->ad + "!" + std::string(adres) +
                 ": bu hücrenin formülü başka hücrelerle ortak, üzerine yazılamaz"};
  ic_->HucreYaz(hucre, deger);
  return Tamam();
}

Sonuc<std::string> XlsxSablon::Bitir() {
  if (ic_->acilan.empty()) return ic_->zip.Bitir();
  const bool formullu = ic_->FormulVar();
  for (const auto& [parca, sayfa] : ic_->acilan) ic_->zip.Degistir(parca, sayfa.Xml());
  if (formullu) {
    ic_->HesapSirasiniAt();
    ic_->AcilistaHesaplat();
  }
  return ic_->zip.Bitir();
}

}  // namespace belvani
