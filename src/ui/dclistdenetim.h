// The check of a dclist's cell when it is left.
#pragma once

#include "core/bildirim.h"
#include "ui/dclistmodel.h"

namespace belvani {

// False: the text cannot stay, which is told, and the cursor stays. A date is completed from today's where its tail is
// missing (12.03 typed in 2005 is 12.03.2005) and put into full form; one that is none and not required is emptied
// or, where the column wants a date or nothing, refused.
bool HucreDenetle(const dclistKolonu& kolon, QString& metin, Bildirim& bildirim);

}  // namespace belvani
