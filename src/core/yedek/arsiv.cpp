#include "core/yedek/arsiv.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <zip.h>

#include "core/asama.h"
#include "core/kaynak.h"
#include "core/turkce.h"
#include "core/yedek/ozet.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;

// The fastest packing: pages of a store shrink to a fifth already, and a better one takes three times as long.
constexpr zip_uint32_t Sikistirma = 1;
constexpr std::size_t Blok = 1u << 18;
constexpr std::size_t EnCokKunye = 4u << 20;
constexpr zip_int64_t EnCokDosya = 10'000;

Kusur Bozuk(const std::string& neden) {
  return Kusur{"Yedek bozuk: " + neden};
}

Kusur Yazilamadi(const std::string& yol, int kod) {
  const char* neden = kod == ENOSPC || kod == EDQUOT  ? "disk dolu"
                      : kod == EACCES || kod == EPERM ? "yazma izni yok"
                      : kod == EROFS                  ? "disk salt okunur"
                      : kod == EFBIG                  ? "dosya çok büyük"
                                                      : "disk hatası";
  return Kusur{yol + ": yazılamadı (" + neden + ")"};
}

class Dosya {
 public:
  Dosya() = default;
  Dosya(const std::string& yol, int bayraklar, mode_t izin = 0)
      : no_(::open(yol.c_str(), bayraklar | O_CLOEXEC, izin)) {}
  ~Dosya() {
    if (no_ >= 0) ::close(no_);
  }
  Dosya(Dosya&& d) noexcept : no_(std::exchange(d.no_, -1)) {}
  Dosya& operator=(Dosya&& d) noexcept {
    std::swap(no_, d.no_);
    return *this;
  }

  int No() const { return no_; }
  bool Yaz(std::string_view baytlar) const {
    while (!baytlar.empty()) {
      const ssize_t n = ::write(no_, baytlar.data(), baytlar.size());
      if (n < 0 && errno == EINTR) continue;
      if (n <= 0) return false;
      baytlar.remove_prefix(std::size_t(n));
    }
    return true;
  }

 private:
  int no_ = -1;
};

// Counts bytes over several files; every stage runs from 0 to its whole.
class BaytAsamasi {
 public:
  BaytAsamasi(Ilerleme* ilerleme, std::string_view ad, std::uint64_t toplam) : ilerleme_(ilerleme), toplam_(toplam) {
    if (ilerleme_ != nullptr) ilerleme_->Asama(ad);
  }
  void Ekle(std::size_t bayt) {
    biten_ += bayt;
    if (ilerleme_ != nullptr && !ilerleme_->Adim(std::min(biten_, toplam_), toplam_)) throw Vazgecilmis{};
  }

 private:
  Ilerleme* ilerleme_;
  std::uint64_t toplam_, biten_ = 0;
};

Durum OzetiniAl(const std::string& yol, YedekDosyasi& dosya, BaytAsamasi& asama) {
  const Dosya acik(yol, O_RDONLY);
  std::string blok(Blok, '\0');
  Ozetci ozet;
  ssize_t n = acik.No() < 0 ? -1 : 0;
  while (n >= 0 && (n = ::read(acik.No(), blok.data(), blok.size())) > 0) {
    ozet.Ekle({blok.data(), std::size_t(n)});
    dosya.boy += std::uint64_t(n);
    asama.Ekle(std::size_t(n));
  }
  if (n < 0) return Kusur{yol + ": okunamadı"};
  dosya.ozet = ozet.Metin();
  return Tamam();
}

Durum DosyalariAl(const std::string& dizin, YedekKunyesi& kunye, Ilerleme* ilerleme) {
  std::uint64_t toplam = 0;
  std::error_code hata;
  for (fs::directory_iterator i(dizin, hata), son; !hata && i != son; i.increment(hata)) {
    kunye.dosyalar.push_back({.ad = i->path().filename(), .ozet = {}});
    std::error_code boysuz;
    toplam += i->file_size(boysuz);
  }
  if (hata) return Kusur{dizin + ": okunamadı"};
  std::ranges::sort(kunye.dosyalar, {}, &YedekDosyasi::ad);
  BaytAsamasi asama(ilerleme, "Dosyaların özeti alınıyor…", toplam);
  for (YedekDosyasi& dosya : kunye.dosyalar)
    if (Durum alindi = OzetiniAl(dizin + dosya.ad, dosya, asama); !alindi) return alindi;
  return Tamam();
}

// What the library asks while it packs; nothing may be thrown through it.
struct ZipIzleyici {
  Ilerleme* ilerleme = nullptr;
  bool vazgecildi = false;

  void Adim(double oran) {
    constexpr std::size_t binde = 1000;
    if (ilerleme != nullptr && !ilerleme->Adim(std::size_t(oran * binde), binde)) vazgecildi = true;
  }
};

bool Ekle(zip_t* arsiv, const std::string& ad, zip_source_t* kaynak) {
  if (kaynak == nullptr) return false;
  const zip_int64_t yer = zip_file_add(arsiv, ad.c_str(), kaynak, ZIP_FL_ENC_UTF_8);
  if (yer < 0) {
    zip_source_free(kaynak);
    return false;
  }
  return zip_set_file_compression(arsiv, zip_uint64_t(yer), ZIP_CM_DEFLATE, Sikistirma) == 0;
}

Kusur ZipHatasi(const std::string& yol, zip_t* arsiv) {
  zip_error_t* hata = zip_get_error(arsiv);
  if (zip_error_system_type(hata) == ZIP_ET_SYS && zip_error_code_system(hata) != 0)
    return Yazilamadi(yol, zip_error_code_system(hata));
  return Kusur{yol + ": yedek yazılamadı"};
}

Durum Paketle(const std::string& yol, const std::string& dizin, const YedekKunyesi& kunye, Ilerleme* ilerleme) {
  ZipIzleyici izleyici{ilerleme};
  const std::string kunyeMetni = KunyeMetni(kunye);
  int kod = 0;
  zip_t* arsiv = zip_open(yol.c_str(), ZIP_TRUNCATE, &kod);
  if (arsiv == nullptr) return Kusur{yol + ": yedek yazılamadı"};
  bool tamam = Ekle(arsiv, std::string(KunyeAdi), zip_source_buffer(arsiv, kunyeMetni.data(), kunyeMetni.size(), 0));
  for (const YedekDosyasi& d : kunye.dosyalar)
    tamam = tamam && Ekle(arsiv, d.ad, zip_source_file(arsiv, (dizin + d.ad).c_str(), 0, 0));
  if (ilerleme != nullptr) ilerleme->Asama("Sıkıştırılıyor…");
  zip_register_progress_callback_with_state(
      arsiv, 0.005, [](zip_t*, double oran, void* i) { static_cast<ZipIzleyici*>(i)->Adim(oran); }, nullptr, &izleyici);
  zip_register_cancel_callback_with_state(
      arsiv, [](zip_t*, void* i) { return int(static_cast<ZipIzleyici*>(i)->vazgecildi); }, nullptr, &izleyici);
  if (tamam && zip_close(arsiv) == 0) return Tamam();
  const Kusur kusur = ZipHatasi(yol, arsiv);
  zip_discard(arsiv);
  if (izleyici.vazgecildi) throw Vazgecilmis{};
  return kusur;
}

// On the disk, and out of the memory: what is read back comes from the disk.
Durum DiskeIndir(const std::string& yol) {
  const Dosya dosya(yol, O_RDONLY);
  if (dosya.No() < 0 || ::fsync(dosya.No()) != 0) return Yazilamadi(yol, errno);
  ::posix_fadvise(dosya.No(), 0, 0, POSIX_FADV_DONTNEED);
  return Tamam();
}

Sonuc<std::string> KunyeMetniAl(zip_t* arsiv) {
  const zip_int64_t yer = zip_name_locate(arsiv, std::string(KunyeAdi).c_str(), 0);
  zip_stat_t hal;
  if (yer < 0 || zip_stat_index(arsiv, zip_uint64_t(yer), 0, &hal) != 0 || !(hal.valid & ZIP_STAT_SIZE))
    return Kusur{"Dosya bir şirket yedeği değil"};
  if (hal.size > EnCokKunye) return Bozuk("künyesi çok büyük");
  std::string metin(hal.size, '\0');
  zip_file_t* parca = zip_fopen_index(arsiv, zip_uint64_t(yer), 0);
  const zip_int64_t n = parca == nullptr ? -1 : zip_fread(parca, metin.data(), metin.size());
  if (parca != nullptr) zip_fclose(parca);
  if (n != zip_int64_t(metin.size())) return Bozuk("künyesi okunamadı");
  return metin;
}

// Entry by entry what the record says, nothing else.
Durum IcindekilerUyar(zip_t* arsiv, const YedekKunyesi& kunye) {
  const zip_int64_t adet = zip_get_num_entries(arsiv, 0);
  if (adet != zip_int64_t(kunye.dosyalar.size()) + 1) return Bozuk("künyesindeki dosyalar ile içindekiler farklı");
  std::vector<std::string> adlar;
  for (zip_int64_t i = 0; i < adet; ++i) {
    zip_stat_t hal;
    const char* ad = zip_get_name(arsiv, zip_uint64_t(i), ZIP_FL_ENC_RAW);
    if (ad == nullptr || zip_stat_index(arsiv, zip_uint64_t(i), 0, &hal) != 0) return Bozuk("içindekiler okunamadı");
    adlar.emplace_back(ad);
    if (ad == KunyeAdi) continue;
    const auto dosya = std::ranges::find(kunye.dosyalar, ad, &YedekDosyasi::ad);
    if (dosya == kunye.dosyalar.end()) return Bozuk("künyesinde olmayan bir dosya var: " + DenetimsizMetin(ad));
    if (!(hal.valid & ZIP_STAT_SIZE) || hal.size != dosya->boy) return Bozuk(dosya->ad + " künyesindeki boyda değil");
  }
  std::ranges::sort(adlar);
  if (std::ranges::adjacent_find(adlar) != adlar.end()) return Bozuk("bir dosya iki kez var");
  return Tamam();
}

}  // namespace

Durum ArsivYaz(const std::string& yol, const std::string& dizin, YedekKunyesi& kunye, Ilerleme* ilerleme) {
  if (Durum alindi = DosyalariAl(dizin, kunye, ilerleme); !alindi) return alindi;
  // The library writes aside and keeps the mode of what was there.
  if (Dosya(yol, O_WRONLY | O_CREAT | O_EXCL, 0600).No() < 0) return Yazilamadi(yol, errno);
  if (Durum paket = Paketle(yol, dizin, kunye, ilerleme); !paket) return paket;
  return DiskeIndir(yol);
}

void YedekArsivi::Kapat::operator()(zip* arsiv) const {
  zip_discard(arsiv);
}

Sonuc<YedekArsivi> YedekArsivi::Ac(const std::string& yol) {
  YedekArsivi a;
  int kod = 0;
  a.arsiv_.reset(zip_open(yol.c_str(), ZIP_RDONLY, &kod));
  if (!a.arsiv_)
    return Kusur{kod == ZIP_ER_NOENT || kod == ZIP_ER_OPEN ? "Dosya okunamadı: " + yol
                                                           : "Dosya bir şirket yedeği değil: " + yol};
  if (zip_get_num_entries(a.arsiv_.get(), 0) > EnCokDosya) return Bozuk("içinde çok fazla dosya var");
  const auto metin = KunyeMetniAl(a.arsiv_.get());
  if (!metin) return metin.Kusuru();
  auto kunye = KunyeOku(*metin);
  if (!kunye) return kunye.Kusuru();
  a.kunye_ = std::move(*kunye);
  if (const Durum uyar = IcindekilerUyar(a.arsiv_.get(), a.kunye_); !uyar) return uyar.Kusuru();
  return a;
}

std::uint64_t YedekArsivi::AcikBoy() const {
  std::uint64_t toplam = 0;
  for (const YedekDosyasi& d : kunye_.dosyalar) toplam += d.boy;
  return toplam;
}

Durum YedekArsivi::HerDosya(Ilerleme* ilerleme, const std::function<Durum(const YedekDosyasi&)>& basla, const Alici& al,
                            const std::function<Durum(const YedekDosyasi&)>& bitir) const {
  BaytAsamasi asama(ilerleme, "Yedek okunuyor…", AcikBoy());
  std::string blok(Blok, '\0');
  for (const YedekDosyasi& dosya : kunye_.dosyalar) {
    if (Durum d = basla(dosya); !d) return d;
    const std::unique_ptr<zip_file_t, decltype(&zip_fclose)> parca(zip_fopen(arsiv_.get(), dosya.ad.c_str(), 0),
                                                                   &zip_fclose);
    Ozetci ozet;
    std::uint64_t boy = 0;
    zip_int64_t n = parca ? 0 : -1;
    while (n >= 0 && (n = zip_fread(parca.get(), blok.data(), blok.size())) > 0) {
      boy += std::uint64_t(n);
      if (boy > dosya.boy) return Bozuk(dosya.ad + " künyesindekinden büyük");
      ozet.Ekle({blok.data(), std::size_t(n)});
      if (Durum d = al(dosya, {blok.data(), std::size_t(n)}); !d) return d;
      asama.Ekle(std::size_t(n));
    }
    if (n < 0 || boy != dosya.boy || ozet.Metin() != dosya.ozet) return Bozuk(dosya.ad + " yedeklendiği gibi değil");
    if (Durum d = bitir(dosya); !d) return d;
  }
  return Tamam();
}

Durum YedekArsivi::Dogrula(Ilerleme* ilerleme) const {
  const auto gec = [](const YedekDosyasi&) { return Tamam(); };
  return HerDosya(
      ilerleme, gec, [](const YedekDosyasi&, std::string_view) { return Tamam(); }, gec);
}

Durum YedekArsivi::Cikar(const std::string& dizin, Ilerleme* ilerleme) const {
  std::error_code hata;
  if (const auto yer = fs::space(dizin, hata); !hata && yer.available < AcikBoy())
    return Kusur{dizin + ": diskte yer yok, gereken " + BoyMetni(AcikBoy())};
  Dosya acik;
  return HerDosya(
      ilerleme,
      [&](const YedekDosyasi& d) -> Durum {
        acik = Dosya(dizin + d.ad, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, 0660);
        return acik.No() < 0 || ::fchmod(acik.No(), 0660) != 0 ? Durum(Yazilamadi(dizin + d.ad, errno)) : Tamam();
      },
      [&](const YedekDosyasi& d, std::string_view baytlar) -> Durum {
        return acik.Yaz(baytlar) ? Tamam() : Durum(Yazilamadi(dizin + d.ad, errno));
      },
      [&](const YedekDosyasi& d) -> Durum {
        return ::fsync(acik.No()) == 0 ? Tamam() : Durum(Yazilamadi(dizin + d.ad, errno));
      });
}

}  // namespace belvani
