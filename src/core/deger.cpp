#include "core/deger.h"

#include "core/sayi.h"

namespace belvani {
namespace {

template <class... F>
struct Her : F... {
  using F::operator()...;
};
template <class... F>
Her(F...) -> Her<F...>;

}  // namespace

std::string MetinDegeri(const Deger& d) {
  return std::visit(Her{[](const std::string& s) { return s; }, [](std::int64_t n) { return std::to_string(n); },
                        [](double n) { return SayiMetni(n); }, [](Tutar t) { return OndalikMetin(t); },
                        [](Tarih t) { return t.Metin(); }, [](bool b) { return std::string(b ? "1" : "0"); },
                        [](const auto&) { return std::string(); }},
                    d);
}

std::int64_t TamDegeri(const Deger& d) {
  return std::visit(Her{[](std::int64_t n) { return n; }, [](bool b) { return std::int64_t(b); },
                        [](const auto&) { return std::int64_t(0); }},
                    d);
}

double SayiDegeri(const Deger& d) {
  return std::visit(
      Her{[](std::int64_t n) { return double(n); }, [](double n) { return n; }, [](Tutar t) { return t.Sayi(); },
          [](bool b) { return double(b); }, [](const auto&) { return 0.0; }},
      d);
}

Tutar TutarDegeri(const Deger& d) {
  if (const auto* t = std::get_if<Tutar>(&d)) return *t;
  return Tutar(SayiDegeri(d));
}

Tarih TarihDegeri(const Deger& d) {
  const auto* t = std::get_if<Tarih>(&d);
  return t == nullptr ? Tarih() : *t;
}

bool MantikDegeri(const Deger& d) {
  return SayiDegeri(d) != 0;
}

}  // namespace belvani
