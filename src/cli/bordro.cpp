// bordro: the ledger of a month
#include "cli/jsonkayit.h"
#include "cli/ortak.h"
#include "core/store/satirlar.h"
#include "documents/defterayari.h"
#include "documents/deftersorgu.h"
#include "payroll/hazirlik/kosullar.h"
#include "printing/csvyazici.h"
#include "printing/metinyazici.h"

namespace belvani::cli {
namespace {

struct BordroSecenekleri {
  std::string kod, bicim = "metin", dosya;
  Donem donem;
};

Json KayitlarJson(const std::vector<BordroSatiri>& satirlar) {
  Json dizi = Json::array();
  for (const auto& satir : satirlar) KayitJson(satir.brd, dizi.emplace_back(Json::object()));
  return dizi;
}

std::string Defter(Genel& genel, Oturum& o, const BordroSecenekleri& s) {
  Motor& motor = o.depo.db.IcMotor();
  DefterSecim secim;
  secim.yil = s.donem.yil;
  secim.ay = s.donem.ay;
  const auto satirlar = DefterSatirlariOku(motor, secim);
  if (s.bicim == "json") return KayitlarJson(satirlar).dump(2) + "\n";
  if (satirlar.empty()) genel.bildirim.Bilgi("Bu dönemde bordro kaydı yok");

  DefterBaslik baslik;
  baslik.yil = s.donem.yil;
  baslik.ay = s.donem.ay;
  baslik.firma = KayitlariOku<Firma>(motor).front();
  auto yasal = YasalParametreleriAl(o.DataPath);
  baslik.damgaOran = Degeri(yasal).oranlar.DamgaOran;
  baslik.paraonda = o.paraonda;
  DefterSecenek secenek;
  secenek.kolonlar = DefterAyariOku(o.FirmaDizini + "bordro.ini").kolonlar;
  const Rapor rapor = DefterRaporu(satirlar, baslik, secenek);
  return s.bicim == "csv" ? CsvRaporu(rapor) : MetinRaporu(rapor, secenek.duzen);
}

}  // namespace

void BordroKomutu(CLI::App& app, Genel& genel) {
  auto s = std::make_shared<BordroSecenekleri>();
  auto* komut = app.add_subcommand("bordro", "Ayın ücret bordrosunu sonundaki icmaliyle verir");
  komut->add_option("KOD", s->kod, "şirket")->required();
  DonemSecenekleri(*komut, s->donem);
  komut->add_option("--bicim", s->bicim, "metin, csv veya json (json: kayıtların bütün alanları)")
      ->check(CLI::IsMember({"metin", "csv", "json"}));
  komut->add_option("-o", s->dosya, "yazılacak dosya (verilmezse ekrana)");
  komut->callback([&genel, s] {
    const auto o = genel.SirketAc(s->kod);
    Yaz(Defter(genel, *o, *s), s->dosya);
  });
}

}  // namespace belvani::cli
