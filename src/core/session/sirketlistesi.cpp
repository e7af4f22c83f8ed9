#include "core/session/sirketlistesi.h"

#include <algorithm>
#include <filesystem>

#include "core/dosya.h"
#include "core/session/sirket.h"
#include "core/turkce.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;

SirketSatiri SatirOku(const VeriYolu& veri, const std::string& ad) {
  Veritabani db;
  Imlec firma;
  if (!db.DbAc(DepoAdresi(veri.Alt(ad))) || !db.TabloAc(firma, "firma") || !firma.IlkKayit())
    return {ad, "Database'e Ulaşılamadı", ""};
  const std::string ay = firma.MetinOku("firmaay");
  return {ad, firma.MetinOku("unvan"), (ay.size() < 2 ? "0" + ay : ay) + "-" + firma.MetinOku("firmayil")};
}

bool AyniDizin(const std::string& a, const std::string& b) {
  std::error_code hata;
  return fs::equivalent(a, b, hata);
}

// What stands in a company's directory, the store last; or why that cannot be deleted.
Sonuc<std::vector<fs::path>> Silinecekler(const std::string& dizin) {
  std::vector<fs::path> dosyalar;
  std::error_code hata;
  for (fs::directory_iterator i(dizin, hata), son; !hata && i != son; i.increment(hata)) {
    if (i->symlink_status(hata).type() == fs::file_type::directory)
      return Kusur{"Şirket dizininde alt dizin var, hiçbir dosya silinmedi:\n" + i->path().string()};
    dosyalar.push_back(i->path());
  }
  if (hata) return Kusur{"Şirket dizini okunamadı, hiçbir dosya silinmedi:\n" + dizin};
  std::stable_partition(dosyalar.begin(), dosyalar.end(), [](const auto& d) { return d.filename() != DepoDosyasi; });
  return dosyalar;
}

// The company's store with everybody else kept out, as long as the result lives; null when the file is no store, which
// nobody can have open. A connection of another computer or program, even an idle one, is told by its hold on the
// write-ahead log, which leaving that journal mode asks for.
Sonuc<std::unique_ptr<Motor>> TekBasinaAc(const std::string& yol) {
  try {
    auto motor = MotorAc(yol);
    motor->Calistir("pragma journal_mode=delete; begin exclusive");
    return motor;
  } catch (const MotorHatasi& h) {
    if (h.tur == MotorKusuru::Kilitli) return Kusur{"Bu şirket şu anda kullanılıyor, hiçbir dosya silinmedi:\n" + yol};
    return std::unique_ptr<Motor>();
  }
}

Durum Sil(const fs::path& yol) {
  std::error_code hata;
  fs::remove(yol, hata);
  if (!hata) return Tamam();
  return Kusur{"Şirket silinemedi, silinemeyen: " + yol.string()};
}

Durum DiziniSil(const std::string& dizin) {
  const auto dosyalar = Silinecekler(dizin);
  if (!dosyalar) return dosyalar.Kusuru();
  const auto depo = TekBasinaAc(dizin + "/" + DepoDosyasi);
  if (!depo) return depo.Kusuru();
  for (const auto& dosya : *dosyalar)
    if (auto d = Sil(dosya); !d) return d;
  return Tamam();
}

}  // namespace

std::vector<SirketSatiri> SirketListesi(const VeriYolu& veri, Ilerleme* ilerleme) {
  std::vector<SirketSatiri> satirlar;
  const auto adlar = Sirketler(veri);
  for (const auto& ad : adlar) {
    if (ilerleme != nullptr && !ilerleme->Adim(satirlar.size(), adlar.size())) break;
    satirlar.push_back(SatirOku(veri, ad));
  }
  return satirlar;
}

std::vector<std::string> SilinebilirSirketler(const std::string& dataPath, const Oturum& o) {
  std::vector<std::string> adlar = Sirketler(dataPath);
  std::erase_if(adlar, [&](const std::string& ad) {
    const std::string dizin = DizinSonu(dataPath) + ad;
    std::error_code hata;
    return BuyukHarf(ad) == BuyukHarf(o.FirmaKod) || fs::is_symlink(dizin, hata) || AyniDizin(dizin, o.FirmaDizini);
  });
  return adlar;
}

Sonuc<Silme> SirketSil(const std::string& dataPath, std::string_view ad, const Oturum& o, Bildirim& bildirim) {
  const auto adlar = SilinebilirSirketler(dataPath, o);
  if (std::find(adlar.begin(), adlar.end(), ad) == adlar.end())
    return Kusur{"Silinebilecek şirketler arasında yok: " + std::string(ad)};
  if (!bildirim.Soru("Firmayı Silmeye Eminmisiniz ?")) return Silme::Silinmedi;
  const std::string dizin = DizinSonu(dataPath) + std::string(ad);
  Durum silindi = DiziniSil(dizin);
  if (silindi) silindi = Sil(dizin);
  if (!silindi) return silindi.Kusuru();
  return Silme::Silindi;
}

}  // namespace belvani
