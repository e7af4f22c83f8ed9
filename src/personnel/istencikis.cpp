#include "personnel/istencikis.h"

#include "personnel/kart.h"
#include "personnel/kimlik.h"

namespace belvani {
namespace {

std::string CikisKusuru(const CikisFormu& form) {
  if (form.girtar.Bos()) return "Giriş Tarihi Hatası";
  if (form.ciktar.Bos()) return "Çıkış Tarihi Hatası";
  if (form.ciktar < form.girtar) return "Çıkış Tarihi,Giriş Tarihinden Büyük veya Eşit Olmalı";
  if (form.cikiskodu == 0 || CikisKoduMetni(form.cikiskodu).empty()) return "Çıkış Kodunu Seçmelisiniz";
  if (Kirp(DenetimsizMetin(form.cikissebebi)).empty()) return "Çıkış Sebebini Doldurunuz";
  return {};
}

std::string SebepKusuru(const std::string& sebep) {
  const std::string kusur = DegerKusuru(sicil::cikissebebi, DenetimsizMetin(sebep));
  return kusur.empty() ? kusur : "Çıkış Sebebi: " + kusur;
}

// The three columns of leaving, of the record that the cursor stands on.
bool CikisYaz(Imlec& rs, const Deger& ciktar, std::uint8_t cikiskodu, const std::string& cikissebebi) {
  rs.KayitDuzelt();
  rs.AlanYaz("ciktar", ciktar);
  rs.AlanYaz("cikiskodu", std::int64_t(cikiskodu));
  rs.AlanYaz("cikissebebi", cikissebebi);
  return rs.KayitYaz();
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
                    .tel = kimlik.tel};
}

bool CikisKaydet(Oturum& o, const CikisFormu& form, Bildirim& bildirim) {
  std::string kusur = CikisKusuru(form);
  if (kusur.empty() && !o.depo.SicilBul(TemizKod(form.kod))) kusur = "Hatalı Personel Çıkışı";
  if (kusur.empty()) kusur = SebepKusuru(form.cikissebebi);
  if (!kusur.empty()) {
    bildirim.Bilgi(kusur);
    return false;
  }
  if (CikisYaz(o.depo.sicil, form.ciktar, form.cikiskodu, form.cikissebebi)) return true;
  bildirim.Uyari("Sicil Bilgileri Güncellenemedi");
  return false;
}

bool CikisGeriAl(Oturum& o, std::string_view kod, Bildirim& bildirim) {
  if (!o.depo.SicilBul(TemizKod(kod))) return false;
  if (CikisYaz(o.depo.sicil, Null{}, 0, {})) return true;
  bildirim.Uyari("Çıkış Geri Alınamadı");
  return false;
}

OdemeSatiri IbranameOdemeleri::Toplam() const {
  OdemeSatiri toplam{};
  for (const auto& satir : satirlar)
    for (std::size_t kolon = 0; kolon < toplam.size(); ++kolon) toplam[kolon] += satir[kolon];
  return toplam;
}

}  // namespace belvani
