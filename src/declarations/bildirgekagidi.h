// What the paper forms of the monthly declaration say, before anything is known of drawing, text lines or spreadsheet.
//
// Rows are those of the grid as they stand, seven on the first page and twenty-five on each one after it. Each page
// carries three sums: of the pages before it, its own, and both together.
// Example: 8 people of 30 days -> page 1: 0, 210, 210; page 2: 210, 30, 240.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/session/muhasebecibilgi.h"
#include "core/tables/arac.h"
#include "core/tables/firma.h"
#include "declarations/bildirgehesap.h"

namespace belvani {

class AylikBildirge;

struct KagitBransi {
  Tutar matrah;
  std::optional<Tek> oran;  // percent; none on an empty form
  Tutar prim;
};

struct BildirgeKagidi {
  int yil = 0;
  int ay = 1;  // 1 to 12
  BelgeMahiyeti mahiyet = BelgeMahiyeti::Asil;
  std::string belgeTuru{};  // "01"; empty while all are chosen, as only an empty form can be
  std::string kanun{};      // "05510"; likewise
  Firma firma{};
  Arac arac{};
  Muhasebeci muhasebeci{};
  BildirgeToplamlari toplamlar{};
  std::array<KagitBransi, BransSayisi> branslar{};  // in the order of the bases
  Tutar genelToplam{};
  std::vector<BildirgeSatiri> satirlar{};
  int paraonda = 2;
};

// The declaration as it stands, with the company, its subcontractor and its accountant. The premium of maternity is the
// one that the grand total holds, not the state's contribution that the screen shows in its place: on paper the lines
// add up to the total.
BildirgeKagidi KagitHazirla(const AylikBildirge& bildirge, Oturum& oturum);

// The branches in the order of the paper, which has five lines for them; maternity has none of its own on the
// spreadsheet form.
inline constexpr std::array<std::size_t, BransSayisi - 1> KagitBransSirasi{0, 3, 2, 4, 5};

constexpr std::size_t IlkSayfaKisisi = 7;
constexpr std::size_t DevamSayfasiKisisi = 25;

struct KagitToplami {
  int gun = 0;
  Tutar kazanc{};
  int izinGunu = 0;
  Tutar izinUcreti{};

  bool operator==(const KagitToplami&) const = default;
  KagitToplami& operator+=(const KagitToplami& t);
};

struct KagitSayfasi {
  int no = 1;
  std::size_t ilk = 0;  // first row
  std::size_t son = 0;  // behind the last
  KagitToplami devir{};
  KagitToplami sayfa{};
  KagitToplami dahil{};
};

// At least one page. Throws TutarTasmasi.
std::vector<KagitSayfasi> SayfalaraBol(const std::vector<BildirgeSatiri>& satirlar);

// "1,250.00"; empty for zero and for none. Likewise "30".
std::string KagitTutari(std::optional<Tutar> tutar, int paraonda);
std::string KagitSayisi(std::optional<int> sayi);
// Day and month: "05 - 07"; empty for none.
std::string KagitTarihi(Tarih gun);

}  // namespace belvani
