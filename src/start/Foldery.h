// Where the program finds what it reads and keeps what it writes. In a folder of its own (built, or copied
// onto a disk) everything lies beside the program; installed for all users, its files are the system's and
// the data the user's.
#pragma once
#include <QString>

namespace tornel::start {

/// Of `Baza.ini`, `Tornel.mdb` and everything written without another place being chosen: the program's
/// folder, or, when the program is installed or its folder cannot be written to, the user's folder "Tornel"
/// for data, which is made. Throws `Blad` if that cannot be.
[[nodiscard]] QString FolderDanych(const QString& folderProgramu);

/// A file that comes with the program: beside it, or where an installation puts it; the first path if it is
/// nowhere.
[[nodiscard]] QString PlikProgramu(const QString& folderProgramu, const QString& nazwa);

} // namespace tornel::start
