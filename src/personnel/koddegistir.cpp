#include "personnel/koddegistir.h"

#include "core/store/bordrokodu.h"
#include "core/store/kisibordrolari.h"
#include "core/store/koru.h"
#include "core/tables/dvr.h"
#include "payroll/hazirlik/aysaklama.h"
#include "personnel/kart.h"

namespace belvani {
namespace {

std::optional<Kusur> YeniKodKusuru(Motor& motor, const std::string& yeni) {
  auto kusur = SicilKoduKusuru(yeni, true);
  if (!kusur)
    if (const std::string neden = DegerKusuru(sicil::kod, yeni); !neden.empty())
      kusur = KuralKusuru("Yeni Kod: " + neden);
  if (!kusur)
    if (const auto kayitlar = KodunKayitlari(motor, yeni); !kayitlar.empty())
      kusur = KuralKusuru("Bu Kodun Eski Kayıtları Var: " + KayitSayilari(kayitlar) + "\nYeni Bir Kod Seçiniz");
  if (kusur) kusur->alan = koddegisikligi::yeni;
  return kusur;
}

// The steps of one change. A step that fails is noted and the next one is tried, as long as the engine has not taken
// the transaction back by itself.
class Degistirme {
 public:
  Degistirme(Motor& motor, const KodDegisikligi& d) : motor_(motor), d_(d) {}

  void Yurut() {
    if (!Dene("Sicil Bilgileri Değiştirilemedi", [&] { KodYaz("sicil"); })) return;
    Dene("Nufus Bilgileri Değiştirilemedi", [&] { KodYaz("kimlik"); });
    Dene("Resim Bilgileri Değiştirilemedi", [&] { KodYaz("foto"); });
    BordrolariYaz();
    Dene("Saklanan Bordro Bilgileri Değiştirilemedi", [&] { SaklananlardaKodDegistir(motor_, d_.eski, d_.yeni); });
    if (!d_.bagli) return;
    Dene("Aile Bilgileri Değiştirilemedi", [&] { KodYaz("esco"); });
    Dene("Devir Bilgileri Değiştirilemedi", [&] { DevirleriYaz(); });
    Dene("Cari Bilgileri Değiştirilemedi", [&] { KodYaz("cari"); });
  }

  Kusurlar kusurlar;
  std::size_t bordro = 0;

 private:
  template <class Is>
  bool Dene(const char* yazilamadi, Is&& is) {
    if (!motor_.IslemdeMi()) return false;
    if (Koru(is)) return true;
    kusurlar.push_back({.metin = yazilamadi, .kod = d_.eski});
    return false;
  }

  void KodYaz(const std::string& tablo) {
    const auto komut = motor_.Hazirla("update " + tablo + " set kod = ? where kod = ?");
    komut->MetinBagla(1, d_.yeni);
    komut->MetinBagla(2, d_.eski);
    komut->Calistir();
  }

  void BordrolariYaz() {
    const char* const yazilamadi = "Bordro Bilgileri Değiştirilemedi";
    std::vector<std::int64_t> numaralar;
    std::optional<BordroKoduYazici> yazici;
    const bool hazir = Dene(yazilamadi, [&] {
      numaralar = KisininBordroNumaralari(motor_, d_.eski);
      yazici.emplace(motor_);
    });
    if (!hazir) return;
    for (const std::int64_t numara : numaralar)
      bordro += std::size_t(Dene(yazilamadi, [&] { yazici->Yaz(numara, d_.yeni); }));
  }

  // The key of a closed year's sums is made of year and code.
  void DevirleriYaz() {
    const auto yaz = motor_.Hazirla("update dvr set kod = ?, yilkod = ? where yilkod = ?");
    for (const Dvr& devir : KayitlariOku<Dvr>(motor_, "where kod = ?", {d_.eski})) {
      yaz->MetinBagla(1, d_.yeni);
      yaz->MetinBagla(2, std::to_string(devir.yil) + d_.yeni);
      yaz->MetinBagla(3, devir.yilkod);
      yaz->Calistir();
    }
  }

  Motor& motor_;
  const KodDegisikligi& d_;
};

Sonuc<KodDegisimi, Kusurlar> IslemdeDegistir(Motor& motor, KodDegisikligi d) {
  Islem islem(motor);
  Tablo<Sicil> kartlar(motor);
  const auto kart = kartlar.Bul(d.eski);
  if (!kart) return Kusurlar{KuralKusuru("Değişecek Kodu Yazınız", koddegisikligi::eski)};
  if (kartlar.Bul(d.yeni))
    return Kusurlar{KuralKusuru("Seçtiğiniz Kodda Zaten Bir Kişi var\nYeni Bir Kod Seçiniz", koddegisikligi::yeni)};
  if (auto kusur = YeniKodKusuru(motor, d.yeni)) return Kusurlar{*std::move(kusur)};
  d.eski = kart->kod;
  Degistirme degistirme(motor, d);
  degistirme.Yurut();
  if (!degistirme.kusurlar.empty()) return std::move(degistirme.kusurlar);
  KodDegisimi degisim{.bordro = degistirme.bordro, .kalan = KodunKayitlari(motor, d.eski)};
  islem.Onayla();
  return degisim;
}

}  // namespace

std::string KodDegisimi::Metin() const {
  const std::string tamam = "Değiştirme İşlemi Tamamlandı";
  return kalan.empty() ? tamam : tamam + "\nEski kodda kalan kayıtlar: " + KayitSayilari(kalan);
}

Sonuc<KodDegisimi, Kusurlar> KodDegistir(Oturum& o, const KodDegisikligi& degisiklik) {
  const KodDegisikligi temiz{TemizKod(degisiklik.eski), TemizKod(degisiklik.yeni), degisiklik.bagli};
  std::optional<Sonuc<KodDegisimi, Kusurlar>> sonuc;
  const Durum yurudu =
      Koru([&] { sonuc.emplace(IslemdeDegistir(o.depo.db.IcMotor(), temiz)); }, "Değişiklik kaydedilemedi: ");
  if (!yurudu) return Kusurlar{yurudu.Kusuru()};
  if (*sonuc && TurkceEsit(o.SonKisi, temiz.eski)) o.SonKisi = temiz.yeni;
  return *std::move(sonuc);
}

}  // namespace belvani
