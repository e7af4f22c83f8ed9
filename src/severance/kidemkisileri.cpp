#include "severance/kidemkisileri.h"

#include "core/store/izlenenokuma.h"
#include "core/store/satirlar.h"
#include "documents/sorgumetni.h"

namespace belvani {
namespace {

constexpr auto KartKolonlari =
    std::tuple{sicil::kod,   sicil::sskno,     sicil::adi,      sicil::soyadi,   sicil::girtar, sicil::ciktar,
               sicil::ucret, sicil::ucrettipi, sicil::ucretags, sicil::sskdurum, sicil::hesap};

}  // namespace

std::optional<Sicil> KidemKartiOku(Motor& motor, std::string_view kod) {
  const auto komut = motor.Hazirla("select " + KolonListesi(KartKolonlari, "") + " from sicil where kod = ?");
  komut->MetinBagla(1, std::string(kod));
  if (!komut->Adim()) return std::nullopt;
  Sicil sicil;
  KolonlariAl(*komut, 0, KartKolonlari, sicil);
  return sicil;
}

KidemMatrahi KidemMatrahiOku(Motor& motor, const std::string& kod, Tarih ciktar) {
  const auto komut =
      motor.Hazirla("select sum(gvmatrah), sum(gvtutar) from brd where kod = ? and yil = ? and ay < ? group by kod");
  komut->MetinBagla(1, kod);
  komut->TamBagla(2, ciktar.Yil());
  komut->TamBagla(3, ciktar.Ay());
  KidemMatrahi matrah;
  if (!komut->Adim()) return matrah;
  KolonAl(*komut, 0, matrah.dvgvmatrah);
  KolonAl(*komut, 1, matrah.dvgvtutar);
  return matrah;
}

KidemKisileri KidemKisileriOku(Motor& motor, const DefterSecim& secim, Tarih baz, Ilerleme* ilerleme) {
  SorguMetni sorgu("select k.kod, k.tcno, m.matrah, m.vergi, " + KolonListesi(KartKolonlari, "s.") +
                       " from sicil s left join kimlik k on k.kod = s.kod left join (select kod, sum(gvmatrah) as "
                       "matrah, sum(gvtutar) as vergi from brd where yil = ? and ay < ? group by kod) m on m.kod = "
                       "s.kod where (s.girtar is null or s.girtar < ?) and (s.ciktar is null or s.ciktar >= ?)",
                   {std::int64_t(baz.Yil()), std::int64_t(baz.Ay()), baz, baz});
  sorgu.Aralik("s.kod", secim.kod);
  sorgu.Aralik("s.grup", secim.grup);
  sorgu.Aralik("s.tip", secim.tip);
  sorgu.Aralik("s.ozel", secim.ozel);
  sorgu.Ekle(" order by s.kod");
  const auto komut = sorgu.Hazirla(motor);
  KidemKisileri hepsi;
  for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
    KidemKisisi kisi;
    KolonlariAl(*komut, 4, KartKolonlari, kisi.sicil);
    if (komut->Turu(0) == Komut::Tur::Null) {
      ++hepsi.kimliksiz;
    } else if (kisi.sicil.girtar.Bos()) {
      ++hepsi.girissiz;
    } else {
      KolonAl(*komut, 1, kisi.tcno);
      KolonAl(*komut, 2, kisi.matrah.dvgvmatrah);
      KolonAl(*komut, 3, kisi.matrah.dvgvtutar);
      hepsi.kisiler.push_back(std::move(kisi));
    }
  }
  return hepsi;
}

}  // namespace belvani
