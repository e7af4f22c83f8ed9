#include "printing/sikistirici.h"

#include <array>
#include <new>
#include <zlib.h>

namespace belvani {

// Sheets are the same few tags again and again: a higher level takes twice the time for a tenth of the size.
constexpr int Duzey = 4;
constexpr int Cercevesiz = -15;  // the largest window, no frame
constexpr int BellekDuzeyi = 8;
constexpr std::size_t EnBuyukLokma = std::size_t(1) << 30;

struct Sikistirici::Ic {
  Ic() {
    if (deflateInit2(&akis, Duzey, Z_DEFLATED, Cercevesiz, BellekDuzeyi, Z_DEFAULT_STRATEGY) != Z_OK)
      throw std::bad_alloc();
  }
  ~Ic() { deflateEnd(&akis); }
  Ic(const Ic&) = delete;
  Ic& operator=(const Ic&) = delete;

  z_stream akis = {};
  std::array<unsigned char, 65536> cikis;
};

SikisikParca& SikisikParca::operator+=(const SikisikParca& b) {
  crc = std::uint32_t(crc32_combine(crc, b.crc, z_off_t(b.boy)));
  boy += b.boy;
  baytlar += b.baytlar;
  return *this;
}

Sikistirici::Sikistirici() : ic_(std::make_unique<Ic>()) {}
Sikistirici::~Sikistirici() = default;

void Sikistirici::Pompala(std::string_view metin, int bitis) {
  z_stream& akis = ic_->akis;
  akis.next_in = reinterpret_cast<unsigned char*>(const_cast<char*>(metin.data()));  // only read, says the library
  akis.avail_in = uInt(metin.size());
  do {
    akis.next_out = ic_->cikis.data();
    akis.avail_out = uInt(ic_->cikis.size());
    deflate(&akis, bitis);
    parca_.baytlar.append(reinterpret_cast<const char*>(ic_->cikis.data()), ic_->cikis.size() - akis.avail_out);
  } while (akis.avail_out == 0);
}

void Sikistirici::Ekle(std::string_view metin) {
  for (; !metin.empty(); metin.remove_prefix(std::min(metin.size(), EnBuyukLokma))) {
    const std::string_view lokma = metin.substr(0, EnBuyukLokma);
    parca_.crc =
        std::uint32_t(crc32(parca_.crc, reinterpret_cast<const unsigned char*>(lokma.data()), uInt(lokma.size())));
    parca_.boy += lokma.size();
    Pompala(lokma, Z_NO_FLUSH);
  }
}

SikisikParca Sikistirici::Bitir(ParcaSonu son) {
  Pompala({}, son == ParcaSonu::Son ? Z_FINISH : Z_SYNC_FLUSH);
  return std::move(parca_);
}

SikisikParca Sikistir(std::string_view metin, ParcaSonu son) {
  Sikistirici s;
  s.Ekle(metin);
  return s.Bitir(son);
}

}  // namespace belvani
