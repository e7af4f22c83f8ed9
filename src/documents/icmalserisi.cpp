#include "documents/icmalserisi.h"

#include "core/store/satirlar.h"
#include "documents/turetilen.h"
#include "payroll/hesap/kayittoplami.h"

namespace belvani {
namespace {

std::string Kaynak() {
  return " from brd b join sicil s on s.kod = b.kod where b.yil = ? and b.ay = ? and " + SskGunuSql("b.") + " > 0";
}

std::string Sorgu() {
  const auto toplami = [](const Ifade& ifade) { return ", coalesce(sum(" + Sql(ifade, "b.") + "), 0)"; };
  return "select count(distinct b.kod)" + toplami(brd::brutkaz) + toplami(toplam::odenen) +
         toplami(toplam::isverenMaliyeti) + Kaynak();
}

// The allowance and its duty, which is rounded record by record.
Tutar AgiNetleri(Motor& motor, int yil, int ay, const IcmalKosulu& kosul) {
  const auto komut = motor.Hazirla("select b.dvtutar, b.ogv" + Kaynak() + " and b.ogv <> 0");
  komut->TamBagla(1, yil);
  komut->TamBagla(2, ay);
  Tutar net;
  for (Brd b; komut->Adim();) {
    KolonAl(*komut, 0, b.dvtutar);
    KolonAl(*komut, 1, b.ogv);
    net += AgiNeti(b, kosul.damgaOran, kosul.yuvarla);
  }
  return net;
}

}  // namespace

IcmalAyi IcmalAyiOku(Motor& motor, int yil, int ay, const IcmalKosulu& kosul) {
  IcmalAyi m;
  m.yil = yil;
  m.ay = ay;
  const auto komut = motor.Hazirla(Sorgu());
  komut->TamBagla(1, yil);
  komut->TamBagla(2, ay);
  if (!komut->Adim()) return m;
  m.kisi = komut->TamSigan<int>(0);
  m.brut = Tutar::Hamdan(komut->Tam(1));
  m.net = Tutar::Hamdan(komut->Tam(2)) + AgiNetleri(motor, yil, ay, kosul);
  m.maliyet = Tutar::Hamdan(komut->Tam(3));
  return m;
}

IcmalSerisi BosIcmalSerisi(int yil, int ay) {
  IcmalSerisi seri;
  const int ilk = yil * 12 + ay - int(seri.size());  // months since year 0
  for (std::size_t i = 0; i < seri.size(); ++i) {
    const int sira = ilk + int(i);
    seri[i].yil = sira / 12;
    seri[i].ay = sira % 12 + 1;
  }
  return seri;
}

IcmalSerisi IcmalSerisiOku(Motor& motor, int yil, int ay, const IcmalKosulu& kosul) {
  IcmalSerisi seri = BosIcmalSerisi(yil, ay);
  for (IcmalAyi& m : seri) m = IcmalAyiOku(motor, m.yil, m.ay, kosul);
  return seri;
}

}  // namespace belvani
