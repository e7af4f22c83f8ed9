#include "payroll/hazirlik/sirketdenetimi.h"

#include <map>

#include "core/session/sinifbakimi.h"
#include "core/store/depodenetimi.h"
#include "core/store/izlenenokuma.h"
#include "core/store/koru.h"
#include "core/store/satirlar.h"
#include "core/tables/kodtasiyanlar.h"
#include "core/tables/tablolar.h"
#include "core/turkce.h"
#include "payroll/hesap/agi.h"
#include "payroll/hesap/oranlitutar.h"
#include "payroll/hesap/satirlar.h"
#include "payroll/parametre/mevzuat.h"
#include "payroll/parametre/mevzuatdenetimi.h"

namespace belvani {
namespace {

constexpr int EskiLiraSonYili = 2004;
constexpr double EnCokFark = 1.0;

Kusur Uyari(std::string metin, AlanTutamagi alan = {}, std::string kod = {}) {
  return {.metin = std::move(metin), .alan = alan, .kod = std::move(kod), .derece = Derece::Uyari};
}

void KartiDenetle(const Oturum& o, Kusurlar& kusurlar) {
  const Firma& f = o.firma;
  if (f.sinif.Sayi() == 0 && SinifBakimiOku(o.FirmaDizini) != SinifBakimi::Bakildi)
    kusurlar.push_back(Uyari(
        "İşyeri tehlike sınıfı 1 görünüyor; eski sürümlerde kart kaydedilirken sınıf kaybolabiliyordu, kontrol ediniz",
        firma::sinif));
  if (Kirp(f.ondeger).empty())
    kusurlar.push_back(Uyari("Öndeğer Hesap boş: hesap kodu olmayan personelin kazanç grubu yok", firma::ondeger));
  if (f.firmayil <= 0 || f.firmaay < 1 || f.firmaay > 12)
    kusurlar.push_back(
        Uyari("Çalışma dönemi hatalı", f.firmayil <= 0 ? AlanTutamagi(firma::firmayil) : firma::firmaay));
}

// Records of a table whose person has no card, person by person.
void SicilsizleriDenetle(Motor& motor, Kusurlar& kusurlar, Ilerleme* ilerleme) {
  for (const auto& [tablo, ad] : KodTasiyanTablolar) {
    const auto komut = motor.Hazirla("select t.kod, count(*) from " + std::string(tablo) +
                                     " t where not exists (select 1 from sicil s where s.kod = t.kod) group by t.kod");
    for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();)
      kusurlar.push_back(
          Uyari("Kartı olmayan personelin " + std::to_string(komut->Tam(1)) + " " + std::string(ad) + " kaydı var",
                sicil::kod, std::string(komut->Metin(0))));
  }
}

std::string AyMetni(int yil, int ay) {
  return MevzuatAyi{yil, ay}.Metin();
}

// What in a record does not follow from its own parts, "" when all does. Premiums and duty were rounded to the decimals
// of the books of their day, so they may be off by one whole lira.
std::string Tutmayan(const Brd& b) {
  Tutar yardim;
  for (const auto& kolon : YardimKolonlari) yardim += b.*kolon.uye;
  if (b.topyardim != yardim) return "yardımlar toplamı";
  if (b.yuvarlama != Degeri(toplam::ozelKesinti, b)) return "özel kesintiler toplamı";
  if (b.yil >= AgiIlkYili && b.ogv > b.gvtutar) return "asgari geçim indirimi";
  if (KesintisizKayit(b)) return {};
  for (const OranliTutar& t : IscininTutarlari)
    if (t.Farki(b) > EnCokFark) return t.ad;
  return {};
}

// In what a record was calculated otherwise than the month's published figures have it; "" when in nothing. The
// employer's rate has the company's class in it and is not compared.
std::string BaskaMevzuat(const Brd& b, const YasalParametreler& y) {
  const auto dalda = [&](Tek oran, auto toplam) {
    if (oran == Tek()) return true;
    for (const OranSatiri& dal : y.oranlar.IsciOran)
      if (Tek(toplam(dal)) == oran) return true;
    return false;
  };
  if (b.damgaveror != y.oranlar.DamgaOran) return "damga vergisi oranı";
  if (b.sskmatrah > y.oranlar.SskTavan) return "SSK tavanı";
  if (!dalda(b.sskiscior, OranToplami)) return "SSK işçi oranı";
  if (!dalda(b.issiziscior, [](const OranSatiri& dal) { return dal.isz.Sayi(); })) return "işsizlik işçi oranı";
  if (b.yil >= AgiIlkYili && b.ogv != Tutar() && b.agimatrah != y.agi.AgiTaban) return "asgari geçim indirimi tabanı";
  return {};
}

class BordroDenetimi {
 public:
  explicit BordroDenetimi(Kusurlar& kusurlar) : kusurlar_(kusurlar), dizin_(MevzuatDizini()) {}

  void Kayit(const Brd& b) {
    if (const std::string ne = Tutmayan(b); !ne.empty())
      kusurlar_.push_back(Uyari(AyMetni(b.yil, b.ay) + " bordrosunda tutmayan tutar: " + ne, {}, b.kod));
    const std::string fark = MevzuatFarki(b);
    if (fark.empty()) return;
    auto& [sayi, ilkFark] = baska_[{b.yil, b.ay}];
    if (sayi++ == 0) ilkFark = fark;
  }

  // One line a month: the whole company was calculated with the same figures.
  void Bitir() {
    for (const auto& [ay, bulunan] : baska_)
      kusurlar_.push_back(Uyari(AyMetni(ay.first, ay.second) + " bordrosunda " + std::to_string(bulunan.first) +
                                " kayıt başka bir ayın mevzuatıyla hesaplanmış (" + bulunan.second + ")"));
  }

 private:
  using Ay = std::pair<int, int>;

  std::string MevzuatFarki(const Brd& b) {
    std::string fark;
    for (const YasalParametreler& yayimlanan : Yayimlananlar({b.yil, b.ay}))
      if (fark = BaskaMevzuat(b, yayimlanan); fark.empty()) return {};
    return fark;
  }

  // The month's figures in the units that books of the time may be kept in; none where none are shipped.
  const std::vector<YasalParametreler>& Yayimlananlar(Ay ay) {
    const auto [yer, yeni] = yayimlanan_.try_emplace(ay);
    if (!yeni) return yer->second;
    for (const Lira lira : {Lira::Yeni, Lira::Eski}) {
      if (lira == Lira::Eski && ay.first > EskiLiraSonYili) continue;
      if (auto yasal = MevzuatYukle(dizin_, ay.first, ay.second, lira)) yer->second.push_back(std::move(*yasal));
    }
    return yer->second;
  }

  Kusurlar& kusurlar_;
  std::string dizin_;
  std::map<Ay, std::vector<YasalParametreler>> yayimlanan_;
  std::map<Ay, std::pair<std::size_t, std::string>> baska_;
};

void BordrolariDenetle(Motor& motor, Kusurlar& kusurlar, Ilerleme* ilerleme) {
  BordroDenetimi denetim(kusurlar);
  const auto komut = motor.Hazirla("select " + SecimListesi<Brd>(motor) + " from brd order by yil, ay, kod");
  IzlenenOkuma okuma(*komut, ilerleme);
  for (Brd b; okuma.Adim();) {
    KayitAl(*komut, 0, b);
    denetim.Kayit(b);
  }
  denetim.Bitir();
}

}  // namespace

Sonuc<Kusurlar> SirketDenetle(Oturum& o, Ilerleme* ilerleme) {
  if (!o.depo.db.AcikMi()) return Kusur{"Veritabanı açık değil"};
  return Koru(
      [&] {
        Motor& motor = o.depo.db.IcMotor();
        Kusurlar kusurlar;
        KartiDenetle(o, kusurlar);
        SicilsizleriDenetle(motor, kusurlar, ilerleme);
        BordrolariDenetle(motor, kusurlar, ilerleme);
        return kusurlar;
      },
      "Şirket kayıtları okunamadı: ");
}

Sonuc<Kusurlar> DepoDenetle(Oturum& o, Ilerleme* ilerleme) {
  if (!o.depo.db.AcikMi()) return Kusur{"Veritabanı açık değil"};
  return Koru([&] { return DepoKusurlari(o.depo.db.IcMotor(), ilerleme); }, "Veritabanı okunamadı: ");
}

}  // namespace belvani
