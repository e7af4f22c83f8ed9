// Companies of a server on their way into being and out of it: a schema whose company bears no name. All of it is done
// as the owner, and throws MotorHatasi.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/pgbaglanti.h"
#include "core/sunucuadresi.h"
#include "core/veriyolu.h"

namespace belvani {

// A new schema with the files' table and nothing else; its number. With `kod` it is a company at once.
std::int64_t PgSirketAyir(PgBaglanti& b, const std::optional<std::string>& kod, std::string_view yarimAd, bool donen);

std::unique_ptr<YarimYer> PgYarimYerAc(const SunucuAdresi& veri, std::string_view ad, YarimTuru tur);
// Names of those that nobody is at; of one kind alone, or of both.
std::vector<std::string> PgYarimYerler(PgBaglanti& b, std::optional<YarimTuru> tur);
// Out of every list in one step; gives its name from now on.
std::string PgYarimaCevir(PgBaglanti& b, std::string_view kod);
// Refused while someone is at it.
void PgYarimiSil(PgBaglanti& b, std::string_view ad);

}  // namespace belvani
