// The console companion: batch work over the same logic as the windows.
#pragma once
#include "common/Przestrzenie.h"
#include <QIODevice>
#include <QString>
#include <QStringList>

namespace tornel::cli {

/// Runs one command. `argumenty` are those behind the program's name, `folderProgramu` is where `Baza.ini`
/// and `Tornel.mdb` are looked up. Data goes to `wyjscie`, messages and questions to `bledy`, both UTF-8.
/// Gives the status: 0 done, 1 refused or failed, 2 wrong usage.
[[nodiscard]] int Konsola(const QStringList& argumenty, const QString& folderProgramu, QIODevice& wyjscie,
                          QIODevice& bledy);

} // namespace tornel::cli
