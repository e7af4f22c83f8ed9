// The cards of many companies at once, for lists.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/bildirim.h"
#include "core/tables/firma.h"
#include "core/veriyolu.h"

namespace belvani {

// In the order of the names; nothing where a company has no card, or its store cannot be read. Each store is read
// through a handle of its own, so that it can run while the session has one open. Throws Vazgecilmis when `ilerleme`
// stops it.
std::vector<std::optional<Firma>> SirketKartlari(const VeriYolu& veri, const std::vector<std::string>& adlar,
                                                 Ilerleme* ilerleme = nullptr);

}  // namespace belvani
