// "MAHSUP FİŞİ": the voucher on paper, with the names of its accounts, debit and credit side by side. Other programs
// get its lines as they are posted: `kod`, `ack`, `ba`, `tutar`.
#pragma once

#include <memory>

#include "accounting/fis.h"
#include "accounting/hesapplani.h"
#include "accounting/yevmiye.h"
#include "printing/belge.h"

namespace belvani {

std::unique_ptr<Belge> FisBelgesi(const Fis& fis, const FisBasligi& baslik, const HesapPlani& plan);

}  // namespace belvani
