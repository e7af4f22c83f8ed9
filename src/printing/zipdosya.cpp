#include "printing/zipdosya.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <zip.h>

namespace belvani {
namespace {

Kusur ZipHatasi() {
  return Kusur{"Zip arşivi değil ya da bozuk"};
}

struct ParcaSil {
  void operator()(zip_file_t* parca) const { zip_fclose(parca); }
};

// A packed part as the library takes one over as it is: read from its front, with what it is told of it.
struct SikisikOkuru {
  const SikisikParca& parca;
  std::size_t okunan = 0;

  static zip_int64_t Yap(void* okur, void* veri, zip_uint64_t boy, zip_source_cmd_t komut) {
    auto& o = *static_cast<SikisikOkuru*>(okur);
    if (komut == ZIP_SOURCE_SUPPORTS)
      return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE, ZIP_SOURCE_STAT,
                                            ZIP_SOURCE_FREE, -1);
    if (komut == ZIP_SOURCE_OPEN) o.okunan = 0;
    if (komut == ZIP_SOURCE_READ) return o.Oku(static_cast<char*>(veri), boy);
    if (komut == ZIP_SOURCE_STAT) return o.Anlat(*static_cast<zip_stat_t*>(veri));
    if (komut == ZIP_SOURCE_FREE) delete &o;
    return 0;
  }

 private:
  zip_int64_t Oku(char* hedef, zip_uint64_t boy) {
    const std::size_t n = parca.baytlar.copy(hedef, boy, okunan);
    okunan += n;
    return zip_int64_t(n);
  }
  zip_int64_t Anlat(zip_stat_t& bilgi) const {
    zip_stat_init(&bilgi);
    bilgi.valid = ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_CRC | ZIP_STAT_COMP_METHOD;
    bilgi.size = parca.boy;
    bilgi.comp_size = parca.baytlar.size();
    bilgi.crc = parca.crc;
    bilgi.comp_method = ZIP_CM_DEFLATE;
    return sizeof bilgi;
  }
};

enum class Acilis { Okunur, Degisir };

}  // namespace

// The archive as the library sees it; `kaynak` holds its bytes, before and after. They outlive one that is only read.
struct ZipDosyasi::Arsiv {
  Arsiv(std::string_view baytlar, Acilis acilis) {
    // The library may free the buffer of a changed archive even when it is not its own, so it gets one of its own.
    void* kopya = acilis == Acilis::Degisir ? std::malloc(baytlar.size() + 1) : nullptr;
    if (acilis == Acilis::Degisir && kopya == nullptr) return;
    if (kopya != nullptr) std::memcpy(kopya, baytlar.data(), baytlar.size());
    kaynak =
        zip_source_buffer_create(kopya != nullptr ? kopya : baytlar.data(), baytlar.size(), kopya != nullptr, nullptr);
    if (kaynak == nullptr) {
      std::free(kopya);
      return;
    }
    zip_source_keep(kaynak);
    const int nasil = acilis == Acilis::Degisir ? ZIP_CHECKCONS : ZIP_CHECKCONS | ZIP_RDONLY;
    zip = zip_open_from_source(kaynak, nasil, nullptr);
    if (zip == nullptr) zip_source_free(kaynak);  // what the archive would have taken over
  }
  ~Arsiv() {
    if (zip != nullptr) zip_discard(zip);
    if (kaynak != nullptr) zip_source_free(kaynak);
  }
  Arsiv(const Arsiv&) = delete;
  Arsiv& operator=(const Arsiv&) = delete;

  bool Degistir(const std::string& ad, const std::optional<std::string>& icerik) const {
    if (icerik) return Koy(ad, zip_source_buffer(zip, icerik->data(), icerik->size(), 0));
    const auto yer = zip_name_locate(zip, ad.c_str(), 0);
    return yer < 0 || zip_delete(zip, zip_uint64_t(yer)) == 0;
  }

  bool Degistir(const std::string& ad, const SikisikParca& icerik) const {
    auto okur = std::make_unique<SikisikOkuru>(SikisikOkuru{icerik});
    zip_source_t* parca = zip_source_function(zip, &SikisikOkuru::Yap, okur.get());
    if (parca != nullptr) okur.release();  // it goes with the source
    return Koy(ad, parca);
  }

  bool Koy(const std::string& ad, zip_source_t* parca) const {
    if (parca == nullptr) return false;
    const auto yer = zip_name_locate(zip, ad.c_str(), 0);
    zip_stat_t bilgi;
    const bool tarihli = yer >= 0 && zip_stat_index(zip, zip_uint64_t(yer), 0, &bilgi) == 0;
    const auto yeni = zip_file_add(zip, ad.c_str(), parca, ZIP_FL_OVERWRITE | ZIP_FL_ENC_UTF_8);
    if (yeni < 0) {
      zip_source_free(parca);
      return false;
    }
    return !tarihli || zip_file_set_mtime(zip, zip_uint64_t(yeni), bilgi.mtime, 0) == 0;
  }

  // Writes the changes into `kaynak`.
  bool Kapat() {
    if (zip_close(zip) != 0) return false;
    zip = nullptr;
    return true;
  }

  std::optional<std::string> Baytlar() const {
    if (zip_source_open(kaynak) != 0) return std::nullopt;
    std::string baytlar;
    char blok[65536];
    zip_int64_t n = 0;
    while ((n = zip_source_read(kaynak, blok, sizeof blok)) > 0) baytlar.append(blok, std::size_t(n));
    zip_source_close(kaynak);
    if (n < 0) return std::nullopt;
    return baytlar;
  }

  zip_source_t* kaynak = nullptr;
  zip_t* zip = nullptr;
};

Sonuc<ZipDosyasi> ZipDosyasi::Ac(std::string baytlar) {
  if (baytlar.empty()) return ZipHatasi();  // for the library that is an archive too
  ZipDosyasi dosya(std::move(baytlar));
  const Arsiv arsiv(dosya.baytlar_, Acilis::Okunur);
  if (arsiv.zip == nullptr) return ZipHatasi();
  const auto adet = zip_get_num_entries(arsiv.zip, 0);
  for (zip_int64_t i = 0; i < adet; ++i)
    if (const char* ad = zip_get_name(arsiv.zip, zip_uint64_t(i), 0)) dosya.adlar_.emplace_back(ad);
  if (dosya.adlar_.empty()) return ZipHatasi();
  return dosya;
}

bool ZipDosyasi::Gez(const std::string& ad, const std::function<bool(std::string_view)>& al) const {
  if (const auto d = degisen_.find(ad); d != degisen_.end()) {
    if (d->second) (void)al(*d->second);
    return d->second.has_value();
  }
  if (sikisik_.contains(ad)) return false;
  const Arsiv arsiv(baytlar_, Acilis::Okunur);
  if (arsiv.zip == nullptr) return false;
  const std::unique_ptr<zip_file_t, ParcaSil> parca(zip_fopen(arsiv.zip, ad.c_str(), 0));
  if (!parca) return false;
  std::string blok(65536, '\0');
  zip_int64_t n = 0;  // the last one, of nothing, also checks the part's sum
  while ((n = zip_fread(parca.get(), blok.data(), blok.size())) > 0)
    if (!al({blok.data(), std::size_t(n)})) return true;
  return n == 0;
}

bool ZipDosyasi::Aktar(const std::string& ad, const std::function<void(std::string_view)>& al) const {
  return Gez(ad, [&](std::string_view blok) {
    al(blok);
    return true;
  });
}

std::optional<std::size_t> ZipDosyasi::Boyu(const std::string& ad, std::size_t enCok) const {
  std::size_t boy = 0;
  const bool tamam = Gez(ad, [&](std::string_view blok) { return (boy += blok.size()) <= enCok; });
  return tamam ? std::optional(boy) : std::nullopt;
}

std::optional<std::string> ZipDosyasi::Oku(const std::string& ad) const {
  std::string icerik;
  bool buyuk = false;
  const bool tamam = Gez(ad, [&](std::string_view blok) {
    buyuk = icerik.size() + blok.size() > EnBuyukParca;
    if (!buyuk) icerik += blok;
    return !buyuk;
  });
  if (!tamam || buyuk) return std::nullopt;
  return icerik;
}

Sonuc<std::string> ZipDosyasi::Bitir() const {
  if (degisen_.empty() && sikisik_.empty()) return baytlar_;
  Arsiv arsiv(baytlar_, Acilis::Degisir);
  if (arsiv.zip == nullptr) return ZipHatasi();
  for (const auto& [ad, icerik] : degisen_)
    if (!arsiv.Degistir(ad, icerik)) return ZipHatasi();
  for (const auto& [ad, icerik] : sikisik_)
    if (!arsiv.Degistir(ad, icerik)) return ZipHatasi();
  if (!arsiv.Kapat()) return ZipHatasi();
  auto baytlar = arsiv.Baytlar();
  if (!baytlar) return ZipHatasi();
  return std::move(*baytlar);
}

}  // namespace belvani
