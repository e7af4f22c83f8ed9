#include "payroll/devir/aylikbilgi.h"

#include "core/sayi.h"
#include "core/store/koru.h"
#include "core/store/satirlar.h"
#include "core/yuvarlama.h"
#include "payroll/devir/satirlar.h"
#include "payroll/hazirlik/hazirlik.h"
#include "payroll/hesap/kayittoplami.h"
#include "payroll/hesap/oranlitutar.h"

namespace belvani {
namespace {

constexpr double EnCokFark = 0.01;
constexpr SilmeSozleri BordroSozleri{"Bu Satırdaki Bordro Kaydını Silecekmisiniz ?", "Bordro Kaydı Silinemedi",
                                     "Bordro Kaydı Bulunamadı"};

// The person has another record of that month.
bool AyiVar(Oturum& o, const Brd& b) {
  return o.depo.db.Koru(false, [&] {
    const auto komut =
        o.depo.db.IcMotor().Hazirla("select 1 from brd where yil = ? and ay = ? and kod = ? and oto <> ?");
    komut->TamBagla(1, b.yil);
    komut->TamBagla(2, b.ay);
    komut->MetinBagla(3, b.kod);
    komut->TamBagla(4, b.oto);
    const bool var = komut->Adim();
    komut->Birak();
    return var;
  });
}

std::optional<Kusur> SatirKusuru(Oturum& o, const Okunan<Brd>& satir) {
  const Brd& b = satir.simdi;
  if (const std::string kusur = DegerKusuru(brd::ay, UyeDegeri(b.ay)); !kusur.empty())
    return KuralKusuru("Ay: " + kusur, brd::ay);
  if (const std::string kusur = DegerKusuru(brd::yil, UyeDegeri(b.yil)); !kusur.empty())
    return KuralKusuru("Dönem Yıl: " + kusur, brd::yil);
  if (satir.ilk && satir.ilk->ay != b.ay && AyiVar(o, b))
    return KuralKusuru("Bu Personelin " + AyMetni(b.yil, b.ay) + " bordrosu zaten var, ayı değiştirilemez", brd::ay);
  return std::nullopt;
}

std::string Para(double tutar) {
  return TutarMetni(Tutar(tutar), 2);
}

// What the amount comes to by base and rate, as the company's money is rounded; nothing where there is no rate.
std::optional<std::string> OranKusuru(const OranliTutar& t, const Brd& b, Yuvarlayici yuvarla) {
  if (b.*t.oran == Tek()) return std::nullopt;
  const double hesap = t.Hesabi(b);
  const double fark = std::min(t.Farki(b), std::fabs((b.*t.tutar - yuvarla(hesap)).Sayi()));
  if (fark <= EnCokFark + 1e-9) return std::nullopt;
  return std::string(t.ad) + " " + Para((b.*t.tutar).Sayi()) + ", matrah x oran " + Para(yuvarla(hesap).Sayi());
}

}  // namespace

std::vector<Brd> AylikBilgiler(Oturum& o, std::string_view kod, int yil) {
  return o.depo.db.Koru(std::vector<Brd>(), [&] {
    return KayitlariOku<Brd>(o.depo.db.IcMotor(), "where kod = ? and yil = ? order by ay, no, oto",
                             {TemizKod(kod), std::int64_t(yil)});
  });
}

Yazim<Brd> AylikBilgiKaydet(Oturum& o, const Okunan<Brd>& satir) {
  Okunan<Brd> kayit = satir;
  const auto kart = KoduBul<Sicil>(o, kayit.simdi.kod);
  if (!kart) return {KuralKusuru("Bu Kodda Personel Yok: " + kayit.simdi.kod, brd::kod)};
  if (auto kusur = SatirKusuru(o, kayit)) return {*std::move(kusur)};
  if (!kayit.ilk) kayit.simdi.no = 1;
  kayit.simdi.kod = kayit.ilk ? kayit.ilk->kod : kart->kod;
  const Yazim<Brd> yapilamiyor{YazmaEngeli<Brd>(Kusur{"Kayıt Yapılamıyor"})};
  return o.depo.db.Koru(yapilamiyor, [&] { return BordroKaydet(o.depo.db.IcMotor(), kayit); });
}

Sonuc<Silme> AylikBilgiSil(Oturum& o, const Brd& satir, Bildirim& bildirim) {
  const std::string giden = satir.kod + ", " + AyMetni(satir.yil, satir.ay);
  return SatirSil<Brd>(o, std::int64_t(satir.oto), giden, BordroSozleri, bildirim);
}

std::vector<std::string> AritmetikKusurlari(const Brd& b, int paraonda) {
  std::vector<std::string> kusurlar;
  const Yuvarlayici yuvarla(paraonda);
  const auto bak = [&](const auto& tutarlar) {
    for (const OranliTutar& t : tutarlar)
      if (auto kusur = OranKusuru(t, b, yuvarla)) kusurlar.push_back(*std::move(kusur));
  };
  const Durum bakildi = Koru([&] {
    const Tutar kesinti = Degeri(toplam::isciToplam, b);
    if (b.brutkaz < kesinti)
      kusurlar.push_back("Brüt kazanç " + Para(b.brutkaz.Sayi()) + ", prim ve vergilerin toplamı olan " +
                         Para(kesinti.Sayi()) + " tutarından az");
    if (KesintisizKayit(b)) return;
    bak(IscininTutarlari);
    if (IsvereninTutariOranli(b)) bak(IsvereninTutarlari);
  });
  if (!bakildi) kusurlar.push_back(bakildi.KusurMetni());
  return kusurlar;
}

}  // namespace belvani
