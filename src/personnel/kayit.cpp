#include "personnel/kayit.h"

#include "core/tables/kimlik.h"

namespace belvani {
namespace {

struct Komsuluk {
  const char* kosul;
  const char* sira;
};

constexpr Komsuluk KomsulukBul(Yon yon) {
  switch (yon) {
    case Yon::Ilk:
      return {"", " order by kod"};
    case Yon::Son:
      return {"", " order by kod desc"};
    case Yon::Onceki:
      return {" where kod < ?", " order by kod desc"};
    case Yon::Sonraki:
      return {" where kod > ?", " order by kod"};
  }
  return {};
}

}  // namespace

std::optional<std::string> KomsuKod(Motor& motor, std::string_view tablo, Yon yon, std::string_view kod) {
  const Komsuluk komsuluk = KomsulukBul(yon);
  const auto komut =
      motor.Hazirla("select kod from " + std::string(tablo) + komsuluk.kosul + komsuluk.sira + " limit 1");
  if (*komsuluk.kosul != '\0') komut->MetinBagla(1, kod);
  if (!komut->Adim()) return std::nullopt;
  return std::string(komut->Metin(0));
}

void YeniSicil(Imlec& rs) {
  rs.KayitEkle();
  rs.AlanYaz("cikiskodu", std::int64_t(0));
  rs.AlanYaz("cikissebebi", std::string());
}

void YeniKimlik(Imlec& rs) {
  rs.KayitEkle();
  Kimlik bos;
  bos.uyruk = "T.C.";
  AlanlariYaz(rs, bos, {});
}

bool Silindi(Imlec& rs) {
  rs.KayitSil();
  // No record is current after it, and such a read gives a number.
  return !std::holds_alternative<std::string>(rs.AlanOku("kod"));
}

bool IkisindenSil(Veritabani& db, Imlec& asil, Imlec& obur, const std::string& kod) {
  return db.Koru(false, [&] {
    Islem islem(db.IcMotor());
    for (Imlec* rs : {&asil, &obur})
      if (rs->KayitBul("kod", kod) && !Silindi(*rs)) return false;
    islem.Onayla();
    return true;
  });
}

}  // namespace belvani
