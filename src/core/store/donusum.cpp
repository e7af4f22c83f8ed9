#include "core/store/donusum.h"

#include "core/turkce.h"

namespace belvani {
namespace {

// A value of another form that means the same; as it is where there is none.
Deger Yaklastir(AlanTipi tip, const Deger& deger) {
  const auto* mantik = std::get_if<bool>(&deger);
  const auto* tarih = std::get_if<Tarih>(&deger);
  if (NullMu(deger) || std::holds_alternative<Baytlar>(deger)) return deger;
  switch (tip) {
    case AlanTipi::Metin:
      return DenetimsizMetin(MetinDegeri(deger));
    case AlanTipi::Byte:
    case AlanTipi::Kisa:
    case AlanTipi::Uzun:
      if (const auto* sayi = std::get_if<double>(&deger); sayi != nullptr && std::fabs(*sayi) < 1e15)
        return std::int64_t(std::llrint(*sayi));
      [[fallthrough]];
    case AlanTipi::Tutar:
    case AlanTipi::Tek:
      return mantik == nullptr ? deger : Deger(std::int64_t(*mantik));
    case AlanTipi::Mantik:
      return tarih == nullptr ? Deger(MantikDegeri(deger)) : deger;
    case AlanTipi::Tarih:
      return tarih != nullptr && tarih->Bos() ? Deger(Null{}) : deger;
    case AlanTipi::Ikili:
      return deger;
  }
  return deger;
}

}  // namespace

Deger KolondanDeger(const Komut& komut, int kolon, AlanTipi tip) {
  if (komut.Turu(kolon) == Komut::Tur::Null) return Null{};
  switch (tip) {
    case AlanTipi::Metin:
      return std::string(komut.Metin(kolon));
    case AlanTipi::Byte:
      return std::int64_t(komut.TamSigan<std::uint8_t>(kolon));
    case AlanTipi::Kisa:
      return std::int64_t(komut.TamSigan<std::int16_t>(kolon));
    case AlanTipi::Uzun:
      return std::int64_t(komut.TamSigan<std::int32_t>(kolon));
    case AlanTipi::Tutar:
      return Tutar::Hamdan(komut.Tam(kolon));
    case AlanTipi::Tek:
      return Tek(komut.Sayi(kolon)).Sayi();
    case AlanTipi::Tarih: {
      const Tarih tarih = Tarih::IsoOku(komut.Metin(kolon));
      return tarih.Bos() ? Deger(Null{}) : Deger(tarih);
    }
    case AlanTipi::Mantik:
      return komut.Tam(kolon) != 0;
    case AlanTipi::Ikili:
      return komut.Bayt(kolon);
  }
  return Null{};
}

Deger KolondanDeger(const Komut& komut, int kolon) {
  switch (komut.Turu(kolon)) {
    case Komut::Tur::Null:
      return Null{};
    case Komut::Tur::Tam:
      return komut.Tam(kolon);
    case Komut::Tur::Sayi:
      return komut.Sayi(kolon);
    case Komut::Tur::Metin:
      return std::string(komut.Metin(kolon));
    case Komut::Tur::Bayt:
      return komut.Bayt(kolon);
  }
  return Null{};
}

Deger Uydur(const AlanTanimi& alan, const Deger& deger, std::string& kusur) {
  kusur.clear();
  if (const auto* metin = std::get_if<std::string>(&deger); metin != nullptr && alan.tip != AlanTipi::Metin)
    return MetniCevir(alan, *metin, kusur);
  Deger uygun = Yaklastir(alan.tip, deger);
  kusur = TipKusuru(alan, uygun);
  if (!kusur.empty() || NullMu(uygun)) return Null{};
  // Only now, for an amount or a rate that is out of range has no value of its type.
  if (alan.tip == AlanTipi::Tutar) return TutarDegeri(uygun);
  if (alan.tip == AlanTipi::Tek) return Tek(SayiDegeri(uygun)).Sayi();
  return uygun;
}

AlanTipi BildirilenTip(std::string_view tip) {
  static constexpr std::pair<std::string_view, AlanTipi> tipler[] = {
      {"tinyint", AlanTipi::Byte},   {"smallint", AlanTipi::Kisa}, {"integer", AlanTipi::Uzun},
      {"bigint", AlanTipi::Tutar},   {"real", AlanTipi::Tek},      {"date", AlanTipi::Tarih},
      {"boolean", AlanTipi::Mantik}, {"blob", AlanTipi::Ikili},    {"double precision", AlanTipi::Tek},
      {"tarih", AlanTipi::Tarih},    {"mantik", AlanTipi::Mantik}, {"bytea", AlanTipi::Ikili},
  };
  for (const auto& [ad, alanTipi] : tipler)
    if (tip == ad) return alanTipi;
  return AlanTipi::Metin;
}

}  // namespace belvani
