#include "core/session/yukseltmeadimlari.h"

#include <algorithm>

namespace belvani {
namespace {

// `tahsisno` of `sicil` is not filled: a new text field is Null, and Null reads as the empty text that it would get.
void Adim0Doldur(Motor& motor, Tutar) {
  motor.Calistir(
      "update firma set tckimlik = '', epos = '', kanun = '00000', semt = '', adrilce = '', adril = '', pk = '';"
      "update brd set ucretsizizin = coalesce(ucretsizizin, 0), ogv = coalesce(ogv, 0) "
      "where ucretsizizin is null or ogv is null");
}

void Adim1Doldur(Motor& motor, Tutar sskTaban) {
  const auto komut = motor.Hazirla(
      "update brd set ucrizmatrah = 0, indirim1 = 0, indirim2 = 0, indirim3 = 0, sakindir = 0, gocindir = 0, katki = "
      "case when coalesce(sskmatrahisveren, 0) < ? then ? - coalesce(sskmatrahisveren, 0) else 0 end");
  komut->Bagla(1, sskTaban);
  komut->Bagla(2, sskTaban);
  komut->Calistir();
}

void Adim2Doldur(Motor& motor, Tutar) {
  motor.Calistir("update firma set tersfirma = 0");
}

// `kanun` of `sicil` stays Null in step 4 for the same reason as `tahsisno`.
void Doldurma(Motor&, Tutar) {}

void Adim5Doldur(Motor& motor, Tutar) {
  motor.Calistir(
      "update sicil set tur = case coalesce(sskdurum, 0) "
      "when 0 then 1 when 1 then 2 when 2 then 15 when 3 then 7 when 4 then 0 else tur end "
      "where coalesce(tur, 0) < 1 or tur > 18");
}

void Adim6Doldur(Motor& motor, Tutar) {
  motor.Calistir(
      "update sicil set agi = 1, tur = case when sskdurum = 4 then 1 else 0 end, "
      "sskdurum = case when sskdurum = 4 then 4 else 0 end");
}

std::vector<std::string> EksikAlanlar(Motor& motor, const YukseltmeAdimi& adim) {
  std::vector<std::string> eksik;
  for (const auto& [tablo, alanlar] : adim.eklenen) {
    const auto kolonlar = motor.Kolonlar(tablo);
    if (kolonlar.empty()) continue;
    for (const std::string_view alan : alanlar)
      if (std::ranges::find(kolonlar, alan, &MotorKolonu::ad) == kolonlar.end())
        eksik.push_back(std::string(tablo) + "." + std::string(alan));
  }
  return eksik;
}

bool VarMi(Motor& motor, const std::string& sorgu) {
  const auto komut = motor.Hazirla(sorgu);
  const bool var = komut->Adim();
  komut->Birak();
  return var;
}

// One record with a value is enough, for a step fills all or none; so this reads the table to its end only in a store
// that was left half done.
bool Doldurulmamis(Motor& motor, const YukseltmeAdimi& adim) {
  if (adim.dolan.alanlar.empty() || motor.Kolonlar(adim.dolan.tablo).empty()) return false;
  const std::string kayitlar = "select 1 from " + std::string(adim.dolan.tablo);
  const std::string dolu = kayitlar + " where " + std::string(adim.dolan.alanlar.front()) + " is not null limit 1";
  return !VarMi(motor, dolu) && VarMi(motor, kayitlar + " limit 1");
}

}  // namespace

const std::array<YukseltmeAdimi, AdimSayisi>& YukseltmeAdimlari() {
  static const std::array<YukseltmeAdimi, AdimSayisi> adimlar{{
      {.baslik = "Önceki Versiyonlardan 2003.1'e  Geçiş",
       .versiyon = "2003.1",
       .eklenen = {{"firma", {"tckimlik", "epos", "kanun", "versiyon", "semt", "adrilce", "adril", "pk"}},
                   {"brd", {"ucretsizizin", "ogv"}},
                   {"sicil", {"tahsisno"}}},
       .doldur = Adim0Doldur,
       .dolan = {"brd", {"ogv"}}},
      {.baslik = "2003.1' den 2003.2 ' ye Geçiş",
       .versiyon = "2003.2",
       .eklenen = {{"sicil", {"indirim1", "indirim2", "indirim3", "indtut1", "indtut2", "indtut3"}},
                   {"brd", {"ucrizmatrah", "katki", "indirim1", "indirim2", "indirim3", "sakindir", "gocindir"}}},
       .doldur = Adim1Doldur,
       .dolan = {"brd", {"katki"}}},
      {.baslik = "2003.2' den 2003.3 ' ye Geçiş",
       .versiyon = "2003.3",
       .eklenen = {{"firma", {"tersfirma"}}},
       .doldur = Adim2Doldur,
       .dolan = {"firma", {"tersfirma"}}},
      {.baslik = "2003.3' den 2003.4 ' ye Geçiş",
       .versiyon = "2003.4",
       .eklenen = {{"brd", {"sendika", "borckes", "muaftutar"}}},
       .doldur = Doldurma},
      {.baslik = "2003.4' den 2003.5 ' ye Geçiş",
       .versiyon = "2003.5",
       .eklenen = {{"sicil", {"kanun"}}},
       .doldur = Doldurma},
      // Its filling is not asked for: it passes over people of an unknown kind, and the next step writes over it.
      {.baslik = "2003.5' den 2003.6 ' ye Geçiş",
       .versiyon = "2003.6",
       .eklenen = {{"sicil", {"tur"}}},
       .doldur = Adim5Doldur,
       .damga = 2003.6},
      {.baslik = "2003.6' den 2003.7 ' ye Geçiş",
       .versiyon = "2003.7",
       .eklenen = {{"sicil", {"agi"}}, {"esco", {"agiok"}}, {"brd", {"agioran", "agimatrah", "brdkanun"}}},
       .doldur = Adim6Doldur,
       .damga = 2003.7,
       .dolan = {"sicil", {"agi"}}},
  }};
  return adimlar;
}

std::vector<EksikAdim> EksikAdimlar(Motor& motor) {
  std::vector<EksikAdim> eksik;
  for (std::size_t i = 0; i < AdimSayisi; ++i) {
    const YukseltmeAdimi& adim = YukseltmeAdimlari()[i];
    auto alanlar = EksikAlanlar(motor, adim);
    if (!alanlar.empty() || Doldurulmamis(motor, adim)) eksik.push_back({i, std::move(alanlar)});
  }
  return eksik;
}

std::optional<Kusur> YarimYukseltmeKusuru(Motor& motor) {
  constexpr std::string_view butun = "yükseltmesi bütün";
  if (motor.Biliniyor(butun)) return std::nullopt;
  const auto eksik = EksikAdimlar(motor);
  if (eksik.empty()) {
    motor.Bilindi(butun);
    return std::nullopt;
  }
  std::string metin = "Database yarım yükseltilmiş, yapılmayan geçişler:";
  for (const auto& [adim, alanlar] : eksik) {
    metin += "\n" + std::string(YukseltmeAdimlari()[adim].baslik) + " (";
    for (const std::string& alan : alanlar) metin += (&alan == &alanlar.front() ? "" : ", ") + alan;
    metin += alanlar.empty() ? "alanları doldurulmamış)" : " yok)";
  }
  metin +=
      "\nKayıtlar okunur, bordro kaydedilmez. Ek İşlemler menüsündeki Database Update ekranında bu geçişleri "
      "işaretleyip çalıştırınız.";
  return Kusur{std::move(metin)};
}

}  // namespace belvani
