#include "core/csv.h"

#include <algorithm>

#include "core/turkce.h"

namespace belvani {
namespace {

constexpr std::string_view Utf8Imi = "\xEF\xBB\xBF";

char AyracBul(std::string_view metin) {
  const std::string_view ilk = metin.substr(0, metin.find('\n'));
  return std::count(ilk.begin(), ilk.end(), ';') > std::count(ilk.begin(), ilk.end(), ',') ? ';' : ',';
}

// Reads row after row; fields are cut at the separator outside quotes, a doubled quote inside quotes is one.
class Okuyucu {
 public:
  Okuyucu(std::string_view metin, char ayrac) : metin_(metin), ayrac_(ayrac) {}

  bool Bitti() const { return yer_ >= metin_.size(); }
  bool TirnakAcik() const { return tirnakAcik_; }

  CsvSatiri Satir() {
    CsvSatiri satir{satirNo_, {{}}};
    bool tirnakta = false;
    while (!Bitti()) {
      const char c = metin_[yer_++];
      if (c == '\n') ++satirNo_;
      if (tirnakta) {
        if (c != '"')
          satir.hucreler.back() += c;
        else if (!Bitti() && metin_[yer_] == '"')
          satir.hucreler.back() += metin_[yer_++];
        else
          tirnakta = false;
      } else if (c == '\n') {
        return satir;
      } else if (c == '"' && satir.hucreler.back().empty()) {
        tirnakta = true;
      } else if (c == ayrac_) {
        satir.hucreler.emplace_back();
      } else if (c != '\r') {
        satir.hucreler.back() += c;
      }
    }
    tirnakAcik_ = tirnakta;
    return satir;
  }

 private:
  std::string_view metin_;
  char ayrac_;
  std::size_t yer_ = 0;
  int satirNo_ = 1;
  bool tirnakAcik_ = false;
};

bool BosMu(const CsvSatiri& satir) {
  return std::all_of(satir.hucreler.begin(), satir.hucreler.end(), [](const auto& h) { return Kirp(h).empty(); });
}

std::string BaslikKusuru(const std::vector<std::string>& basliklar) {
  for (std::size_t i = 0; i < basliklar.size(); ++i) {
    if (basliklar[i].empty()) return std::to_string(i + 1) + ". sütunun başlığı yok";
    if (std::count(basliklar.begin(), basliklar.end(), basliklar[i]) > 1) return "başlık iki kez var: " + basliklar[i];
  }
  return {};
}

}  // namespace

Sonuc<CsvTablosu> CsvOku(std::string_view metin) {
  if (metin.substr(0, Utf8Imi.size()) == Utf8Imi) metin.remove_prefix(Utf8Imi.size());
  if (!GecerliUtf8(metin)) return Kusur{"dosya UTF-8 değil"};
  if (metin.find('\0') != std::string_view::npos) return Kusur{"dosya bir metin dosyası değil"};
  Okuyucu okuyucu(metin, AyracBul(metin));
  CsvTablosu tablo;
  for (const auto& baslik : okuyucu.Satir().hucreler) tablo.basliklar.emplace_back(Kirp(baslik));
  if (const std::string kusur = BaslikKusuru(tablo.basliklar); !kusur.empty()) return Kusur{"satır 1: " + kusur};
  while (!okuyucu.Bitti()) {
    CsvSatiri satir = okuyucu.Satir();
    if (BosMu(satir)) continue;
    if (satir.hucreler.size() > tablo.basliklar.size())
      return Kusur{"satır " + std::to_string(satir.satirNo) + ": başlıklardan çok alan var"};
    satir.hucreler.resize(tablo.basliklar.size());
    tablo.satirlar.push_back(std::move(satir));
  }
  if (okuyucu.TirnakAcik()) return Kusur{"kapanmamış bir tırnak var"};
  return tablo;
}

}  // namespace belvani
