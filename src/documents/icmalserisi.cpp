#include "documents/icmalserisi.h"

namespace belvani {
namespace {

constexpr const char* Sorgu =
    "select b.yil, b.ay, count(distinct b.kod), sum(b.brutkaz), "
    "sum(b.brutkaz - b.sskkesinti - b.issizisci - b.gvtutar - b.dvtutar - b.sendika - b.borckes), "
    "sum(b.brutkaz + b.sskkesintiisveren + b.issizisveren) from brd b join sicil s on s.kod = b.kod "
    "where (b.yil = ? and b.ay <= ? or b.yil = ? and b.ay > ?) and b.ng + b.ht + b.rt + b.ui + b.ha + b.mi > 0 "
    "group by b.yil, b.ay";

}  // namespace

std::array<IcmalAyi, 12> IcmalSerisiOku(Motor& motor, int yil, int ay) {
  std::array<IcmalAyi, 12> seri;
  const int ilk = yil * 12 + ay - 12;  // months since year 0
  for (int i = 0; i < 12; ++i) {
    seri[std::size_t(i)].yil = (ilk + i) / 12;
    seri[std::size_t(i)].ay = (ilk + i) % 12 + 1;
  }
  const auto komut = motor.Hazirla(Sorgu);
  int no = 0;
  for (const int deger : {yil, ay, yil - 1, ay}) komut->Bagla(++no, std::int64_t(deger));
  while (komut->Adim()) {
    const int sira = komut->TamSigan<int>(0) * 12 + komut->TamSigan<int>(1) - 1 - ilk;
    if (sira < 0 || sira >= int(seri.size())) continue;  // a month that is none, of a damaged store
    IcmalAyi& m = seri[std::size_t(sira)];
    m.kisi = komut->TamSigan<int>(2);
    m.brut = Tutar::Hamdan(komut->TamSigan<std::int64_t>(3));
    m.net = Tutar::Hamdan(komut->TamSigan<std::int64_t>(4));
    m.maliyet = Tutar::Hamdan(komut->TamSigan<std::int64_t>(5));
  }
  return seri;
}

}  // namespace belvani
