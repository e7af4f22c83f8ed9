#include "payroll/hesap/tazminat.h"

#include "payroll/hesap/netbrut.h"
#include "payroll/hesap/oran.h"
#include "payroll/hesap/ucret.h"
#include "payroll/hesap/vergi.h"

namespace belvani {
namespace {

// All that the employee pays, unemployment too.
double PrimOrani(const Sicil& sicil, const YasalOranlar& oranlar) {
  if (sicil.sskdurum >= DalSayisi) return 0;
  const OranSatiri& isci = oranlar.IsciOran[sicil.sskdurum];
  return Tek(OranToplami(isci) + isci.isz.Sayi()).Sayi();
}

double Gunluge(const Sicil& sicil, Tek IsSaati) {
  switch (UcretAgs(sicil.ucretags)) {
    case UcretAgs::Gunluk:
      return sicil.ucret.Sayi();
    case UcretAgs::Saatlik:
      return sicil.ucret.Sayi() * IsSaati.Sayi();
    case UcretAgs::Aylik:
      break;
  }
  return sicil.ucret.Sayi() / AyGunu30;
}

// The steps go to the trace where one is asked for.
class Adimlar {
 public:
  explicit Adimlar(Iz* iz) : iz_(iz) {}
  template <class AdimYapan>
  void operator()(AdimYapan&& yap) const {
    if (iz_ != nullptr) iz_->push_back(yap());
  }

 private:
  Iz* iz_;
};

double NettenGunluge(double gunlukNet, const Sicil& sicil, const KidemKurallari& k, const KidemMatrahi& matrah,
                     const Adimlar& izle) {
  const YasalOranlar& oranlar = k.yasal->oranlar;
  const Tutar net = Yuvarlayici(k.paraonda)(AyGunu30 * gunlukNet);
  const double prim = PrimOrani(sicil, oranlar);
  const Tutar brut =
      NettenBrut(k.yasal->gv, net, {prim, oranlar.DamgaOran.Sayi(), matrah.dvgvmatrah, oranlar.SskTavan, k.paraonda});
  izle([&] {
    return IzAdimi("AylikUcret", "Aylık netten brüte: prim, vergi ve damgadan sonra bu neti bırakan brüt",
                   {{"Aylık net", net}, {"Prim %", prim}, {"Devreden matrah", matrah.dvgvmatrah}}, brut);
  });
  return brut.Sayi() / AyGunu30;
}

double GunlukBrut(const Sicil& sicil, const KidemKurallari& k, const KidemMatrahi& matrah, const Adimlar& izle) {
  switch (UcretTipi(sicil.ucrettipi)) {
    case UcretTipi::Net:
      return NettenGunluge(Gunluge(sicil, k.IsSaati), sicil, k, matrah, izle);
    case UcretTipi::Asgari:
      return k.yasal->oranlar.AsgariUcret.Sayi() / AyGunu30;
    case UcretTipi::Brut:
      break;
  }
  return Gunluge(sicil, k.IsSaati);
}

// What an amount of a step is for its reader; the calculation goes on with all its decimals.
Tutar Adimda(double tutar) {
  return Tutar(tutar);
}

void SureyiIzle(const KidemKurallari& k, const KidemGirdisi& g, const KidemSonucu& s, const Adimlar& izle) {
  izle([&] {
    return IzAdimi(
        "CalismaGunu",
        k.kidem.TakvimYili() ? "Kıdem günü = çıkış − giriş + 1"
                             : "Kıdem günü = (çıkış − giriş + 1) / 365 × 360, kesri atılır",
        {{"Giriş", g.girtar.Metin()}, {"Çıkış", g.ciktar.Metin()}, {"Takvim günü", GunSayisi(g.girtar, g.ciktar)}},
        s.CalismaGunu);
  });
  izle([&] {
    return IzAdimi("KidemYil", "Kıdem yılı = kıdem günü / yılın günü",
                   {{"Kıdem günü", s.CalismaGunu}, {"Yılın günü", k.kidem.YilGunu()}}, Adimda(s.KidemYil));
  });
  izle([&] {
    return g.IhbarGun ? IzAdimi("IhbarGun", "İhbar günü elle yazıldı", {}, s.IhbarGun)
                      : IzAdimi("IhbarGun", "İhbar günü: ihbar süreleri tablosunda ayın düştüğü satır",
                                {{"Kıdem günü", s.CalismaGunu}, {"Ay = (30 + gün) / 30", (30 + s.CalismaGunu) / 30}},
                                s.IhbarGun);
  });
}

// What the amounts rest on: the wage of a day, the ceiling, the taxes that the company takes, the year's base.
void DayanaklariIzle(const KidemGirdisi& g, const KidemTutarlari& t, const Adimlar& izle) {
  izle([&] {
    return IzAdimi("gunlukUcret", "Günlük ücret = aylık ücret / 30", {{"Aylık ücret", g.AylikUcret}},
                   Adimda(t.gunlukUcret));
  });
  izle([&] { return IzAdimi("kidemTavan", "Kıdem tavanı: kıdeme esas aylık ücretin sınırı", {}, g.KidemTavan); });
  const auto alinir = [&](std::uint8_t isaret) {
    return std::string((g.bayraklar & isaret) != 0 ? "alınır" : "alınmaz");
  };
  izle([&] {
    return IzAdimi("bayraklar", "Kazanç tanımının işaretleri: hangi vergiler alınır",
                   {{"Gelir vergisi", alinir(bayrak::Gv)}, {"Damga vergisi", alinir(bayrak::Dv)}}, int(g.bayraklar));
  });
  izle([&] {
    return IzAdimi("dvgvmatrah", "Devreden matrah = yılın çıkış ayından önceki aylarının vergi matrahı", {},
                   g.matrah.dvgvmatrah);
  });
  izle([&] {
    return IzAdimi("dvgvtutar", "Devreden vergi = yılın çıkış ayından önceki aylarının gelir vergisi", {},
                   g.matrah.dvgvtutar);
  });
}

void KideminIzi(const KidemKurallari& k, const KidemGirdisi& g, const KidemSonucu& s, const Adimlar& izle) {
  const KidemTutarlari& t = *s.tutarlar;
  izle([&] {
    return IzAdimi("gunlukEsas",
                   g.AylikUcret > g.KidemTavan ? "Günlük esas = tavan / 30 (ücret tavanı aşıyor)"
                                               : "Günlük esas = aylık ücret / 30 (ücret tavanı aşmıyor)",
                   {{"Aylık ücret", g.AylikUcret}, {"Kıdem tavanı", g.KidemTavan}}, Adimda(t.gunlukEsas));
  });
  izle([&] {
    return IzAdimi("gunlukKidem", "Günlük kıdem = günlük esas × 30 / yılın günü",
                   {{"Günlük esas", Adimda(t.gunlukEsas)}, {"Yılın günü", k.kidem.YilGunu()}}, Adimda(t.gunlukKidem));
  });
  izle([&] {
    return IzAdimi("brutKidem", "Brüt kıdem = kıdem günü × günlük kıdem",
                   {{"Kıdem günü", s.CalismaGunu}, {"Günlük kıdem", Adimda(t.gunlukKidem)}}, Adimda(t.brutKidem));
  });
}

// Stamp duty of one of the pays; `pay` names it in the trace.
Tutar Damga(const KidemKurallari& k, const KidemGirdisi& g, double brut, std::string_view alan, const Adimlar& izle) {
  const Tek binde = k.yasal->oranlar.DamgaOran;
  const bool alinir = (g.bayraklar & bayrak::Dv) != 0;
  const Tutar damga = alinir ? Yuvarlayici(k.paraonda)(binde.Sayi() * brut / 1000) : Tutar();
  izle([&] {
    return alinir ? IzAdimi(alan, "Damga vergisi = oran × brüt / 1000",
                            {{"Oran (binde)", binde}, {"Brüt", Adimda(brut)}}, damga)
                  : IzAdimi(alan, "Damga vergisi alınmadı: kazanç tanımında işaretli değil", {}, damga);
  });
  return damga;
}

void DilimleriIzle(const KidemKurallari& k, const KidemGirdisi& g, Tutar brut, const Adimlar& izle) {
  for (const DilimMatrahi& d : DilimMatrahlari(k.yasal->gv, g.matrah.dvgvmatrah, brut))
    izle([&] {
      return IzAdimi("ihbarGelirVergisi", "Vergi dilimi: ihbardan dilime düşen × oran / 100",
                     {{"Dilimin altı", d.alt}, {"Dilimin üstü", d.ust}, {"Dilime düşen", d.matrah}, {"Oran %", d.oran}},
                     Tutar(Yuzde(d.matrah.Sayi(), d.oran.Sayi())));
    });
}

// Not money-rounded, as the tax of a month is.
Tutar GelirVergisi(const KidemKurallari& k, const KidemGirdisi& g, double brutIhbar, Iz* iz) {
  const Adimlar izle(iz);
  if ((g.bayraklar & bayrak::Gv) == 0) {
    izle([&] {
      return IzAdimi("ihbarGelirVergisi", "Gelir vergisi alınmadı: kazanç tanımında işaretli değil", {}, Tutar());
    });
    return {};
  }
  const Tutar brut(brutIhbar);
  const Tutar vergi = GvHesapla(k.yasal->gv, g.matrah.dvgvmatrah, brut);
  if (iz != nullptr) DilimleriIzle(k, g, brut, izle);
  izle([&] {
    return IzAdimi("ihbarGelirVergisi", "Gelir vergisi = devreden matrah + ihbarın vergisi − devreden matrahın vergisi",
                   {{"Devreden matrah", g.matrah.dvgvmatrah}, {"Brüt ihbar", brut}}, vergi);
  });
  return vergi;
}

void NetleriIzle(const KidemGirdisi& g, const KidemTutarlari& t, const Adimlar& izle) {
  izle([&] {
    return IzAdimi("netKidem", "Net kıdem = brüt − damga vergisi",
                   {{"Brüt", Adimda(t.brutKidem)}, {"Damga vergisi", t.kidemDamga}}, Adimda(t.netKidem));
  });
  izle([&] {
    return IzAdimi(
        "netIhbar", "Net ihbar = brüt − (gelir vergisi + damga vergisi)",
        {{"Brüt", Adimda(t.brutIhbar)}, {"Gelir vergisi", t.ihbarGelirVergisi}, {"Damga vergisi", t.ihbarDamga}},
        Adimda(t.netIhbar));
  });
  izle([&] {
    return IzAdimi("netToplam", "Net toplam = net ihbar + net kıdem, hariç tutulan taraf 0",
                   {{"Net ihbar", g.ihbarHaric ? std::string("hariç") : OndalikMetin(Adimda(t.netIhbar))},
                    {"Net kıdem", g.kidemHaric ? std::string("hariç") : OndalikMetin(Adimda(t.netKidem))}},
                   Adimda(t.netToplam));
  });
}

}  // namespace

Tutar UcretYukle(const Sicil& sicil, const KidemKurallari& k, const KidemMatrahi& matrah, Iz* iz) {
  const Adimlar izle(iz);
  const double gunluk = GunlukBrut(sicil, k, matrah, izle);
  const Tutar aylik(AyGunu30 * gunluk);
  izle([&] {
    return IzAdimi("AylikUcret", "Aylık ücret = 30 × günlük brüt", {{"Günlük brüt", Adimda(gunluk)}}, aylik);
  });
  return aylik;
}

int KidemGunu(const KidemParametreleri& kidem, Tarih girtar, Tarih ciktar) {
  const int gun = GunSayisi(girtar, ciktar);
  if (kidem.TakvimYili()) return gun;
  return int(double(gun) / TakvimYiliGunu * HesapYiliGunu);
}

int IhbarGunu(const IhbarSureleri& sureler, int CalismaGunu) {
  const int ay = (30 + CalismaGunu) / 30;
  int gun = sureler[0].gun;
  int ilkAy = 0;
  for (const IhbarSuresi& satir : sureler) {
    if (satir.ay <= 0) continue;
    if (ay < ilkAy) break;
    gun = satir.gun;
    ilkAy = satir.ay + 1;
  }
  return gun;
}

KidemSonucu KidemHesapla(const KidemKurallari& k, const KidemGirdisi& g, Iz* iz) {
  const Adimlar izle(iz);
  KidemSonucu s;
  s.CalismaGunu = KidemGunu(k.kidem, g.girtar, g.ciktar);
  s.KidemYil = double(s.CalismaGunu) / k.kidem.YilGunu();
  s.IhbarGun = g.IhbarGun.value_or(IhbarGunu(k.ihbar, s.CalismaGunu));
  SureyiIzle(k, g, s, izle);
  if (g.AylikUcret <= Tutar()) return s;
  KidemTutarlari& t = s.tutarlar.emplace();
  t.gunlukUcret = g.AylikUcret.Sayi() / AyGunu30;
  t.gunlukEsas = std::min(g.AylikUcret, g.KidemTavan).Sayi() / AyGunu30;
  t.gunlukKidem = t.gunlukEsas * 30 / k.kidem.YilGunu();
  DayanaklariIzle(g, t, izle);
  t.brutKidem = s.CalismaGunu * t.gunlukKidem;
  KideminIzi(k, g, s, izle);
  t.kidemDamga = Damga(k, g, t.brutKidem, "kidemDamga", izle);
  t.brutIhbar = s.IhbarGun * t.gunlukUcret;
  izle([&] {
    return IzAdimi("brutIhbar", "Brüt ihbar = ihbar günü × günlük ücret",
                   {{"İhbar günü", s.IhbarGun}, {"Günlük ücret", Adimda(t.gunlukUcret)}}, Adimda(t.brutIhbar));
  });
  t.ihbarGelirVergisi = GelirVergisi(k, g, t.brutIhbar, iz);
  t.ihbarDamga = Damga(k, g, t.brutIhbar, "ihbarDamga", izle);
  t.netKidem = t.brutKidem - t.kidemDamga.Sayi();
  t.netIhbar = t.brutIhbar - (t.ihbarGelirVergisi + t.ihbarDamga).Sayi();
  t.netToplam = (g.ihbarHaric ? 0 : t.netIhbar) + (g.kidemHaric ? 0 : t.netKidem);
  for (const double tutar : {t.brutKidem, t.brutIhbar, t.netToplam}) Adimda(tutar);  // or TutarTasmasi
  NetleriIzle(g, t, izle);
  return s;
}

Tutar Gosterilen(double tutar, int paraonda) {
  if (!(std::fabs(tutar) < Tutar::Sinir)) throw TutarTasmasi();
  return TutarOku(SayiFormat(SayiMetni(tutar), std::clamp(paraonda, 0, 4), 0)).value_or(Tutar());
}

}  // namespace belvani
