#include "printing/cupskuyrugu.h"

#include <algorithm>
#include <cups/cups.h>
#include <memory>

namespace belvani {
namespace {

constexpr int BaglantiMs = 5000;
constexpr int IlkHataKodu = 0x0400;  // of IPP's answers

using Baglanti = std::unique_ptr<http_t, decltype(&httpClose)>;

Baglanti Baglan(const std::string& sunucu) {
  // Without this a server that wants a password would have the library ask for it on the terminal.
  cupsSetPasswordCB2([](const char*, http_t*, const char*, const char*, void*) -> const char* { return nullptr; },
                     nullptr);
  const char* ad = sunucu.empty() ? cupsServer() : sunucu.c_str();
  return {httpConnect2(ad, ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, BaglantiMs, nullptr), &httpClose};
}

Kusur ServisYok() {
  return Kusur{"Yazıcı servisine ulaşılamıyor (CUPS çalışmıyor)"};
}

Kusur SonCupsHatasi(const std::string& yazici) {
  switch (static_cast<int>(cupsLastError())) {
    case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
      return ServisYok();
    case IPP_STATUS_ERROR_NOT_FOUND:
      return Kusur{yazici + " adında bir yazıcı yok"};
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
      return Kusur{yazici + ": yazıcı yeni iş kabul etmiyor"};
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
      return Kusur{yazici + ": bu yazıcıya yazdırma izniniz yok"};
    case IPP_STATUS_ERROR_REQUEST_ENTITY:
      return Kusur{yazici + ": belge kuyruğa sığmadı (yazıcı kuyruğunun diski dolu)"};
    case IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED:
      return Kusur{yazici + ": yazıcı bu belge türünü basmıyor"};
    default:
      return Kusur{yazici + ": yazdırılamadı (" + cupsLastErrorString() + ")"};
  }
}

bool Basarili(ipp_status_t durum) {
  return static_cast<int>(durum) < IlkHataKodu;
}

// One attribute of a printer in the answer.
void AlanAl(YaziciBilgisi& yazici, ipp_attribute_t* alan) {
  const std::string_view ad = ippGetName(alan);
  const auto metin = [&] {
    const char* deger = ippGetString(alan, 0, nullptr);
    return std::string(deger == nullptr ? "" : deger);
  };
  if (ad == "printer-name") yazici.ad = metin();
  if (ad == "printer-info") yazici.aciklama = metin();
  if (ad == "device-uri") yazici.aygit = metin();
  if (ad == "printer-is-accepting-jobs") yazici.isAliyor = ippGetBoolean(alan, 0) != 0;
  if (ad == "printer-state-reasons")
    for (int i = 0; i < ippGetCount(alan) && yazici.bekleyen.empty(); ++i)
      yazici.bekleyen = BekleyenMetni(ippGetString(alan, i, nullptr));
}

std::vector<YaziciBilgisi> Cevaptan(ipp_t* cevap, const std::string& varsayilan) {
  std::vector<YaziciBilgisi> yazicilar;
  YaziciBilgisi yazici;
  const auto bitir = [&] {
    if (yazici.ad.empty()) return;
    yazici.varsayilan = yazici.ad == varsayilan;
    yazicilar.push_back(std::exchange(yazici, {}));
  };
  for (ipp_attribute_t* alan = ippFirstAttribute(cevap); alan != nullptr; alan = ippNextAttribute(cevap)) {
    // Groups are parted by an attribute without a name.
    if (ippGetGroupTag(alan) != IPP_TAG_PRINTER || ippGetName(alan) == nullptr)
      bitir();
    else
      AlanAl(yazici, alan);
  }
  bitir();
  return yazicilar;
}

ipp_t* YaziciSorusu() {
  static const char* const alanlar[] = {"printer-name", "printer-info", "device-uri", "printer-is-accepting-jobs",
                                        "printer-state-reasons"};
  ipp_t* soru = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
  ippAddString(soru, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
  ippAddStrings(soru, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", int(std::size(alanlar)), nullptr,
                alanlar);
  return soru;
}

// A raw queue prints a document once whatever it is asked, so its bytes are sent as often as there are copies.
bool IcerigiYolla(http_t* http, const BaskiIsi& is) {
  const int kez = is.tur == IsTuru::Ham ? std::max(is.kopya, 1) : 1;
  for (int i = 0; i < kez; ++i)
    if (cupsWriteRequestData(http, is.icerik.data(), is.icerik.size()) != HTTP_STATUS_CONTINUE) return false;
  return true;
}

int IsAc(http_t* http, const BaskiIsi& is, const std::string& ad) {
  cups_option_t* secenekler = nullptr;
  int adet = 0;
  if (is.tur == IsTuru::Pdf) {
    adet = cupsAddIntegerOption("copies", std::max(is.kopya, 1), adet, &secenekler);
    adet = cupsAddOption("media", "A4", adet, &secenekler);
  }
  const int no = cupsCreateJob(http, is.yazici.c_str(), ad.c_str(), adet, secenekler);
  cupsFreeOptions(adet, secenekler);
  return no;
}

}  // namespace

CupsKuyrugu::CupsKuyrugu(std::string sunucu) : sunucu_(std::move(sunucu)) {}

Sonuc<std::vector<YaziciBilgisi>> CupsKuyrugu::Yazicilar() {
  const Baglanti http = Baglan(sunucu_);
  if (!http) return ServisYok();
  const std::unique_ptr<ipp_t, decltype(&ippDelete)> cevap{cupsDoRequest(http.get(), YaziciSorusu(), "/"), &ippDelete};
  if (cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND) return std::vector<YaziciBilgisi>{};
  if (!cevap || !Basarili(ippGetStatusCode(cevap.get()))) return SonCupsHatasi("CUPS");
  const char* varsayilan = cupsGetDefault2(http.get());
  return Cevaptan(cevap.get(), varsayilan == nullptr ? "" : varsayilan);
}

Sonuc<int> CupsKuyrugu::Gonder(const BaskiIsi& istenen) {
  const auto secilen = YaziciSec(*this, istenen.yazici);
  if (!secilen) return secilen.Kusuru();
  BaskiIsi is = istenen;
  is.yazici = secilen->ad;
  const std::string ad = is.ad.empty() ? "Belvani" : is.ad;
  const Baglanti http = Baglan(sunucu_);
  if (!http) return ServisYok();
  const int no = IsAc(http.get(), is, ad);
  if (no == 0) return SonCupsHatasi(is.yazici);
  const char* bicim = is.tur == IsTuru::Pdf ? CUPS_FORMAT_PDF : CUPS_FORMAT_RAW;
  const bool yollandi =
      cupsStartDocument(http.get(), is.yazici.c_str(), no, ad.c_str(), bicim, 1) == HTTP_STATUS_CONTINUE &&
      IcerigiYolla(http.get(), is);
  if (yollandi && Basarili(cupsFinishDocument(http.get(), is.yazici.c_str()))) return no;
  const Kusur hata = SonCupsHatasi(is.yazici);
  if (const Baglanti yeni = Baglan(sunucu_)) cupsCancelJob2(yeni.get(), is.yazici.c_str(), no, 1);
  return hata;
}

std::string BekleyenMetni(std::string_view neden) {
  static constexpr std::pair<std::string_view, const char*> metinler[] = {
      {"media-empty", "Yazıcıda Kağıt Yok"},
      {"media-needed", "Yazıcıda Kağıt Yok"},
      {"media-jam", "Yazıcıda kağıt sıkışmış"},
      {"cover-open", "Yazıcının kapağı açık"},
      {"door-open", "Yazıcının kapağı açık"},
      {"toner-empty", "Yazıcının toneri bitmiş"},
      {"marker-supply-empty", "Yazıcının toneri veya mürekkebi bitmiş"},
      {"offline", "Yazıcı kapalı veya bağlı değil"},
      {"shutdown", "Yazıcı kapalı veya bağlı değil"},
      {"connecting-to-device", "Yazıcıya bağlanılamıyor"},
      {"paused", "Yazıcı durdurulmuş"},
  };
  for (const auto& [anahtar, metin] : metinler)
    if (neden.starts_with(anahtar)) return metin;
  return {};
}

}  // namespace belvani
