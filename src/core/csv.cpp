#include "core/csv.h"

#include <algorithm>
#include <set>

#include "core/sayi.h"
#include "core/turkce.h"

namespace belvani {
namespace {

constexpr std::string_view Utf8Imi = "\xEF\xBB\xBF";
constexpr std::size_t EnCokSutun = 1'000;
constexpr std::size_t EnCokSatir = 1'048'576;  // of a sheet
constexpr std::size_t EnCokHucre = 20'000'000;

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
  std::set<std::string_view> gorulen;
  for (std::size_t i = 0; i < basliklar.size(); ++i) {
    if (basliklar[i].empty()) return std::to_string(i + 1) + ". sütunun başlığı yok";
    if (!gorulen.insert(basliklar[i]).second) return "başlık iki kez var: " + basliklar[i];
  }
  return {};
}

// The file as UTF-8; what is no UTF-8 is of the code page in which Turkish spreadsheets save, or no text.
Sonuc<std::string> Utf8Metin(std::string_view baytlar) {
  if (baytlar.find('\0') != std::string_view::npos) return Kusur{"dosya bir metin dosyası değil"};
  if (baytlar.starts_with(Utf8Imi)) {
    baytlar.remove_prefix(Utf8Imi.size());
    if (!GecerliUtf8(baytlar)) return Kusur{"dosya UTF-8 değil"};
  }
  if (GecerliUtf8(baytlar)) return std::string(baytlar);
  // Bytes to which the code page gives no letter.
  if (baytlar.find_first_of("\x81\x8D\x8E\x8F\x90\x9D\x9E") != std::string_view::npos)
    return Kusur{"dosya ne UTF-8 ne de Windows-1254"};
  return KodSayfasindan(baytlar, KodSayfasi::Windows1254);
}

// Cut at what programs may take for the end of a field.
template <class Cevir>
std::string HerAlan(std::string_view metin, Cevir cevir) {
  std::string sonuc;
  while (true) {
    const auto ayrac = metin.find(';');
    sonuc += cevir(metin.substr(0, ayrac));
    if (ayrac == std::string_view::npos) return sonuc;
    sonuc += ';';
    metin.remove_prefix(ayrac + 1);
  }
}

// Also behind apostrophes: what a text of ours has itself must be told from what was put before it.
bool FormulGibi(std::string_view alan) {
  alan.remove_prefix(std::min(alan.find_first_not_of('\''), alan.size()));
  const auto ilk = alan.find_first_not_of(' ');
  return ilk != std::string_view::npos && std::string_view("=+-@").find(alan[ilk]) != std::string_view::npos &&
         !SayiOku(alan);
}

}  // namespace

std::string CsvKorumali(std::string_view metin) {
  return HerAlan(metin, [](std::string_view alan) { return (FormulGibi(alan) ? "'" : "") + std::string(alan); });
}

std::string CsvKorumasiz(std::string_view metin) {
  return HerAlan(metin, [](std::string_view alan) {
    return std::string(alan.substr(alan.starts_with('\'') && FormulGibi(alan) ? 1 : 0));
  });
}

Sonuc<CsvTablosu> CsvOku(std::string_view baytlar) {
  const auto metin = Utf8Metin(baytlar);
  if (!metin) return metin.Kusuru();
  Okuyucu okuyucu(*metin, AyracBul(*metin));
  CsvTablosu tablo;
  for (const auto& baslik : okuyucu.Satir().hucreler) tablo.basliklar.emplace_back(Kirp(baslik));
  const std::size_t sutun = tablo.basliklar.size();
  if (sutun > EnCokSutun) return Kusur{"satır 1: en çok " + std::to_string(EnCokSutun) + " sütun olabilir"};
  if (const std::string kusur = BaslikKusuru(tablo.basliklar); !kusur.empty()) return Kusur{"satır 1: " + kusur};
  while (!okuyucu.Bitti()) {
    CsvSatiri satir = okuyucu.Satir();
    if (BosMu(satir)) continue;
    if (satir.hucreler.size() > sutun)
      return Kusur{"satır " + std::to_string(satir.satirNo) + ": başlıklardan çok alan var"};
    if (tablo.satirlar.size() == EnCokSatir || (tablo.satirlar.size() + 1) * sutun > EnCokHucre)
      return Kusur{"satır " + std::to_string(satir.satirNo) + ": dosya çok uzun, birkaç dosyaya bölünüz"};
    for (std::string& hucre : satir.hucreler)
      if (hucre.find('\'') != std::string::npos) hucre = CsvKorumasiz(hucre);
    satir.hucreler.resize(sutun);
    tablo.satirlar.push_back(std::move(satir));
  }
  if (okuyucu.TirnakAcik()) return Kusur{"kapanmamış bir tırnak var"};
  return tablo;
}

}  // namespace belvani
