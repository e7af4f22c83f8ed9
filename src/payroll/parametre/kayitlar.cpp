#include "payroll/parametre/kayitlar.h"

#include "payroll/parametre/ikili.h"
#include "payroll/parametre/uyeler.h"

namespace belvani {
namespace {

// What a record holds: its members in the order of their rows. `a` writes or reads, so the values are const or not.
template <class A, class D>
void Kaydi(A& a, D& kayit);

template <class A>
void Alan(A& a, auto& deger) {
  using U = std::remove_cvref_t<decltype(deger)>;
  if constexpr (std::is_same_v<U, Tek>)
    a.Tekil(deger);
  else if constexpr (std::is_same_v<U, Tutar>)
    a.Para(deger);
  else if constexpr (std::is_same_v<U, Tarih>)
    a.Gun(deger);
  else if constexpr (std::is_same_v<U, std::uint8_t>)
    a.Bayt(deger);
  else if constexpr (std::is_same_v<U, std::int16_t>)
    a.Kisa(deger);
  else
    Kaydi(a, deger);
}

template <class A>
void Dizi(A& a, auto& dizi) {
  for (auto& eleman : dizi) Alan(a, eleman);
}

// Rates lie column after column.
template <class A>
void Matris(A& a, auto& satirlar) {
  HerUye<OranSatiri>([&](const auto& uye) {
    for (auto& satir : satirlar) Alan(a, satir.*uye.uye);
  });
}

template <class A, class D>
void Kaydi(A& a, D& kayit) {
  HerUye<std::remove_const_t<D>>([&](const auto& uye) {
    auto& deger = kayit.*uye.uye;
    using U = std::remove_cvref_t<decltype(deger)>;
    if constexpr (std::is_same_v<U, std::string>)
      a.Metin(deger, std::size_t(uye.enCok));
    else if constexpr (std::is_same_v<U, decltype(YasalOranlar::IsciOran)>)
      Matris(a, deger);
    else if constexpr (requires { deger.begin(); })
      Dizi(a, deger);
    else
      Alan(a, deger);
  });
}

template <class Kayit, class A, class D>
void Gez(A& a, D& d) {
  if constexpr (std::is_same_v<Kayit, OzelGvKaydi>)
    // The one record that keeps the members of a row side by side.
    for (std::size_t i = 0; i < d.GvLimit.size(); ++i)
      HerUye<GvTablosu>([&](const auto& uye) { Alan(a, (d.*uye.uye)[i]); });
  else if constexpr (requires { d.begin(); })
    Dizi(a, d);
  else
    Kaydi(a, d);
}

}  // namespace

template <class Kayit>
std::string KayitBaytlari(const typename Kayit::Deger& deger) {
  IkiliYazici yazici;
  Gez<Kayit>(yazici, deger);
  return yazici.Baytlar();
}

template <class Kayit>
Cozum<typename Kayit::Deger> KayitCoz(std::string_view baytlar) {
  IkiliOkuyucu okuyucu(baytlar);
  Cozum<typename Kayit::Deger> sonuc;
  Gez<Kayit>(okuyucu, sonuc.deger);
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
BELVANI_KAYIT(OzelGiderKaydi)
BELVANI_KAYIT(FazlaMesaiKaydi)
BELVANI_KAYIT(KazancKaydi)
BELVANI_KAYIT(YardimKaydi)
BELVANI_KAYIT(KidemParKaydi)
BELVANI_KAYIT(IhbarSureKaydi)
BELVANI_KAYIT(SablonKaydi)
#undef BELVANI_KAYIT

}  // namespace belvani
