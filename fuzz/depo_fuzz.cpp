// A damaged store: the input overwrites bytes of a sound one (four bytes tell where, then a length and the bytes), or
// stands for the whole file when it starts with "SQ".
#include <algorithm>
#include <cstdlib>

#include "core/dosya.h"
#include "core/session/depo.h"
#include "core/store/satirlar.h"
#include "core/store/tablo.h"
#include "core/tables/tablolar.h"
#include "gecici.h"

using namespace belvani;

namespace {

class Sessiz : public Bildirim {
 public:
  void Bilgi(std::string_view) override {}
  void Uyari(std::string_view) override {}
  bool Soru(std::string_view) override { return false; }
};

std::string SaglamDepo(const std::string& dizin) {
  Sessiz bildirim;
  Depo depo;
  const std::string yol = dizin + "saglam.dat";
  if (!depo.VeritabaniYarat(yol) || !depo.VeritabaniAc(yol, bildirim)) std::abort();
  for (int i = 0; i < 40; ++i) {
    depo.sicil.KayitEkle();
    depo.sicil.AlanYaz("kod", std::to_string(i));
    depo.sicil.AlanYaz("adi", std::string("Gülşah"));
    depo.sicil.KayitYaz();
    depo.brd.KayitEkle();
    depo.brd.AlanYaz("kod", std::to_string(i));
    depo.brd.AlanYaz("yil", std::int64_t(2009));
    depo.brd.KayitYaz();
  }
  depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
  return *DosyaOku(yol);
}

std::string Boz(std::string dosya, const std::uint8_t* veri, std::size_t boy) {
  for (std::size_t i = 0; i + 5 <= boy;) {
    const std::size_t yer = (veri[i] | veri[i + 1] << 8 | veri[i + 2] << 16) % dosya.size();
    const std::size_t n = std::min<std::size_t>({veri[i + 3] % 16u + 1u, boy - i - 4, dosya.size() - yer});
    std::copy_n(veri + i + 4, n, dosya.begin() + std::ptrdiff_t(yer));
    i += 4 + n;
  }
  return dosya;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boy) {
  static const test::GeciciDizin dizin;
  static const std::string saglam = SaglamDepo(dizin.Yol());
  const bool butun = boy > 2 && veri[0] == 'S' && veri[1] == 'Q';
  const std::string yol = dizin.Yol() + "tolu.dat";
  const std::string icerik = butun ? std::string(reinterpret_cast<const char*>(veri), boy) : Boz(saglam, veri, boy);
  for (const char* ek : {"-wal", "-shm"}) std::filesystem::remove(yol + ek);
  if (!DosyaYaz(yol, icerik)) std::abort();
  Sessiz bildirim;
  Depo depo;
  if (!depo.VeritabaniAc(yol, bildirim)) return 0;
  for (bool var = depo.sicil.IlkKayit(); var; var = depo.sicil.SonrakiKayit()) (void)depo.sicil.AlanOku("adi");
  depo.db.Koru(false, [&] { return Tablo<Sicil>(depo.db.IcMotor()).Bul(std::string("7")).has_value(); });
  depo.brd.KayitEkle();
  depo.brd.AlanYaz("kod", std::string("7"));
  depo.brd.KayitYaz();
  depo.db.Koru(false, [&] { return !KayitlariOku<Brd>(depo.db.IcMotor(), "order by kod").empty(); });
  return 0;
}
