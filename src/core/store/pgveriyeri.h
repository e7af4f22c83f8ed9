// The maker of places that lie on a PostgreSQL server: the data path in the common schema, a company in its own.
#pragma once

#include <memory>

#include "core/veriyolu.h"

namespace belvani {

std::shared_ptr<const VeriMakinesi> PgVeriYeri(const SunucuAdresi& adres);

}  // namespace belvani
