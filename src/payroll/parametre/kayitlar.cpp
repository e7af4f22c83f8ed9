#include "payroll/parametre/kayitlar.h"

#include "payroll/parametre/ikili.h"

namespace belvani {
namespace {

constexpr std::size_t AckEni = 79;

// Each Gez walks the fields of a record in the order of their bytes; `a` writes or reads, so `d` is const or not.

template <class A, class D>
void OranMatrisi(A& a, D& satirlar) {
  for (const auto sutun : {&OranSatiri::ana, &OranSatiri::has, &OranSatiri::mal, &OranSatiri::sgdp, &OranSatiri::isz})
    for (auto& satir : satirlar) a.Tekil(satir.*sutun);
}

template <class A, class D>
void Gez(YasalKaydi, A& a, D& d) {
  OranMatrisi(a, d.IsciOran);
  OranMatrisi(a, d.IsverenOran);
  a.Para(d.AsgariUcret);
  a.Para(d.SskTaban);
  a.Para(d.SskTavan);
  a.Para(d.KidemTavan);
  a.Tekil(d.DamgaOran);
  a.Para(d.MuafTavan);
  for (auto& b : d.Ayrilmis) a.Bayt(b);
  for (auto& t : d.SakatIndirim) a.Para(t);
  a.Tekil(d.MuafOran);
}

template <class A, class D>
void Gez(GvKaydi, A& a, D& d) {
  for (auto& t : d.GvLimit) a.Para(t);
  for (auto& t : d.GvOran) a.Tekil(t);
}

template <class A, class D>
void Gez(OzelGvKaydi, A& a, D& d) {
  for (std::size_t i = 0; i < d.GvLimit.size(); ++i) {
    a.Para(d.GvLimit[i]);
    a.Tekil(d.GvOran[i]);
  }
}

template <class A, class D>
void Gez(AgiKaydi, A& a, D& d) {
  a.Tekil(d.AgiKendisi);
  a.Tekil(d.AgiEsi);
  a.Tekil(d.AgiCocuk12);
  a.Tekil(d.AgiCocuk3);
  a.Tekil(d.AgiCocuk4);
  a.Para(d.AgiTaban);
}

template <class A, class D>
void Gez(HesapTurKaydi, A& a, D& d) {
  for (auto& tur : d) {
    a.Bayt(tur.no);
    a.Metin(tur.ack, AckEni);
    a.Bayt(tur.isKazasi);
  }
}

template <class A, class D>
void Gez(KanunKaydi, A& a, D& d) {
  a.Gun(d.bastar);
  a.Gun(d.bittar);
  a.Kisa(d.uygulama);
}

template <class A, class D>
void Gez(FazlaMesaiKaydi, A& a, D& d) {
  a.Tekil(d.oran);
  a.Tekil(d.limit);
}

template <class A, class D>
void Gez(KazancKaydi, A& a, D& d) {
  for (auto& b : d) a.Bayt(b);
}

template <class A, class D>
void Gez(YardimKaydi, A& a, D& d) {
  for (auto& b : d) a.Bayt(b);
}

template <class A, class D>
void Gez(SablonKaydi, A& a, D& d) {
  for (auto& t : d.SablonGun) a.Tekil(t);
  for (auto& t : d.SablonYardim) a.Para(t);
  for (auto& b : d.SablonYardimTip) a.Bayt(b);
}

}  // namespace

template <class Kayit>
std::string KayitBaytlari(const typename Kayit::Deger& deger) {
  IkiliYazici yazici;
  Gez(Kayit{}, yazici, deger);
  return yazici.Baytlar();
}

template <class Kayit>
Cozum<typename Kayit::Deger> KayitCoz(std::string_view baytlar) {
  IkiliOkuyucu okuyucu(baytlar);
  Cozum<typename Kayit::Deger> sonuc;
  Gez(Kayit{}, okuyucu, sonuc.deger);
  sonuc.gecersiz = okuyucu.Gecersiz();
  return sonuc;
}

#define BELVANI_KAYIT(Kayit)                                      \
  template std::string KayitBaytlari<Kayit>(const Kayit::Deger&); \
  template Cozum<Kayit::Deger> KayitCoz<Kayit>(std::string_view);
BELVANI_KAYIT(YasalKaydi)
BELVANI_KAYIT(GvKaydi)
BELVANI_KAYIT(AgiKaydi)
BELVANI_KAYIT(HesapTurKaydi)
BELVANI_KAYIT(KanunKaydi)
BELVANI_KAYIT(OzelGvKaydi)
BELVANI_KAYIT(FazlaMesaiKaydi)
BELVANI_KAYIT(KazancKaydi)
BELVANI_KAYIT(YardimKaydi)
BELVANI_KAYIT(SablonKaydi)
#undef BELVANI_KAYIT

}  // namespace belvani
