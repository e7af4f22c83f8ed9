// All of a store from one engine into the other: what a server's company gives for a backup is a file's store, and what
// comes back from a backup goes to the server again. Every row comes over as it stands, with its number, checksums and
// what older versions left included.
#pragma once

#include <string>

#include "core/store/motor.h"

namespace belvani {

// The store of `kaynak` into the new file `yol`. In one look: the caller has a transaction open. Throws MotorHatasi.
void DepoyuDosyayaAl(Motor& kaynak, const std::string& yol, const Motor::KopyaAdimi& adim);

// All tables of `kaynak` into the empty store `hedef`, in one transaction. A value that its column cannot hold is
// refused by name, and nothing comes over. Throws MotorHatasi.
void DepoyuAktar(Motor& kaynak, Motor& hedef, const Motor::KopyaAdimi& adim);

// "" when both stores hold the same rows, else the first difference. Throws MotorHatasi.
std::string DepoFarki(Motor& bir, Motor& iki);

}  // namespace belvani
