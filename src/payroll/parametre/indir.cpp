#include "payroll/parametre/indir.h"

#include <algorithm>
#include <array>
#include <curl/curl.h>
#include <memory>
#include <optional>

#include "core/ayarlar.h"
#include "core/dosya.h"
#include "payroll/parametre/kayitlar.h"

namespace belvani {
namespace {

struct CurlBirak {
  void operator()(CURL* c) const { curl_easy_cleanup(c); }
  void operator()(CURLU* u) const { curl_url_cleanup(u); }
  void operator()(char* metin) const { curl_free(metin); }
};

struct Adres {
  std::string sema;
  std::string yol;  // percent codes resolved
};

std::optional<std::string> AdresParcasi(CURLU* adres, CURLUPart parca, unsigned secenek) {
  char* metin = nullptr;
  if (curl_url_get(adres, parca, &metin, secenek) != CURLUE_OK) return std::nullopt;
  const std::unique_ptr<char, CurlBirak> sahip(metin);
  return std::string(metin);
}

// What is shipped, told by the month: "hazir:2009-07", "hazir:2004-04-eski".
constexpr std::string_view HazirAdres = "hazir:";
constexpr std::string_view EskiLiraEki = "-eski";

Sonuc<Adres> AdresCoz(const std::string& url) {
  const std::unique_ptr<CURLU, CurlBirak> adres(curl_url());
  if (adres && curl_url_set(adres.get(), CURLUPART_URL, url.c_str(), 0) == CURLUE_OK) {
    const auto sema = AdresParcasi(adres.get(), CURLUPART_SCHEME, 0);
    const auto yol = AdresParcasi(adres.get(), CURLUPART_PATH, CURLU_URLDECODE);
    if (sema && yol && (*sema == "file" || *sema == "http" || *sema == "https")) return Adres{*sema, *yol};
  }
  return Kusur{"Parametre adresi http:, https: ya da file: ile başlayan tam bir adres olmalı: " + GorunenAdres(url)};
}

// The body of a response as it arrives.
struct Govde {
  std::string baytlar;
  std::size_t enCok;
};

std::size_t GovdeyeEkle(const char* veri, std::size_t boy, std::size_t adet, void* nereye) {
  auto& govde = *static_cast<Govde*>(nereye);
  const std::size_t n = boy * adet;
  if (n > govde.enCok - govde.baytlar.size()) return CURL_WRITEFUNC_ERROR;
  govde.baytlar.append(veri, n);
  return n;
}

Kusur IndirmeHatasi(const std::string& url, const std::string& neden) {
  return {"Parametre Bulunamadı: " + GorunenAdres(url) + " (" + neden + ")"};
}

// What the user can act on is told in words, the rest by its number.
std::string AktarimKusuru(CURL* aktarim, CURLcode kod, const IndirmeSiniri& sinir) {
  static constexpr std::pair<CURLcode, const char*> bilinenler[] = {
      {CURLE_COULDNT_RESOLVE_HOST, "sunucu adı bulunamadı"},
      {CURLE_COULDNT_CONNECT, "sunucuya bağlanılamadı"},
      {CURLE_OPERATION_TIMEDOUT, "süre doldu"},
      {CURLE_ABORTED_BY_CALLBACK, "vazgeçildi"},
      {CURLE_PARTIAL_FILE, "aktarım yarıda kesildi"},
      {CURLE_PEER_FAILED_VERIFICATION, "sunucunun kimliği doğrulanamadı"},
      {CURLE_SSL_CONNECT_ERROR, "güvenli bağlantı kurulamadı"},
      {CURLE_SSL_CACERT_BADFILE, "güvenilen sunucuların listesi okunamadı"},
      {CURLE_COULDNT_RESOLVE_PROXY, "vekil sunucunun adı bulunamadı"},
      {CURLE_TOO_MANY_REDIRECTS, "sunucu hep başka bir adrese gönderiyor"},
      {CURLE_UNSUPPORTED_PROTOCOL, "sunucu izin verilmeyen bir adrese gönderdi"},
      {CURLE_URL_MALFORMAT, "sunucunun gönderdiği adres hatalı"},
      {CURLE_GOT_NOTHING, "sunucu yanıt vermedi"},
      {CURLE_SEND_ERROR, "bağlantı koptu"},
      {CURLE_RECV_ERROR, "bağlantı koptu"},
      {CURLE_WEIRD_SERVER_REPLY, "sunucunun yanıtı anlaşılmadı"},
      {CURLE_OUT_OF_MEMORY, "bellek yetmedi"},
  };
  for (const auto& [bilinen, metin] : bilinenler)
    if (bilinen == kod) return metin;
  if (kod == CURLE_WRITE_ERROR || kod == CURLE_FILESIZE_EXCEEDED)
    return "dosya " + std::to_string(sinir.enCokBayt) + " bayttan büyük";
  long durum = 0;
  curl_easy_getinfo(aktarim, CURLINFO_RESPONSE_CODE, &durum);
  if (kod == CURLE_HTTP_RETURNED_ERROR) return "sunucu " + std::to_string(durum) + " yanıtını verdi";
  return "aktarım hatası " + std::to_string(int(kod));
}

// The transfer step by step, so that it can be given up also while the server is silent.
CURLcode Aktar(CURL* aktarim, Ilerleme* ilerleme) {
  constexpr int bekleme = 50;  // ms
  const std::unique_ptr<CURLM, decltype(&curl_multi_cleanup)> sira(curl_multi_init(), curl_multi_cleanup);
  if (!sira || curl_multi_add_handle(sira.get(), aktarim) != CURLM_OK) return CURLE_OUT_OF_MEMORY;
  CURLcode kod = CURLE_OK;
  for (int suren = 1; suren != 0 && kod == CURLE_OK;) {
    if (ilerleme != nullptr && !ilerleme->Adim(0, 0))
      kod = CURLE_ABORTED_BY_CALLBACK;
    else if (curl_multi_perform(sira.get(), &suren) != CURLM_OK ||
             (suren != 0 && curl_multi_poll(sira.get(), nullptr, 0, bekleme, nullptr) != CURLM_OK))
      kod = CURLE_RECV_ERROR;
  }
  int kalan = 0;
  if (const CURLMsg* ileti = curl_multi_info_read(sira.get(), &kalan); kod == CURLE_OK && ileti != nullptr)
    kod = ileti->data.result;
  curl_multi_remove_handle(sira.get(), aktarim);
  return kod;
}

Sonuc<std::string> AgdanAl(const std::string& url, const std::string& sema, const IndirmeSiniri& sinir) {
  const std::unique_ptr<CURL, CurlBirak> sahip(curl_easy_init());
  CURL* c = sahip.get();
  if (c == nullptr) return IndirmeHatasi(url, "bellek yetmedi");
  Govde govde{{}, sinir.enCokBayt};
  curl_easy_setopt(c, CURLOPT_URL, url.c_str());
  // A redirection may neither reach a local file nor leave an encrypted connection.
  curl_easy_setopt(c, CURLOPT_PROTOCOLS_STR, "http,https");
  curl_easy_setopt(c, CURLOPT_REDIR_PROTOCOLS_STR, sema == "https" ? "https" : "http,https");
  curl_easy_setopt(c, CURLOPT_FOLLOWLOCATION, 1L);
  curl_easy_setopt(c, CURLOPT_MAXREDIRS, 5L);
  curl_easy_setopt(c, CURLOPT_FAILONERROR, 1L);
  curl_easy_setopt(c, CURLOPT_NOSIGNAL, 1L);
  curl_easy_setopt(c, CURLOPT_CONNECTTIMEOUT_MS, long(sinir.baglanti.count()));
  curl_easy_setopt(c, CURLOPT_TIMEOUT_MS, long(sinir.toplam.count()));
  curl_easy_setopt(c, CURLOPT_MAXFILESIZE_LARGE, curl_off_t(sinir.enCokBayt));
  curl_easy_setopt(c, CURLOPT_USERAGENT, "Belvani");
  curl_easy_setopt(c, CURLOPT_WRITEFUNCTION, GovdeyeEkle);
  curl_easy_setopt(c, CURLOPT_WRITEDATA, &govde);
  if (const CURLcode kod = Aktar(c, sinir.ilerleme); kod != CURLE_OK)
    return IndirmeHatasi(url, AktarimKusuru(c, kod, sinir));
  return govde.baytlar;
}

// A local file is read here, not by libcurl: that would wait for ever on a pipe and take a directory for a file.
Sonuc<std::string> Al(const std::string& url, const IndirmeSiniri& sinir) {
  const auto adres = AdresCoz(url);
  if (!adres) return adres.Kusuru();
  if (adres->sema != "file") return AgdanAl(url, adres->sema, sinir);
  if (auto baytlar = DosyaOku(adres->yol, sinir.enCokBayt)) return *baytlar;
  return IndirmeHatasi(url, "dosya okunamadı");
}

// The files that are fetched, in the order of ParametreDosyasi: as the server calls them and as they lie in the data
// path.
struct Parametre {
  std::string_view uzak;
  std::string_view yerel;
  std::size_t boy;
};
constexpr std::array<Parametre, 4> parametreler{{{"yasal2.txt", YasalKaydi::Dosya, YasalKaydi::Boy},
                                                 {"gvtbl.txt", GvKaydi::Dosya, GvKaydi::Boy},
                                                 {"agitbl.txt", AgiKaydi::Dosya, AgiKaydi::Boy},
                                                 {"hestur.txt", HesapTurKaydi::Dosya, HesapTurKaydi::Boy}}};

// In the order of `parametreler`.
using ParametreBaytlari = std::array<std::string, parametreler.size()>;

ParametreBaytlari BaytlaraCevir(const YasalParametreler& p) {
  return {KayitBaytlari<YasalKaydi>(p.oranlar), KayitBaytlari<GvKaydi>(p.gv), KayitBaytlari<AgiKaydi>(p.agi),
          KayitBaytlari<HesapTurKaydi>(p.hesapTurleri)};
}

Sonuc<std::string> HazirDosya(ParametreDosyasi dosya, std::string_view donem) {
  const Lira lira = donem.ends_with(EskiLiraEki) ? Lira::Eski : Lira::Yeni;
  if (lira == Lira::Eski) donem.remove_suffix(EskiLiraEki.size());
  const Tarih ilkGun = Tarih::IsoOku(std::string(donem) + "-01");
  const auto parametre = MevzuatYukle(MevzuatDizini(), ilkGun.Yil(), ilkGun.Ay(), lira);
  if (!parametre) return parametre.Kusuru();
  return BaytlaraCevir(*parametre)[std::size_t(dosya)];
}

}  // namespace

std::string GorunenAdres(std::string adres) {
  adres.erase(std::min(adres.find_first_of("?#"), adres.size()));
  const auto sema = adres.find("://");
  const auto sahis = adres.starts_with("file:") ? std::string::npos : adres.rfind('@');
  if (sema != std::string::npos && sahis != std::string::npos && sahis > sema) adres.erase(sema + 3, sahis - sema - 2);
  return adres;
}

Durum ParametreIndir(const std::string& url, const VeriYolu& veri, std::string_view ad, const IndirmeSiniri& sinir) {
  const auto baytlar = Al(url, sinir);
  if (!baytlar) return baytlar.Kusuru();
  return veri.Yaz(ad, *baytlar);
}

std::string_view ParametreDosyaAdi(ParametreDosyasi dosya) {
  return parametreler[std::size_t(dosya)].yerel;
}

Sonuc<AdliDosya> ParametreDosyasiAl(ParametreDosyasi dosya, const std::string& kaynak, const IndirmeSiniri& sinir) {
  const Parametre& p = parametreler[std::size_t(dosya)];
  const bool hazir = kaynak.starts_with(HazirAdres);
  const std::string url = hazir ? kaynak : kaynak + "/download/" + std::string(p.uzak);
  auto baytlar = hazir ? HazirDosya(dosya, std::string_view(kaynak).substr(HazirAdres.size())) : Al(url, sinir);
  if (!baytlar) return baytlar.Kusuru();
  if (baytlar->size() != p.boy)
    return Kusur{"Parametre dosyası hatalı: " + GorunenAdres(url) + " " + std::to_string(baytlar->size()) + " bayt, " +
                 std::to_string(p.boy) + " bayt olmalıydı"};
  return AdliDosya{std::string(p.yerel), std::move(*baytlar)};
}

std::string ParametreSunucusu() {
  std::string ayar = MakineAyari("ParametreAdresi");
  while (!ayar.empty() && (ayar.back() == '/' || ayar.back() == ' ')) ayar.pop_back();
  return ayar;
}

Sonuc<std::string> ParametreAdresi(int yil, int ay, Lira lira) {
  if (std::string sunucu = ParametreSunucusu(); !sunucu.empty()) return sunucu;

  // What is not there is told now, and not as a failed transfer.
  if (const auto parametre = MevzuatYukle(MevzuatDizini(), yil, ay, lira); !parametre) return parametre.Kusuru();
  const Tarih ilkGun(yil, ay, 1);
  return std::string(HazirAdres) + ilkGun.Iso().substr(0, 7) + std::string(lira == Lira::Eski ? EskiLiraEki : "");
}

}  // namespace belvani
