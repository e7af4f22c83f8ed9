#include "personnel/personeltransfer.h"

#include "core/saat.h"
#include "core/session/icerde.h"
#include "core/session/sirket.h"
#include "core/session/sirketlistesi.h"
#include "core/store/depokopyasi.h"
#include "core/store/koru.h"
#include "personnel/kart.h"
#include "personnel/kimlik.h"
#include "personnel/kodkayitlari.h"

namespace belvani {
namespace {

// Broken rules of this command stand with the warning.
Kusur Engel(std::string metin, AlanTutamagi alan = {}) {
  return {.metin = std::move(metin), .alan = alan};
}

std::optional<Kusur> CikisKusuru(const Oturum& o, const TransferFormu& form, const Sicil& kart) {
  if (!form.cikisYap) return std::nullopt;
  if (o.SaltOkunur) return Engel(std::string("Personel Çıkışı Yapılamadı..\n") + SaltOkunurUyarisi);
  if (form.cikiskodu == 0 || CikisKoduMetni(form.cikiskodu).empty())
    return Engel("Çıkış Kodu Seçilmemiş..", transferformu::cikiskodu);
  if (form.ciktar.Bos()) return Engel("Çıkış Tarihi Hatalı..", transferformu::ciktar);
  if (form.ciktar < kart.girtar) return Engel("Çıkış Tarihi Giriş Tarihinden Küçük", transferformu::ciktar);
  if (const std::string neden = DegerKusuru(sicil::cikissebebi, DenetimsizMetin(form.cikissebebi)); !neden.empty())
    return Engel("Çıkış Sebebi: " + neden, transferformu::cikissebebi);
  return std::nullopt;
}

std::optional<Kusur> YeniKodKusuru(const std::string& kod) {
  if (kod.empty()) return Engel("Personelin Yeni Kodu Yazılmamış.", transferformu::yeniKod);
  auto kusur = SicilKoduKusuru(kod, true);
  if (!kusur)
    if (const std::string neden = DegerKusuru(sicil::kod, kod); !neden.empty())
      kusur = Engel("Yeni Personel Kodu: " + neden);
  if (kusur) kusur->alan = transferformu::yeniKod;
  return kusur;
}

// The other company's store, and the mark that tells others who is in it meanwhile.
struct HedefSirket {
  std::string ad;
  std::unique_ptr<Motor> motor;
  std::unique_ptr<IcerdeIsareti> isaret;
};

Kusur Acilamiyor(const std::string& neden) {
  return Engel("Transfer Şirketi Açılamıyor." + (neden.empty() ? "" : "\n" + neden), transferformu::hedef);
}

Sonuc<HedefSirket> HedefAc(Oturum& o, const std::string& ad) {
  const VeriYolu yer = VeriYolu(o.DataPath).Alt(ad);
  const std::string adres = DepoAdresi(yer);
  if (!DepoVar(yer)) return Acilamiyor("Şirket yok: " + ad);
  if (!DepoYazilir(adres)) return Acilamiyor("Şirketin dosyaları yazılamıyor");
  auto motor = Koru([&] { return MotorAc(adres); });
  if (!motor) return Acilamiyor(motor.KusurMetni());
  for (const auto& [tablo, acilamadi] :
       {std::pair("sicil", "Sicil Bilgileri Açılamadı.."), std::pair("kimlik", "Kimlik Bilgileri Açılamadı..")}) {
    const auto kolonlar = Koru([&] { return (*motor)->Kolonlar(tablo); });
    if (!kolonlar || kolonlar->empty()) return Engel(acilamadi, transferformu::hedef);
  }
  return HedefSirket{ad, std::move(*motor), IcerdeIsareti::Koy(yer, {o.Kullanici, o.BilgisayarAdi, SimdikiAn()})};
}

template <class Kayit>
void EksikleriYaz(Motor& motor, std::vector<std::string>& eksikler) {
  VarolanKolonlar<Kayit>(motor).Her([&](const auto& kolon, bool var) {
    if (!var) eksikler.emplace_back(AlanEtiketi(Kayit::TabloAdi, kolon.ad));
  });
}

// What stands in the way of the code over there.
std::optional<Kusur> HedefKodKusuru(Motor& motor, const std::string& kod) {
  const auto varMi = motor.Hazirla("select 1 from sicil where kod = ?");
  varMi->MetinBagla(1, kod);
  if (varMi->Adim()) return Engel("Yeni Şirkette Bu Kodda Bir Personel Var..", transferformu::yeniKod);
  if (const auto kayitlar = KodunKayitlari(motor, kod); !kayitlar.empty())
    return Engel("Yeni Şirkette Bu Kodun Eski Kayıtları Var: " + KayitSayilari(kayitlar), transferformu::yeniKod);
  return std::nullopt;
}

Durum Kopyala(Motor& motor, const TransferFormu& form, Sicil kart, std::optional<Kimlik> kimlik) {
  Islem islem(motor);
  if (auto kusur = HedefKodKusuru(motor, form.yeniKod)) return *std::move(kusur);
  kart.kod = form.yeniKod;
  kart.girtar = form.yeniGiris;
  if (!Koru([&] { KayitYazici<Sicil>(motor).Ekle(kart); })) return Engel("Sicil Bilgileri Kaydedilemedi.");
  if (kimlik) {
    kimlik->kod = form.yeniKod;
    if (!Koru([&] { KayitYazici<Kimlik>(motor).Ekle(*kimlik); })) return Engel("Kimlik Bligileri Kaydedilemedi.");
  }
  islem.Onayla();
  return Tamam();
}

bool CikisYaz(Oturum& o, const TransferFormu& form) {
  return o.depo.db.Koru(false, [&] {
    auto kartlar = KisiTablosu<Sicil>(o);
    const auto kart = kartlar.Bul(form.kod);
    if (!kart) return false;
    Okunan<Sicil> yazilan{.ilk = kart, .simdi = *kart};
    yazilan.simdi.ciktar = form.ciktar;
    yazilan.simdi.cikiskodu = form.cikiskodu;
    yazilan.simdi.cikissebebi = form.cikissebebi;
    return bool(kartlar.Yaz(yazilan));
  });
}

// As it was typed, cleaned.
TransferFormu Temiz(TransferFormu form) {
  form.kod = TemizKod(form.kod);
  form.yeniKod = TemizKod(form.yeniKod);
  form.cikissebebi = Kirp(DenetimsizMetin(form.cikissebebi));
  return form;
}

}  // namespace

std::string Transfer::Uyari() const {
  std::string metin;
  for (const std::string& ad : eksikler) metin += (metin.empty() ? "" : ", ") + ad;
  if (!metin.empty()) metin = hedef + " önceki sürümden, aktarılmayan alanlar: " + metin;
  if (ayrilmisti)
    metin += std::string(metin.empty() ? "" : "\n") +
             "Personel burada daha önce işten çıkmış; yeni şirketteki kartında da "
             "çıkış bilgileri var";
  return metin;
}

Sonuc<Transfer> PersonelTransfer(Oturum& o, const TransferFormu& yazilan) {
  const TransferFormu form = Temiz(yazilan);
  const auto kart = KartBul(o, form.kod);
  if (!kart) return Engel("Personel Bulunamadı...", transferformu::kod);
  if (auto kusur = CikisKusuru(o, form, *kart)) return *std::move(kusur);
  const auto sirket = SirketBul(o.DataPath, form.hedef);
  if (sirket && AcikSirketMi(o, VeriYolu(o.DataPath).Alt(*sirket)))
    return Engel("Transfer Şirketi ile Şirketiniz Aynı..", transferformu::hedef);
  if (auto kusur = YeniKodKusuru(form.yeniKod)) return *std::move(kusur);
  if (form.yeniGiris.Bos()) return Engel("Giriş Tarihi Hatalı", transferformu::yeniGiris);
  if (!sirket) return Acilamiyor(sirket.KusurMetni());
  auto hedef = HedefAc(o, *sirket);
  if (!hedef) return hedef.Kusuru();
  Transfer transfer{.hedef = hedef->ad, .eksikler = {}, .ayrilmisti = kart->cikiskodu != 0 || !kart->ciktar.Bos()};
  const Durum kopyalandi = Koru(
      [&] {
        EksikleriYaz<Sicil>(*hedef->motor, transfer.eksikler);
        EksikleriYaz<Kimlik>(*hedef->motor, transfer.eksikler);
        return Kopyala(*hedef->motor, form, *kart, KimlikBul(o, form.kod));
      },
      "Transfer Şirketine Yazılamıyor: ");
  if (!kopyalandi) return kopyalandi.Kusuru();
  if (form.cikisYap && !CikisYaz(o, form))
    return Engel("Personel Çıkışı Yapılamadı..\nPersonel yeni şirkete kaydedildi, buradan çıkışı yapılmadı");
  return transfer;
}

}  // namespace belvani
