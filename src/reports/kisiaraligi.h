// The people of a report in its query.
#pragma once

#include "documents/sorgumetni.h"
#include "reports/ozlukraporu.h"

namespace belvani {

// Table `sicil` s.
inline void KisileriSec(SorguMetni& sorgu, const KisiAraligi& kisiler) {
  sorgu.Aralik("s.kod", kisiler.kod);
  sorgu.Aralik("s.grup", kisiler.grup);
  sorgu.Aralik("s.tip", kisiler.tip);
  sorgu.Aralik("s.ozel", kisiler.ozel);
}

}  // namespace belvani
