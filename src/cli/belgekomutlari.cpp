// bordro, pusula, icmal, …: a command for each paper of the registry; its options are the fields of its choices.
#include <algorithm>

#include "cli/belgecikti.h"
#include "cli/jsonakisi.h"
#include "cli/sirketsecimi.h"
#include "core/sayi.h"
#include "documents/belgeyap.h"
#include "payroll/hazirlik/kosullar.h"
#include "registry/belgeler.h"

namespace belvani::cli {
namespace {

using AlanListesi = std::vector<const Alan*>;

struct BelgeIsi {
  const BelgeTanimi& belge;
  SirketSecimi sirketler;
  std::vector<std::pair<const Alan*, Deger>> verilenler;  // written over what the company has saved
  BelgeCiktisi cikti;
};

bool SayiMi(const Alan& alan) {
  const AlanTipi tip = alan.tanim.tip;
  return tip == AlanTipi::Byte || tip == AlanTipi::Kisa || tip == AlanTipi::Uzun;
}

// The numbers that a field takes: its range, or those of its choices.
std::pair<int, int> Sinirlar(const Alan& alan) {
  if (alan.ek.liste.empty()) return {int(alan.ek.enAz), int(alan.ek.enCok)};
  return {alan.ek.listeTabani, alan.ek.listeTabani + int(alan.ek.liste.size()) - 1};
}

// The text of an option as a value of its field; a wrong one ends the command as a wrong call.
Deger OkunanDeger(const Alan& alan, const std::string& metin) {
  const auto sozcukler = alan.ek.komutSozcukleri;
  if (!sozcukler.empty())
    return std::int64_t(std::ranges::find(sozcukler, metin) - sozcukler.begin() + alan.ek.listeTabani);
  if (SayiMi(alan)) return std::int64_t(SayiOku(alan.ek.komut, metin, Sinirlar(alan).first, Sinirlar(alan).second));
  std::string kusur;
  const Deger deger = MetindenDeger(alan.tanim, alan.tanim.tip == AlanTipi::Tarih ? GunSecenegi(metin) : metin, kusur);
  if (kusur.empty()) kusur = AlanKusuru(alan, deger);
  if (!kusur.empty()) throw CLI::ValidationError(alan.ek.komut, kusur + ": " + metin);
  return deger;
}

std::string TurAdi(const AlanListesi& alanlar) {
  if (alanlar.size() > 1) return "BAŞ BİT";
  if (alanlar.front()->tanim.tip == AlanTipi::Tarih) return "TARİH";
  const auto sozcukler = alanlar.front()->ek.komutSozcukleri;
  const bool sayilar = std::ranges::all_of(sozcukler, [](auto sozcuk) { return TamSayiOku(sozcuk).has_value(); });
  return SayiMi(*alanlar.front()) && sayilar ? "SAYI" : "METİN";
}

// What stands in a field of fresh choices is none of its values: the command line must tell.
bool VerilmeliMi(const Alan& alan, BelgeSecimi& secim) {
  const Deger ilk = alan.oku(secim.Kayit(alan.kayitTuru));
  const auto& liste = alan.ek.liste;
  if (alan.tanim.tip == AlanTipi::Tarih) return NullMu(ilk);
  return liste.empty() ? !AlanKusuru(alan, ilk).empty() : SecenekSirasi(alan, ilk, liste.size()) < 0;
}

void SecenekEkle(CLI::App& komut, const AlanListesi& alanlar, const std::shared_ptr<BelgeIsi>& is) {
  const auto al = [is, alanlar](const std::vector<std::string>& metinler) {
    for (std::size_t i = 0; i < alanlar.size(); ++i)
      is->verilenler.emplace_back(alanlar[i], OkunanDeger(*alanlar[i], metinler[i]));
  };
  const AlanEki& ek = alanlar.front()->ek;
  CLI::Option* secenek = alanlar.size() > 1
                             ? komut.add_option_function<std::vector<std::string>>(ek.komut, al, ek.komutYardimi)
                                   ->expected(int(alanlar.size()))
                             : komut.add_option_function<std::string>(
                                   ek.komut, [al](const std::string& metin) { al({metin}); }, ek.komutYardimi);
  secenek->type_name(TurAdi(alanlar));
  const auto sozcukler = ek.komutSozcukleri;
  if (!sozcukler.empty()) secenek->check(CLI::IsMember(std::vector<std::string>(sozcukler.begin(), sozcukler.end())));
  if (VerilmeliMi(*alanlar.front(), *is->belge.secim())) secenek->required();
}

// Rows of one option stand one after the other.
void SecenekleriEkle(CLI::App& komut, const std::shared_ptr<BelgeIsi>& is) {
  AlanListesi alanlar;
  for (const auto& sutun : is->belge.alanlar)
    for (const AlanGrubu& grup : sutun)
      for (const Alan& alan : grup.alanlar)
        if (*alan.ek.komut != '\0') alanlar.push_back(&alan);
  for (const Alan& alan : is->belge.komutAlanlari) alanlar.push_back(&alan);
  for (auto ilk = alanlar.begin(); ilk != alanlar.end();) {
    const std::string_view ad = (*ilk)->ek.komut;
    const auto son = std::find_if(ilk, alanlar.end(), [&](const Alan* alan) { return alan->ek.komut != ad; });
    SecenekEkle(komut, {ilk, son}, is);
    ilk = son;
  }
}

// "bordro-2009-07.pdf", in the folder of a company.
std::string BelgeCiktiAdi(const BelgeIsi& is, BelgeSecimi& secim) {
  const std::string donem = BelgeDonemi(is.belge, secim);
  return BelgeDosyaAdi(std::string(is.belge.komut) + (donem.empty() ? "" : "-" + donem), is.cikti.bicim);
}

std::string KayitYokSozu(const BelgeTanimi& belge) {
  return belge.kayitYok.empty() ? "Bu dönemde bordro kaydı yok" : std::string(belge.kayitYok);
}

// Opened with the first record: of many companies, one without records gets no file.
void KayitlariYaz(const BelgeIsi& is, const SirketIsi& isi, const BelgeKaynagi& kaynak, BelgeSecimi& secim) {
  std::optional<MetinCikisi> cikis;
  std::optional<JsonDizisi> dizi;
  const auto ac = [&] {
    if (cikis) return;
    cikis.emplace(isi.Dosya(is.cikti.dosya, BelgeCiktiAdi(is, secim)));
    dizi.emplace(*cikis);
  };
  is.belge.kayitlar(kaynak, secim, [&](const Brd& kayit) {
    ac();
    Json nesne = Json::object();
    KayitJson(kayit, nesne);
    dizi->Ekle(nesne);
  });
  if (!cikis) isi.Atla(KayitYokSozu(is.belge));
  ac();
  dizi->Bitir();
  cikis->Yaz("\n");
  cikis->Bitir();
}

void BelgeVer(Genel& genel, const SirketIsi& isi, const BelgeIsi& is) {
  const auto oturum = genel.SirketAc(isi.kod);
  const KuruluMevzuat mevzuat = KuruluMevzuatOku(oturum->DataPath);
  auto yasal = YasalParametreleriAl(mevzuat);
  const BelgeKaynagi kaynak{.motor = oturum->depo.db.IcMotor(),
                            .yasal = Degeri(yasal),
                            .firma = oturum->firma,
                            .sirket = oturum->FirmaDizini};
  const auto secim = is.belge.secim();
  secim->FirmaKoy(oturum->firma);
  if (is.belge.ayar.oku != nullptr) is.belge.ayar.oku(oturum->FirmaDizini, *secim);
  for (const auto& [alan, deger] : is.verilenler) alan->yaz(secim->Kayit(alan->kayitTuru), deger);
  if (const auto kusur = secim->Kusuru()) throw KomutHatasi{kusur->metin};
  if (is.belge.kayitlar != nullptr && is.cikti.bicim == "json") return KayitlariYaz(is, isi, kaynak, *secim);
  const auto belge = BelgeYap(is.belge, *secim, kaynak);
  const auto bak = [&](MevzuatAyi ay) { return MevzuataBak(mevzuat, ay); };
  if (const std::string soz = BelgeMevzuatSozu(is.belge, *secim, kaynak.motor, bak); !soz.empty())
    genel.bildirim.Uyari("Uyarı: " + soz);
  if (is.belge.soz != nullptr)
    if (const std::string soz = is.belge.soz(kaynak, *secim); !soz.empty()) genel.bildirim.Uyari("Uyarı: " + soz);
  if (const std::string soz = belge->Eksikler(); !soz.empty()) genel.bildirim.Uyari("Uyarı: " + soz);
  if (belge->Kayitsiz()) isi.Atla(KayitYokSozu(is.belge));
  if (belge->Kayitsiz() && !is.belge.kayitYok.empty()) genel.bildirim.Bilgi(is.belge.kayitYok);
  BelgeCiktisi cikti = is.cikti;
  cikti.dosya = isi.Dosya(is.cikti.dosya, BelgeCiktiAdi(is, *secim));
  BelgeYaz(*belge, cikti);
}

}  // namespace

void BelgeKomutlari(CLI::App& app, Genel& genel) {
  for (const BelgeTanimi& belge : Belgeler()) {
    if (belge.komut.empty()) continue;
    auto is = std::make_shared<BelgeIsi>(BelgeIsi{.belge = belge, .sirketler = {}, .verilenler = {}, .cikti = {}});
    auto* komut = app.add_subcommand(std::string(belge.komut), std::string(belge.komutYardimi));
    is->sirketler.SecenekEkle(*komut);
    SecenekleriEkle(*komut, is);
    CiktiSecenekleri(*komut, is->cikti);
    komut->callback([&genel, is] {
      is->sirketler.CiktiyiDenetle(is->cikti.bicim, is->cikti.dosya);
      is->sirketler.Calistir(genel, [&](const SirketIsi& isi) { BelgeVer(genel, isi, *is); });
    });
  }
}

}  // namespace belvani::cli
