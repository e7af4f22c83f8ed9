#include "printing/xprn.h"

#include <algorithm>
#include <unistd.h>

#include "core/dosya.h"
#include "core/turkce.h"
#include "printing/doskod.h"

namespace belvani {
namespace {

// The third style is outermost.
std::string Bicemle(std::string baytlar, DosBicem bicem) {
  if (BicemVar(bicem, DosBicem::Kalin)) baytlar = DosSar(baytlar, DosKalin);
  if (BicemVar(bicem, DosBicem::Ikinci)) baytlar = DosSar(baytlar, xprnIkinci);
  if (BicemVar(bicem, DosBicem::Ucuncu)) baytlar = DosSar(baytlar, xprnUcuncu);
  return baytlar;
}

constexpr int AdliPort = 4;  // the fifth port is chosen by its number only

}  // namespace

xprn::xprn(YzcAyarlari& ayar, xprnOrtami ortam)
    : KolonYazici(ayar, ortam.unvan, ortam.bugun), ortam_(std::move(ortam)) {}

bool xprn::OpenDosPrint() {
  dosya_ = GeciciDosya();
  akis_.clear();
  return !dosya_.empty();
}

bool xprn::Kes() {
  if (ortam_.escBasili && ortam_.escBasili()) acik_ = false;
  return !acik_;
}

bool xprn::DosDirectPrint(std::string_view metin, SatirSonu sonu, DosBicem bicem) {
  if (!acik_ || dosya_.empty()) return false;
  if (metin.empty()) metin = " ";
  std::string baytlar;
  while (!metin.empty()) {
    if (Kes()) {
      baytlar += CevrilmemisBaytlar(metin);
      break;
    }
    const std::string_view harf = IlkHarfler(metin, 1);
    baytlar += DosBaytlari(harf);
    metin.remove_prefix(harf.size());
  }
  akis_ += Bicemle(std::move(baytlar), bicem);
  if (sonu == SatirSonu::Var) akis_ += DosSatirSonu;
  return true;
}

Durum xprn::CloseDosPrint() {
  if (dosya_.empty()) return Tamam();
  const std::string dosya = std::exchange(dosya_, {});
  const Durum yazildi = DosyaYaz(dosya, std::exchange(akis_, {}));
  if (!yazildi) ::unlink(dosya.c_str());
  if (!yazildi || !ortam_.belprn) return yazildi;
  return ortam_.belprn(dosya);
}

void xprn::DosPrintPort(int no) {
  if (no >= 0 && no <= EnCokPort) portNo_ = no;
}

bool xprn::CheckDosPrint() {
  while ((portDurumu_ = ortam_.port.GetStatus(portNo_)) & port::KagitYok)
    if (!ortam_.bildirim.TamamMi("Yazıcıda Kağıt Yok\nveya\nYazıcı Kapalı")) return false;
  if (portDurumu_ & port::Alindi) return true;
  ortam_.bildirim.Uyari("Printer Error\n Status : " + std::to_string(portDurumu_));
  return false;
}

bool xprn::BaytGonder(std::uint8_t bayt) {
  while (!Kes()) {
    portDurumu_ = ortam_.port.DosPrint(portNo_, bayt);
    if (portDurumu_ & port::Alindi) return true;
    if (portDurumu_ & port::KagitYok) {
      if (!ortam_.bildirim.TamamMi("Kağıt Yok")) return false;
    } else if (portDurumu_ & port::Hata) {
      if (!ortam_.bildirim.Soru("Printer Error")) return false;
    }
  }
  return false;
}

bool xprn::DosDirectPrint2(std::string_view metin, SatirSonu sonu, DosBicem bicem) {
  if (!acik_) return false;
  const std::string baytlar = Bicemle(DosBaytlari(metin.empty() ? " " : metin), bicem);
  const std::string hepsi = sonu == SatirSonu::Var ? std::string(DosSatirSonu) + baytlar : baytlar;
  return std::all_of(hepsi.begin(), hepsi.end(), [&](char c) { return BaytGonder(static_cast<std::uint8_t>(c)); });
}

// ---- columns

void xprn::YoluAc() {
  if (const int no = PortNo(ortam_.portAdi); no >= 0 && no < AdliPort) portNo_ = no;
  acik_ = CheckDosPrint() && (!dosya_.empty() || OpenDosPrint());
  if (acik_ && xprnCondencePrint) DosDirectPrint(DosSikisik.ac, SatirSonu::Yok);
}

Durum xprn::YoluKapat() {
  if (acik_ && xprnCondencePrint) DosDirectPrint(std::string(DosSikisik.kapat).append(DosSayfaAt), SatirSonu::Yok);
  return CloseDosPrint();
}

}  // namespace belvani
