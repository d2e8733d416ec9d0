// modStruktB: the program upgrades its own database by two files, and reports what it did.
#pragma once
#include "common/Rozmowa.h"
#include <functional>
#include <memory>
#include <QDateTime>
#include <QString>

namespace tornel::store {
class Polaczenie;
} // namespace tornel::store

namespace tornel::start {

/// `ZapiszStrukture`, after its question: the structure of the open database into `Tabele.rec` and `Pola.rec`
/// of `folder`, each whole or not at all. False when it was refused or failed, after a message.
bool ZapiszStrukture(store::Polaczenie& polaczenie, const QString& folder, common::Rozmowa& rozmowa);

/// What an update needs besides the database.
struct OtoczenieAktualizacji {
    QString folder; ///< of `Tabele.rec`, `Pola.rec` and `Aktua.log`
    QDateTime chwila;
    /// Shows that the update runs, for as long as what it gives is kept. May be empty.
    std::function<std::shared_ptr<void>()> pokazTrwa;
    /// Shows the report, whose text stands in `plik`; false if it cannot be opened.
    std::function<bool(const QString& plik, const QString& tekst)> pokazRaport;
};

/// How an update ended.
struct WynikAktualizacji {
    int zmian = 0;  ///< statements that were executed
    int bledow = 0; ///< lines of the report that tell of a failure
    QString kopia;  ///< the file as it was before the first statement; empty when nothing was executed
};

/// `AktualizujBaze`, without the question before it: compares the two files of `folder` with the open
/// database, adds and changes what differs, drops nothing, writes `Aktua.log` and asks whether to show it. A
/// failed statement is told and reported, and the run goes on; each statement is done or left, and what was
/// changed stays; with it the chain of undo ends. Every handle of the database must be closed. Tables of
/// payroll months are not touched. Throws `Blad` when the report cannot be written.
WynikAktualizacji AktualizujBaze(store::Polaczenie& polaczenie, const OtoczenieAktualizacji& otoczenie,
                                 common::Rozmowa& rozmowa);

} // namespace tornel::start
