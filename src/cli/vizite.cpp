// vizite: the medical papers of a person and of his family
#include "cli/belgecikti.h"
#include "core/sayi.h"
#include "ozluk/vizitekagidi.h"

namespace belvani::cli {
namespace {

struct ViziteSecenekleri {
  std::string kod;
  std::string personel;
  int tur = 0;
  Tarih tarih;
  int yakinlik = 0;
  std::string saat;
  BelgeCiktisi cikti;
};

// "15.05.2009" or "2009-05-15".
std::string SaatSecenegi(const std::string& metin) {
  const auto basamak = [&](std::size_t i) { return metin[i] >= '0' && metin[i] <= '9'; };
  const bool saat = metin.size() == 5 && metin[2] == ':' && basamak(0) && basamak(1) && basamak(3) && basamak(4) &&
                    BastakiSayi(metin) < 24 && BastakiSayi(metin.substr(3)) < 60;
  if (!saat) throw CLI::ValidationError("--saat", "saat değil: " + metin + " (örnek: 09:15)");
  return metin;
}

void YakininaBak(const ViziteSecenekleri& s) {
  if (s.yakinlik != 0 && ViziteTuru(s.tur) == ViziteTuru::Sigortali)
    throw CLI::ValidationError("--yakin", "sigortalının kendi vizitesinde yakını yazılmaz");
}

ViziteKagidi Doldur(Genel& genel, Oturum& o, const ViziteSecenekleri& s) {
  ViziteKagidi kagit = BosViziteKagidi(o, ViziteTuru(s.tur));
  auto kisi = KisiDoldur(o, s.personel, s.tarih);
  if (!kisi) throw KomutHatasi{"Bu Kodda Personel Yok: " + s.personel};
  kagit.form = std::move(kisi->form);
  kagit.kimlik = std::move(kisi->kimlik);
  if (!s.saat.empty()) kagit.form.saat = s.saat;
  kagit.yakin = YakinBul(o, s.personel, std::uint8_t(s.yakinlik));
  if (s.yakinlik != 0 && kagit.yakin == ViziteYakini{.yakinlik = std::uint8_t(s.yakinlik)})
    genel.bildirim.Uyari("Uyarı: " + std::string(ViziteYakinliklari[std::size_t(s.yakinlik)]) +
                         " kayıtlı değil, hastanın bilgileri boş bırakıldı");
  auto aylar = GunTablosuYap(o, kagit.form);
  kagit.aylar = Degeri(aylar);
  return kagit;
}

void ViziteVer(Genel& genel, const ViziteSecenekleri& s) {
  const auto o = genel.SirketAc(s.kod);
  BelgeYaz(*ViziteBelgesi(Doldur(genel, *o, s)), s.cikti);
}

}  // namespace

void ViziteKomutu(CLI::App& app, Genel& genel) {
  auto s = std::make_shared<ViziteSecenekleri>();
  auto* komut = app.add_subcommand("vizite", "Bir kişinin vizite kağıdını verir");
  komut->add_option("KOD", s->kod, "şirket")->required();
  komut->add_option("PERSONEL", s->personel, "kişinin sicil kodu")->required();
  SayiSecenegi(*komut, "--tur", "1 sigortalının kendisi, 2 eşi ve çocukları, 3 altı aylık sağlık belgesi", s->tur, 1, 3)
      ->required();
  TarihSecenegi(*komut, "--tarih", "vizite günü", s->tarih)->required();
  SayiSecenegi(*komut, "--yakin", "hasta: 1 eşi, 2 annesi, 3 babası, 4-9 çocukları (verilmezse elle doldurulur)",
               s->yakinlik, 0, int(std::size(ViziteYakinliklari)) - 1);
  komut
      ->add_option_function<std::string>(
          "--saat", [s](const std::string& metin) { s->saat = SaatSecenegi(metin); },
          "işyerinden ayrıldığı saat (verilmezse şimdiki)")
      ->type_name("SS:DD");
  CiktiSecenekleri(*komut, s->cikti);
  komut->callback([&genel, s] {
    YakininaBak(*s);
    ViziteVer(genel, *s);
  });
}

}  // namespace belvani::cli
