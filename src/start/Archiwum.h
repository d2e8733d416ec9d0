// The archive: a checked copy of the database in a folder of its own, and the way back from it.
#pragma once
#include "rules/Otoczenie.h"
#include "store/StanPliku.h"
#include <optional>
#include <QDateTime>
#include <QList>
#include <QString>

namespace tornel::store {
class Polaczenie;
} // namespace tornel::store

namespace tornel::start {

/// The base folder of archives: constant 701, or, when it is empty, the program's folder.
[[nodiscard]] QString FolderArchiwow(const QString& stala701, const QString& folderProgramu);

/// What was settled while the database was still open.
struct ZlecenieArchiwum {
    QString baza;
    QString katalog; ///< of this archive
    [[nodiscard]] QString plik() const { return katalog + QStringLiteral("/Tornel.mdb"); }
};

/// Settles an archive under the folder `bazowy`: makes the folders, asks for the name ("ARCH2001_07_31" is
/// proposed) unless `nazwa` gives it, and asks whether the program may be closed. Nothing when it was refused
/// or cancelled: an empty name or one with a separator or "..", a folder that holds an archive, a No.
/// `baza` is the path of the database. Throws `Blad` when a folder cannot be made.
[[nodiscard]] std::optional<ZlecenieArchiwum> TworzArchiwum(Rozmowa& rozmowa, const QString& baza,
                                                            const QString& bazowy, QDate dzis,
                                                            const std::optional<QString>& nazwa = {});

/// What an archive holds.
struct OpisArchiwum {
    QString katalog; ///< name of the folder
    QString plik;    ///< path of its database
    QDateTime data;
    qint64 rozmiar = 0; ///< bytes
    PodgladPliku::Tresc tresc;
    QString uwaga; ///< why it cannot be taken; empty for a good one
};

/// The entry of the journal, while the database is still open, so that the archive holds it too.
void DopiszArchiwum(Polaczenie& polaczenie, const ZlecenieArchiwum& zlecenie);

/// Copies the database, which must be closed, and checks the copy: size, the engine's check of each table,
/// the number of rows of each table. Throws `BladBazy`; nothing of the copy is left then.
[[nodiscard]] OpisArchiwum SkopiujDoArchiwum(const ZlecenieArchiwum& zlecenie);

/// "12,5 MB, miesiące: 3 (01.2001 do 03.2001), pracownicy: 12".
[[nodiscard]] QString NapisTresci(const OpisArchiwum& archiwum);
[[nodiscard]] QString NapisRozmiaru(qint64 bajty);
/// "01.2001 do 03.2001", empty without months.
[[nodiscard]] QString NapisMiesiecy(const PodgladPliku::Tresc& tresc);

/// The archives in the folders of `bazowy`, the latest first.
[[nodiscard]] QList<OpisArchiwum> ListaArchiwow(const QString& bazowy);
/// When the latest of them was made, without a look into any; nothing when there is none.
[[nodiscard]] std::optional<QDateTime> OstatnieArchiwum(const QString& bazowy);
/// The archive that `nazwa` names: a folder of `bazowy`, or the path of a folder or file. Throws `Blad`.
[[nodiscard]] OpisArchiwum ZnajdzArchiwum(const QString& bazowy, const QString& nazwa);

/// Asks whether the database may be replaced by the archive. False for an archive that cannot be taken, after
/// a message.
[[nodiscard]] bool ZgodaNaPrzywrocenie(Rozmowa& rozmowa, const OpisArchiwum& archiwum, const QString& baza);

/// Puts the archive in the place of the database, which must be closed: checks the archive, copies the
/// present file aside, makes a checked copy of the archive beside it, in which the chain of undo ends, and
/// changes the two at once. Killed at
/// any moment, the program finds at its next start the old file or, by `DokonczPrzywracanie`, the archive.
/// Gives the path of the old file's copy, empty if there was none. Throws `BladBazy`; the database is then as
/// it was.
QString PrzywrocArchiwum(const QString& baza, const QString& archiwum, const QDateTime& chwila);

/// Finishes a restore that was decided and cut off; to be run before the database is opened. Whether there
/// was one. Throws `BladBazy`.
bool DokonczPrzywracanie(const QString& baza);

} // namespace tornel::start
