#include "core/tables/alan.h"

#include <cmath>
#include <limits>

#include "core/adlar.h"
#include "core/sayi.h"
#include "core/turkce.h"

namespace belvani {
namespace {

struct Aralik {
  std::int64_t enAz;
  std::int64_t enCok;
};

template <class T>
constexpr Aralik TipAraligi() {
  return {std::numeric_limits<T>::min(), std::numeric_limits<T>::max()};
}

// The whole numbers that a type holds; both ends 0 for a type that holds something else.
constexpr Aralik TamSayiAraligi(AlanTipi tip) {
  switch (tip) {
    case AlanTipi::Byte:
      return TipAraligi<std::uint8_t>();
    case AlanTipi::Kisa:
      return TipAraligi<std::int16_t>();
    case AlanTipi::Uzun:
      return TipAraligi<std::int32_t>();
    case AlanTipi::Mantik:
      return {0, 1};
    case AlanTipi::Metin:
    case AlanTipi::Tutar:
    case AlanTipi::Tek:
    case AlanTipi::Tarih:
    case AlanTipi::Ikili:
      break;
  }
  return {0, 0};
}

std::string AralikKusuru(const Aralik& a) {
  return std::to_string(a.enAz) + " ile " + std::to_string(a.enCok) + " arasında bir tam sayı olmalı";
}

std::string SayiKusuru(AlanTipi tip, const Deger& deger) {
  if (std::holds_alternative<Tutar>(deger)) return {};
  if (!std::holds_alternative<double>(deger) && !std::holds_alternative<std::int64_t>(deger)) return "sayı olmalı";
  const double enCok = tip == AlanTipi::Tutar ? Tutar::Sinir : double(std::numeric_limits<float>::max());
  return std::fabs(SayiDegeri(deger)) < enCok ? "" : "sayı çok büyük";
}

// The limit of the column, beyond what its type says.
std::string SinirKusuru(const AlanSiniri& s, double sayi) {
  if (sayi >= s.enAz && sayi <= s.enCok) return {};
  if (s.sira) return SayiMetni(s.enAz) + " ile " + SayiMetni(s.enCok) + " arasında olmalı";
  return sayi < s.enAz ? "eksi olamaz" : "en çok " + SayiMetni(s.enCok) + " olabilir";
}

// A code by which records are found: two that look the same must be the same.
bool KodMu(const AlanTanimi& alan) {
  return alan.tip == AlanTipi::Metin && (alan.ad == "kod" || alan.ad == "grup");
}

Deger TamSayiyaCevir(const AlanTanimi& alan, std::string_view metin, std::string& kusur) {
  const Aralik aralik = TamSayiAraligi(alan.tip);
  const auto sayi = TamSayiOku(metin);
  if (!sayi || *sayi < aralik.enAz || *sayi > aralik.enCok) {
    kusur = AralikKusuru(aralik);
    return Null{};
  }
  if (alan.tip == AlanTipi::Mantik) return *sayi != 0;
  return std::int64_t(*sayi);
}

}  // namespace

std::string TipKusuru(const AlanTanimi& alan, const Deger& deger) {
  if (NullMu(deger)) return alan.nitelik == AlanNiteligi::Zorunlu ? "boş bırakılamaz" : "";
  switch (alan.tip) {
    case AlanTipi::Metin: {
      const auto* metin = std::get_if<std::string>(&deger);
      if (metin == nullptr) return "metin olmalı";
      if (!GecerliUtf8(*metin)) return "okunamayan harf var";
      if (HarfSayisi(*metin) > std::size_t(alan.boyut))
        return "en çok " + std::to_string(alan.boyut) + " harf olabilir";
      return {};
    }
    case AlanTipi::Byte:
    case AlanTipi::Kisa:
    case AlanTipi::Uzun:
    case AlanTipi::Mantik: {
      const Aralik aralik = TamSayiAraligi(alan.tip);
      const bool tam = std::holds_alternative<std::int64_t>(deger) || std::holds_alternative<bool>(deger);
      const std::int64_t n = TamDegeri(deger);
      return tam && n >= aralik.enAz && n <= aralik.enCok ? "" : AralikKusuru(aralik);
    }
    case AlanTipi::Tutar:
    case AlanTipi::Tek:
      return SayiKusuru(alan.tip, deger);
    case AlanTipi::Tarih:
      return std::holds_alternative<Tarih>(deger) ? "" : "tarih olmalı";
    case AlanTipi::Ikili:
      return std::holds_alternative<Baytlar>(deger) ? "" : "bayt dizisi olmalı";
  }
  return {};
}

std::string DegerKusuru(const AlanTanimi& alan, const Deger& deger) {
  std::string kusur = TipKusuru(alan, deger);
  if (kusur.empty() && KodMu(alan) && GorunmezHarfVar(MetinDegeri(deger))) return "görünmeyen bir harf var";
  return kusur.empty() && !NullMu(deger) ? SinirKusuru(alan.sinir, SayiDegeri(deger)) : kusur;
}

double EnBuyukGirdi(const AlanTanimi& alan) {
  constexpr double EnCokOran = 99'999;
  if (std::isfinite(alan.sinir.enCok)) return alan.sinir.enCok;
  switch (alan.tip) {
    case AlanTipi::Tutar:
      return sinir::EnCokTutar;
    case AlanTipi::Tek:
      return EnCokOran;
    case AlanTipi::Byte:
    case AlanTipi::Kisa:
    case AlanTipi::Uzun:
    case AlanTipi::Mantik:
    case AlanTipi::Metin:
    case AlanTipi::Tarih:
    case AlanTipi::Ikili:
      break;
  }
  return double(TamSayiAraligi(alan.tip).enCok);
}

Deger MetindenDeger(const AlanTanimi& alan, std::string_view metin, std::string& kusur) {
  Deger deger = MetniCevir(alan, metin, kusur);
  if (kusur.empty()) kusur = DegerKusuru(alan, deger);
  return kusur.empty() ? deger : Deger(Null{});
}

Deger MetniCevir(const AlanTanimi& alan, std::string_view metin, std::string& kusur) {
  kusur.clear();
  const std::string temiz = DenetimsizMetin(metin);
  const std::string_view kirpik = Kirp(temiz);
  switch (alan.tip) {
    case AlanTipi::Metin: {
      Deger d = std::string(kirpik);
      kusur = TipKusuru(alan, d);
      return kusur.empty() ? d : Deger(Null{});
    }
    case AlanTipi::Byte:
    case AlanTipi::Kisa:
    case AlanTipi::Uzun:
    case AlanTipi::Mantik:
      return TamSayiyaCevir(alan, kirpik.empty() ? "0" : kirpik, kusur);
    case AlanTipi::Tutar: {
      const auto tutar = TutarOku(kirpik.empty() ? "0" : kirpik);
      if (tutar) return *tutar;
      kusur = "sayı olmalı (ondalık için nokta)";
      return Null{};
    }
    case AlanTipi::Tek: {
      const auto sayi = SayiOku(kirpik.empty() ? "0" : kirpik);
      if (sayi && Tek(*sayi).Sayi() != 0) return Tek(*sayi).Sayi();
      if (sayi && *sayi == 0) return 0.0;
      kusur = "sayı olmalı (ondalık için nokta)";
      return Null{};
    }
    case AlanTipi::Tarih: {
      const Tarih tarih = Tarih::MetinOku(kirpik);
      if (tarih.Bos() && !kirpik.empty()) kusur = "gg.aa.yyyy biçiminde geçerli bir tarih olmalı";
      return tarih.Bos() ? Deger(Null{}) : Deger(tarih);
    }
    case AlanTipi::Ikili:
      break;
  }
  kusur = "bu alan dosyadan alınamaz";
  return Null{};
}

}  // namespace belvani
