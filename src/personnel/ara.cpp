#include "personnel/ara.h"

#include <array>

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

// "çağ" -> "cag", of small letters.
std::string Isaretsiz(std::string metin) {
  constexpr std::array<std::pair<std::string_view, char>, 6> harfler{
      {{"ç", 'c'}, {"ğ", 'g'}, {"ı", 'i'}, {"ö", 'o'}, {"ş", 's'}, {"ü", 'u'}}};
  for (const auto& [isaretli, sade] : harfler)
    for (auto yer = metin.find(isaretli); yer != std::string::npos; yer = metin.find(isaretli, yer))
      metin.replace(yer, isaretli.size(), 1, sade);
  return metin;
}

bool HerKelimesi(const std::string& icinde, std::string_view kelimeler) {
  while (true) {
    const auto bas = kelimeler.find_first_not_of(' ');
    if (bas == std::string_view::npos) return true;
    kelimeler.remove_prefix(bas);
    const auto kelime = kelimeler.substr(0, kelimeler.find(' '));
    if (icinde.find(kelime) == std::string::npos) return false;
    kelimeler.remove_prefix(kelime.size());
  }
}

}  // namespace

void KisiListesi::Ekle(KisiSatiri kisi) {
  std::string adi = KucukHarf(kisi.adi);
  const std::string soyadi = KucukHarf(kisi.soyadi);
  const std::string kod = KucukHarf(kisi.kod);
  // The marks keep a word from being found across two of them.
  anahtarlar_.push_back({kod, adi + " " + soyadi, adi + soyadi, Isaretsiz(kod + '\n' + adi + '\n' + soyadi)});
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
  const std::string sade = Isaretsiz(aranan);
  const bool koddan = tur == AramaTuru::KodBastan || tur == AramaTuru::KodIcinde;
  const auto uyar = tur == AramaTuru::KodBastan || tur == AramaTuru::AdBastan ? Bastan : Icinde;
  std::vector<std::size_t> bulunan;
  for (std::size_t i = 0; i < anahtarlar_.size(); ++i) {
    const Anahtar& a = anahtarlar_[i];
    if (tur == AramaTuru::Hepsi) {
      if (HerKelimesi(a.hepsi, sade)) bulunan.push_back(i);
      continue;
    }
    if (koddan ? uyar(a.kod, aranan) : uyar(a.bitisikAd, aranan) || uyar(a.ad, aranan)) bulunan.push_back(i);
  }
  return bulunan;
}

}  // namespace belvani
