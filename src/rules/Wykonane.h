// What was printed and written to files: a lasting list, so that screens say "wydrukowano 10-04-2001" before
// it is done once more, and reminders know what is still to be made.
#pragma once
#include "common/RokMies.h"
#include "common/Waluta.h"
#include <optional>
#include <QDateTime>
#include <QList>
#include <QString>

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::rules {

/// A kind of paper or file. Each stands in the folder that makes it.
struct RodzajWykonania {
    QStringView kod;   ///< as it is stored, at most 20 characters
    QStringView slowo; ///< before the day: "wydrukowano", "zapisano"
};

/// One paper that was printed, or one file.
struct Wykonanie {
    QString rodzaj;       ///< `kod` of its kind
    RokMies miesiac = {}; ///< that it is about; zeros for none, which stores the month of making
    QString zrodlo = {};  ///< name of the table with its data, as "UZL"; empty for the payroll list
    QString lista = {};   ///< list symbols; empty for all
    qint64 komu = 0;      ///< `PRC_ID`, or `US_ID` of a tax; 0 for no single one
    qint64 dokument = 0;  ///< number of the contract, declaration or bank package
    Waluta kwota = {};    ///< zł
    QString plik = {};    ///< path; empty for a paper
    QString opis = {};    ///< for people, as "Przelew: Anna Nowak"
    QDateTime kiedy = {}; ///< given by `dopisz`, as is
    QString kto = {};     ///< the user at work
};

/// Which of them; what is not given may be anything.
struct SzukaneWykonania {
    std::optional<QString> rodzaj = {};
    std::optional<RokMies> miesiac = {}; ///< with it the search goes through the file's index
    std::optional<QString> zrodlo = {}, lista = {};
    std::optional<qint64> komu = {}, dokument = {};
};

class Wykonane {
public:
    explicit Wykonane(Sesja& sesja) : sesja_(sesja) {}

    /// Adds them as made at `kiedy` by the user at work: an action of its own, or a part of the one that is
    /// open. Writes `WYKONANE`. Throws `BladBazy`.
    void dopisz(const QList<Wykonanie>& wykonania, const QDateTime& kiedy);
    /// Takes back what was only begun. Writes `WYKONANE`, as `dopisz` does.
    void usun(const SzukaneWykonania& ktore);
    /// By month, in the order of making. Reads `WYKONANE`. Throws `BladBazy`, `UszkodzonaWartosc`.
    [[nodiscard]] QList<Wykonanie> szukaj(const SzukaneWykonania& ktore) const;
    /// When the last of them was made: "wydrukowano 10-04-2001"; empty when there is none.
    [[nodiscard]] QString napis(const RodzajWykonania& rodzaj, SzukaneWykonania ktore) const;

private:
    Sesja& sesja_;
};

/// The same for what was already read: the latest of `wykonania`.
[[nodiscard]] QString NapisWykonania(const RodzajWykonania& rodzaj, const QList<Wykonanie>& wykonania);

} // namespace tornel::rules
