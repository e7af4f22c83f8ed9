#include "screens/payroll/gvtablo.h"

#include "payroll/parametre/dosyalar.h"
#include "payroll/parametre/ekrankurallari.h"
#include "payroll/parametre/indir.h"
#include "screens/payroll/parametrealani.h"

namespace belvani {
namespace {

struct TabloYili {
  std::int16_t yil = 0;
};

std::vector<SatirKolonu<VergiDilimi>> DilimKolonlari(int paraonda) {
  constexpr auto oran = UyeTanimi<&GvTablosu::GvOran>();
  return {{'b', "alt", "Matrah Aralığı", 150, [](const VergiDilimi& d, std::size_t) { return d.alt; }},
          UyeKolonu("limit", UyeTanimi<&GvTablosu::GvLimit>().etiket, 170, &VergiDilimi::limit, {.ondalik = paraonda}),
          UyeKolonu("oran", oran.etiket, 90, &VergiDilimi::oran, {.enCok = oran.enCok})};
}

GvTablosu TabloYap(const std::vector<VergiDilimi>& satirlar) {
  GvTablosu tablo;
  for (std::size_t i = 0; i < satirlar.size(); ++i) {
    tablo.GvLimit[i] = satirlar[i].limit;
    tablo.GvOran[i] = satirlar[i].oran;
  }
  return tablo;
}

}  // namespace

gvtablo::gvtablo(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : gvtablo(baglam, parametreler,
              std::exchange(baglam.oturum.PencereTip, {}) == "GV" ? Tur::GelirVergisi : Tur::OzelGider) {}

gvtablo::gvtablo(EkranBaglami& baglam, ParametreDeposu& parametreler, Tur tur)
    : ListeEkrani(baglam, parametreler, "gvtablo",
                  tur == Tur::GelirVergisi ? QStringLiteral("Gelir Vergisi Tablosu")
                                           : QStringLiteral("Özel Gider İndirimi GV Tablosu"),
                  DilimKolonlari(baglam.oturum.firma.paraonda)),
      tur_(tur),
      ozel_(OzelGvYukle(baglam.oturum.DataPath).deger) {
  Liste().HucreDegisti = [this](int, const QString&) { AltSinirlariGoster(); };
  if (tur_ == Tur::GelirVergisi)
    IndirDugmesi(ParametreDosyasi::Gv, [this] { ListeyiGoster(); });
  else
    YayimlananDugmesi();
  Ac(
      8, [this] { return Dilimler(); }, [this](const auto& satirlar) { return Sakla(TabloYap(satirlar)); });
}

std::vector<VergiDilimi> gvtablo::Dilimler() const {
  const GvTablosu& tablo = tur_ == Tur::GelirVergisi ? Parametreler().yasal.gv : ozel_;
  std::vector<VergiDilimi> satirlar;
  for (std::size_t i = 0; i < tablo.GvLimit.size(); ++i)
    satirlar.push_back({GvAltSinirMetni(tablo, int(i)), tablo.GvLimit[i], tablo.GvOran[i]});
  return satirlar;
}

bool gvtablo::Sakla(const GvTablosu& tablo) {
  if (tur_ == Tur::GelirVergisi) return YasalYazildi(GvTablosuKaydet(Oturumu().DataPath, tablo));
  if (!YasalYazildi(OzelGvKaydet(Oturumu().DataPath, tablo))) return false;
  ozel_ = tablo;
  return true;
}

// The shipped table of the year whose expenses are declared.
void gvtablo::YayimlananDugmesi() {
  AlanlariDiz(
      {{{"Yayımlanan Tablo",
         {{Uye("yil", &TabloYili::yil), "Yıl", {.enAz = 1990, .enCok = 2100, .harf = 6, .kayitDisi = true}}}}}});
  Yukle(TabloYili{Oturumu().firma.firmayil});
  IlkOdak(&Liste());
  Komutlar({{.dugme = "Yayımlanan Tabloyu Al", .simge = "indir", .islev = [this] { YayimlananiAl(); }}});
}

void gvtablo::YayimlananiAl() {
  TabloYili secilen;
  if (!Oku(secilen)) return;
  const auto tablo = OzelGvMevzuati(MevzuatDizini(), secilen.yil, DefterLirasi(Oturumu(), secilen.yil));
  if (!Oldu(tablo)) return;
  const std::string soru = std::to_string(secilen.yil) + " yılının tablosu buradakinin yerine yazılsın mı ?";
  const bool sorulur = TabloYap(Okunan()) != GvTablosu() && TabloYap(Okunan()) != *tablo;
  if ((!sorulur || Bildirimi().Soru(soru)) && Sakla(*tablo)) ListeyiGoster();
}

// The bound of a row follows the limit typed above it.
void gvtablo::AltSinirlariGoster() {
  const GvTablosu tablo = TabloYap(Okunan());
  for (int satir = 0; satir < Liste().ListCount(); ++satir)
    Liste().TextByName(satir, "alt", Yazi(GvAltSinirMetni(tablo, satir)));
}

}  // namespace belvani
