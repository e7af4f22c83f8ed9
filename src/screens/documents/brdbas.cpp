#include "screens/documents/brdbas.h"

#include <QHideEvent>

namespace belvani {
namespace {

struct DefterFormu {
  std::uint8_t satirArasi = std::uint8_t(SatirArasi::Hicbiri), kolonArasi = 0;
  bool icmal = true, herBordroYeni = false, sskSirasi = false;
  DefterAnahtarlari kolonlar{};
};

constexpr std::string_view SatirArasiAdlari[] = {"Çizgi Çek", "Boş Satır", "Hiçbiri"};
constexpr std::string_view KolonArasiAdlari[] = {"Boş Bırak", "Dik Çizgi"};

AlanGrubu BicimAlanlari() {
  return {"Biçim",
          {{Uye("satirArasi", &DefterFormu::satirArasi), "Satırlar Arasında", {.liste = SatirArasiAdlari}},
           {Uye("kolonArasi", &DefterFormu::kolonArasi), "Kolonlar Arasında", {.liste = KolonArasiAdlari}},
           {Uye("icmal", &DefterFormu::icmal), "Bordro Altında İcmal Olsun"},
           {Uye("herBordroYeni", &DefterFormu::herBordroYeni), "Her Bordro Yeni Sayfaya Yazılsın"},
           {Uye("sskSirasi", &DefterFormu::sskSirasi), "SSK No Sırasına Göre"}},
          1};
}

// The switches of the columns, named by their heads.
AlanGrubu KolonAlanlari() {
  static const auto basliklar = DefterAnahtarAdlari();
  static const auto adlar = [] {
    std::array<std::string, DefterAnahtarSayisi> a;
    for (std::size_t i = 0; i < a.size(); ++i) a[i] = "kolon" + std::to_string(i + 1);
    return a;
  }();
  AlanGrubu grup{"Kolonlar", {}, 2};
  for (std::size_t i = 0; i < adlar.size(); ++i)
    grup.alanlar.push_back(DiziAlani(adlar[i], &DefterFormu::kolonlar, i, basliklar[i].c_str()));
  return grup;
}

}  // namespace

brdbas::brdbas(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : BelgeEkrani(baglam, parametreler, "brdbas", QStringLiteral("Bordro Basımı")),
      ayarDosyasi_(Oturumu().FirmaDizini + "bordro.ini"),
      ayar_(DefterAyariOku(ayarDosyasi_)),
      yazi_{ayar_.yaziTipi, ayar_.punto} {
  AlanlariDiz({{DonemAlanlari("Bordro Yılı", "Bordro Ayı"), AralikAlanlari(true, "Sicil No"), BicimAlanlari()},
               {KolonAlanlari()}});
  BelgeKomutlari();
  FontDugmesi(yazi_);
  Yukle(IlkSecim());
  DefterFormu form;
  form.kolonlar = ayar_.kolonlar;
  Yukle(form);
}

std::unique_ptr<Belge> brdbas::BelgeYap() {
  SecimFormu secimFormu;
  DefterFormu form;
  if (!Oku(secimFormu) || !Oku(form)) return nullptr;
  DefterSecim secim = secimFormu.Secim();
  secim.sira = form.sskSirasi ? DefterSirasi::SskNo : DefterSirasi::Kod;
  DefterSecenek secenek;
  secenek.kolonlar = form.kolonlar;
  secenek.icmal = form.icmal;
  secenek.herBordroYeni = form.herBordroYeni;
  secenek.duzen.satirArasi = SatirArasi(form.satirArasi);
  secenek.duzen.kolonArasi = KolonArasi(form.kolonArasi);
  return DefterBelgesi(Kaynak(), secim, secenek, yazi_);
}

void brdbas::hideEvent(QHideEvent* olay) {
  BelgeEkrani::hideEvent(olay);
  if (!olay->spontaneous()) AyarYaz();
}

// An unchanged setting is not written, so a company on a read-only medium can be printed without a word.
void brdbas::AyarYaz() {
  DefterFormu form;
  if (!Oku(form)) return;
  const DefterAyari yeni{.kolonlar = form.kolonlar, .yaziTipi = yazi_.yaziTipi, .punto = yazi_.punto};
  if (yeni == ayar_) return;
  if (const Durum yazildi = DefterAyariYaz(yeni, ayarDosyasi_); !yazildi)
    return Bildirimi().Uyari(yazildi.KusurMetni());
  ayar_ = yeni;
}

}  // namespace belvani
