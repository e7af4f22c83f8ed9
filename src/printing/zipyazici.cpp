#include "printing/zipyazici.h"

#include <algorithm>
#include <cassert>
#include <limits>
#include <new>
#include <zlib.h>

namespace belvani {
namespace {

// Figures of an archive are little-endian.
template <class Sayi>
void Ekle(std::string& baytlar, Sayi sayi) {
  for (std::size_t i = 0; i < sizeof(Sayi); ++i) baytlar += char((std::uint64_t(sayi) >> (8 * i)) & 0xFF);
}

constexpr std::uint32_t ParcaImzasi = 0x04034b50;
constexpr std::uint32_t DizinImzasi = 0x02014b50;
constexpr std::uint32_t SonImzasi = 0x06054b50;
constexpr std::uint16_t Surum = 20;             // 2.0: packed parts
constexpr std::uint16_t Paketli = 8;            // deflate
constexpr std::uint32_t Tarihsiz = 0x00210000;  // 01.01.1980, the first day of the format
constexpr int PaketDuzeyi = 3;                  // a tenth larger than the usual, packed twice as fast
constexpr int BasliksizPencere = -MAX_WBITS;
constexpr int Bellek = 9;
constexpr std::uint64_t EnCok = std::numeric_limits<std::uint32_t>::max();

}  // namespace

struct ZipYazici::Paketleyici {
  z_stream akis = {};

  Paketleyici() {
    if (deflateInit2(&akis, PaketDuzeyi, Z_DEFLATED, BasliksizPencere, Bellek, Z_DEFAULT_STRATEGY) != Z_OK)
      throw std::bad_alloc();
  }
  ~Paketleyici() { deflateEnd(&akis); }
  Paketleyici(const Paketleyici&) = delete;
  Paketleyici& operator=(const Paketleyici&) = delete;

  void Paketle(std::string_view baytlar, int bitis, std::string& hedef) {
    char blok[16384];
    akis.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(baytlar.data()));
    akis.avail_in = uInt(baytlar.size());
    do {
      akis.next_out = reinterpret_cast<Bytef*>(blok);
      akis.avail_out = sizeof blok;
      deflate(&akis, bitis);
      hedef.append(blok, sizeof blok - akis.avail_out);
    } while (akis.avail_out == 0);
  }
};

ZipYazici::ZipYazici() : paketleyici_(std::make_unique<Paketleyici>()) {}
ZipYazici::~ZipYazici() = default;

void ZipYazici::ParcaBasla(const std::string& ad) {
  ParcaBitir();
  parcalar_.push_back({.ad = ad, .yer = arsiv_.size()});
  Ekle(arsiv_, ParcaImzasi);
  Ekle(arsiv_, Surum);
  Ekle(arsiv_, std::uint16_t(0));
  Ekle(arsiv_, Paketli);
  Ekle(arsiv_, Tarihsiz);
  arsiv_.append(12, '\0');  // sum and sizes, which ParcaBitir knows
  Ekle(arsiv_, std::uint16_t(ad.size()));
  Ekle(arsiv_, std::uint16_t(0));
  arsiv_ += ad;
}

void ZipYazici::Yaz(std::string_view baytlar) {
  assert(!parcalar_.empty());
  Parca& parca = parcalar_.back();
  for (constexpr std::size_t enCok = 1u << 30; !baytlar.empty();
       baytlar.remove_prefix(std::min(baytlar.size(), enCok))) {
    const std::string_view dilim = baytlar.substr(0, enCok);
    parca.ozet = std::uint32_t(crc32(parca.ozet, reinterpret_cast<const Bytef*>(dilim.data()), uInt(dilim.size())));
    parca.boy += dilim.size();
    paketleyici_->Paketle(dilim, Z_NO_FLUSH, arsiv_);
  }
}

void ZipYazici::ParcaBitir() {
  if (parcalar_.empty()) return;
  Parca& parca = parcalar_.back();
  paketleyici_->Paketle({}, Z_FINISH, arsiv_);
  deflateReset(&paketleyici_->akis);
  constexpr std::size_t basBoyu = 30;
  constexpr std::size_t olculerYeri = 14;
  parca.paketliBoy = arsiv_.size() - parca.yer - basBoyu - parca.ad.size();
  std::string olculer;
  Ekle(olculer, parca.ozet);
  Ekle(olculer, std::uint32_t(parca.paketliBoy));
  Ekle(olculer, std::uint32_t(parca.boy));
  arsiv_.replace(parca.yer + olculerYeri, olculer.size(), olculer);
}

std::optional<std::string> ZipYazici::Bitir() {
  ParcaBitir();
  const std::uint64_t dizinYeri = arsiv_.size();
  for (const Parca& parca : parcalar_) {
    if (parca.boy > EnCok) return std::nullopt;
    Ekle(arsiv_, DizinImzasi);
    Ekle(arsiv_, Surum);
    Ekle(arsiv_, Surum);
    Ekle(arsiv_, std::uint16_t(0));
    Ekle(arsiv_, Paketli);
    Ekle(arsiv_, Tarihsiz);
    Ekle(arsiv_, parca.ozet);
    Ekle(arsiv_, std::uint32_t(parca.paketliBoy));
    Ekle(arsiv_, std::uint32_t(parca.boy));
    Ekle(arsiv_, std::uint16_t(parca.ad.size()));
    arsiv_.append(12, '\0');  // no further fields, no comment, first disk, no attributes
    Ekle(arsiv_, std::uint32_t(parca.yer));
    arsiv_ += parca.ad;
  }
  const std::uint64_t dizinBoyu = arsiv_.size() - dizinYeri;
  if (arsiv_.size() > EnCok) return std::nullopt;
  Ekle(arsiv_, SonImzasi);
  Ekle(arsiv_, std::uint32_t(0));
  for (int i = 0; i < 2; ++i) Ekle(arsiv_, std::uint16_t(parcalar_.size()));
  Ekle(arsiv_, std::uint32_t(dizinBoyu));
  Ekle(arsiv_, std::uint32_t(dizinYeri));
  Ekle(arsiv_, std::uint16_t(0));
  return std::move(arsiv_);
}

}  // namespace belvani
