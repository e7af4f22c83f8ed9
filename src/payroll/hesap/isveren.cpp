#include "payroll/hesap/isveren.h"

#include "payroll/hesap/oran.h"

namespace belvani {
namespace {

// What an era does, as data.
struct DonemKurali {
  bool tabanaYukselir;      // employer base raised to the floor
  bool tabanFarkiKatki;     // the difference to the floor is `katki` instead
  bool issizlikYuvarlanir;  // unemployment premium money-rounded
  bool izinDusulur;         // no work-accident premium on paid leave
  bool isciFarkiEklenir;    // employer bears the employee's share up to the floor
  bool kanunKatkisi;        // contribution by the law of the person
};

constexpr DonemKurali Kurallar[] = {
    //        yükselir  farkı katkı  yuvarlanır  izin   işçi farkı  kanun
    /* 1 */ {false, true, false, true, false, false},
    /* 2 */ {true, false, false, true, true, false},
    /* 3 */ {true, false, true, true, false, false},
    /* 4 */ {true, false, true, false, false, true},
};

// State contribution in the era of law 5510, by the law code of the person.
Tutar KanunKatkisi(const IsverenGirdisi& g, const IsverenSonucu& s, Tutar tabanGun, Yuvarlayici yuvarla) {
  const auto primYuzdesi = [&](double yuzde) { return yuvarla(Yuzde(s.sskkesintiisveren.Sayi(), yuzde)); };
  switch (g.kanun) {
    case 5510: {  // law 5510, article 81/i: five points of the invalidity and old-age share
      constexpr double BesPuan = 5;
      const bool malullukVar = PrimPayi(s.sskmatrahisveren, g.malulluk, yuvarla) > Tutar();
      return malullukVar ? yuvarla(Yuzde(s.sskmatrahisveren.Sayi(), BesPuan)) : Tutar();
    }
    case 5921:  // law 4447, temporary article 9, and article 50: the share on the floor
    case 44479:
      return yuvarla(Yuzde(tabanGun.Sayi(), g.sskisverenor.Sayi()));
    case 14447:  // law 4447, temporary article 7: first year whole, then a fifth less each year
      return s.sskkesintiisveren;
    case 24447:
      return primYuzdesi(80);
    case 34447:
      return primYuzdesi(60);
    case 44447:
      return primYuzdesi(40);
    case 54447:
      return primYuzdesi(20);
  }
  return Tutar();
}

}  // namespace

Uygulama UygulamaSec(int kod) {
  return kod == 1 || kod == 3 || kod == 4 ? Uygulama(kod) : Uygulama::D2007;
}

IsverenSonucu IsverenPayi(const IsverenGirdisi& g, Uygulama uygulama, Yuvarlayici yuvarla) {
  const DonemKurali& kural = Kurallar[int(uygulama) - 1];
  const Tutar tabanGun = GunlukSinir(g.SskTaban, g.SskGun, yuvarla);
  IsverenSonucu s;
  s.sskmatrahisveren = kural.tabanaYukselir ? std::max(g.sskmatrah, tabanGun) : g.sskmatrah;
  const double matrah = s.sskmatrahisveren.Sayi();

  const double issizlik = Yuzde(matrah, g.issizisverenor.Sayi());
  s.issizisveren = kural.issizlikYuvarlanir ? yuvarla(issizlik) : Tutar(issizlik);

  s.prim = PrimPayi(s.sskmatrahisveren, g.sskisverenor, yuvarla);
  s.sskkesintiisveren = s.prim;
  // Without premium days there is no leave to relieve.
  if (kural.izinDusulur && g.SskGun >= 1) {
    const double izinDususu = Yuzde(g.ui * (matrah / g.SskGun), g.TehlikeOran.Sayi());
    s.izinDususu = Tutar(izinDususu);
    s.sskkesintiisveren = Tutar(s.prim.Sayi() - izinDususu);
  }
  if (kural.isciFarkiEklenir && g.sskmatrah < tabanGun) {
    s.isciFarki = yuvarla(Yuzde(matrah, g.sskiscior.Sayi()) - g.sskkesinti.Sayi());
    s.sskkesintiisveren += s.isciFarki;
    s.issizisveren += yuvarla(Yuzde(matrah, g.issiziscior.Sayi()) - g.issizisci.Sayi());
  }
  if (kural.tabanFarkiKatki && matrah < GunlukSinir(g.SskTaban, g.SskGun)) s.katki = tabanGun - g.sskmatrah;
  if (kural.kanunKatkisi) s.katki = KanunKatkisi(g, s, tabanGun, yuvarla);
  return s;
}

}  // namespace belvani
