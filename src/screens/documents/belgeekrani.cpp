#include "screens/documents/belgeekrani.h"

#include <QFont>

#include "core/tables/sicil.h"
#include "ui/basim.h"
#include "ui/metin.h"
#include "ui/pencere.h"
#include "ui/uzunis.h"

namespace belvani {
namespace {

constexpr const char* BaslangicBitis = "Başlangıç ve Bitiş";

// The field at the end of a range.
std::string Bitis(const char* etiket) {
  return std::string(etiket) + " Bitiş";
}

}  // namespace

DefterSecim SecimFormu::Secim() const {
  DefterSecim secim;
  secim.yil = yil;
  secim.ay = ay;
  secim.noBas = noBas;
  secim.noBit = noBit;
  secim.kod = {kodBas, kodBit};
  secim.grup = {grupBas, grupBit};
  secim.tip = {tipBas, tipBit};
  secim.ozel = {ozelBas, ozelBit};
  return secim;
}

AlanGrubu DonemAlanlari(const char* yilEtiketi, const char* ayEtiketi) {
  return {"Dönem",
          {{Uye("yil", &SecimFormu::yil), yilEtiketi, {.enCok = 9999}},
           {Uye("ay", &SecimFormu::ay), ayEtiketi, {.liste = AyAdlari, .listeTabani = 1}}},
          2};
}

AlanGrubu KodAraligi(const char* kodEtiketi) {
  return {BaslangicBitis,
          {{Uye("kodBas", &SecimFormu::kodBas, sicil::kod.boyut), kodEtiketi, {.rehber = true}},
           {Uye("kodBit", &SecimFormu::kodBit, sicil::kod.boyut), Bitis(kodEtiketi).c_str(), {.rehber = true}}},
          2};
}

AlanGrubu AralikAlanlari(bool numarali, const char* kodEtiketi) {
  AlanGrubu grup{BaslangicBitis, {}, 2};
  if (numarali)
    grup.alanlar = {{Uye("noBas", &SecimFormu::noBas), "Bordro no", {.enCok = 99}},
                    {Uye("noBit", &SecimFormu::noBit), "Bordro no Bitiş", {.enCok = 99}}};
  const std::vector<Alan> kisiler{{Uye("grupBas", &SecimFormu::grupBas, sicil::grup.boyut), "Grup"},
                                  {Uye("grupBit", &SecimFormu::grupBit, sicil::grup.boyut), "Grup Bitiş"},
                                  {Uye("tipBas", &SecimFormu::tipBas, sicil::tip.boyut), "Tip"},
                                  {Uye("tipBit", &SecimFormu::tipBit, sicil::tip.boyut), "Tip Bitiş"},
                                  {Uye("ozelBas", &SecimFormu::ozelBas, sicil::ozel.boyut), "Özel"},
                                  {Uye("ozelBit", &SecimFormu::ozelBit, sicil::ozel.boyut), "Özel Bitiş"}};
  for (const auto& alanlar : {KodAraligi(kodEtiketi).alanlar, kisiler})
    grup.alanlar.insert(grup.alanlar.end(), alanlar.begin(), alanlar.end());
  return grup;
}

BelgeEkrani::BelgeEkrani(EkranBaglami& baglam, const ParametreDeposu& parametreler, const QString& kelime,
                         const QString& baslik)
    : Form(baglam, kelime, baslik), parametreler_(parametreler) {}

void BelgeEkrani::BelgeKomutlari() {
  for (const auto& denetim : Denetimler()) {
    if (!denetim->Satir().ek.rehber) continue;
    xtext* kod = denetim->YaziKutusu();
    connect(kod, &xtext::Lookup, this, [this, kod] {
      if (const auto secilen = PersonelSec(Baglam(), Utf8(kod->text()))) kod->DegerKoy(*secilen);
      kod->setFocus();
    });
  }
  DugmeEkle(Qt::Key_F6, QStringLiteral(" Ekrana Listele"), "liste", [this] {
    if (const std::shared_ptr<Belge> belge = Hazirla()) BelgeEkranaListele(Baglam(), belge);
  });
  DugmeEkle(Qt::Key_F8, QStringLiteral(" Yazıcıya Yazdır"), "yazici", [this] {
    if (const auto belge = Hazirla()) BelgeBas(Baglam(), *belge);
  });
  DugmeEkle(Qt::Key_F9, QStringLiteral(" Excel'e Gönder"), "tablo", [this] {
    if (const auto belge = Hazirla()) BelgeExceleGonder(Baglam(), *belge);
  });
}

void BelgeEkrani::FontDugmesi(BelgeYazisi& yazi) {
  DugmeEkle(QStringLiteral("Yazıcı Fontu "), "duzelt", [this, &yazi] {
    const auto font = Baglam().dialoglar.FontSec(QFont(Yazi(yazi.yaziTipi), yazi.punto));
    if (!font) return;
    yazi.yaziTipi = Utf8(font->family());
    if (font->pointSize() > 0) yazi.punto = font->pointSize();
  });
}

SecimFormu BelgeEkrani::IlkSecim() const {
  SecimFormu secim;
  secim.yil = std::int16_t(Oturumu().firma.firmayil);
  secim.ay = std::uint8_t(Oturumu().firma.firmaay);
  return secim;
}

BelgeKaynagi BelgeEkrani::Kaynak() const {
  return {.motor = Oturumu().depo.db.IcMotor(), .yasal = parametreler_.yasal, .paraonda = Oturumu().firma.paraonda};
}

std::unique_ptr<Belge> BelgeEkrani::Hazirla() {
  try {
    auto belge = UzunIs(Baglam(), QStringLiteral("Liste hazırlanıyor…"), [this](Ilerleme&) { return BelgeYap(); });
    return belge ? std::move(*belge) : nullptr;
  } catch (const MotorHatasi& hata) {
    Bildirimi().Uyari(hata.what());
  } catch (const TutarTasmasi& hata) {
    Bildirimi().Uyari(hata.what());
  }
  return nullptr;
}

}  // namespace belvani
