// iab: the leaving notice of a person.
#include "cli/belgecikti.h"
#include "cli/jsonkayit.h"
#include "core/store/koru.h"
#include "notices/iabkagidi.h"

namespace belvani::cli {
namespace {

struct IabSecenekleri {
  std::string kod;
  std::string personel;
  std::string tarih;
  BelgeCiktisi cikti{.bicim = "json", .dosya = {}};
};

Json TarihJson(Tarih gun) {
  return gun.Bos() ? Json() : Json(gun.Metin());
}

Json IabKaydiJson(const IabKaydi& kayit) {
  return {
      {"yil", kayit.yil}, {"ay", kayit.ay}, {"pek", DegerJson(kayit.pek)}, {"gun", kayit.gun}, {"ekseb", kayit.ekseb}};
}

Json FormJson(const IabFormu& form) {
  Json kayitlar = Json::array();
  for (const IabKaydi& kayit : form.kayitlar) kayitlar.push_back(IabKaydiJson(kayit));
  return {{"kod", form.kod},
          {"adsoyad", form.adsoyad},
          {"sskno", form.sskno},
          {"tcno", form.tcno},
          {"dogtar", TarihJson(form.dogtar)},
          {"dogyer", form.dogyer},
          {"girtar", TarihJson(form.girtar)},
          {"ciktar", TarihJson(form.ciktar)},
          {"cikissebebi", form.cikissebebi},
          {"sonNetUcret", DegerJson(form.sonNet)},
          {"issizlikGunu", form.issizlikGunu},
          {"duzenlemeTarihi", TarihJson(form.duzenleme)},
          {"kayitlar", std::move(kayitlar)}};
}

Tarih DuzenlemeTarihi(const std::string& metin) {
  if (metin.empty()) return Tarih::Bugun();
  const Tarih gun = Tarih::MetinOku(metin);
  if (gun.Bos()) throw CLI::ValidationError("--tarih", "tarih okunamadı, gg.aa.yyyy olmalı: " + metin);
  return gun;
}

void IabVer(Genel& genel, const IabSecenekleri& s) {
  const Tarih duzenleme = DuzenlemeTarihi(s.tarih);
  const auto oturum = genel.SirketAc(s.kod);
  Motor& motor = oturum->depo.db.IcMotor();
  auto bulunan = Koru([&] {
    auto form = KisiDoldur(motor, s.personel);
    if (form) {
      form->duzenleme = duzenleme;
      IabKayitlari(motor, *form);
    }
    return form;
  });
  if (!Degeri(bulunan)) throw KomutHatasi{s.personel + ": bu kodda personel yok"};
  const IabFormu& form = **bulunan;
  for (const Kusur& uyari : IabUyarilari(form)) genel.bildirim.KusuruGoster(uyari);
  if (s.cikti.bicim == "metin" || s.cikti.bicim == "ham") throw KomutHatasi{IabMetinYok};
  if (s.cikti.bicim == "json") return Yaz(FormJson(form).dump(2) + "\n", s.cikti.dosya);
  BelgeYaz(*IabBelgesi({.form = form, .firma = oturum->firma}), s.cikti);
}

}  // namespace

void BildirimKomutlari(CLI::App& app, Genel& genel) {
  auto s = std::make_shared<IabSecenekleri>();
  auto* komut = app.add_subcommand("iab", "Bir kişinin işten ayrılma bildirgesini (İAB) verir");
  komut->add_option("KOD", s->kod, "şirket")->required();
  komut->add_option("PERSONEL", s->personel, "personel kodu")->required();
  komut->add_option("--tarih", s->tarih, "düzenleme tarihi, gg.aa.yyyy (verilmezse bugün)")->type_name("TARİH");
  komut->add_option("--bicim", s->cikti.bicim, "json veya pdf")->check(CLI::IsMember({"json", "pdf", "metin", "ham"}));
  komut->add_option("-o", s->cikti.dosya, "yazılacak dosya (json verilmezse ekrana; - standart çıktı)");
  komut->parse_complete_callback([s] {
    if (s->cikti.bicim == "pdf" && s->cikti.dosya.empty())
      throw CLI::ValidationError("--bicim", "pdf ekrana yazılmaz, dosyasını veriniz: -o DOSYA");
  });
  komut->callback([&genel, s] { IabVer(genel, *s); });
}

}  // namespace belvani::cli
