// The workforce chart on paper and as a table: one page, A4 on its side, drawn only.
#pragma once

#include <memory>

#include "notices/isgucu.h"
#include "printing/belge.h"
#include "printing/form/formsayfasi.h"

namespace belvani {

FormSayfasi IsgucuCiz(const IsgucuCizelgesi& cizelge);

std::unique_ptr<Belge> IsgucuBelgesi(const IsgucuCizelgesi& cizelge);

}  // namespace belvani
