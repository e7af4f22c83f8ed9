#include "printing/form/satirliform.h"

namespace belvani {

FormKurucu KagitFormu(KagitYonu yon) {
  FormKurucu f(A4(yon));
  f.etiketYazisi = {.punto = 6.5};
  f.degerYazisi = {.punto = 8, .kalinlik = YaziKalinligi::Kalin};
  f.pay = KagitPayi;
  return f;
}

int Kutucuklar(FormKurucu& f, double x, int satir, const std::vector<EtiketliKutu>& kutucuklar) {
  f.EtiketliKutular({x, satir * SatirMm}, SatirMm, kutucuklar);
  return satir + 1;
}

double ToplamEn(const std::vector<FormKolonu>& kolonlar) {
  double en = 0;
  for (const auto& k : kolonlar) en += k.en;
  return en;
}

int TabloBasligi(FormKurucu& f, double x, int satir, const std::vector<FormKolonu>& kolonlar) {
  int kapsanan = 0;  // columns below the last upper caption
  for (std::size_t i = 0; i < kolonlar.size(); ++i) {
    const FormKolonu& k = kolonlar[i];
    const bool ayri = k.kapsam > 1 || kapsanan > 0;  // the lines of the caption have boxes of their own
    if (kapsanan == 0) {
      kapsanan = k.kapsam;
      const double en =
          ToplamEn({kolonlar.begin() + std::ptrdiff_t(i), kolonlar.begin() + std::ptrdiff_t(i) + kapsanan});
      f.Kutu(SatirYeri(x, satir, en, ayri ? 1 : 2));
      f.Etiket(f.Icerisi(SatirYeri(x, satir, en, k.altBaslik.empty() ? 2 : 1)), k.ustBaslik, MetinHizasi::Orta);
    }
    if (ayri) f.Kutu(SatirYeri(x, satir + 1, k.en));
    f.Etiket(f.Icerisi(SatirYeri(x, satir + 1, k.en)), k.altBaslik, MetinHizasi::Orta);
    --kapsanan;
    x += k.en;
  }
  return satir + 2;
}

int TabloSatirlari(FormKurucu& f, double x, int satir, const std::vector<FormKolonu>& kolonlar, int satirSayisi) {
  std::vector<double> enler;
  enler.reserve(kolonlar.size());
  for (const auto& k : kolonlar) enler.push_back(k.en);
  f.Tablo({x, satir * SatirMm}, enler, SatirMm, satirSayisi);
  return satir + satirSayisi;
}

void TabloDegerleri(FormKurucu& f, double x, int satir, const std::vector<FormKolonu>& kolonlar, const std::string& on,
                    const std::vector<std::string>& degerler) {
  for (std::size_t i = 0; i < kolonlar.size(); ++i) {
    const FormKolonu& k = kolonlar[i];
    if (i < degerler.size()) f.Alan(on + "." + k.ad, f.Icerisi(SatirYeri(x, satir, k.en)), degerler[i], k.hiza);
    x += k.en;
  }
}

}  // namespace belvani
