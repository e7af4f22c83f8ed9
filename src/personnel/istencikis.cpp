#include "personnel/istencikis.h"

#include "personnel/kart.h"
#include "personnel/kimlik.h"

namespace belvani {
namespace {

// Against the card, once there is one: the date on the screen is for the paper, and may be another.
std::optional<Kusur> TarihKusuru(const CikisFormu& form, const std::optional<Sicil>& kart) {
  const Tarih girtar = kart ? kart->girtar : form.girtar;
  if (!girtar.Bos() && form.ciktar >= girtar) return std::nullopt;
  std::string metin = "Çıkış Tarihi,Giriş Tarihinden Büyük veya Eşit Olmalı";
  if (girtar != form.girtar)
    metin += "\nPersonel kartındaki giriş tarihi: " + (girtar.Bos() ? std::string("yok") : girtar.Metin());
  return KuralKusuru(std::move(metin), cikisformu::ciktar);
}

std::optional<Kusur> CikisKusuru(const CikisFormu& form, const std::optional<Sicil>& kart) {
  if (form.girtar.Bos()) return KuralKusuru("Giriş Tarihi Hatası", cikisformu::girtar);
  if (form.ciktar.Bos()) return KuralKusuru("Çıkış Tarihi Hatası", cikisformu::ciktar);
  if (auto kusur = TarihKusuru(form, kart)) return kusur;
  if (form.cikiskodu == 0 || CikisKoduMetni(form.cikiskodu).empty())
    return KuralKusuru("Çıkış Kodunu Seçmelisiniz", cikisformu::cikiskodu);
  if (Kirp(DenetimsizMetin(form.cikissebebi)).empty())
    return KuralKusuru("Çıkış Sebebini Doldurunuz", cikisformu::cikissebebi);
  return std::nullopt;
}

std::optional<Kusur> SebepKusuru(const std::string& sebep) {
  const std::string kusur = DegerKusuru(sicil::cikissebebi, DenetimsizMetin(sebep));
  if (kusur.empty()) return std::nullopt;
  return KuralKusuru("Çıkış Sebebi: " + kusur, cikisformu::cikissebebi);
}

// The three columns of leaving, over the card that was read.
Okunan<Sicil> CikisKarti(const Sicil& kart, const CikisFormu& form) {
  Okunan<Sicil> yazilan{.ilk = kart, .simdi = kart};
  yazilan.simdi.ciktar = form.ciktar;
  yazilan.simdi.cikiskodu = form.cikiskodu;
  yazilan.simdi.cikissebebi = form.cikissebebi;
  return yazilan;
}

}  // namespace

std::optional<CikisFormu> CikisBul(Oturum& o, std::string_view kod) {
  const auto sicil = KartBul(o, kod);
  if (!sicil) return std::nullopt;
  const Kimlik kimlik = KimlikBul(o, kod).value_or(Kimlik{});
  return CikisFormu{.kod = sicil->kod,
                    .adSoyad = sicil->adi + " " + sicil->soyadi,
                    .sskno = sicil->sskno,
                    .girtar = sicil->girtar,
                    .ciktar = sicil->ciktar,
                    .cikiskodu = sicil->cikiskodu,
                    .cikissebebi = sicil->cikissebebi,
                    .adr1 = kimlik.adr1,
                    .adr2 = kimlik.adr2,
                    .tel = kimlik.tel,
                    .kart = sicil};
}

Sonuc<Okunan<Sicil>> CikisHazirla(Oturum& o, const CikisFormu& form) {
  const bool okunan = form.kart && TurkceEsit(form.kart->kod, TemizKod(form.kod));
  const auto kart = okunan ? form.kart : KartBul(o, form.kod);
  if (auto kusur = CikisKusuru(form, kart)) return *std::move(kusur);
  if (!kart) return KuralKusuru("Hatalı Personel Çıkışı", cikisformu::kod);
  if (auto kusur = SebepKusuru(form.cikissebebi)) return *std::move(kusur);
  return CikisKarti(*kart, form);
}

Yazim<Sicil> CikisYaz(Oturum& o, const Okunan<Sicil>& kart) {
  return KayitYaz(o, kart, "Sicil Bilgileri Güncellenemedi");
}

Sonuc<bool> CikisGeriAl(Oturum& o, std::string_view kod) {
  const auto kart = KartBul(o, kod);
  if (!kart) return false;
  if (const auto y = KayitYaz(o, CikisKarti(*kart, {}), "Çıkış Geri Alınamadı"); !y) return Kusur(y.Kusuru());
  return true;
}

OdemeSatiri IbranameOdemeleri::Toplam() const {
  OdemeSatiri toplam{};
  for (const auto& satir : satirlar)
    for (std::size_t kolon = 0; kolon < toplam.size(); ++kolon) toplam[kolon] += satir[kolon];
  return toplam;
}

}  // namespace belvani
