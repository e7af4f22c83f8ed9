#include "documents/deftersorgu.h"

#include "core/store/satirlar.h"

namespace belvani {
namespace {

void AralikEkle(std::string& sql, std::vector<Deger>& degerler, const std::string& alan, const MetinAraligi& aralik) {
  const bool herkes = aralik.bas.empty() && aralik.bit == MetinAraligi{}.bit;
  if (herkes) return;
  sql += " and (coalesce(" + alan + ", '')) collate turkce between ? and ?";
  degerler.emplace_back(aralik.bas);
  degerler.emplace_back(aralik.bit);
}

}  // namespace

std::vector<BordroSatiri> DefterSatirlariOku(Motor& motor, const DefterSecim& secim) {
  std::string sql = "select " + SecimListesi<Brd>(motor, "b") + ", " + SecimListesi<Sicil>(motor, "s") +
                    ", k.tcno from brd b join sicil s on s.kod = b.kod left join kimlik k on k.kod = b.kod "
                    "where b.yil = ? and b.ay = ? and b.no >= ? and b.no <= ?";
  std::vector<Deger> degerler;
  for (const int sayi : {secim.yil, secim.ay, secim.noBas, secim.noBit}) degerler.emplace_back(std::int64_t(sayi));
  AralikEkle(sql, degerler, "b.kod", secim.kod);
  AralikEkle(sql, degerler, "s.grup", secim.grup);
  AralikEkle(sql, degerler, "s.tip", secim.tip);
  AralikEkle(sql, degerler, "s.ozel", secim.ozel);
  sql += secim.sira == DefterSirasi::SskNo ? " order by b.no, s.sskno, s.kod" : " order by b.no, s.kod";

  const auto komut = motor.Hazirla(sql);
  int no = 0;
  for (const Deger& d : degerler) komut->Bagla(++no, d);
  std::vector<BordroSatiri> satirlar;
  while (komut->Adim()) {
    BordroSatiri& satir = satirlar.emplace_back();
    const int sonraki = KayitAl(*komut, KayitAl(*komut, 0, satir.brd), satir.sicil);
    KolonAl(*komut, sonraki, satir.tcno);
  }
  return satirlar;
}

}  // namespace belvani
