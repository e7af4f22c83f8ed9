// Tables beside the schema that hold pay records which no calculation and no paper looks at: `brdonceki`, months as
// they were before they were written over or deleted, and `brdayrilan`, records that stood twice. They have the columns
// of `brd`, those too that came after they were made.
//
// A new company has them from its beginning: where a server decides who may make tables, its users need not.
#pragma once

#include "core/store/motor.h"

namespace belvani {

// Makes the table, or adds what `brd` has got since; does nothing where nothing is missing. Throws MotorHatasi.
void OncekileriHazirla(Motor& motor);
void AyrilanlariHazirla(Motor& motor);

}  // namespace belvani
