#include "isyeri/isyerinumarasimetni.h"

#include "core/turkce.h"
#include "isyeri/isyerinumarasi.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

struct MetinGrubu {
  std::string_view etiket;
  int basamak;
};
constexpr MetinGrubu metinGruplari[] = {{"M", 1},  {"İş Kolu", 4}, {"Ünite", 4}, {"Sıra No", 7},
                                        {"İl", 3}, {"İlçe", 2},    {"Kont.", 2}, {"Aracı", 3}};
constexpr std::size_t IlGrubu = 4;

std::string Kenar(int hucre, int harf, std::string_view sol, std::string_view orta, std::string_view sag) {
  std::string kenar(sol);
  for (int i = 0; i < hucre; ++i) kenar += (i == 0 ? "" : std::string(orta)) + Yinele("─", harf);
  return kenar + std::string(sag);
}

std::string Basamaklar(std::string_view deger, int basamak) {
  std::string satir = "│" + Yinele(" │", basamak - int(HarfSayisi(deger)));
  for (; !deger.empty(); deger.remove_prefix(IlkHarfler(deger, 1).size()))
    satir += std::string(IlkHarfler(deger, 1)) + "│";
  return satir;
}

}  // namespace

std::array<std::string, 4> IsyeriNumarasiMetni(const Firma& firma, const std::string& araciKodu) {
  std::array<std::string, 4> satirlar;
  const auto gruplar = NumaraGruplari(firma);
  for (std::size_t i = 0; i < std::size(metinGruplari); ++i) {
    const MetinGrubu& g = metinGruplari[i];
    const std::string ham = i == gruplar.size() ? araciKodu : i == IlGrubu ? IlKodu(firma) : gruplar[i].deger;
    const std::string deger(Kirp(DenetimsizMetin(ham)));
    const int harf = int(HarfSayisi(deger));
    const bool sigar = harf <= g.basamak;
    const int hucre = sigar ? g.basamak : 1;
    const int hucreHarfi = sigar ? 1 : harf;
    const int en = hucre * (hucreHarfi + 1) + 1;
    const std::string parcalar[] = {SagBosluk(OrtalaMetin(g.etiket, en), en), Kenar(hucre, hucreHarfi, "┌", "┬", "┐"),
                                    sigar ? Basamaklar(deger, g.basamak) : "│" + deger + "│",
                                    Kenar(hucre, hucreHarfi, "└", "┴", "┘")};
    for (std::size_t s = 0; s < satirlar.size(); ++s) satirlar[s] += (i == 0 ? "" : " ") + parcalar[s];
  }
  return satirlar;
}

}  // namespace belvani
