#include "printing/yaprak.h"

#include <algorithm>

#include "core/asama.h"
#include "core/sayi.h"
#include "core/turkce.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

constexpr int BloklarArasi = 4;
constexpr int YapraklarArasi = 3;  // lines
constexpr int EnKucukEn = 76;

std::string Ortada(const std::string& metin, int en) {
  return Yinele(" ", OrtaYeri(metin, en)) + metin;
}

// The letters that labels and values of a block take, over all slips, so that all have the same columns.
struct BlokEni {
  int etiket = 0;
  int deger = 0;

  void Genislet(const std::vector<BlokSatiri>& blok, int ondalik) {
    for (const auto& satir : blok) {
      etiket = std::max(etiket, int(HarfSayisi(satir.etiket)));
      deger = std::max(deger, int(HarfSayisi(YaprakMetni(satir.deger, ondalik))));
    }
  }
  int Tamami() const { return etiket + 1 + deger; }
};

class YaprakMetinYazici {
 public:
  YaprakMetinYazici(const YaprakBelgesi& belge, Ilerleme* ilerleme) : belge_(belge) {
    Asama asama(ilerleme, belge.yapraklar.size());
    for (const auto& yaprak : belge.yapraklar) {
      asama.Adim();
      sol_.Genislet(yaprak.sol, belge.paraOndaligi);
      sag_.Genislet(yaprak.sag, belge.paraOndaligi);
    }
    en_ = std::max(EnKucukEn, sol_.Tamami() + BloklarArasi + sag_.Tamami());
  }

  std::vector<std::string> Satirlar(const Yaprak& yaprak) const {
    std::vector<std::string> satirlar{Ortada(belge_.baslik, en_), Ortada(yaprak.altBaslik, en_)};
    for (const auto& satir : yaprak.bas) satirlar.push_back(satir.etiket + " " + Deger(satir));
    satirlar.push_back(Cizgi());
    for (std::size_t i = 0; i < std::max(yaprak.sol.size(), yaprak.sag.size()); ++i)
      satirlar.push_back(Alan(yaprak.sol, i, sol_) + Yinele(" ", BloklarArasi) + Alan(yaprak.sag, i, sag_));
    satirlar.push_back(Cizgi());
    satirlar.insert(satirlar.end(), yaprak.cumleler.begin(), yaprak.cumleler.end());
    for (auto& satir : satirlar) {
      satir = DenetimsizMetin(satir);
      satir.erase(satir.find_last_not_of(' ') + 1);
    }
    return satirlar;
  }

 private:
  std::string Deger(const BlokSatiri& satir) const { return YaprakMetni(satir.deger, belge_.paraOndaligi); }
  std::string Cizgi() const { return Yinele("-", en_); }

  std::string Alan(const std::vector<BlokSatiri>& blok, std::size_t i, const BlokEni& en) const {
    if (i >= blok.size()) return Yinele(" ", en.Tamami());
    return Solda(blok[i].etiket, en.etiket) + " " + Sagda(Deger(blok[i]), en.deger);
  }

  const YaprakBelgesi& belge_;
  BlokEni sol_;
  BlokEni sag_;
  int en_ = 0;
};

}  // namespace

std::string YaprakMetni(const Hucre& hucre, int paraOndaligi) {
  if (const auto* tutar = std::get_if<Tutar>(&hucre)) return TutarMetni(*tutar, paraOndaligi);
  if (const auto* tam = std::get_if<std::int64_t>(&hucre)) return std::to_string(*tam);
  return HucreMetni(hucre, {});
}

void MetinYapraklariniVer(const YaprakBelgesi& belge, const SayfaDuzeni& duzen, const MetinAlici& al,
                          Ilerleme* ilerleme) {
  const YaprakMetinYazici yazici(belge, ilerleme);
  Asama asama(ilerleme, belge.yapraklar.size());
  int dolu = 0;  // lines of the open page
  for (const auto& yaprak : belge.yapraklar) {
    asama.Adim();
    const auto satirlar = yazici.Satirlar(yaprak);
    const int boy = int(satirlar.size());
    std::string metin;
    if (dolu > 0 && dolu + YapraklarArasi + boy >= duzen.satirSayisi) {
      metin += '\f';
      dolu = 0;
    } else if (dolu > 0) {
      metin.append(YapraklarArasi, '\n');
      dolu += YapraklarArasi;
    }
    for (const auto& satir : satirlar) metin += satir + '\n';
    dolu += boy;
    al(metin);
  }
}

std::string MetinYapraklari(const YaprakBelgesi& belge, const SayfaDuzeni& duzen, Ilerleme* ilerleme) {
  return MetinTopla([&](const MetinAlici& al) { MetinYapraklariniVer(belge, duzen, al, ilerleme); });
}

}  // namespace belvani
