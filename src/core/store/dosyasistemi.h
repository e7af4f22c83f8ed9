// The kind of file system that a path lies on: one of this computer's own disks, or one that other computers write too
// (network shares, shared folders of virtual machines, cluster file systems). There programs of several computers have
// no memory in common, whatever the file system says of itself; so its name in the mount table decides.
#pragma once

#include <string>
#include <string_view>

namespace belvani {

// The type of the mount that a path (absolute, without links) lies on: "ext4", "cifs", "fuse.sshfs". `tablo` is the
// text of a table as the system keeps it (/proc/self/mountinfo); the deepest mount holds, of several at one place the
// last. Empty: none.
std::string DosyaSistemiTuru(std::string_view tablo, std::string_view yol);

// Does another computer write what lies on a file system of this type?
bool PaylasilanTur(std::string_view tur);

// Of the file or directory at the path, which exists. The environment may name another mount table, for tests:
// BELVANI_BAGLAMALAR.
bool PaylasilanDiskte(const std::string& yol);

}  // namespace belvani
