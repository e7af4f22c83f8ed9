// A company for the tests of preparation: parameters of a month installed, no people yet.
#pragma once

#include <stdexcept>

#include "bildirim.h"
#include "core/store/satirlar.h"
#include "core/tables/tablolar.h"
#include "gecici.h"
#include "payroll/hazirlik/hazirlik.h"
#include "payroll/parametre/mevzuat.h"
#include "veriyeri.h"

namespace belvani::test {

template <class T>
T Al(Sonuc<T> sonuc) {
  if (!sonuc) throw std::runtime_error(sonuc.KusurMetni());
  return std::move(*sonuc);
}

inline YasalParametreler Yasal(int yil, int ay) {
  return Al(MevzuatYukle(KaynakYolu("data/mevzuat/"), yil, ay));
}

struct Sirket {
  GeciciDizin dizin;
  VeriYeri veriYeri{dizin.Yol()};
  ToplayanBildirim bildirim;
  Oturum o;

  Sirket() {
    o.DataPath = veriYeri.Yer();
    Al(SirketOlustur(o, "DENEME", "a", ""));
    FirmaYukle(o);
  }

  Motor& motor() { return o.depo.db.IcMotor(); }

  template <class Kayit>
  void Yaz(const Kayit& kayit) {
    KayitYazici<Kayit>(motor()).Ekle(kayit);
  }

  void Kisi(const std::string& kod, double ucret, Tarih girtar = Tarih(2005, 1, 1), Tarih ciktar = {}) {
    Sicil s;
    s.kod = kod;
    s.ucret = Tutar(ucret);
    s.girtar = girtar;
    s.ciktar = ciktar;
    s.agi = true;
    Yaz(s);
  }

  // As a session that has just come: a test writes the card behind its back.
  Kosullar Kosul(int yil, int ay) {
    FirmaYukle(o);
    return Al(KosullariYukle(o, Yasal(yil, ay), yil, ay));
  }

  HazirlikSonucu Hazirla(int yil, int ay, const std::vector<GirisSatiri>& girisler = {}) {
    return Al(TopluHazirla(o, Kosul(yil, ay), girisler));
  }

  std::vector<Brd> Kayitlar(int yil, int ay) {
    return KayitlariOku<Brd>(motor(), "where yil = ? and ay = ? order by kod", {std::int64_t(yil), std::int64_t(ay)});
  }
  Brd Kayit(const std::string& kod, int yil, int ay) {
    const auto k =
        KayitlariOku<Brd>(motor(), "where kod = ? and yil = ? and ay = ?", {kod, std::int64_t(yil), std::int64_t(ay)});
    if (k.size() != 1) throw std::runtime_error(kod + ": " + std::to_string(k.size()) + " records");
    return k.front();
  }
};

// An entry of days worked and nothing else, unless more is set.
inline GirisSatiri Giris(const std::string& kod, int ng) {
  GirisSatiri g;
  g.satirNo = 2;
  g.kod = kod;
  g.deger.ng = std::uint8_t(ng);
  g.verilen = {"ng", "ht"};
  return g;
}

}  // namespace belvani::test
