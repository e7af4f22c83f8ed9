// paylas
#include "cli/ortak.h"
#include "core/session/paylasim.h"
#include "core/session/sirket.h"

namespace belvani::cli {
namespace {

struct PaylasSecenekleri {
  std::string kod;
  bool hepsi = false;
  bool yerel = false;

  DepoYeri Yer() const { return yerel ? DepoYeri::BuBilgisayar : DepoYeri::Paylasilan; }
};

void YeriDegistir(const VeriYolu& veri, const std::string& ad, const PaylasSecenekleri& s) {
  Basarmali(DepoYeriDegistir(veri, ad, s.Yer()));
  Yaz((s.yerel ? "Bu bilgisayar: " : "Paylaşılan: ") + ad + "\n");
}

// One company that is in use does not keep the others from it.
void HepsiniDegistir(const VeriYolu& veri, const PaylasSecenekleri& s) {
  Basarmali(YeniDepoYeriYaz(veri, s.Yer()));
  std::string kusurlar;
  for (const std::string& ad : Sirketler(veri)) {
    if (!veri.Alt(ad).Var(DepoDosyasi)) continue;
    try {
      YeriDegistir(veri, ad, s);
    } catch (const KomutHatasi& h) {
      kusurlar += (kusurlar.empty() ? "" : "\n") + h.metin;
    }
  }
  if (!kusurlar.empty()) throw KomutHatasi{kusurlar};
}

void Paylas(Genel& genel, const PaylasSecenekleri& s) {
  if (s.kod.empty() != s.hepsi) throw CLI::ValidationError("KOD", "şirketin adı ya da --hepsi verilmeli");
  const VeriYolu veri = genel.DataPath();
  if (s.hepsi) return HepsiniDegistir(veri, s);
  auto ad = SirketBul(veri, s.kod);
  YeriDegistir(veri, Degeri(ad), s);
}

}  // namespace

void PaylasKomutu(CLI::App& app, Genel& genel) {
  auto s = std::make_shared<PaylasSecenekleri>();
  auto* paylas = app.add_subcommand(
      "paylas", "Şirketi birden çok bilgisayarın paylaşılan diskten açabilmesi için kurar; kimse içeride olmamalı");
  paylas->add_option("KOD", s->kod, "şirket");
  paylas->add_flag("--hepsi", s->hepsi, "data dizinindeki bütün şirketler; sonra açılacak olanlar da böyle kurulur");
  paylas->add_flag("--yerel", s->yerel, "tersi: yalnız bu bilgisayar için kurar, okuyanlar yazanı beklemez");
  paylas->callback([&genel, s] { Paylas(genel, *s); });
}

}  // namespace belvani::cli
