#include "cli/jsonakisi.h"

#include <algorithm>

#include "core/derinlik.h"

namespace belvani::cli {
namespace {

// Goes through a text without building anything of it, and keeps where it is no JSON.
class Denetci final : public nlohmann::json_sax<Json> {
 public:
  std::size_t kusurYeri = 0;
  bool tasan = false;

  bool null() override { return true; }
  bool boolean(bool) override { return true; }
  bool number_integer(number_integer_t) override { return true; }
  bool number_unsigned(number_unsigned_t) override { return true; }
  bool number_float(number_float_t, const string_t&) override { return true; }
  bool string(string_t&) override { return true; }
  bool binary(binary_t&) override { return true; }
  bool start_object(std::size_t) override { return true; }
  bool key(string_t&) override { return true; }
  bool end_object() override { return true; }
  bool start_array(std::size_t) override { return true; }
  bool end_array() override { return true; }
  bool parse_error(std::size_t yer, const std::string&, const Json::exception& hata) override {
    kusurYeri = yer;
    tasan = dynamic_cast<const Json::out_of_range*>(&hata) != nullptr;
    return false;
  }
};

constexpr std::string_view Bosluk = " \t\r\n";

}  // namespace

JsonGirdisi::JsonGirdisi(std::string metin) : metin_(std::move(metin)) {
  if (metin_.starts_with("\xEF\xBB\xBF")) metin_.erase(0, 3);
  if (JsonDerinligi(metin_) > EnCokDerinlik)
    throw KomutHatasi{"Girdi çok derin: iç içe en çok " + std::to_string(EnCokDerinlik) + " dizi veya nesne olabilir"};
  Denetci denetci;
  if (!Json::sax_parse(metin_, &denetci)) {
    if (denetci.tasan) throw KomutHatasi{"Girdide sınırı aşan bir sayı var"};
    throw KomutHatasi{"Girdi JSON değil (" + std::to_string(denetci.kusurYeri) + ". bayt)"};
  }
  yer_ = metin_.find_first_not_of(Bosluk);
  liste_ = metin_[yer_] == '[';
  if (liste_) ++yer_;
}

// The text is known to be JSON: an element ends at the comma or bracket of its own level.
std::string_view JsonGirdisi::SonrakiOge() {
  const std::size_t bas = yer_;
  int derinlik = 0;
  for (bool metinde = false; yer_ < metin_.size(); ++yer_) {
    const char c = metin_[yer_];
    if (metinde) {
      if (c == '\\') ++yer_;
      metinde = c != '"';
    } else if (c == '"') {
      metinde = true;
    } else if (c == '[' || c == '{') {
      ++derinlik;
    } else if (c == ']' || c == '}') {
      if (derinlik-- == 0) break;
    } else if (c == ',' && derinlik == 0) {
      break;
    }
  }
  const std::size_t son = std::min(yer_, metin_.size());
  yer_ = son + 1;
  return std::string_view(metin_).substr(bas, son - bas);
}

std::optional<Json> JsonGirdisi::Sonraki() {
  if (yer_ >= metin_.size()) return std::nullopt;
  const std::string_view oge = SonrakiOge();
  if (oge.find_first_not_of(Bosluk) == std::string_view::npos) return std::nullopt;
  return Json::parse(oge);
}

std::string JsonMetni(const Json& json, int girinti) {
  const std::string metin = json.dump(2, ' ', false, Json::error_handler_t::replace);
  if (girinti == 0) return metin;
  std::string sonuc;
  for (const char c : metin) {
    sonuc += c;
    if (c == '\n') sonuc.append(std::size_t(girinti), ' ');
  }
  return sonuc;
}

void JsonDizisi::Ekle(const Json& json) {
  cikis_.Yaz(bos_ ? "[\n" : ",\n");
  cikis_.Yaz(std::string(std::size_t(girinti_) + 2, ' '));
  cikis_.Yaz(JsonMetni(json, girinti_ + 2));
  bos_ = false;
}

void JsonDizisi::Bitir() {
  cikis_.Yaz(bos_ ? "[]" : "\n" + std::string(std::size_t(girinti_), ' ') + "]");
}

}  // namespace belvani::cli
