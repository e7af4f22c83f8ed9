// The cards of all companies of a data path at once, where one look serves for them: on a server.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/tables/firma.h"

namespace belvani {

// `adres` is a data path's on a server. In the order of the names; nothing where a company has no card, or the role may
// not see it. Three waits and one more for each five hundred. Throws MotorHatasi.
std::vector<std::optional<Firma>> SunucudakiKartlar(const std::string& adres, const std::vector<std::string>& adlar);

}  // namespace belvani
