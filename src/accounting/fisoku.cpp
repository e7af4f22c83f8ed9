#include "accounting/fisoku.h"

#include "core/store/izlenenokuma.h"
#include "core/store/satirlar.h"
#include "documents/sorgumetni.h"

namespace belvani {
namespace {

// What the places are made of.
constexpr auto YerKolonlari = std::tuple{
    brd::ucret,       brd::topyardim, brd::brutkaz, brd::sskmatrah, brd::sskkesinti,       brd::issizisci,
    brd::gvmatrah,    brd::gvtutar,   brd::dvtutar, brd::ogv,       brd::sskmatrahisveren, brd::sskkesintiisveren,
    brd::issizisveren};

SorguMetni KayitSorgusu(const FisDonemi& donem) {
  SorguMetni sorgu("select coalesce(s.ozel, ''), " + KolonListesi(YerKolonlari, "b.") +
                       " from brd b join sicil s on s.kod = b.kod where b.yil = ? and b.ay = ?",
                   {std::int64_t(donem.yil), std::int64_t(donem.ay)});
  if (donem.grup != ButunGruplar) sorgu.Ekle(" and s.ozel = ?", donem.grup);
  sorgu.Ekle(" order by (coalesce(s.ozel, '')) collate turkce, b.kod, b.no");
  return sorgu;
}

}  // namespace

std::vector<std::string> EntegreGruplari(Motor& motor) {
  const auto komut = motor.Hazirla("select grup from entpar where grup > '' group by grup order by grup");
  std::vector<std::string> gruplar;
  while (komut->Adim()) gruplar.emplace_back(komut->Metin(0));
  return gruplar;
}

Fis FisOku(Motor& motor, const FisDonemi& donem, Ilerleme* ilerleme) {
  FisKurucu kurucu(KayitlariOku<Entpar>(motor, "order by grup, no"));
  const auto komut = KayitSorgusu(donem).Hazirla(motor);
  Brd kayit;
  for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
    KolonlariAl(*komut, 1, YerKolonlari, kayit);
    kurucu.Ekle(komut->Metin(0), kayit);
  }
  return kurucu.Bitir(donem);
}

}  // namespace belvani
