// All tables of the company store.
#pragma once

#include "core/tables/arac.h"
#include "core/tables/brd.h"
#include "core/tables/cari.h"
#include "core/tables/dvr.h"
#include "core/tables/entpar.h"
#include "core/tables/esco.h"
#include "core/tables/firma.h"
#include "core/tables/foto.h"
#include "core/tables/indir.h"
#include "core/tables/kaztan.h"
#include "core/tables/kimlik.h"
#include "core/tables/muaf.h"
#include "core/tables/peruser.h"
#include "core/tables/sendika.h"
#include "core/tables/sicil.h"

namespace belvani {

// In the order in which they are told: peruser, firma, sicil, foto, kimlik, brd, …, cari.
const std::vector<TabloTanimi>& Tablolar();

// By name, case ignored; null when there is no such table.
const TabloTanimi* TabloBul(std::string_view ad);

}  // namespace belvani
