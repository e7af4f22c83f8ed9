// Wage, day lines, overtime, allowances, and the social-security base that comes of them.

#include "payroll/hesap/hesap.h"
#include "payroll/hesap/muafiyet.h"

namespace belvani {
namespace {

// In the trace: the bases that a line's flags let it into.
std::string MatrahAdlari(std::uint8_t bayraklar) {
  std::string adlar;
  for (const auto& [bit, ad] :
       {std::pair{bayrak::Ssk, "SSK"}, std::pair{bayrak::Gv, "gelir vergisi"}, std::pair{bayrak::Dv, "damga vergisi"}})
    if ((bayraklar & bit) != 0) adlar += (adlar.empty() ? "" : ", ") + std::string(ad);
  return adlar.empty() ? "hiçbiri" : adlar;
}

}  // namespace

template <class I>
void Hesap<I>::Ucret() {
  k_.ucret = AylikBrutUcret(g_, yuvarla_);
  gunlukUcret_ = Tutar(k_.ucret.Sayi() / AyGunu30);
  saatlikUcret_ = Tutar(gunlukUcret_.Sayi() / g_.IsSaati.Sayi());
  izle_([&] {
    return IzAdimi("ucret",
                   "Aylık brüt ücret: kart ücreti aya çevrilir (günlük × 30, saatlik × 30 × iş saati), net ise "
                   "brüte çevrilir, asgari ise asgari ücret alınır",
                   {{"Kart ücreti", sicil_.ucret},
                    {"Ücret tipi (0 brüt, 1 net, 2 asgari)", int(sicil_.ucrettipi)},
                    {"Ücret esası (0 aylık, 1 günlük, 2 saatlik)", int(sicil_.ucretags)},
                    {"İş saati", g_.IsSaati},
                    {"Asgari ücret", yasal_.AsgariUcret}},
                   k_.ucret);
  });
  izle_([&] {
    return IzAdimi("GunlukUcret", "Günlük ücret = aylık ücret / 30", {{"Aylık ücret", k_.ucret}}, gunlukUcret_);
  });
  izle_([&] {
    return IzAdimi("SaatlikUcret", "Saatlik ücret = günlük ücret / iş saati",
                   {{"Günlük ücret", gunlukUcret_}, {"İş saati", g_.IsSaati}}, saatlikUcret_);
  });
}

template <class I>
void Hesap<I>::GunSatirlari() {
  for (std::size_t i = 0; i < GunKolonlari.size(); ++i) {
    const int gun = k_.*GunKolonlari[i].uye;
    MatrahlaraEkle(g_.bayraklar.k[i], gun * gunlukUcret_);
    if (gun != 0)
      izle_([&] {
        return IzAdimi(
            GunKolonlari[i].ad, std::string(KazancAdlari[i]) + " = gün × günlük ücret",
            {{"Gün", gun}, {"Günlük ücret", gunlukUcret_}, {"Girdiği matrahlar", MatrahAdlari(g_.bayraklar.k[i])}},
            gun * gunlukUcret_);
      });
  }
  k_.brutkaz = yuvarla_(k_.sskmatrah);
  if (k_.brutkaz > Tutar()) k_.ucret = k_.brutkaz;
  izle_([&] {
    return IzAdimi("ucret",
                   "Çalışılan günlerin ücreti = SSK matrahına giren gün satırlarının toplamı; yoksa aylık ücret",
                   {{"Gün satırları", k_.brutkaz}}, k_.ucret);
  });
  if (HuzurHakkiMi(sicil_)) k_.sskmatrah = Tutar();
}

template <class I>
void Hesap<I>::IlkTavan() {
  k_.sskmatrah = std::min(k_.sskmatrah, GunTavani());
}

template <class I>
void Hesap<I>::UcretliIzinMatrahi() {
  if (sskGun_ < 1) return;
  const bool tabanAltinda = k_.sskmatrah.Sayi() < GunlukSinir(yasal_.SskTaban, sskGun_);
  k_.ucrizmatrah = uygulama_ != Uygulama::D2004 && tabanAltinda ? yuvarla_(k_.ui * yasal_.SskTaban.Sayi() / AyGunu30)
                                                                : yuvarla_(k_.ui * k_.sskmatrah.Sayi() / sskGun_);
  if (k_.ui != 0)
    izle_([&] {
      return IzAdimi("ucrizmatrah",
                     "Ücretli izin matrahı = izin günü × gün satırlarının SSK matrahı / prim günü; matrah "
                     "tabanın altındaysa izin günü × taban / 30",
                     {{"Ücretli izin", int(k_.ui)},
                      {"Matrah (tavanla sınırlı)", k_.sskmatrah},
                      {"Prim günü", sskGun_},
                      {"SSK taban", yasal_.SskTaban}},
                     k_.ucrizmatrah);
    });
}

template <class I>
void Hesap<I>::MesaiSatirlari() {
  for (std::size_t i = 0; i < MesaiKolonlari.size(); ++i) {
    const Tek saat = k_.*MesaiKolonlari[i].uye;
    const Tek carpan = k_.*MesaiCarpanlari[i].uye;
    const double deger = saat.Sayi() * carpan.Sayi() * saatlikUcret_.Sayi();
    MatrahlaraEkle(g_.bayraklar.k[GunSatiriSayisi + i], deger);
    k_.brutkaz += yuvarla_(deger);
    if (deger != 0)
      izle_([&] {
        return IzAdimi(MesaiKolonlari[i].ad,
                       std::string(KazancAdlari[GunSatiriSayisi + i]) + " = saat × çarpan × saatlik ücret",
                       {{"Saat", saat},
                        {"Çarpan", carpan},
                        {"Saatlik ücret", saatlikUcret_},
                        {"Girdiği matrahlar", MatrahAdlari(g_.bayraklar.k[GunSatiriSayisi + i])}},
                       yuvarla_(deger));
      });
  }
}

template <class I>
void Hesap<I>::Yardimlar() {
  for (std::size_t i = 0; i < YardimKolonlari.size(); ++i) {
    const Tutar tutar = k_.*YardimKolonlari[i].uye;
    const std::uint8_t bayraklar = g_.bayraklar.y[i];
    const Muaf& tanim = (*g_.yardimlar)[i];
    MatrahlaraEkle(bayraklar, tutar);
    if (bayraklar & bayrak::Muaf) {
      const Tutar onceki = k_.muaftutar;
      k_.muaftutar = MuafHesapla({tutar, tanim, k_.ng, sskGun_, g_.aile.cocuk, yasal_.SskTaban}, onceki, yuvarla_);
      if (tutar != Tutar() || k_.muaftutar != onceki)
        izle_([&] {
          return IzAdimi("muaftutar",
                         "SSK'dan muaf tutar: " + tanim.adi +
                             " satırının muafiyet şekli uygulanır (taban "
                             "günlüğü ile sınırlı)",
                         {{"Tutar", tutar},
                          {"Muafiyet şekli", int(tanim.indtip)},
                          {"Oran %", tanim.oran},
                          {"Sabit", tanim.sabit},
                          {"Prim günü", sskGun_},
                          {"Çocuk", g_.aile.cocuk}},
                         k_.muaftutar);
        });
    }
    k_.topyardim += tutar;
    k_.brutkaz += tutar;
    if (tutar != Tutar())
      izle_([&] {
        return IzAdimi(YardimKolonlari[i].ad, tanim.adi + ": yardımlara ve brüte eklenir",
                       {{"Girdiği matrahlar", MatrahAdlari(bayraklar)}}, tutar);
      });
  }
  izle_([&] { return IzAdimi("topyardim", "Yardımların toplamı", {}, k_.topyardim); });
  izle_([&] {
    return IzAdimi("brutkaz", "Brüt kazanç = gün satırları + fazla mesailer + yardımlar", {{"Yardımlar", k_.topyardim}},
                   k_.brutkaz);
  });
}

template <class I>
void Hesap<I>::SskMatrahi() {
  const Tutar once = k_.sskmatrah;
  const Tutar tavan = sskGun_ < 1 ? yasal_.SskTavan : GunTavani();
  k_.sskmatrah = std::min(yuvarla_(k_.sskmatrah - k_.muaftutar), tavan);
  izle_([&] {
    return IzAdimi("sskmatrah",
                   "SSK matrahı = SSK'ya giren kazançlar − muaf tutar; gün tavanını geçemez (tavan / 30 × "
                   "prim günü)",
                   {{"SSK'ya giren kazançlar", once}, {"Muaf tutar", k_.muaftutar}, {"Tavan", tavan}}, k_.sskmatrah);
  });
}

template class Hesap<Izsiz>;
template class Hesap<Izli>;

}  // namespace belvani
