#include "personnel/kanundegistir.h"

#include "core/asama.h"
#include "core/sayi.h"
#include "core/session/firmabilgi.h"
#include "core/store/koru.h"
#include "core/store/tablo.h"
#include "personnel/etiket.h"

namespace belvani {
namespace {

// Whether a stored law is that of the list; "00000" goes by the number that the text begins with.
bool KanunuUyar(const std::string& kanun, const std::string& aranan) {
  return BastakiSayi(aranan) == 0 ? BastakiSayi(kanun) == 0 : kanun == aranan;
}

KanunListesi Oku(Motor& motor, const std::optional<std::string>& eski) {
  KanunListesi liste;
  const auto komut = motor.Hazirla(
      "select s.kod, s.sskno, k.tcno, s.adi, s.soyadi, s.kanun, k.kod from sicil s left join kimlik k on k.kod = s.kod "
      "order by s.kod");
  while (komut->Adim()) {
    const auto metin = [&](int i) { return std::string(komut->Metin(i)); };
    if (eski && !KanunuUyar(metin(5), *eski)) continue;
    if (komut->Turu(6) == Komut::Tur::Null)
      ++liste.kimliksiz;
    else
      liste.kisiler.push_back({metin(0), metin(1), metin(2), metin(3) + " " + metin(4), metin(5)});
  }
  return liste;
}

// Why the person's law was left as it is.
Kusur Yazilmadi(Motor& motor, const KanunluKisi& kisi) {
  const bool var = Tablo<Sicil>(motor).Bul(kisi.kod).has_value();
  return {.metin = var ? CakismaMetni(CakismaTuru::Degismis, {}, {std::string(AlanEtiketi("sicil", sicil::kanun.ad))})
                       : "Personel Bulunamadı",
          .kod = kisi.kod,
          .derece = Derece::Uyari};
}

Kusur Yazilamadi(const KanunluKisi& kisi) {
  return {.metin = "Personel Kayıt Değişikliği Yapılamadı\n Kod:" + kisi.kod, .kod = kisi.kod};
}

}  // namespace

Sonuc<std::string> KanunOku(const std::string& yazilan, AlanTutamagi alan) {
  const auto sayi = TamSayiOku(yazilan);
  if (!sayi || *sayi < 0) return KuralKusuru("Kanun No Hatalı", alan);
  return KanunMetni(yazilan);
}

Sonuc<KanunListesi> KanunluKisiler(Oturum& o, const KanunSecimi& secim) {
  std::optional<std::string> eski;
  if (secim.eskiyeGore) {
    auto okunan = KanunOku(secim.eski, kanunsecimi::eski);
    if (!okunan) return okunan.Kusuru();
    eski = std::move(*okunan);
  }
  return Koru([&] { return Oku(o.depo.db.IcMotor(), eski); }, "Personel listesi okunamadı: ");
}

std::vector<KanunluKisi> KanunuDegisecekler(const std::vector<KanunluKisi>& kisiler, bool sorarak, Bildirim& bildirim) {
  if (!sorarak) return kisiler;
  std::vector<KanunluKisi> degisecek;
  for (const KanunluKisi& k : kisiler)
    if (bildirim.Soru("Bu Personel Kanunu Değişecek\n" + k.kod + " " + k.adsoyad)) degisecek.push_back(k);
  return degisecek;
}

Sonuc<KanunDegisimi> KanunDegistir(Oturum& o, const std::vector<KanunluKisi>& kisiler, const std::string& kanun,
                                   Ilerleme* ilerleme) {
  const auto is = [&]() -> Sonuc<KanunDegisimi> {
    Motor& motor = o.depo.db.IcMotor();
    KanunDegisimi degisim;
    Asama asama(ilerleme, kisiler.size());
    Islem islem(motor);
    const auto yaz = motor.Hazirla("update sicil set kanun = ? where kod = ? and coalesce(kanun, '') = ?");
    for (const KanunluKisi& kisi : kisiler) {
      asama.Adim();
      yaz->MetinBagla(1, kanun);
      yaz->MetinBagla(2, kisi.kod);
      yaz->MetinBagla(3, kisi.kanun);
      if (!Koru([&] { yaz->Calistir(); })) return Yazilamadi(kisi);
      if (motor.DegisenSatir() != 0)
        ++degisim.degisen;
      else
        degisim.yazilmayan.push_back(Yazilmadi(motor, kisi));
    }
    if (ilerleme != nullptr && !ilerleme->Kesin()) throw Vazgecilmis{};
    islem.Onayla();
    return degisim;
  };
  return Koru(is, "Kanun değişikliği kaydedilemedi: ");
}

}  // namespace belvani
