#include "core/store/donusum.h"

#include "core/turkce.h"

namespace belvani {

Deger KolondanDeger(const Komut& komut, int kolon, AlanTipi tip) {
  if (komut.Turu(kolon) == Komut::Tur::Null) return Null{};
  switch (tip) {
    case AlanTipi::Metin:
      return std::string(komut.Metin(kolon));
    case AlanTipi::Byte:
    case AlanTipi::Kisa:
    case AlanTipi::Uzun:
      return komut.Tam(kolon);
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
    return MetindenDeger(alan, *metin, kusur);
  Deger uygun = deger;
  if (!NullMu(deger)) {
    switch (alan.tip) {
      case AlanTipi::Metin:
        uygun = DenetimsizMetin(MetinDegeri(deger));
        break;
      case AlanTipi::Byte:
      case AlanTipi::Kisa:
      case AlanTipi::Uzun:
        if (const auto* sayi = std::get_if<double>(&deger); sayi != nullptr && std::fabs(*sayi) < 1e15)
          uygun = std::int64_t(std::llrint(*sayi));
        break;
      case AlanTipi::Tutar:
        if (!std::holds_alternative<Tarih>(deger)) uygun = TutarDegeri(deger);
        break;
      case AlanTipi::Tek:
        if (!std::holds_alternative<Tarih>(deger)) uygun = Tek(SayiDegeri(deger)).Sayi();
        break;
      case AlanTipi::Mantik:
        uygun = MantikDegeri(deger);
        break;
      case AlanTipi::Tarih:
        if (const auto* tarih = std::get_if<Tarih>(&deger); tarih != nullptr && tarih->Bos()) uygun = Null{};
        break;
      case AlanTipi::Ikili:
        break;
    }
  }
  kusur = DegerKusuru(alan, uygun);
  return kusur.empty() ? uygun : Deger(Null{});
}

AlanTipi BildirilenTip(std::string_view tip) {
  static constexpr std::pair<std::string_view, AlanTipi> tipler[] = {
      {"tinyint", AlanTipi::Byte}, {"smallint", AlanTipi::Kisa}, {"integer", AlanTipi::Uzun},
      {"bigint", AlanTipi::Tutar}, {"real", AlanTipi::Tek},      {"date", AlanTipi::Tarih},
      {"boolean", AlanTipi::Mantik}, {"blob", AlanTipi::Ikili},
  };
  for (const auto& [ad, alanTipi] : tipler)
    if (tip == ad) return alanTipi;
  return AlanTipi::Metin;
}

}  // namespace belvani
