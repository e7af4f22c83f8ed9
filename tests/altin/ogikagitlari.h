// The lists of the personal-expense refund. The sample company has never declared an expense: its people do so here,
// with refunds of all kinds. In 2006 nothing is paid out; from 2008 on the months show the allowance, which the lists
// tell.
#pragma once

#include "altin/kagitlar.h"
#include "altin/kitapmetni.h"
#include "altin/sayfametni.h"
#include "core/store/satirlar.h"
#include "core/tables/tablolar.h"
#include "deductions/ogilistesi.h"
#include "payroll/parametre/dosyalar.h"

namespace belvani::test {

inline void HarcamalariYaz(OrnekSirket& o) {
  Motor& motor = o.oturum.depo.db.IcMotor();
  if (!KayitlariOku<Dvr>(motor, "where yil = 2005 limit 1").empty()) return;
  if (!OzelGiderKaydet(o.oturum.FirmaDizini, {Tek(35), 5, 2006, Tek(6)})) throw std::runtime_error("ozgvpar.dat");
  KayitYazici<Dvr> yazici(motor);
  int sira = 0;
  for (const Sicil& kisi : KayitlariOku<Sicil>(motor, "order by kod"))
    for (const int yil : {2005, 2007}) {
      ++sira;
      Dvr d;
      d.yilkod = std::to_string(yil) + kisi.kod;
      d.kod = kisi.kod;
      d.yil = std::int16_t(yil);
      d.gvmatrah = Tutar(500.25 * sira);
      d.ogimatrah = Tutar(sira % 7 == 0 ? 0 : 400.5 * (sira % 11));
      d.ogitutar = Tutar(sira % 9 == 0 ? -12.34 : 31.5 * (sira % 5));
      d.ogiodenen = Tutar(10.25 * (sira % 4));
      yazici.Ekle(d);
    }
}

inline Kagit OgiKagidi(const Ay& ay, const char* ad, const std::string& secenekler, const char* bicim) {
  return {ay, std::string(ad) + "." + bicim, [=](OrnekSirket& o) {
            HarcamalariYaz(o);
            return o.Komut(secenekler.substr(0, secenekler.find(' ')),
                           secenekler.substr(std::min(secenekler.size(), secenekler.find(' '))) + " --bicim " + bicim);
          }};
}

inline Kagit OgiCizimi(const Ay& ay, const char* ad, const OgiBordroSecimi& ogi) {
  return {ay, std::string(ad) + ".cizim.txt", [=](OrnekSirket& o) {
            HarcamalariYaz(o);
            return CizimMetni(
                *OgiBordroBelgesi(o.Kaynak(), o.Secim("", "ZZZZ"), ogi,
                                  {.satirArasi = SatirArasi::CizgiCek, .kolonArasi = KolonArasi::DikCizgi}, {})
                     ->Cizim());
          }};
}

inline Kagitlar OgiKagitlari() {
  return {OgiKagidi(IkinciDonem, "ogi-bordro", "ogi-bordro --ay 8", "metin"),
          OgiKagidi(IkinciDonem, "ogi-bordro", "ogi-bordro --ay 8", "csv"),
          OgiKagidi(IkinciDonem, "ogi-ayrilan", "ogi-bordro --ay 8 --tur ayrilan", "metin"),
          OgiKagidi(IkinciDonem, "ogi-kalan", "ogi-kalan", "csv"),
          OgiKagidi(UcuncuDonem, "ogi-odeme", "ogi-bordro --ay 7 --urun odeme", "metin"),
          OgiKagidi(UcuncuDonem, "ogi-mahsup", "ogi-mahsup", "metin"),
          OgiKagidi(UcuncuDonem, "ogi-mahsup", "ogi-mahsup --kod 001 004", "json"),
          OgiCizimi(UcuncuDonem, "ogi-bordro", {}),
          OgiCizimi(UcuncuDonem, "ogi-odeme", {.tur = OgiTuru::Calisan, .urun = OgiUrunu::OdemeListesi})};
}

}  // namespace belvani::test
