#include "core/store/motor.h"

namespace belvani {

void Baglanan::Bagla(int no, const Deger& deger) {
  struct {
    Baglanan& k;
    int no;
    void operator()(Null) const { k.NullBagla(no); }
    void operator()(const std::string& d) const { k.MetinBagla(no, d); }
    void operator()(std::int64_t d) const { k.TamBagla(no, d); }
    void operator()(double d) const { k.SayiBagla(no, d); }
    void operator()(Tutar d) const { k.TamBagla(no, d.Ham()); }
    void operator()(Tarih d) const { d.Bos() ? k.NullBagla(no) : k.MetinBagla(no, d.Iso()); }
    void operator()(bool d) const { k.TamBagla(no, d ? 1 : 0); }
    void operator()(const Baytlar& d) const { k.BaytBagla(no, d); }
  } const bagla{*this, no};
  std::visit(bagla, deger);
}

void Komut::Calistir() {
  while (Adim()) {
  }
}

}  // namespace belvani
