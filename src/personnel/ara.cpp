#include "personnel/ara.h"

#include "core/store/satirlar.h"
#include "core/turkce.h"

namespace belvani {
namespace {

bool Bastan(const std::string& icinde, const std::string& aranan) {
  return icinde.starts_with(aranan);
}
bool Icinde(const std::string& icinde, const std::string& aranan) {
  return icinde.find(aranan) != std::string::npos;
}

}  // namespace

void KisiListesi::Ekle(KisiSatiri kisi) {
  std::string adi = KucukHarf(kisi.adi);
  const std::string soyadi = KucukHarf(kisi.soyadi);
  anahtarlar_.push_back({KucukHarf(kisi.kod), adi + " " + soyadi, adi + soyadi});
  kisiler_.push_back(std::move(kisi));
}

Sonuc<KisiListesi> KisiListesi::Oku(Oturum& o) {
  return o.depo.db.Koru(Sonuc<KisiListesi>(Kusur{"Sql Yaratılamıyor"}), [&]() -> Sonuc<KisiListesi> {
    KisiListesi okunan;
    const auto komut = o.depo.db.IcMotor().Hazirla("select kod, adi, soyadi, ciktar from sicil order by kod");
    while (komut->Adim()) {
      KisiSatiri kisi;
      KolonAl(*komut, 0, kisi.kod);
      KolonAl(*komut, 1, kisi.adi);
      KolonAl(*komut, 2, kisi.soyadi);
      KolonAl(*komut, 3, kisi.ciktar);
      okunan.Ekle(std::move(kisi));
    }
    return okunan;
  });
}

std::vector<std::size_t> KisiListesi::Ara(AramaTuru tur, std::string_view metin) const {
  const std::string aranan = KucukHarf(DenetimsizMetin(metin));
  const bool koddan = tur == AramaTuru::KodBastan || tur == AramaTuru::KodIcinde;
  const auto uyar = tur == AramaTuru::KodBastan || tur == AramaTuru::AdBastan ? Bastan : Icinde;
  std::vector<std::size_t> bulunan;
  for (std::size_t i = 0; i < anahtarlar_.size(); ++i) {
    const Anahtar& a = anahtarlar_[i];
    if (koddan ? uyar(a.kod, aranan) : uyar(a.bitisikAd, aranan) || uyar(a.ad, aranan)) bulunan.push_back(i);
  }
  return bulunan;
}

}  // namespace belvani
