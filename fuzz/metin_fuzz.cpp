// Texts typed or imported: amounts, numbers, dates, Turkish case and order, code pages.
#include <cstdlib>

#include "core/sayi.h"
#include "core/tarih.h"
#include "core/turkce.h"

using namespace belvani;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boy) {
  const std::string metin(reinterpret_cast<const char*>(veri), boy);
  if (const auto tutar = TutarOku(metin); tutar && TutarOku(OndalikMetin(*tutar)) != tutar) std::abort();
  if (const auto sayi = SayiOku(metin)) (void)SayiMetni(*sayi);
  (void)TamSayiOku(metin);
  (void)BastakiSayi(metin);
  (void)SayiFormat(metin, 2, 3);
  if (const Tarih t = Tarih::MetinOku(metin); !t.Bos() && Tarih::MetinOku(t.Metin()) != t) std::abort();
  if (const Tarih t = Tarih::IsoOku(metin); !t.Bos() && Tarih::IsoOku(t.Iso()) != t) std::abort();
  (void)BuyukHarf(metin);
  (void)KucukHarf(metin);
  (void)DenetimsizMetin(metin);
  (void)IlkHarfler(metin, HarfSayisi(metin) / 2);
  const std::string yarim = metin.substr(0, boy / 2);
  if (TurkceKarsilastir(metin, yarim) * TurkceKarsilastir(yarim, metin) > 0) std::abort();
  for (const auto sayfa : {KodSayfasi::Windows1254, KodSayfasi::Dos857, KodSayfasi::Iso8859_9})
    (void)KodSayfasina(KodSayfasindan(metin, sayfa), sayfa);
  return 0;
}
