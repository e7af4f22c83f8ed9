#include "reports/hazirraporlar.h"

#include "reports/raporalani.h"

namespace belvani {
namespace {

// A column as the designer would begin it: head and width of its field.
OzlukKolonu K(std::string_view ad, std::string baslangic = {}, std::string bitis = {}) {
  const RaporAlani& alan = *RaporAlaniBul(OzlukAlanlari(), ad);
  return {.alan = alan.dosyadaki,
          .baslik = std::string(alan.baslik),
          .en = std::uint8_t(alan.TercihEni(EnGenisOzlukKolonu)),
          .baslangic = std::move(baslangic),
          .bitis = std::move(bitis)};
}

BordroKolonlari Kolonlar(std::initializer_list<std::string_view> adlar) {
  BordroKolonlari kolonlar;
  for (const auto ad : adlar) {
    const RaporAlani& alan = *RaporAlaniBul(BordroAlanlari(), ad);
    const bool oran = alan.kolon.tip == AlanTipi::Tek;
    const bool kayittan = alan.sql.starts_with("b.") && ad != "yil" && ad != "ay";
    kolonlar.push_back({.alan = alan.dosyadaki,
                        .baslik = std::string(alan.baslik),
                        .en = std::uint8_t(alan.TercihEni(EnGenisOzlukKolonu)),
                        .ondalik = std::uint8_t(alan.Tutardir() ? 2
                                                : oran          ? 1
                                                                : 0),
                        .toplanir = kayittan && alan.Turu() != KolonTuru::Metin && (!oran || ad.starts_with("fm")) &&
                                    !ad.starts_with("fmo")});
  }
  return kolonlar;
}

}  // namespace

std::vector<HazirRapor<OzlukKolonlari>> HazirOzlukRaporlari(Tarih ilkGun, Tarih sonGun) {
  const std::string ilk = ilkGun.Metin(), son = sonGun.Metin();
  return {
      {"Personel Listesi",
       {K("sicil.kod"), K("sicil.adi"), K("sicil.soyadi"), K("sicil.sskno"), K("kimlik.tcno"), K("sicil.girtar"),
        K("sicil.grup"), K("sicil.ucret")}},
      {"Doğum Günleri",
       {K("sicil.kod"), K("sicil.adi"), K("sicil.soyadi"), K("kimlik.dogtar"), K("kimlik.dogyer"), K("kimlik.tel")}},
      {"Dönemde Girenler",
       {K("sicil.kod"), K("sicil.adi"), K("sicil.soyadi"), K("sicil.sskno"), K("sicil.girtar", ilk, son),
        K("sicil.grup"), K("sicil.ucret")}},
      {"Dönemde Çıkanlar",
       {K("sicil.kod"), K("sicil.adi"), K("sicil.soyadi"), K("sicil.sskno"), K("sicil.girtar"),
        K("sicil.ciktar", ilk, son), K("sicil.cikiskodu"), K("sicil.cikissebebi")}},
      {"Adres ve Telefonlar",
       {K("sicil.kod"), K("sicil.adi"), K("sicil.soyadi"), K("kimlik.adr1"), K("kimlik.adr2"), K("kimlik.tel")}},
      {"Sendika Üyeleri",
       {K("sicil.tasno", "!"), K("sicil.kod"), K("sicil.adi"), K("sicil.soyadi"), K("sicil.girtar")}},
  };
}

const std::vector<HazirRapor<BordroKolonlari>>& HazirBordroRaporlari() {
  static const std::vector<HazirRapor<BordroKolonlari>> raporlar{
      {"Ücret Kartı", Kolonlar({"brd.kod", "adsoy", "yil", "ay", "ng", "brd.ucret", "topyardim", "brutkaz",
                                "sskkesinti", "issizisci", "gvtutar", "dvtutar", "ogv"})},
      {"Prim Matrahları", Kolonlar({"brd.kod", "adsoy", "sskno", "yil", "ay", "sskmatrah", "sskkesinti",
                                    "sskmatrahisveren", "sskkesintiisveren", "issizisci", "issizisveren"})},
      {"Vergi Matrahları",
       Kolonlar({"brd.kod", "adsoy", "yil", "ay", "devgvmatrah", "gvmatrah", "gvtutar", "dvmatrah", "dvtutar"})},
      {"Fazla Mesailer", Kolonlar({"brd.kod", "adsoy", "yil", "ay", "fm1", "fm2", "fm3", "fmo1", "fmo2", "fmo3"})},
      {"Ücretli İzinler", Kolonlar({"brd.kod", "adsoy", "yil", "ay", "ui", "ucrizmatrah"})},
      {"Yardımlar", Kolonlar({"brd.kod", "adsoy", "yil", "ay", "yrd01", "yrd02", "yrd03", "yrd04", "yrd05", "yrd06",
                              "yrd07", "yrd08", "yrd09", "yrd10", "yrd11", "topyardim"})},
  };
  return raporlar;
}

}  // namespace belvani
