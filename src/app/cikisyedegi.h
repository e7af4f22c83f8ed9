// The day's backup, made when a company is left: on the way out, and on the way to another company.
#pragma once

#include "ui/ekran.h"

namespace belvani {

// Closes the session's store and backs the company up if anything has changed since the last time. Stopped, it is left
// for the next time; what went wrong is told, and keeps nobody from leaving.
void CikisYedegiAl(EkranBaglami& baglam);

}  // namespace belvani
