#include "declarations/bildirgesorgu.h"

#include "core/store/izlenenokuma.h"
#include "documents/sorgumetni.h"
#include "documents/turetilen.h"

namespace belvani {
namespace {

constexpr int AralikAyi = 12;

// The columns that are read, a tenth of what the tables hold.
constexpr auto GunKolonlari =
    std::tuple{brd::kod, brd::ng, brd::ht, brd::ui, brd::rt, brd::mi, brd::ha, brd::sskmatrahisveren};
constexpr auto BrdKolonlari =
    std::tuple_cat(GunKolonlari, std::tuple{brd::ucretsizizin, brd::eksiksebebi, brd::rapcalismadi, brd::sskmatrah,
                                            brd::topyardim, brd::ucrizmatrah, brd::katki});
constexpr auto SicilKolonlari =
    std::tuple{sicil::sskdurum, sicil::sskno,  sicil::adi,       sicil::soyadi, sicil::ilksoyadi,
               sicil::girtar,   sicil::ciktar, sicil::cikiskodu, sicil::kanun,  sicil::meslekkod};

// An empty law and none at all are one.
constexpr const char* Kanun = "(coalesce(trim(s.kanun), '')) collate turkce";

SorguMetni Sorgu(const BildirgeSuzgeci& suzgec) {
  SorguMetni sorgu("select " + KolonListesi(BrdKolonlari, "b.") + ", " + KolonListesi(SicilKolonlari, "s.") +
                       ", k.tcno, k.kod is not null from brd b join sicil s on s.kod = b.kod "
                       "left join kimlik k on k.kod = b.kod "
                       "where b.yil = ? and b.ay = ? and coalesce(s.tur, 0) = 0",
                   {std::int64_t(suzgec.yil), std::int64_t(suzgec.ay)});
  if (suzgec.kanun) sorgu.Ekle(std::string(" and ") + Kanun + " = ?", *suzgec.kanun);
  if (suzgec.belgeTuru > 0) sorgu.Ekle(" and coalesce(s.sskdurum, 0) = ?", std::int64_t(suzgec.belgeTuru - 1));
  sorgu.Ekle(std::string(" order by ") + Kanun +
             ", coalesce(s.sskdurum, 0), length(coalesce(s.sskno, '')), (coalesce(s.sskno, '')) collate turkce, "
             "b.no, b.oto");
  return sorgu;
}

}  // namespace

std::vector<std::string> KisiKanunlari(Motor& motor) {
  const auto komut = motor.Hazirla(std::string("select distinct ") + Kanun + " as kanun from sicil s order by 1");
  std::vector<std::string> kanunlar;
  while (komut->Adim()) kanunlar.emplace_back(komut->Metin(0));
  return kanunlar;
}

OncekiAyKayitlari::OncekiAyKayitlari(Motor& motor, int yil, int ay, Ilerleme* ilerleme) {
  const auto komut =
      motor.Hazirla("select " + KolonListesi(GunKolonlari, "") + " from brd where yil = ? and ay = ? order by oto");
  komut->TamBagla(1, ay == 1 ? yil - 1 : yil);
  komut->TamBagla(2, ay == 1 ? AralikAyi : ay - 1);
  Brd brd;
  for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
    KolonlariAl(*komut, 0, GunKolonlari, brd);
    kayitlar_.try_emplace(brd.kod, Kayit{GunToplami(brd), brd.ui, brd.sskmatrahisveren});
  }
}

bool OncekiAyKayitlari::FarkVarmi(std::string_view kod, int gun, int ui, Tutar matrah) const {
  const auto onceki = kayitlar_.find(kod);
  if (onceki == kayitlar_.end()) return true;
  const Kayit& k = onceki->second;
  return k.gun != gun || k.ui != ui || k.matrah != matrah;
}

void BildirgeKayitlariOku(Motor& motor, const BildirgeSuzgeci& suzgec,
                          const std::function<void(const BildirgeKaydi&)>& her, Ilerleme* ilerleme) {
  const OncekiAyKayitlari onceki(motor, suzgec.yil, suzgec.ay, ilerleme);
  const auto komut = Sorgu(suzgec).Hazirla(motor);
  BildirgeKaydi kayit;
  for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
    const int sicilIlk = KolonlariAl(*komut, 0, BrdKolonlari, kayit.brd);
    const int kimlikIlk = KolonlariAl(*komut, sicilIlk, SicilKolonlari, kayit.sicil);
    KolonAl(*komut, kimlikIlk, kayit.tcno);
    KolonAl(*komut, kimlikIlk + 1, kayit.kimlikVar);
    const Brd& brd = kayit.brd;
    kayit.farkVar = onceki.FarkVarmi(brd.kod, GunToplami(brd), brd.ui, brd.sskmatrahisveren);
    her(kayit);
  }
}

}  // namespace belvani
