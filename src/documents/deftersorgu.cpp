#include "documents/deftersorgu.h"

#include "core/store/izlenenokuma.h"
#include "core/store/satirlar.h"
#include "documents/sorgumetni.h"

namespace belvani {
namespace {

std::string_view Sira(DefterSirasi sira) {
  switch (sira) {
    case DefterSirasi::Kod:
      return " order by b.no, s.kod";
    case DefterSirasi::SskNo:
      return " order by b.no, s.sskno, s.kod";
    case DefterSirasi::Kisi:
      return " order by s.kod, b.no";
  }
  return {};
}

}  // namespace

void DefterSatirlariniGez(Motor& motor, const DefterSecim& secim, const std::function<void(BordroSatiri&)>& al,
                          Ilerleme* ilerleme) {
  SorguMetni sorgu("select " + SecimListesi<Brd>(motor, "b") + ", " + SecimListesi<Sicil>(motor, "s") +
                       ", k.tcno from brd b join sicil s on s.kod = b.kod left join kimlik k on k.kod = b.kod "
                       "where b.yil = ? and b.ay = ?",
                   {std::int64_t(secim.yil), std::int64_t(secim.ay)});
  sorgu.Secim(secim);
  sorgu.Ekle(Sira(secim.sira));
  const auto komut = sorgu.Hazirla(motor);
  for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
    BordroSatiri satir;
    const int sonraki = KayitAl(*komut, KayitAl(*komut, 0, satir.brd), satir.sicil);
    KolonAl(*komut, sonraki, satir.tcno);
    al(satir);
  }
}

}  // namespace belvani
