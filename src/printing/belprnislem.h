// belprn: a small program that sends a file to a printer byte by byte, past all drivers; so a text print never holds
// the program that made it.
//
//   belprn DOSYA [--yazici AD] [--ad AD] [--sil]     --ad: the name of the job, else that of the file
//                                                    --sil: the file goes once it has been handed over
#pragma once

#include <string>
#include <vector>

#include "printing/kuyruk.h"

namespace belvani {

Durum Belprn(const std::vector<std::string>& argumanlar, Kuyruk& kuyruk);

struct BelprnIsi {
  std::string dosya;
  std::string yazici = {};
  std::string ad = {};
};

// Starts the program of that directory with a finished file and does not wait. A missing printer is told at once. The
// file is deleted when it has been handed over, and stays when it has not.
Durum BelprnBaslat(const std::string& programDizini, const BelprnIsi& is, Kuyruk& kuyruk);

}  // namespace belvani
