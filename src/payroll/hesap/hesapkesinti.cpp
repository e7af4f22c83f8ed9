// Premiums, taxes, the employer's side, the allowance, dues and net.

#include "payroll/hesap/damga.h"
#include "payroll/hesap/hesap.h"
#include "payroll/hesap/indirim.h"
#include "payroll/hesap/sendikaaidati.h"
#include "payroll/hesap/vergi.h"

namespace belvani {
namespace {

constexpr std::array<Kolon<Brd, Tutar>, 3> IndirimKolonlari{brd::indirim1, brd::indirim2, brd::indirim3};
constexpr std::array<Kolon<Sicil, bool>, 3> IndirimAnahtarlari{sicil::indirim1, sicil::indirim2, sicil::indirim3};
constexpr std::array<Kolon<Sicil, Tutar>, 3> IndirimTutarlari{sicil::indtut1, sicil::indtut2, sicil::indtut3};
constexpr std::array<Kolon<Brd, Tutar>, 10> CiraktaSifirlanan{
    brd::sskkesinti, brd::issizisci,        brd::gvmatrah,     brd::gvtutar,           brd::dvtutar,
    brd::katki,      brd::sskmatrahisveren, brd::issizisveren, brd::sskkesintiisveren, brd::ogv};

}  // namespace

template <class I>
void Hesap<I>::IsciPaylari() {
  k_.sskkesinti = PrimPayi(k_.sskmatrah, k_.sskiscior, yuvarla_);
  k_.issizisci = PrimPayi(k_.sskmatrah, k_.issiziscior, yuvarla_);
  izle_([&] {
    return IzAdimi("sskkesinti", "SSK işçi payı = SSK matrahı × oran / 100",
                   {{"SSK matrahı", k_.sskmatrah}, {"Oran %", k_.sskiscior}}, k_.sskkesinti);
  });
  izle_([&] {
    return IzAdimi("issizisci", "İşsizlik işçi payı = SSK matrahı × oran / 100",
                   {{"SSK matrahı", k_.sskmatrah}, {"Oran %", k_.issiziscior}}, k_.issizisci);
  });
}

template <class I>
void Hesap<I>::GelirVergisiMatrahi() {
  const Tutar kazanc = yuvarla_(k_.gvmatrah);
  k_.gvmatrah = SifirdanAzOlmaz(kazanc - (k_.sskkesinti + k_.issizisci));
  k_.dvmatrah = SifirdanAzOlmaz(k_.dvmatrah);
  kalanMatrah_ = k_.gvmatrah;
  izle_([&] {
    return IzAdimi(
        "gvmatrah", "Gelir vergisi matrahı = vergiye giren kazançlar − SSK işçi payı − işsizlik işçi payı",
        {{"Vergiye giren kazançlar", kazanc}, {"SSK işçi payı", k_.sskkesinti}, {"İşsizlik işçi payı", k_.issizisci}},
        k_.gvmatrah);
  });
  izle_([&] { return IzAdimi("dvmatrah", "Damga vergisine giren kazançların toplamı", {}, k_.dvmatrah); });
}

template <class I>
void Hesap<I>::Sakatlik() {
  if (sicil_.sakatdrc == 0) return;
  const Tutar aylik = yasal_.SakatIndirim[sicil_.sakatdrc - 1u];
  k_.sakindir = SakatlikIndirimi(aylik, sskGun_, kalanMatrah_, yuvarla_);
  kalanMatrah_ -= k_.sakindir;
  izle_([&] {
    return IzAdimi("sakindir", "Sakatlık indirimi = derecenin aylık tutarı / 30 × prim günü; matrahtan çok olamaz",
                   {{"Derece", int(sicil_.sakatdrc)}, {"Aylık tutar", aylik}, {"Prim günü", sskGun_}}, k_.sakindir);
  });
}

template <class I>
void Hesap<I>::DigerIndirimler() {
  for (std::size_t i = 0; i < IndirimKolonlari.size(); ++i) {
    const auto& tanim = (*g_.indirimler)[i];
    if (!(sicil_.*IndirimAnahtarlari[i].uye) || !tanim) continue;
    const Tutar kisiTutari = sicil_.*IndirimTutarlari[i].uye;
    Tutar& indirim = k_.*IndirimKolonlari[i].uye;
    indirim = IndirimHesapla(
        {*tanim, kisiTutari, k_.gvmatrah, k_.brutkaz, g_.yilIndirimi[i], yasal_.MuafTavan, kalanMatrah_}, yuvarla_);
    kalanMatrah_ -= indirim;
    izle_([&] {
      return IzAdimi(IndirimKolonlari[i].ad,
                     tanim->adi +
                         ": kişinin tutarı, yoksa sabit tutar, o da yoksa matrahın oranı; "
                         "brütün % 10'u (özel sigortada % 5'i) ile sınırlı, yıllık tavan aşılırsa o ay indirim yok",
                     {{"İndirim yeri", int(tanim->indtip)},
                      {"Kişinin tutarı", kisiTutari},
                      {"Sabit", tanim->sabit},
                      {"Oran %", tanim->oran},
                      {"Brüt kazanç", k_.brutkaz},
                      {"Yıl içi toplam", g_.yilIndirimi[i]},
                      {"Yıllık tavan", yasal_.MuafTavan}},
                     indirim);
    });
  }
}

// Each bracket that the month reaches, before the tax itself.
template <class I>
void Hesap<I>::VergiDilimleriniIzle() {
  if constexpr (std::is_same_v<I, Izli>) {
    for (const DilimMatrahi& d : DilimMatrahlari(g_.yasal->gv, k_.devgvmatrah, kalanMatrah_))
      izle_([&] {
        return IzAdimi(
            "gvtutar", "Vergi dilimi: bu aydan dilime düşen matrah × oran / 100",
            {{"Dilimin altı", d.alt}, {"Dilimin üstü", d.ust}, {"Dilime düşen", d.matrah}, {"Oran %", d.oran}},
            Tutar(Yuzde(d.matrah.Sayi(), d.oran.Sayi())));
      });
  }
}

template <class I>
void Hesap<I>::Vergiler() {
  if (kalanMatrah_ > Tutar())
    k_.gvtutar = SifirdanAzOlmaz(yuvarla_(GvHesapla(g_.yasal->gv, k_.devgvmatrah, kalanMatrah_)));
  k_.dvtutar = DamgaVergisi(k_.dvmatrah, k_.damgaveror, yuvarla_);
  VergiDilimleriniIzle();
  izle_([&] {
    return IzAdimi("gvtutar", "Gelir vergisi = devreden matrah + kalan matrahın vergisi − devreden matrahın vergisi",
                   {{"Devreden matrah", k_.devgvmatrah}, {"Kalan matrah (indirimlerden sonra)", kalanMatrah_}},
                   k_.gvtutar);
  });
  izle_([&] {
    return IzAdimi("dvtutar", "Damga vergisi = damga matrahı × oran / 1000",
                   {{"Damga matrahı", k_.dvmatrah}, {"Oran (binde)", k_.damgaveror}}, k_.dvtutar);
  });
}

template <class I>
void Hesap<I>::IsverenTarafi() {
  const OranSatiri* dal = sicil_.sskdurum < DalSayisi ? &yasal_.IsverenOran[sicil_.sskdurum] : nullptr;
  const IsverenSonucu s = IsverenPayi(
      {sskGun_, k_.ui, k_.sskmatrah, k_.sskkesinti, k_.issizisci, k_.sskiscior, k_.issiziscior, k_.sskisverenor,
       k_.issizisverenor, yasal_.SskTaban, g_.TehlikeOran, dal == nullptr ? Tek() : dal->mal, k_.brdkanun},
      uygulama_, yuvarla_);
  k_.sskmatrahisveren = s.sskmatrahisveren;
  k_.sskkesintiisveren = s.sskkesintiisveren;
  k_.issizisveren = s.issizisveren;
  k_.katki = s.katki;
  izle_([&] {
    return IzAdimi("sskmatrahisveren", "İşveren matrahı = işçi matrahı; ikinci dönemden sonra gün tabanına yükseltilir",
                   {{"İşçi matrahı", k_.sskmatrah},
                    {"SSK taban", yasal_.SskTaban},
                    {"Prim günü", sskGun_},
                    {"Uygulama dönemi", int(uygulama_)}},
                   s.sskmatrahisveren);
  });
  izle_([&] {
    return IzAdimi("sskkesintiisveren",
                   "SSK işveren payı = işveren matrahı × oran / 100 − izin günlerinin iş kazası primi "
                   "+ taban farkının işçi payı",
                   {{"İşveren matrahı", s.sskmatrahisveren},
                    {"Oran %", k_.sskisverenor},
                    {"Prim", s.prim},
                    {"İzin düşümü", s.izinDususu},
                    {"İşçi farkı", s.isciFarki}},
                   s.sskkesintiisveren);
  });
  izle_([&] {
    return IzAdimi("issizisveren",
                   "İşsizlik işveren payı = işveren matrahı × oran / 100 (taban farkında işçi payı da "
                   "eklenir)",
                   {{"İşveren matrahı", s.sskmatrahisveren}, {"Oran %", k_.issizisverenor}}, s.issizisveren);
  });
  izle_([&] {
    return IzAdimi("katki",
                   "Devlet katkısı: 01.10.2008'den sonra kişinin kanununa göre; 2004 ilk yarısında tabana "
                   "tamamlanan fark",
                   {{"Kanun", int(k_.brdkanun)}, {"Uygulama dönemi", int(uygulama_)}}, s.katki);
  });
}

template <class I>
void Hesap<I>::AsgariGecimIndirimi() {
  net_ = k_.brutkaz - (k_.sskkesinti + k_.gvtutar + k_.dvtutar + k_.issizisci);
  const AgiTablosu& tablo = g_.yasal->agi;
  k_.agioran = tablo.AgiKendisi;
  k_.agimatrah = tablo.AgiTaban;
  const bool yururlukte = uygulama_ == Uygulama::D2008 || uygulama_ == Uygulama::D5510;
  if (!yururlukte || !sicil_.agi || k_.brutkaz <= Tutar()) return;
  k_.agioran = AgiOrani(tablo, g_.aile);
  k_.ogv = AgiHesapla(tablo, k_.agioran, g_.yasal->gv.GvOran[0], k_.gvtutar, yuvarla_);
  net_ += k_.ogv;
  izle_([&] {
    return IzAdimi(
        "agioran", "Asgari geçim indirimi oranı = kendisi + eş + çocuklar (en çok dört)",
        {{"Kendisi %", tablo.AgiKendisi}, {"Sayılan eş", g_.aile.agiEs}, {"Sayılan çocuk", g_.aile.agiCocuk}},
        k_.agioran);
  });
  izle_([&] {
    return IzAdimi("ogv", "Asgari geçim indirimi = taban × oran × ilk vergi dilimi oranı; gelir vergisini geçemez",
                   {{"Taban", tablo.AgiTaban},
                    {"Oran %", k_.agioran},
                    {"İlk dilim %", g_.yasal->gv.GvOran[0]},
                    {"Gelir vergisi", k_.gvtutar}},
                   k_.ogv);
  });
}

template <class I>
void Hesap<I>::SendikaVeCirak() {
  if (g_.sendika != nullptr) {
    k_.sendika = SendikaHesapla(*g_.sendika, {net_, k_.sskmatrah, k_.brutkaz, k_.ucret}, yuvarla_);
    izle_([&] {
      return IzAdimi("sendika",
                     "Sendika aidatı: kesinti yerinin oranı veya sabit tutar, taban ve tavanla sınırlı; net "
                     "yetmezse kesilmez",
                     {{"Kesinti yeri", int(g_.sendika->yer)},
                      {"Oran %", g_.sendika->oran},
                      {"Sabit", g_.sendika->sabit},
                      {"Net", net_}},
                     k_.sendika);
    });
  }
  if (CirakMi(sicil_)) CirakSifirla();
}

// An apprentice is paid his base: no premium of either side, no tax, no allowance in his record (law 3308, article 25:
// the state bears the premiums, the wage is free of tax).
template <class I>
void Hesap<I>::CirakSifirla() {
  const char* const kural = "Çırak: brüt kazanç SSK matrahıdır; vergi, prim, katkı ve asgari geçim indirimi yoktur";
  k_.brutkaz = net_ = k_.sskmatrah;
  izle_([&] { return IzAdimi("brutkaz", kural, {{"SSK matrahı", k_.sskmatrah}}, k_.brutkaz); });
  for (const auto& kolon : CiraktaSifirlanan) {
    k_.*kolon.uye = Tutar();
    izle_([&] { return IzAdimi(kolon.ad, kural, {}, Tutar()); });
  }
}

template <class I>
void Hesap<I>::NetOdenen() {
  k_.yuvarlama = k_.sendika + k_.borckes;
  net_ -= k_.yuvarlama;
  izle_([&] {
    return IzAdimi("yuvarlama", "Özel kesintiler = sendika + borç kesintisi",
                   {{"Sendika", k_.sendika}, {"Borç kesintisi", k_.borckes}}, k_.yuvarlama);
  });
  izle_([&] {
    return IzAdimi("NetOdenen",
                   "Net = brüt − SSK − işsizlik − gelir vergisi − damga vergisi + asgari geçim indirimi − "
                   "özel kesintiler",
                   {{"Brüt kazanç", k_.brutkaz},
                    {"SSK işçi payı", k_.sskkesinti},
                    {"İşsizlik", k_.issizisci},
                    {"Gelir vergisi", k_.gvtutar},
                    {"Damga vergisi", k_.dvtutar},
                    {"A.G.İ.", k_.ogv},
                    {"Özel kesintiler", k_.yuvarlama}},
                   net_);
  });
}

template class Hesap<Izsiz>;
template class Hesap<Izli>;

}  // namespace belvani
