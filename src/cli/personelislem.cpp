// kod-degistir, kanun-degistir, transfer
#include "cli/ortak.h"
#include "personnel/kanundegistir.h"
#include "personnel/koddegistir.h"
#include "personnel/personeltransfer.h"

namespace belvani::cli {
namespace {

std::string Satirlar(const Kusurlar& kusurlar) {
  std::string metin;
  for (const Kusur& k : kusurlar) metin += (metin.empty() ? "" : "\n") + k.metin;
  return metin;
}

void KodDegistirKomutu(CLI::App& app, Genel& genel) {
  auto* komut = app.add_subcommand("kod-degistir",
                                   "Personelin kodunu kartında, kimliğinde, resminde ve bordrolarında değiştirir");
  auto sirket = std::make_shared<std::string>();
  auto d = std::make_shared<KodDegisikligi>();
  komut->add_option("KOD", *sirket, "şirket")->required();
  komut->add_option("ESKI", d->eski, "personelin kodu")->required();
  komut->add_option("YENI", d->yeni, "yeni kodu; hiçbir kayıtta kullanılmamış olmalı")->required();
  komut->add_flag("--bagli", d->bagli, "aile, devir ve cari kayıtları da taşınır");
  komut->callback([&genel, sirket, d] {
    const auto o = genel.YazmayaAc(*sirket);
    const auto degisim = KodDegistir(*o, *d);
    if (!degisim) throw KomutHatasi{Satirlar(degisim.Kusuru())};
    Yaz(degisim->Metin() + "\n");
  });
}

void KanunuDegistir(Genel& genel, const std::string& sirket, const KanunSecimi& secim) {
  auto yeni = KanunOku(secim.yeni, kanunsecimi::yeni);
  const std::string kanun = Degeri(yeni);
  const auto o = genel.YazmayaAc(sirket);
  auto liste = KanunluKisiler(*o, secim);
  auto degisim = KanunDegistir(*o, Degeri(liste).kisiler, kanun);
  for (const Kusur& k : Degeri(degisim).yazilmayan) genel.bildirim.Uyari("Uyarı: " + k.metin + ": " + k.kod);
  if (liste->kimliksiz != 0)
    genel.bildirim.Uyari("Uyarı: kimlik kaydı olmayan " + std::to_string(liste->kimliksiz) + " kişi değişmedi");
  Yaz("Değiştirme Tamamlandı: " + std::to_string(degisim->degisen) + " kişi, " + kanun + "\n");
}

void KanunDegistirKomutu(CLI::App& app, Genel& genel) {
  auto* komut = app.add_subcommand("kanun-degistir", "Kimlik kaydı olan herkesin kanun numarasını değiştirir");
  auto sirket = std::make_shared<std::string>();
  auto secim = std::make_shared<KanunSecimi>();
  komut->add_option("KOD", *sirket, "şirket")->required();
  komut->add_option("YENI", secim->yeni, "yeni kanun numarası: 5510 veya 05510")->required();
  auto* eski = komut->add_option("--eski", secim->eski, "yalnız bu kanuna tabi olanlar (0: kanunu olmayanlar)");
  komut->callback([&genel, sirket, secim, eski] {
    secim->eskiyeGore = eski->count() != 0;
    KanunuDegistir(genel, *sirket, *secim);
  });
}

// A date of an option; a wrong one ends the command as a wrong call.
void TransferKomutu(CLI::App& app, Genel& genel) {
  auto* komut = app.add_subcommand("transfer", "Personelin kartını ve kimliğini başka bir şirkete kopyalar");
  auto sirket = std::make_shared<std::string>();
  auto form = std::make_shared<TransferFormu>();
  komut->add_option("KOD", *sirket, "şirket")->required();
  komut->add_option("PERSONEL", form->kod, "personelin buradaki kodu")->required();
  komut->add_option("HEDEF", form->hedef, "giriş yapılacak şirket")->required();
  komut->add_option("YENIKOD", form->yeniKod, "oradaki kodu")->required();
  TarihSecenegi(*komut, "--giris", "yeni şirkete giriş tarihi", form->yeniGiris)->required();
  TarihSecenegi(*komut, "--cikis", "buradan çıkış tarihi; verilmezse çıkışı yapılmaz", form->ciktar);
  const auto kodOku = [form](const std::string& metin) {
    form->cikiskodu = std::uint8_t(SayiOku("--cikis-kodu", metin, 1, int(std::size(CikisKodlari)) - 1));
  };
  auto* kod = komut->add_option_function<std::string>("--cikis-kodu", kodOku, "çıkış kodu, 1-34")->type_name("SAYI");
  auto* sebep = komut->add_option("--sebep", form->cikissebebi, "çıkış sebebi");
  for (auto* secenek : {kod, sebep}) secenek->needs(komut->get_option("--cikis"));
  komut->callback([&genel, sirket, form, komut] {
    form->cikisYap = komut->get_option("--cikis")->count() != 0;
    const auto o = genel.YazmayaAc(*sirket);
    auto transfer = PersonelTransfer(*o, *form);
    if (const std::string uyari = Degeri(transfer).Uyari(); !uyari.empty()) genel.bildirim.Uyari("Uyarı: " + uyari);
    Yaz("Personel kopyalandı: " + transfer->hedef + " " + form->yeniKod + "\n");
  });
}

}  // namespace

void KisiKomutlari(CLI::App& app, Genel& genel) {
  KodDegistirKomutu(app, genel);
  KanunDegistirKomutu(app, genel);
  TransferKomutu(app, genel);
}

}  // namespace belvani::cli
