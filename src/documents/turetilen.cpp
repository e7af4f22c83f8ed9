#include "documents/turetilen.h"

#include "core/turkce.h"

namespace belvani {

int GunToplami(const Brd& brd) {
  return brd.ng + brd.ht + brd.rt + brd.ui + brd.ha + brd.mi;
}

Tutar GunlukBrut(const Brd& brd, Yuvarlayici yuvarla) {
  const int gun = GunToplami(brd);
  return gun == 0 ? Tutar() : yuvarla(brd.ucret.Sayi() / gun);
}

Tutar GvIndirimi(const Brd& brd) {
  return brd.indirim1 + brd.indirim2 + brd.indirim3 + brd.sakindir;
}

Tutar AgiDahilDamga(const Brd& brd, Tek damgaOran, Yuvarlayici yuvarla) {
  return yuvarla(brd.dvtutar + yuvarla(brd.ogv.Sayi() * damgaOran.Sayi() / 1000));
}

Tutar Kesintiler(const Brd& brd, Tek damgaOran, Yuvarlayici yuvarla) {
  return brd.sskkesinti + brd.issizisci + brd.gvtutar + AgiDahilDamga(brd, damgaOran, yuvarla) + brd.sendika +
         brd.borckes;
}

Tutar NetOdenen(const Brd& brd, Tek damgaOran, Yuvarlayici yuvarla) {
  return brd.brutkaz - Kesintiler(brd, damgaOran, yuvarla) + brd.ogv;
}

Tutar OdenecekSskPrimi(const Brd& brd) {
  return brd.sskkesinti + brd.sskkesintiisveren + brd.issizisci + brd.issizisveren - brd.katki;
}

std::string AdSoyad(const Sicil& sicil) {
  const std::string tamami = sicil.adi + " " + sicil.soyadi;
  return std::string(Kirp(tamami));
}

}  // namespace belvani
