// The paper of the leaving notice: one page, A4 upright, in numbered sections. It is drawn only.
#pragma once

#include <memory>
#include <vector>

#include "core/tables/firma.h"
#include "notices/iab.h"
#include "printing/form/formbelgesi.h"

namespace belvani {

struct IabKagidi {
  IabFormu form;
  Firma firma;
};

std::vector<FormSayfasi> IabCiz(const IabKagidi& kagit);

// Said where it is asked for as text.
constexpr const char* IabMetinYok = "Bu Form Sadece Grafik Yazıcıdan Alınır.";
std::unique_ptr<Belge> IabBelgesi(const IabKagidi& kagit);

}  // namespace belvani
