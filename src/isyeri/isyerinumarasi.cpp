#include "isyeri/isyerinumarasi.h"

#include "core/turkce.h"
#include "printing/form/satirliform.h"

namespace belvani {
namespace {

constexpr std::size_t IlHanesi = 3;
constexpr double BasamakEni = 5;
constexpr double BasamakArasi = 4;

// Cells of a group under a caption of one or two lines.
struct KutuGrubu {
  std::string_view ustEtiket;
  std::string_view altEtiket;
  int basamak;
};

// The number of the unit has its new and its old half in one value.
constexpr std::size_t UniteSirasi = 2;
constexpr std::size_t IlSirasi = 4;
constexpr KutuGrubu kutuGruplari[] = {
    {"M", "", 1},       {"İŞ KOLU", "", 4},  {"ÜNİTE KODU", "", 4}, {"İŞYERİ SIRA NUMARASI", "", 7},
    {"İL KODU", "", 3}, {"İLÇE", "KODU", 2}, {"Kont.", "No", 2},    {"ARACI", "", 3},
};

void UniteEtiketleri(FormKurucu& f, double x, int satir) {
  f.Etiket(SatirYeri(x, satir, 2 * BasamakEni), "YENİ", MetinHizasi::Orta);
  f.Etiket(SatirYeri(x + 2 * BasamakEni, satir, 2 * BasamakEni), "ESKİ", MetinHizasi::Orta);
}

}  // namespace

std::array<NumaraGrubu, 7> NumaraGruplari(const Firma& firma) {
  return {{{"firma.sektor", firma.sektor},
           {"firma.meslek", firma.meslek},
           {"firma.sube", firma.sube},
           {"firma.dosya", firma.dosya},
           {"firma.il", firma.il},
           {"firma.ilce", firma.ilce},
           {"firma.kontrol", firma.kontrol}}};
}

std::string IsyeriSicilNo(const Firma& firma) {
  std::string no;
  for (const auto& grup : NumaraGruplari(firma)) {
    const std::string_view parca = Kirp(grup.deger);
    if (parca.empty()) continue;
    if (!no.empty()) no += ' ';
    no += parca;
  }
  return no;
}

std::string IlKodu(const Firma& firma) {
  const std::string il(Kirp(firma.il));
  const std::size_t harf = HarfSayisi(il);
  return harf < IlHanesi ? std::string(IlHanesi - harf, '0') + il : il.substr(IlkHarfler(il, harf - IlHanesi).size());
}

int IsyeriNumarasi(FormKurucu& f, double x, int satir, const Firma& firma, const std::string& araciKodu) {
  const auto gruplar = NumaraGruplari(firma);
  for (std::size_t i = 0; i < std::size(kutuGruplari); ++i) {
    const KutuGrubu& g = kutuGruplari[i];
    const double en = g.basamak * BasamakEni;
    const bool tekSatir = g.altEtiket.empty() && i != UniteSirasi;
    f.Etiket(SatirYeri(x - 1, satir, en + 2, tekSatir ? 2 : 1), g.ustEtiket, MetinHizasi::Orta);
    f.Etiket(SatirYeri(x - 1, satir + 1, en + 2), g.altEtiket, MetinHizasi::Orta);
    if (i == UniteSirasi) UniteEtiketleri(f, x, satir + 1);
    const bool araci = i == gruplar.size();
    f.Basamaklar(araci ? "arac.kod" : gruplar[i].ad,
                 {.x = x, .y = (satir + 2) * SatirMm, .sayi = g.basamak, .en = BasamakEni, .boy = SatirMm * 1.25},
                 araci           ? araciKodu
                 : i == IlSirasi ? IlKodu(firma)
                                 : gruplar[i].deger);
    x += en + BasamakArasi;
  }
  return satir + 4;
}

}  // namespace belvani
