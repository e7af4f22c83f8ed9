#include "screens/accounting/entislyap.h"

#include <QGridLayout>

#include "accounting/fisisle.h"
#include "accounting/kardesdepo.h"
#include "core/store/koru.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr int EnUzunIslDizini = 254;

namespace alan {
constexpr auto islfirma = Uye("islfirma", &IsletmeAyari::islfirma, EnUzunIslDizini);
constexpr auto tarih = Uye("tarih", &IsletmeKaydi::tarih);
constexpr auto ack = Uye("ack", &IsletmeKaydi::ack, isltra::ack.boyut);
constexpr auto brut = Uye("brut", &IsletmeKaydi::brut);
constexpr auto ucretgrup = Uye("ucretgrup", &IsletmeKaydi::ucretgrup, isltra::grup.boyut);
constexpr auto prim = Uye("prim", &IsletmeKaydi::prim);
constexpr auto sskgrup = Uye("sskgrup", &IsletmeKaydi::sskgrup, isltra::grup.boyut);
}  // namespace alan

AlanGrubu Sirket() {
  return {"İşletme Defteri", {{alan::islfirma, "İşletme Şirketi", {.harf = 46}}}};
}

// Each amount with its group.
std::vector<AlanGrubu> Hareketler() {
  return {{"Hareketler", {{alan::tarih, "Entegre Tarihi"}, {alan::ack, "Açıklama"}}, 2},
          {"Ücretler", {{alan::brut, "Brüt Ücret"}, {alan::ucretgrup, "Grup"}}, 2},
          {"Primler", {{alan::prim, "SSK Primi+İşsizlik"}, {alan::sskgrup, "Grup"}}, 2}};
}

}  // namespace

entislyap::entislyap(EkranBaglami& baglam) : Form(baglam, "entislyap", QStringLiteral("İşletme Defteri Entegrayonu")) {
  QWidget* sirket = GrupYap(Sirket());
  auto* dugme = DugmeYap(QStringLiteral("Firma Seç"), "klasor", [this] { DizinSec(); });
  dugme->setObjectName("firmasec");
  static_cast<QGridLayout*>(sirket->layout())->addWidget(dugme, 0, 2, Qt::AlignLeft);
  Govde()->addWidget(sirket);
  for (const AlanGrubu& grup : Hareketler()) Govde()->addWidget(GrupYap(grup));
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Tamam", .islev = [this] { Kaydet(); }},
            {.komut = FormKomutu::Kapat, .dugme = "Vazgeç"}});
  const Oturum& o = Oturumu();
  const IsletmeAyari ayar = IsletmeAyariOku(o);
  const auto kayit = Koru(
      [&] { return IsletmeKaydiYap(Oturumu().depo.db.IcMotor(), o.firma.firmayil, o.firma.firmaay, Tarih::Bugun()); });
  IsletmeKaydi ilk = Oldu(kayit) ? *kayit : IsletmeKaydi{};
  ilk.ucretgrup = ayar.ucretgrup;
  ilk.sskgrup = ayar.sskgrup;
  Yukle(ayar);
  Yukle(ilk);
}

void entislyap::DizinSec() {
  xtext& kutu = YaziKutusu(alan::islfirma);
  if (const auto dizin = Baglam().dialoglar.DizinSec("Firma Seç", KardesDizini(Oturumu(), Utf8(kutu.text())))) {
    kutu.DegerKoy(*dizin);
    Q_EMIT kutu.Change();  // as if it had been typed
  }
  kutu.setFocus();
}

bool entislyap::Yaz() {
  IsletmeAyari ayar;
  IsletmeKaydi kayit;
  if (!Oku(ayar)) return false;
  const auto isletme = KardesAc(KardesTuru::Isletme, KardesDizini(Oturumu(), ayar.islfirma));
  if (!Oldu(isletme)) return false;
  if (TarihDegeri(Denetim(alan::tarih).Oku()).Bos()) {
    Bildir(KuralKusuru(HataliTarih, alan::tarih));
    return false;
  }
  if (!Oku(kayit)) return false;
  ayar.ucretgrup = kayit.ucretgrup;
  ayar.sskgrup = kayit.sskgrup;
  const auto ayni = Koru([&] { return AyniHareketler(**isletme, kayit.ack); });
  if (!Oldu(IsletmeDenetle(kayit)) || !Oldu(ayni)) return false;
  const std::string soru = AyniHareketSorusu(*ayni, kayit.ack);
  if (!soru.empty() && !Bildirimi().Soru(soru)) return false;
  const Durum islendi = IsletmeyeIsle(**isletme, kayit);
  if (!islendi) Denetim(alan::brut).Koy(kayit.brut);  // what is in the ledger is not written again
  if (!Oldu(islendi)) return false;
  Oldu(IsletmeAyariYaz(Oturumu(), ayar));  // posted it is, whatever becomes of the settings
  YazilaniUnut();
  return true;
}

void entislyap::Kaydet() {
  if (!Yaz()) return;
  ZoomEfekt(QStringLiteral("İşlendi"));
  Kapat();
}

}  // namespace belvani
