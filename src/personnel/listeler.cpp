// The limits of the columns end where their lists do.
#include "personnel/listeler.h"

#include "core/tables/esco.h"
#include "core/tables/kimlik.h"
#include "core/tables/sicil.h"
#include "personnel/cikiskodlari.h"

namespace belvani {

static_assert(ListeyeUyar(sicil::ucrettipi, std::size(UcretTipleri)));
static_assert(ListeyeUyar(sicil::ucretags, std::size(UcretEsaslari)));
static_assert(ListeyeUyar(sicil::sakatdrc, std::size(SakatlikDereceleri)));
static_assert(ListeyeUyar(sicil::cikiskodu, std::size(CikisKodlari)));
static_assert(ListeyeUyar(kimlik::cins, std::size(Cinsiyetler)));
static_assert(ListeyeUyar(kimlik::medeni, std::size(MedeniHaller)));
static_assert(ListeyeUyar(kimlik::dini, std::size(Dinler)));
static_assert(ListeyeUyar(kimlik::kan, std::size(KanGruplari)));
static_assert(ListeyeUyar(kimlik::tahsil, std::size(Tahsiller)));
static_assert(ListeyeUyar(esco::cins, std::size(KodluCinsiyetler)));
static_assert(ListeyeUyar(esco::agiok, std::size(AgiDurumlari)));
static_assert(esco::yakinlik.sinir.enCok == std::size(Yakinliklar), "codes begin at 1");

}  // namespace belvani
