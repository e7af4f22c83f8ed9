// The engine of a store that is a file.
#pragma once

#include "core/store/motor.h"

namespace belvani {

std::unique_ptr<Motor> SqliteAc(const std::string& yol, AcilisKipi kip);
// A private copy, with all of its log in the one file. Nothing of it need survive a crash, so nothing waits for the disk.
std::unique_ptr<Motor> SqliteKopyasiAc(const std::string& yol);
std::unique_ptr<Motor> SqliteYarat(const std::string& yol);
void SqliteSil(const std::string& yol);
std::string SqliteSurumu();

}  // namespace belvani
