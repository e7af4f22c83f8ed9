#include <algorithm>
#include <array>

#include "core/turkce.h"
#include "ozluk/ibranameicerik.h"
#include "printing/form/metinformu.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

constexpr int SatirHarfi = 97;
constexpr std::size_t YaziciSatiri = 132;  // in condensed letters
constexpr int EtiketHarfi = 20;
constexpr int ImzaKolonu = 70;
constexpr int ImzaHarfi = 22;

using Satirlar = std::vector<std::string>;

std::string Cizgi(std::size_t harf) {
  return Yinele("─", int(harf));
}

void BilgileriEkle(Satirlar& satirlar, std::string_view baslik, const std::vector<IbranameBilgisi>& bilgiler) {
  constexpr std::size_t bas = EtiketHarfi + 3;
  satirlar.push_back(" " + std::string(baslik));
  for (const auto& b : bilgiler) {
    std::string once = " " + SagBosluk(b.etiket, EtiketHarfi) + (b.etiket.empty() ? "  " : ": ");
    for (const auto& parca : SatirlaraBol(Kirp(b.deger), SatirHarfi - bas)) {
      satirlar.push_back(once + parca);
      once.assign(bas, ' ');
    }
  }
  satirlar.emplace_back();
}

// A line of the table: the label's field, then those of the amounts.
std::string TabloSatiri(std::string_view etiket, const Satirlar& alanlar) {
  std::string satir = "│" + SagBosluk(" " + std::string(etiket), EtiketHarfi);
  for (const auto& alan : alanlar) satir += "│" + alan;
  return satir + "│";
}

using KolonEnleri = std::array<std::size_t, std::size(OdemeKolonlari)>;

// Letters of the columns of amounts: head or longest amount, a blank on both sides.
KolonEnleri EnleriBul(const std::vector<IbranameOdemesi>& odemeler) {
  KolonEnleri enler;
  for (std::size_t k = 0; k < enler.size(); ++k) {
    enler[k] = HarfSayisi(IbranameKolonlari[k + 1]);
    for (const auto& o : odemeler) enler[k] = std::max(enler[k], o.tutarlar[k].size());
    enler[k] += 2;
  }
  return enler;
}

std::string TabloCizgisi(const KolonEnleri& enler, const std::string& sol, const std::string& orta,
                         const std::string& sag) {
  std::string satir = sol + Cizgi(EtiketHarfi);
  for (const std::size_t en : enler) satir += orta + Cizgi(en);
  return satir + sag;
}

// Thousands marks go where the printer's line would not hold the table with them.
std::vector<IbranameOdemesi> SiganTablo(const Ibraname& ibraname) {
  auto odemeler = IbranameTablosu(ibraname);
  const std::size_t harf = HarfSayisi(TabloCizgisi(EnleriBul(odemeler), "┌", "┬", "┐"));
  return harf <= YaziciSatiri ? odemeler : IbranameTablosu(ibraname, 0);
}

void OdemeleriEkle(Satirlar& satirlar, const std::vector<IbranameOdemesi>& odemeler) {
  const KolonEnleri enler = EnleriBul(odemeler);
  Satirlar alanlar;
  for (std::size_t k = 0; k < enler.size(); ++k)
    alanlar.push_back(SagBosluk(" " + std::string(IbranameKolonlari[k + 1]), int(enler[k])));
  satirlar.push_back(TabloCizgisi(enler, "┌", "┬", "┐"));
  satirlar.push_back(TabloSatiri(IbranameKolonlari[0], alanlar));
  satirlar.push_back(TabloCizgisi(enler, "├", "┼", "┤"));
  for (const auto& o : odemeler) {
    if (&o == &odemeler.back()) satirlar.push_back(TabloCizgisi(enler, "├", "┼", "┤"));
    for (std::size_t k = 0; k < enler.size(); ++k) alanlar[k] = SolBosluk(o.tutarlar[k] + " ", int(enler[k]));
    satirlar.push_back(TabloSatiri(o.etiket, alanlar));
  }
  satirlar.push_back(TabloCizgisi(enler, "└", "┴", "┘"));
  satirlar.emplace_back();
}

void TebligatVeImzaEkle(Satirlar& satirlar, const Ibraname& i) {
  const std::string sol[] = {"",
                             std::string(IbranameTebligati[0]),
                             std::string(IbranameTebligati[1]),
                             i.form.adr1,
                             i.form.adr2,
                             TelefonSatiri(i.form)};
  const std::string sag[] = {i.tarih.Metin(), "", " " + std::string(IbranameImzasi), "", "", Cizgi(ImzaHarfi)};
  for (std::size_t k = 0; k < std::size(sol); ++k)
    satirlar.push_back(SagBosluk("  " + std::string(Kirp(sol[k])), ImzaKolonu) + sag[k]);
}

}  // namespace

std::string IbranameMetni(const Ibraname& ibraname, CerceveTuru cerceve) {
  Satirlar satirlar{"", OrtalaMetin(IbranameBasligi, SatirHarfi), ""};
  BilgileriEkle(satirlar, IbranameIsvereni, IsverenBilgileri(ibraname.firma));
  BilgileriEkle(satirlar, IbranameIscisi, IsciBilgileri(ibraname.form));
  OdemeleriEkle(satirlar, SiganTablo(ibraname));
  satirlar.push_back("  " + ibraname.form.girtar.Metin() + std::string(IbranameCumleleri[0]));
  satirlar.insert(satirlar.end(), std::begin(IbranameCumleleri) + 1, std::end(IbranameCumleleri));
  satirlar.emplace_back();
  TebligatVeImzaEkle(satirlar, ibraname);
  std::string metin;
  for (const auto& satir : satirlar) {
    const std::string temiz = DenetimsizMetin(satir);
    metin += temiz.substr(0, temiz.find_last_not_of(' ') + 1) + '\n';
  }
  return cerceve == CerceveTuru::Duz ? DuzCerceveli(metin) : metin;
}

}  // namespace belvani
