#include "accounting/yevmiye.h"

#include <algorithm>

#include "core/sayi.h"
#include "core/yuvarlama.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

constexpr int KurusHanesi = 2;
constexpr const char* ParaBirimi = " TL";

// In signs that a comment may hold: neither a tag nor a date.
std::string Yorum(std::string_view metin) {
  std::string yorum = DenetimsizMetin(metin);
  for (char& harf : yorum) {
    if (harf == ':') harf = '.';
    if (harf == '[') harf = '(';
    if (harf == ']') harf = ')';
  }
  return yorum;
}

Tutar Kurus(Tutar tutar) {
  return Yuvarlayici(KurusHanesi)(tutar);
}

Tutar IsaretliTutar(const FisSatiri& satir) {
  const Tutar kurus = Kurus(satir.tutar);
  return satir.ba == BorcTarafi ? kurus : Tutar() - kurus;
}

// "-1234.50", without thousands.
std::string KurusMetni(Tutar tutar) {
  std::string metin = TutarMetni(tutar, KurusHanesi);
  std::erase(metin, ',');
  return metin;
}

Tutar Fark(const Fis& fis) {
  Tutar fark;
  for (const FisSatiri& satir : fis.satirlar) fark += IsaretliTutar(satir);
  return fark;
}

struct MaddeSatiri {
  std::string hesap;
  std::string tutar;
  std::string ad;
};

std::vector<MaddeSatiri> MaddeSatirlari(const Fis& fis, const HesapPlani& plan) {
  std::vector<MaddeSatiri> satirlar;
  for (const FisSatiri& satir : fis.satirlar)
    satirlar.push_back({YevmiyeHesabi(satir.kod), KurusMetni(IsaretliTutar(satir)), Yorum(plan.Adi(satir.kod))});
  if (const Tutar fark = Fark(fis); fark != Tutar())
    satirlar.push_back({FarkHesabi, KurusMetni(Tutar() - fark), "borç ve alacak eşit değil"});
  return satirlar;
}

}  // namespace

std::string YevmiyeHesabi(std::string_view kod) {
  std::string hesap;
  for (const char harf : DenetimsizMetin(kod)) {
    if (harf == ' ' && (hesap.empty() || hesap.back() == ' ')) continue;  // two blanks end an account
    hesap += harf == ':' ? '.' : harf == ';' ? ',' : harf;                // levels; a comment
  }
  if (hesap.ends_with(' ')) hesap.pop_back();
  // In front they make a posting virtual, deferred, cleared, or no posting at all.
  constexpr std::string_view ozelIlk = "([<{*!=~@#%|&+-\"'.,/?\\";
  if (hesap.empty() || ozelIlk.find(hesap.front()) != std::string_view::npos) hesap.insert(0, "Hesap ");
  return hesap;
}

std::string YevmiyeMaddesi(const Fis& fis, const FisBasligi& baslik, const HesapPlani& plan) {
  const FisDonemi& donem = fis.donem;
  std::string metin = "; " + Yorum(baslik.unvan) + " - " + std::string(AyAdi(donem.ay)) + " " +
                      std::to_string(donem.yil) +
                      (donem.grup == ButunGruplar ? "" : ", " + Yorum(donem.grup) + " grubu") + "\n";
  if (fis.satirlar.empty()) return metin;
  const auto satirlar = MaddeSatirlari(fis, plan);
  int hesapEni = 0, tutarEni = 0;
  for (const MaddeSatiri& s : satirlar) {
    hesapEni = std::max(hesapEni, int(HarfSayisi(s.hesap)));
    tutarEni = std::max(tutarEni, int(HarfSayisi(s.tutar)));
  }
  metin += baslik.tarih.Iso() + " " + fis.ack + "\n";
  for (const MaddeSatiri& s : satirlar)
    metin += "    " + Solda(s.hesap, hesapEni) + "  " + Sagda(s.tutar, tutarEni) + ParaBirimi +
             (s.ad.empty() ? "" : "  ; " + s.ad) + "\n";
  return metin;
}

std::string YevmiyeUyarisi(const Fis& fis) {
  const Tutar fark = Fark(fis);
  if (fark == Tutar()) return {};
  return "Borç ve alacak eşit değil: " + TutarMetni(fark, KurusHanesi) + " fark " + FarkHesabi + " satırına yazıldı";
}

}  // namespace belvani
