#include "core/dizinmakinesi.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "core/dizinkilidi.h"
#include "core/gecici.h"
#include "core/tutamak.h"
#include "core/yarimdizin.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view IsaretOnEki = ".isaret-";
constexpr std::size_t EnCokIsaret = 4096;

// Whole for its readers, but not brought to the disk: a power cut takes the programs along that have laid it.
bool IsaretYaz(const std::string& yol, std::string_view baytlar) {
  const std::string gecici = yol + "~";
  const int no = ::open(gecici.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0660);
  if (no < 0) return false;
  const bool yazildi = ::write(no, baytlar.data(), baytlar.size()) == ssize_t(baytlar.size());
  if (::close(no) == 0 && yazildi && ::rename(gecici.c_str(), yol.c_str()) == 0) return true;
  ::unlink(gecici.c_str());
  return false;
}

// All that is left in the one into the other, open to owner and group, on the disk; false with errno.
bool AkitVeIndir(int kaynak, int hedef) {
  std::array<char, 65536> blok;
  ssize_t n = 0;
  while ((n = ::read(kaynak, blok.data(), blok.size())) > 0)
    if (!HepsiniYaz(hedef, {blok.data(), std::size_t(n)})) return false;
  return n == 0 && ::fchmod(hedef, 0660) == 0 && ::fsync(hedef) == 0;
}

class YarimDizinYeri final : public YarimYer {
 public:
  explicit YarimDizinYeri(YarimDizin yarim) : yarim_(std::move(yarim)) {}
  std::string Adres() const override { return yarim_.Yol(); }
  Durum Adlandir() override { return yarim_.Adlandir(); }
  Durum YerineGec() override { return yarim_.YerineGec(); }

 private:
  YarimDizin yarim_;
};

class DizinMakinesi final : public VeriMakinesi {
 public:
  explicit DizinMakinesi(const std::string& dizin) : dizin_(DizinSonu(dizin)) {}

  // A file whose set waits to be moved is read where it waits; when it moves meanwhile, in its place.
  DosyaHali Bak(std::string_view ad, std::size_t enCok) const override {
    const DosyaHali bekleyen = Bul(BekleyenDosya(dizin_, ad), enCok);
    return bekleyen.var && !bekleyen.okunamadi ? bekleyen : Bul(Adres(ad), enCok);
  }
  std::optional<DosyaIzi> Iz(std::string_view ad) const override {
    struct stat hal {};
    if (::stat(Adres(ad).c_str(), &hal) != 0 || !S_ISREG(hal.st_mode)) return std::nullopt;
    constexpr std::int64_t nano = 1'000'000'000;
    return DosyaIzi{std::uintmax_t(hal.st_size), hal.st_mtim.tv_sec * nano + hal.st_mtim.tv_nsec};
  }
  Durum Yaz(std::string_view ad, std::string_view baytlar) const override {
    if (auto durum = BekleyenleriYerlestir(dizin_); !durum) return durum;
    GecicileriSupur(dizin_);
    return DosyaYaz(Adres(ad), baytlar);
  }
  Durum YazHepsi(const std::vector<AdliDosya>& dosyalar) const override {
    GecicileriSupur(dizin_);
    return DosyalariYaz(dizin_, dosyalar);
  }
  Durum Sil(std::string_view ad) const override {
    if (auto durum = BekleyenleriYerlestir(dizin_); !durum) return durum;
    return Kaldir(Adres(ad));
  }
  std::vector<std::string> Dosyalar() const override {
    return Adlar([](const fs::directory_entry& g, std::error_code& hata) { return g.is_regular_file(hata); });
  }
  Durum IsaretKoy(std::string_view ad, std::string_view baytlar) const override {
    return IsaretYaz(IsaretYolu(ad), baytlar) ? Tamam() : Durum(Kusur{dizin_ + ": işaret yazılamadı"});
  }
  Durum IsaretKaldir(std::string_view ad) const override { return Kaldir(IsaretYolu(ad)); }
  std::vector<AdliDosya> Isaretler() const override {
    std::vector<AdliDosya> isaretler;
    std::error_code hata;
    for (fs::directory_iterator i(dizin_, hata), son; !hata && i != son; i.increment(hata)) {
      const std::string dosya = i->path().filename();
      if (!dosya.starts_with(IsaretOnEki)) continue;
      if (auto baytlar = DosyaOku(i->path(), EnCokIsaret))
        isaretler.push_back({dosya.substr(IsaretOnEki.size()), std::move(*baytlar)});
    }
    return isaretler;
  }
  Sonuc<std::unique_ptr<YolKilidi>> Kilitle(std::chrono::milliseconds enCok) const override {
    return DiziniKilitle(dizin_, enCok);
  }
  std::string Adres(std::string_view ad) const override { return dizin_ + std::string(ad); }
  std::shared_ptr<const VeriMakinesi> Alt(std::string_view ad) const override {
    return std::make_shared<DizinMakinesi>(Adres(ad));
  }
  std::vector<std::string> Altlar() const override {
    return Adlar([](const fs::directory_entry& g, std::error_code& hata) { return g.is_directory(hata); });
  }
  bool AltVar(std::string_view ad) const override { return DizinVar(Adres(ad)); }
  Durum Yarat() const override { return DizinYarat(dizin_); }
  std::string Kimlik() const override {
    struct stat hal {};
    if (::stat(dizin_.c_str(), &hal) != 0) return {};
    return std::to_string(hal.st_dev) + ":" + std::to_string(hal.st_ino);
  }
  bool BagMi() const override {
    std::error_code hata;
    return fs::is_symlink(Yol(), hata);
  }
  std::vector<DosyaHali> BakHepsi(const std::vector<std::string_view>& adlar, std::size_t enCok) const override;
  std::vector<AltIsareti> AltIsaretleri() const override {
    std::vector<AltIsareti> isaretler;
    for (const std::string& alt : Altlar())
      for (AdliDosya& isaret : DizinMakinesi(Adres(alt)).Isaretler()) isaretler.push_back({alt, std::move(isaret)});
    return isaretler;
  }
  Sonuc<std::unique_ptr<YarimYer>> YarimAlt(std::string_view ad, YarimTuru tur) const override {
    auto yarim = YarimDizin::Ac(dizin_, std::string(ad), tur);
    if (!yarim) return yarim.Kusuru();
    return std::unique_ptr<YarimYer>(std::make_unique<YarimDizinYeri>(std::move(*yarim)));
  }
  std::vector<std::string> YarimAltlar() const override { return YarimDizinler(dizin_); }
  Sonuc<std::string> YarimaCevir(std::string_view ad) const override {
    return YarimDizineCevir(dizin_, std::string(ad));
  }
  Durum YarimSil(std::string_view ad) const override { return YarimDiziniSil(dizin_, std::string(ad)); }
  void Toparla() const override {
    GecicileriSupur(dizin_);
    YarimDegisimleriBitir(dizin_);
  }
  Durum DosyayaAl(std::string_view ad, const std::string& yol) const override {
    std::error_code hata;
    const std::string bekleyen = BekleyenDosya(dizin_, ad);
    return Kopyala(fs::exists(bekleyen, hata) ? bekleyen : Adres(ad), yol);
  }
  Durum DosyadanKoy(std::string_view ad, const std::string& yol) const override;
  std::string YerelDizin() const override { return dizin_; }
  std::shared_ptr<const VeriMakinesi> Yedekler() const override { return Alt(".yedek"); }
  bool Sunucuda() const override { return false; }

 private:
  static DosyaHali Bul(const std::string& yol, std::size_t enCok) {
    std::error_code hata;
    if (!fs::exists(yol, hata)) return {.okunamadi = bool(hata)};
    if (auto baytlar = DosyaOku(yol, enCok)) return {*baytlar, baytlar->size(), true, false};
    const std::uintmax_t boy = fs::is_regular_file(yol, hata) ? fs::file_size(yol, hata) : 0;
    return {.boy = hata ? 0 : boy, .var = true, .okunamadi = hata || boy <= enCok};
  }

  std::string IsaretYolu(std::string_view ad) const { return Adres(std::string(IsaretOnEki) + std::string(ad)); }

  // Without the separator, which would lead through a link.
  fs::path Yol() const { return fs::path(dizin_).parent_path(); }

  static Durum Kaldir(const fs::path& yol) {
    std::error_code hata;
    fs::remove(yol, hata);
    return hata ? Durum(Kusur{"silinemedi: " + yol.string()}) : Tamam();
  }

  static Durum Kopyala(const std::string& kaynak, const std::string& hedef) {
    std::error_code hata;
    fs::copy_file(kaynak, hedef, hata);
    return hata ? Durum(DosyaHatasi(kaynak, "kopyalanamadı", hata.value())) : Tamam();
  }

  template <class Uyar>
  std::vector<std::string> Adlar(Uyar uyar) const {
    std::vector<std::string> adlar;
    std::error_code hata;
    for (fs::directory_iterator i(dizin_, hata), son; !hata && i != son; i.increment(hata)) {
      std::error_code tur;
      std::string ad = i->path().filename();
      if (ad.front() != '.' && uyar(*i, tur)) adlar.push_back(std::move(ad));
    }
    return adlar;
  }

  std::string dizin_;
};

std::vector<DosyaHali> DizinMakinesi::BakHepsi(const std::vector<std::string_view>& adlar, std::size_t enCok) const {
  const auto bak = [&] {
    std::vector<DosyaHali> haller;
    for (const std::string_view ad : adlar) haller.push_back(Bak(ad, enCok));
    return haller;
  };
  // A set that comes into force between two reads shows in the second look.
  constexpr int enCokBakis = 20;
  std::vector<DosyaHali> once = bak();
  for (int i = 0; i < enCokBakis; ++i) {
    std::vector<DosyaHali> simdi = bak();
    if (simdi == once) break;
    once = std::move(simdi);
  }
  return once;
}

// Copied aside, brought to the disk, and only then given its name.
Durum DizinMakinesi::DosyadanKoy(std::string_view ad, const std::string& yol) const {
  if (auto durum = BekleyenleriYerlestir(dizin_); !durum) return durum;
  const std::string hedef = Adres(ad);
  const DosyaTutamagi kaynak(::open(yol.c_str(), O_RDONLY | O_CLOEXEC));
  if (!kaynak.Acik()) return DosyaHatasi(yol, "okunamadı", errno);
  std::string gecici;
  DosyaTutamagi yeni = GeciciAc(hedef, gecici);
  if (!yeni.Acik()) return DosyaHatasi(hedef, "dosya yazılamadı", errno);
  if (AkitVeIndir(kaynak.No(), yeni.No()) && yeni.Kapat() && ::rename(gecici.c_str(), hedef.c_str()) == 0) {
    DiziniDiskeIndir(dizin_);
    return Tamam();
  }
  const int kod = errno;
  ::unlink(gecici.c_str());
  return DosyaHatasi(hedef, "dosya yazılamadı", kod);
}

}  // namespace

std::shared_ptr<const VeriMakinesi> DizinYeri(const std::string& dizin) {
  return std::make_shared<DizinMakinesi>(dizin);
}

}  // namespace belvani
