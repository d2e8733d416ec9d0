// `Baza.ini` beside the program: its first line is the path of the database; the lines below, which nothing
// but the list of earlier databases reads, are those that were open before.
#pragma once
#include "common/Przestrzenie.h"
#include <optional>
#include <QByteArray>
#include <QString>
#include <QStringList>

namespace tornel::start {

struct BazaIni {
    QString baza;           ///< empty for a file whose first line is
    QStringList dawniejsze; ///< the latest first, each once
};

/// The content of the file. Whatever stands in it, it gives lines of text.
[[nodiscard]] BazaIni RozbierzBazeIni(const QByteArray& tresc);
/// That of the file in `folder`; nothing without one.
[[nodiscard]] std::optional<BazaIni> CzytajBazeIni(const QString& folder);
/// Makes `nowa` the database of the next start; `obecna` becomes the latest of the earlier ones. Throws
/// `Blad`.
void WskazBaze(const QString& folder, const QString& obecna, const QString& nowa);

} // namespace tornel::start
